// Sums of matrices in single precision.

#include "matrix_sums.hpp"

namespace bench {

void addMatrixSums(Sections& sections)
{
    const auto section = [&](std::string title, std::string about) -> Section& {
        return sections.emplace_back(Section{std::move(title), std::move(about)});
    };
    const std::string resident = std::to_string(residentObjects) + " objects";
    const std::string streaming = std::to_string(streamingBytes() >> 20) + " MiB per array";
    matrices::SumSections s{
        section("Matrix sums, packed, resident", resident + ", no gap between them."),
        section("Matrix sums, packed, streaming", streaming + "."),
        section("Matrix sums, rows with a pitch, resident", resident + ", an element unused behind each row."),
        section("Matrix sums, rows with a pitch, streaming", streaming + "."),
        section("Matrix sums in a list, resident", resident + ", packed but visited out of order."),
        section("Matrix sums as structure of arrays, resident",
                resident + ". Peers: our own packed layout, and Eigen."),
        section("Matrix sums as structure of arrays, streaming", streaming + "."),
    };
    matrices::addShapes<float>(s);
    matrices::addShapes<double>(s);
}

namespace matrices {

template <>
void addShapes<float>(SumSections& s)
{
    using enum Kind;
    addShape<Add, float, array, false, array, false, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_mama_32f));
    addShape<Add, float, array, false, common, false, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_mam_32f));
    addShape<Sub, float, common, false, array, false, 3, 6>(s, BENCH_MEMBERS(vormSub_mma_32f));
    addShape<Add, float, array, true, array, false, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormAdd_tama_32f));
    addShape<Sub, float, array, false, array, true, 3, 4>(s, BENCH_MEMBERS(vormSub_mata_32f));
    addShape<Add, float, array, true, array, true, 3, 4>(s, BENCH_MEMBERS(vormAdd_tata_32f));
    addShape<Add, float, array, false, common, true, 3, 4>(s, BENCH_MEMBERS(vormAdd_mat_32f));
    addShape<Add, float, array, true, common, false, 3, 4, 6>(s, BENCH_MEMBERS(vormAdd_tam_32f));
    addShape<Mul, float, array, false, constant, false, 3, 4, 5, 6, 16>(s, BENCH_MEMBERS(vormMul_mac_32f));
    addShape<Mul, float, array, true, constant, false, 3, 4, 5, 6>(s, BENCH_MEMBERS(vormMul_tac_32f));
}

}  // namespace matrices

}  // namespace bench
