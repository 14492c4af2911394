// Cholesky decomposition and substitution in single precision.

#include "cholesky.hpp"

namespace bench {

void cholesky::addAll32f(LayoutSections& s)
{
    addOrders<float, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormCholeskyDecomp_ma_32f),
                                        BENCH_MEMBERS(vormCholeskyBackSubst_mva_32f),
                                        BENCH_MEMBERS(vormCholeskyBackSubst_mava_32f));
}

void addCholesky(Sections& sections)
{
    LayoutSections s = addLayoutSections(sections, "Cholesky");
    cholesky::addAll32f(s);
    cholesky::addAll64f(s);
}

}  // namespace bench
