// vormGaxpy in double precision.

#include "gaxpy.hpp"

namespace bench::gaxpy {

void addAll64f(GaxpySections& s)
{
    addShape<Third::vectors, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormGaxpy_mva_64f));
    addShape<Third::vector, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormGaxpy_mvav_64f));
}

}  // namespace bench::gaxpy
