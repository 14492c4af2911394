// vormEigenValuesGetBufSize and vormEigenValuesVectorsGetBufSize: bytes of a buffer, in 32 bits that wrap.

#include "harness.hpp"

namespace {

template <class T>
VormStatus model(const Call& call, int)
{
    const std::uint32_t order = std::uint32_t(call.problem.sizes.columns);
    const std::uint32_t factor = call.f.family == "EigenValuesGetBufSize" ? 1 : 3;
    call["bufSize"].set(0, 0, std::int32_t(order * (factor * order + 5) * sizeof(T)));
    return StatusOk;
}

}  // namespace

extern const Family bufferSizes;
const Family bufferSizes = {.name = "BufferSizes",
                            .has = [](const Function& f) { return f.family.ends_with("GetBufSize"); },
                            .sizes =
                                [](const Function&) {
                                    return std::vector<Sizes>{{1, 1, 1}, {6, 6, 1}, {17, 17, 1}, {65536, 65536, 1}};
                                },
                            .model32f = model<float>,
                            .model64f = model<double>,
                            .stored =
                                [](const Operand&, const Function&, const Problem&) {
                                    return Stored{1, 1};
                                }};
