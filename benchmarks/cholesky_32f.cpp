// Cholesky decomposition and substitution in single precision.

#include "cholesky.hpp"

namespace bench {

void cholesky::addAll32f(CholeskySections& s)
{
    addOrders<float, 3, 4, 5, 6, 8, 12>(s, BENCH_MEMBERS(vormCholeskyDecomp_ma_32f),
                                        BENCH_MEMBERS(vormCholeskyBackSubst_mva_32f),
                                        BENCH_MEMBERS(vormCholeskyBackSubst_mava_32f));
}

void addCholesky(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    cholesky::CholeskySections s{
        section("Cholesky, resident", resident + ", packed."),
        section("Cholesky, streaming", std::to_string(streamingBytes() >> 20) + " MiB of matrices, packed."),
        section("Cholesky in a list, resident", resident + ", packed but visited out of order."),
        section("Cholesky as structure of arrays, resident", resident + ", a pointer table and one plane per element."),
    };
    cholesky::addAll32f(s);
    cholesky::addAll64f(s);
}

}  // namespace bench
