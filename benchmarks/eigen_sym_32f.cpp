// Symmetric eigenproblems in single precision.

#include "eigen_sym.hpp"

namespace bench {

void eigen::addAll32f(SymSections& s)
{
    addOrders<float, 2, 3, 4, 6, 10>(s, BENCH_MEMBERS(vormEigenValuesSym_ma_32f),
                                     BENCH_MEMBERS(vormEigenValuesVectorsSym_ma_32f));
}

void addEigenSym(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    eigen::SymSections s{
        section("Symmetric eigenproblems, resident", resident + ", packed, random."),
        section("Symmetric eigenproblems as structure of arrays, resident",
                resident + ", a pointer table and one plane per element, random."),
    };
    eigen::addAll32f(s);
    eigen::addAll64f(s);
}

}  // namespace bench
