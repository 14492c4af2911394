// Scaled sums of vectors and products by constants in double precision.

#include "elementwise.hpp"

namespace bench {

void addScaling64f(ElementwiseSections& s)
{
    using enum Kind;
    addShape<Saxpy<double>, array, common, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormSaxpy_vav_64f));
    addShape<Saxpy<double>, common, array, double, 3, 4>(s, BENCH_MEMBERS(vormSaxpy_vva_64f));
    addShape<Saxpy<double>, array, array, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormSaxpy_vava_64f));
    addShape<LComb<double>, array, common, double, 3, 6>(s, BENCH_MEMBERS(vormLComb_vav_64f));
    addShape<LComb<double>, array, array, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormLComb_vava_64f));
    addShape<Mul, array, constant, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormMul_vac_64f));
    addShape<Mul, array, constants, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormMul_vaca_64f));
    addShape<Mul, common, constants, double, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormMul_vca_64f));
}

}  // namespace bench
