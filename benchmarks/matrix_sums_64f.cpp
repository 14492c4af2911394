// Sums of matrices in double precision.

#include "matrix_sums.hpp"

namespace bench {

namespace matrices {

template <>
void addShapes<double>(SumSections& s)
{
    using enum Kind;
    addShape<Add, double, array, false, array, false, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_mama_64f));
    addShape<Add, double, array, false, common, false, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_mam_64f));
    addShape<Sub, double, common, false, array, false, 3, 6>(s, BENCH_MEMBERS(vormSub_mma_64f));
    addShape<Add, double, array, true, array, false, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_tama_64f));
    addShape<Sub, double, array, false, array, true, 3, 4>(s, BENCH_MEMBERS(vormSub_mata_64f));
    addShape<Add, double, array, true, array, true, 3, 4>(s, BENCH_MEMBERS(vormAdd_tata_64f));
    addShape<Add, double, array, false, common, true, 3, 4>(s, BENCH_MEMBERS(vormAdd_mat_64f));
    addShape<Add, double, array, true, common, false, 3, 4, 6>(s, BENCH_MEMBERS(vormAdd_tam_64f));
    addShape<Mul, double, array, false, constant, false, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormMul_mac_64f));
    addShape<Mul, double, array, true, constant, false, 3, 4, 5, 6>(s, BENCH_MEMBERS(vormMul_tac_64f));
}

}  // namespace matrices

}  // namespace bench
