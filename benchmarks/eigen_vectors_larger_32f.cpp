// Values and vectors of general matrices of the orders 6 and 10 in single precision.

#include "eigen_vectors.hpp"

namespace bench {

void eigenvectors::addLarger32f(eigenvectors::Sections& s)
{
    const auto add = [&](auto order) {
        addOrder<order(), float>(s, BENCH_MEMBERS(vormEigenValuesVectorsRight_ma_32f),
                                 BENCH_MEMBERS(vormEigenValuesVectorsLeft_ma_32f),
                                 BENCH_MEMBERS(vormEigenValuesVectors_ma_32f));
    };
    add(std::integral_constant<int, 6>{});
    add(std::integral_constant<int, 10>{});
}

}  // namespace bench
