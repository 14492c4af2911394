// Interpolation between fixed vectors, element by element.

#include "harness.hpp"

namespace {

float hermite(float p1, float t1, float p2, float t2, float s)
{
    const float square = s * s, cube = square * s;
    const double s1 = s, s2 = square, s3 = cube;
    const float hT1 = float(((s1 - s2) - s2) + s3), hP = float((s3 - 3.0 * s2) + s3), hT2 = float(s3 - s2);
    return (p1 - p2) * hP + ((t1 * hT1 + p1) + t2 * hT2);
}

VormStatus model(const Call& call, int)
{
    const auto value = [&](const char* name) { return call[name].get<float>(0, 0); };
    for (int i = 0; i < call["dst"].size(); ++i) {
        const auto at = [&](const char* name) { return call[name].get<float>(0, i); };
        float result;
        if (call.f.family == "InterpolationLinear")
            result = (at("src2") - at("src1")) * value("val") + at("src1");
        else if (call.f.family == "BaryCentric")
            result =
                ((at("src2") - at("src1")) * value("valF") + at("src1")) + (at("src3") - at("src1")) * value("valG");
        else if (call.f.family == "Hermite")
            result = hermite(at("point1"), at("tangent1"), at("point2"), at("tangent2"), value("val"));
        else
            result = hermite(at("src2"), (at("src3") - at("src1")) * 0.5f, at("src3"), (at("src4") - at("src2")) * 0.5f,
                             value("val"));
        call["dst"].set(0, i, result);
    }
    return StatusOk;
}

bool isCurve(const Function& f)
{
    return f.family.starts_with("Interpolation") || f.family == "BaryCentric" || f.family == "Hermite";
}

// The first of the sources or the last, by the number of elements.
const char* inPlace(const Function& f, const Sizes&)
{
    static const char* const sources[][2] = {
        {"src1", "src2"}, {"src1", "src3"}, {"point1", "tangent2"}, {"src2", "src4"}};
    const int family = f.family == "InterpolationLinear" ? 0
                       : f.family == "BaryCentric"       ? 1
                       : f.family == "Hermite"           ? 2
                                                         : 3;
    return sources[family][f.shape == "v3"];
}

}  // namespace

extern const Family curves;
const Family curves = {.name = "Curves",
                       .has = isCurve,
                       .sizes = [](const Function&) { return std::vector<Sizes>(60); },
                       .model32f = model,
                       .inPlace = inPlace,
                       .stored =
                           [](const Operand& o, const Function& f, const Problem&) {
                               return o.kind == 'c' ? Stored{1, 1} : Stored{1, f.shape[1] - '0'};
                           }};
