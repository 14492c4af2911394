// Scaled sums of vectors and products by constants in single precision.

#include "elementwise.hpp"

namespace bench {

void addScaling32f(ElementwiseSections& s)
{
    using enum Kind;
    addShape<Saxpy<float>, array, common, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormSaxpy_vav_32f));
    addShape<Saxpy<float>, common, array, float, 3, 4>(s, BENCH_MEMBERS(vormSaxpy_vva_32f));
    addShape<Saxpy<float>, array, array, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormSaxpy_vava_32f));
    addShape<LComb<float>, array, common, float, 3, 6>(s, BENCH_MEMBERS(vormLComb_vav_32f));
    addShape<LComb<float>, array, array, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormLComb_vava_32f));
    addShape<Mul, array, constant, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormMul_vac_32f));
    addShape<Mul, array, constants, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormMul_vaca_32f));
    addShape<Mul, common, constants, float, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormMul_vca_32f));
}

}  // namespace bench
