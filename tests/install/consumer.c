/* A C99 program that uses the installed library. */
#include <stdio.h>
#include <vorm/vorm.h>

int main(void)
{
    const double a[2][3] = {{1, 2, 3}, {4, 5, 6}}, b[3] = {10, 20, 30};
    double sum[2][3];
    if (vormAdd_vav_64f(a[0], 24, 8, b, 8, sum[0], 24, 8, 3, 2) != StatusOk || sum[1][2] != 36) return 1;
    puts(vormGetLibVersion()->libraryLabel);
    return 0;
}
