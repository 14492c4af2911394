// What moves elements: dst[n](r, c) = src[n](r, c) of copies and extractions, src[n](c, r) of transposes and of
// extractions of a t, and identities.

#include "harness.hpp"

namespace {

// Elements as the bits they are.
template <class Bits>
VormStatus model(const Call& call, int n)
{
    const Function& f = call.f;
    const Placed& dst = call["dst"];
    const int columns = dst.columns, rows = dst.size() / columns;
    const bool isTurned = f.family == "Transpose" || f.operands[0].kind == 't';
    for (int r = 0; r < rows; ++r)
        for (int c = 0; c < columns; ++c) {
            const int place = r * columns + c;
            if (f.family == "LoadIdentity")
                sizeof(Bits) == 4 ? dst.set(n, place, r == c ? 1.0f : 0.0f) : dst.set(n, place, r == c ? 1.0 : 0.0);
            else
                dst.set(n, place, call["src"].get<Bits>(n, isTurned ? c * rows + r : place));
        }
    return StatusOk;
}

// Any bits at all, and many signalling NaNs.
template <class Bits>
void fillSource(const Placed& src, Bits signalling, Random& random)
{
    for (int n = 0; n < src.count(); ++n)
        for (int e = 0; e < src.size(); ++e) src.put(n, e, chance(random, 30) ? signalling : Bits(random()));
}
void fill(const Call& call, Values, Random& random)
{
    if (call.f.family == "LoadIdentity") return;
    if (call.f.type == "32f")
        fillSource(call["src"], 0x7f800001u, random);
    else
        fillSource(call["src"], std::uint64_t{0x7ff0000000000001}, random);
}

Stored stored(const Operand& o, const Function& f, const Problem& p)
{
    if (f.family == "Transpose" && o.isWritten) return {p.sizes.columns, p.sizes.rows};
    return {0, 0};
}

std::vector<Sizes> sizes(const Function& f)
{
    std::vector<Sizes> all;
    const bool ofVectors = f.shape[0] == 'v';
    for (int rows = 1; rows <= (ofVectors ? 1 : 9); ++rows)
        for (int columns = 1; columns <= (ofVectors ? 18 : 9); ++columns)
            all.insert(all.end(), rows == columns || ofVectors ? 6 : 1, {rows, columns});
    all.insert(all.end(), {{1, 31}, {1, 70}});
    if (!ofVectors) all.insert(all.end(), {{31, 1}, {31, 6}, {3, 31}, {17, 13}, {67, 66}, {65, 3}, {2, 150}});
    return all;
}

}  // namespace

extern const Family movement;
const Family movement = {.name = "Movement",
                         .has = [](const Function& f) { return f.isMovement(); },
                         .sizes = sizes,
                         .model32f = model<std::uint32_t>,
                         .model64f = model<std::uint64_t>,
                         .movesBits = true,
                         .fill = fill,
                         .stored = stored};
