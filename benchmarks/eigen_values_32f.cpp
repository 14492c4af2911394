// Eigenvalues of general matrices in single precision.

#include "eigen_values.hpp"

namespace bench {

void eigenvalues::addAll32f(ValueSections& s)
{
    addOrders<float, 2, 3, 4, 6, 10>(s, BENCH_MEMBERS(vormEigenValues_ma_32f));
}

void addEigenValues(Sections& sections)
{
    const std::string resident = std::to_string(residentObjects) + " objects";
    eigenvalues::ValueSections s{
        sections.emplace_back(Section{"Eigenvalues of general matrices, resident", resident + ", packed."}),
        sections.emplace_back(Section{"Eigenvalues of general matrices as structure of arrays, resident",
                                      resident + ", a pointer table and one plane per element."}),
    };
    eigenvalues::addAll32f(s);
    eigenvalues::addAll64f(s);
}

}  // namespace bench
