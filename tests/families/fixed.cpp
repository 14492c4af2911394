// The operations of fixed size: vectors of 2 to 4 floats, and the product of two 4x4 matrices.

#include "harness.hpp"

namespace {

using V = std::vector<float>;

float dot(const V& a, const V& b)
{
    float sum = a[0] * b[0];
    for (std::size_t i = 1; i < a.size(); ++i) sum += a[i] * b[i];
    return sum;
}

V cross4(const V& a, const V& b, const V& c)
{
    const auto m = [](const V& p, const V& q, int i, int j) {
        return p[std::size_t(i)] * q[std::size_t(j)] - p[std::size_t(j)] * q[std::size_t(i)];
    };
    return {m(b, c, 2, 3) * a[1] - m(c, b, 3, 1) * a[2] + m(c, b, 2, 1) * a[3],
            0 - (m(b, c, 2, 3) * a[0] - m(c, b, 3, 0) * a[2] + m(c, b, 2, 0) * a[3]),
            m(c, b, 3, 1) * a[0] - m(c, b, 3, 0) * a[1] + m(c, b, 1, 0) * a[3],
            0 - (m(c, b, 2, 1) * a[0] - m(c, b, 2, 0) * a[1] + m(c, b, 1, 0) * a[2])};
}

V resultOf(const std::string& family, const V& a, const V& b, const V& c, float val)
{
    const auto each = [&](auto op) {
        V d;
        for (std::size_t i = 0; i < a.size(); ++i) d.push_back(op(a[i], b[i]));
        return d;
    };
    if (family == "Add") return each([](float x, float y) { return x + y; });
    if (family == "Sub") return each([](float x, float y) { return x - y; });
    if (family == "Min") return each([](float x, float y) { return x < y ? x : y; });
    if (family == "Max") return each([](float x, float y) { return x > y ? x : y; });
    if (family == "MulC") return each([&](float x, float) { return x * val; });
    if (family == "DotProduct") return {dot(a, b)};
    if (family == "LenSqr") return {dot(a, a)};
    if (family == "Len") return {std::sqrt(dot(a, a))};
    if (family == "Normalize") {
        // v4 adds x last.
        const V ordered = a.size() == 4 ? V{a[1], a[2], a[3], a[0]} : a;
        const float length = std::sqrt(dot(ordered, ordered));
        return each([&](float x, float) { return x / length; });
    }
    if (family == "Mul") {
        V d(16);
        for (std::size_t i = 0; i < 16; ++i) {
            const std::size_t r = i / 4 * 4, j = i % 4;
            d[i] = a[r] * b[j] + a[r + 1] * b[j + 4] + a[r + 2] * b[j + 8] + a[r + 3] * b[j + 12];
        }
        return d;
    }
    if (a.size() == 2) return {a[0] * b[1] - a[1] * b[0]};
    if (a.size() == 3) return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
    return cross4(a, b, c);
}

VormStatus model(const Call& call, int n)
{
    V sources[3] = {V(16), V(16), V(16)};
    float val = 0;
    std::size_t next = 0;
    for (std::size_t k = 0; k < call.operands.size(); ++k) {
        const Placed& p = call.operands[k];
        if (call.f.operands[k].kind == 'c') val = p.get<float>(n, 0);
        if (!call.f.operands[k].name.starts_with("src")) continue;
        sources[next].clear();
        for (int e = 0; e < p.size(); ++e) sources[next].push_back(p.get<float>(n, e));
        ++next;
    }
    const V result = resultOf(call.f.family, sources[0], sources[1], sources[2], val);
    for (std::size_t i = 0; i < result.size(); ++i) call["dst"].set(n, int(i), result[i]);
    return StatusOk;
}

bool isScalar(const Function& f)
{
    return f.family == "DotProduct" || f.family == "Len" || f.family == "LenSqr" || f.name == "vormCrossProduct_v2_32f";
}

}  // namespace

extern const Family fixedForms;
const Family fixedForms = {
    .name = "FixedForms",
    .has =
        [](const Function& f) {
            constexpr std::string_view all = " Add Sub Min Max MulC DotProduct LenSqr Len Normalize CrossProduct Mul ";
            return f.isFixed() && all.find(" " + f.family + " ") != all.npos;
        },
    .sizes = [](const Function&) { return std::vector<Sizes>(60); },
    .model32f = model,
    .inPlace = [](const Function& f, const Sizes&) -> const char* {
        return isScalar(f) || f.family == "CrossProduct" ? nullptr : f.operands[0].name == "src" ? "src" : "src1";
    },
    .stored =
        [](const Operand& o, const Function& f, const Problem&) {
            return o.name == "dst" && isScalar(f) ? Stored{1, 1} : Stored{0, 0};
        }};
