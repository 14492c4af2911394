/* The headers as strict C99: what a caller in C sees. */
#include <vorcore/vorcore.h>
#include <vorm/vorm.h>

int main(void)
{
    const float a[3] = {1, 2, 3}, b[3] = {4, 5, 6};
    float cross[3];
    uint64_t features;
    if (vorGetCpuFeatures(&features, 0) != VorCoreOk) return 1;
    if (vormCrossProduct_v3_32f(a, b, cross) != StatusOk) return 2;
    if (vormGetLibVersion()->versionMajor != 7) return 3;
    return !(cross[0] == -3 && cross[1] == 6 && cross[2] == -3);
}
