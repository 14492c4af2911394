// Points through 4x4 matrices, one at a time.

#include "families/transforms.hpp"

namespace {

using V = std::vector<float>;

V column(const std::function<float(int)>& sum) { return {sum(0), sum(1), sum(2), sum(3)}; }

V affine(const Model4& m, const V& v)
{
    return column([&](int e) {
        if (v.size() == 2) return (m(3, e) + v[0] * m(0, e)) + v[1] * m(1, e);
        if (v.size() == 3) return ((m(3, e) + v[0] * m(0, e)) + v[1] * m(1, e)) + v[2] * m(2, e);
        return (v[0] * m(0, e) + v[1] * m(1, e)) + (v[2] * m(2, e) + v[3] * m(3, e));
    });
}

V coord(const Model4& m, const V& v)
{
    const V t = column([&](int e) {
        if (v.size() == 2) return (m(0, e) * v[0] + m(3, e)) + m(1, e) * v[1];
        return (m(3, e) + v[2] * m(2, e)) + (v[0] * m(0, e) + v[1] * m(1, e));
    });
    V result;
    for (std::size_t e = 0; e < v.size(); ++e) result.push_back(t[e] / t[3]);
    return result;
}

V normal(const Model4& m, const V& v)
{
    V t = column([&](int e) {
        const float sum = m(0, e) * v[0] + m(1, e) * v[1];
        return v.size() == 2 ? sum : sum + m(2, e) * v[2];
    });
    t.resize(v.size());
    return t;
}

V project(const Call& call, const V& v)
{
    const auto value = [&](const char* name) { return call[name].get<float>(0, 0); };
    const Model4 world = Model4::of(call["world"]), view = Model4::of(call["view"]),
                 projection = Model4::of(call["projection"]);
    V t;
    if (call.f.isArray()) {
        const Model4 f = world * (view * projection);
        t = column([&](int e) { return (v[2] * f(2, e) + f(3, e)) + (v[0] * f(0, e) + v[1] * f(1, e)); });
    } else {
        t = column(
            [&](int e) { return (world(3, e) + v[2] * world(2, e)) + (v[0] * world(0, e) + v[1] * world(1, e)); });
        t = affine(projection, affine(view, t));
    }
    const float hw = value("width") * 0.5f, hh = value("height") * 0.5f;
    return {hw + hw * (t[0] / t[3]), hh + (0 - hh) * (t[1] / t[3]),
            value("minZ") + (value("maxZ") - value("minZ")) * (t[2] / t[3])};
}

VormStatus unproject(const Call& call, V& v)
{
    const auto value = [&](const char* name) { return call[name].get<float>(0, 0); };
    const Model4 all = (Model4::of(call["world"]) * Model4::of(call["view"])) * Model4::of(call["projection"]);
    v = {2 * v[0] / value("width") - 1, -2 * v[1] / value("height") + 1,
         (v[2] - value("minZ")) / (value("maxZ") - value("minZ"))};
    double wide[16], inverted[16], buffer[20];
    std::copy(all.m.begin(), all.m.end(), wide);
    const VormStatus status = vormInvert_m_64f(wide, 32, 8, buffer, inverted, 32, 8, 4);
    if (status != StatusOk) return status;
    Model4 inverse;
    for (std::size_t k = 0; k < 16; ++k) inverse.m[k] = float(inverted[k]);
    v = coord(inverse, v);
    return StatusOk;
}

VormStatus model(const Call& call, int n)
{
    const std::string& family = call.f.family;
    V v;
    for (int e = 0; e < call["src"].size(); ++e) v.push_back(call["src"].get<float>(n, e));
    VormStatus status = StatusOk;
    if (family == "Project") {
        v = project(call, v);
    } else if (family == "Unproject") {
        status = unproject(call, v);
        if (status != StatusOk && call.f.isArray()) return status;
    } else {
        const Model4 m = Model4::of(call["matrix"]);
        v = family == "AffineTransform" ? affine(m, v) : family == "AffineTransformCoord" ? coord(m, v) : normal(m, v);
    }
    for (std::size_t e = 0; e < v.size(); ++e) call["dst"].set(n, int(e), v[e]);
    return status;
}

// Sums of the two kernels, and results that cannot be told.
VormStatus affine3DH(const Call& call, int n)
{
    const Placed& p = call["src2"];
    const float x = p.get<float>(n, 0), y = p.get<float>(n, 1), z = p.get<float>(n, 2);
    const Model4 m = Model4::of(call["src1"]);
    const V t = column([&](int e) {
        return call.isContiguous() ? (x * m(e, 0) + y * m(e, 1)) + (z * m(e, 2) + m(e, 3))
                                   : ((x * m(e, 0) + m(e, 3)) + y * m(e, 1)) + z * m(e, 2);
    });
    const bool isRegular = std::fabs(t[3]) > std::numeric_limits<float>::min();
    const float r = 1 / t[3];
    for (int e = 0; e < 3; ++e)
        call["dst"].set(n, e, isRegular ? t[std::size_t(e)] * r : std::numeric_limits<float>::max());
    return isRegular ? StatusOk : StatusDivisionByZero;
}

// w is x then, and x about the limit.
void spoil(const Call& call, int n, Random& random)
{
    constexpr float tiny = std::numeric_limits<float>::min();
    const float values[] = {0, tiny, -tiny, tiny / 2, std::numeric_limits<float>::quiet_NaN(), tiny + tiny / 4};
    for (int c = 0; c < 4; ++c) call["src1"].put(0, 12 + c, float(c == 0));
    call["src2"].put(n, 0, values[pick(random, 0, 5)]);
}

}  // namespace

extern const Family pointTransforms, affineTransform3DH;
const Family pointTransforms = {.name = "PointTransforms",
                                .has = [](const Function& f) { return f.shape.starts_with("m4v"); },
                                .sizes = [](const Function&) { return std::vector<Sizes>(60); },
                                .model32f = model,
                                .inPlace = [](const Function& f, const Sizes&) -> const char* {
                                    return f.family == "AffineTransform" && f.shape[3] != '4' ? nullptr : "src";
                                },
                                .stored = storedFixed};
const Family affineTransform3DH = {.name = "AffineTransform3DH",
                                   .has = [](const Function& f) { return f.family == "AffineTransform3DH"; },
                                   .sizes = [](const Function&) { return std::vector<Sizes>(60); },
                                   .model32f = affine3DH,
                                   .goesOn = true,
                                   .inPlace = [](const Function&, const Sizes&) { return "src2"; },
                                   .spoil = spoil,
                                   .stored =
                                       [](const Operand& o, const Function&, const Problem&) {
                                           return o.name == "src1" ? Stored{4, 4} : Stored{1, 3};
                                       }};
