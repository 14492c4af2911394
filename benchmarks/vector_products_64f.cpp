// Products of matrices and vectors in double precision.

#include "vector_products.hpp"

namespace bench::vectorProducts {

void addAll64f(VectorProductSections& s)
{
    BENCH_SHAPE(mva, double, 64f);
    BENCH_SHAPE(mava, double, 64f);
    BENCH_SHAPE(mav, double, 64f);
    BENCH_SHAPE(tava, double, 64f);
}

}  // namespace bench::vectorProducts
