/* Moves two points by one offset. */
#include <stdio.h>
#include <vorm/vorm.h>

int main(void)
{
    const float points[2][3] = {{1, 2, 3}, {4, 5, 6}}, offset[3] = {10, 20, 30};
    float moved[2][3];
    const VormStatus status = vormAdd_vav_32f(points[0], 12, 4, offset, 4, moved[0], 12, 4, 3, 2);
    for (int n = 0; n < 2; ++n) printf("%g %g %g\n", moved[n][0], moved[n][1], moved[n][2]);
    return status == StatusOk ? 0 : 1;
}
