// Values and vectors of general matrices of the orders 2 to 4 in double precision.

#include "eigen_vectors.hpp"

namespace bench {

void eigenvectors::addSmall64f(eigenvectors::Sections& s)
{
    const auto add = [&](auto order) {
        addOrder<order(), double>(s, BENCH_MEMBERS(vormEigenValuesVectorsRight_ma_64f),
                                  BENCH_MEMBERS(vormEigenValuesVectorsLeft_ma_64f),
                                  BENCH_MEMBERS(vormEigenValuesVectors_ma_64f));
    };
    add(std::integral_constant<int, 2>{});
    add(std::integral_constant<int, 3>{});
    add(std::integral_constant<int, 4>{});
}

}  // namespace bench
