// A C++20 program that uses the installed library and its companion.
#include <vorcore/vorcore.h>
#include <vorm/vorm.h>

#include <array>

int main()
{
    const std::array a{3.0f, 4.0f};
    float length = 0;
    return vormLen_v2_32f(a.data(), &length) != StatusOk || length != 5 || ownGetNumThreads() < 1;
}
