// Values and vectors of general matrices of the orders 2 to 4 in single precision.

#include "eigen_vectors.hpp"

namespace bench {

void eigenvectors::addSmall32f(eigenvectors::Sections& s)
{
    const auto add = [&](auto order) {
        addOrder<order(), float>(s, BENCH_MEMBERS(vormEigenValuesVectorsRight_ma_32f),
                                 BENCH_MEMBERS(vormEigenValuesVectorsLeft_ma_32f),
                                 BENCH_MEMBERS(vormEigenValuesVectors_ma_32f));
    };
    add(std::integral_constant<int, 2>{});
    add(std::integral_constant<int, 3>{});
    add(std::integral_constant<int, 4>{});
}

void addEigenVectors(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    eigenvectors::Sections s{
        section("General eigenvectors, resident", resident + ", packed, of random elements in [-0.75, 0.75)."),
        section("General eigenvectors as structure of arrays, resident",
                resident + ", a pointer table and one plane per element."),
    };
    eigenvectors::addSmall32f(s);
    eigenvectors::addLarger32f(s);
    eigenvectors::addSmall64f(s);
    eigenvectors::addLarger64f(s);
}

}  // namespace bench
