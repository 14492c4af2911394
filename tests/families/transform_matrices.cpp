// Matrices of transforms, each element by its formula, and what is done with a 4x4 matrix.

#include <math.h>
#include <xmmintrin.h>

#include "families/transforms.hpp"

namespace {

struct Angle {
    explicit Angle(float radians) { sincosf(radians, &s, &c); }
    float s, c;
};

struct Vector3 {
    float x, y, z;
    explicit Vector3(float x_, float y_, float z_) : x(x_), y(y_), z(z_) {}
    explicit Vector3(const Placed& p) : x(p.get<float>(0, 0)), y(p.get<float>(0, 1)), z(p.get<float>(0, 2)) {}
    Vector3 normalized() const
    {
        const float length = std::sqrt((x * x + y * y) + z * z);
        return Vector3(x / length, y / length, z / length);
    }
    friend float dot(const Vector3& a, const Vector3& b) { return (a.x * b.x + a.y * b.y) + a.z * b.z; }
    friend Vector3 cross(const Vector3& a, const Vector3& b)
    {
        return Vector3(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
    }
};

Model4 rotation(const Call& call)
{
    const std::string& family = call.f.family;
    const auto value = [&](const char* name) { return call[name].get<float>(0, 0); };
    if (family == "RotationYawPitchRoll") {
        const Angle y(value("yaw")), p(value("pitch")), r(value("roll"));
        return {{r.s * (y.s * p.s) + y.c * r.c, r.s * p.c, r.s * (p.s * y.c) - y.s * r.c, 0,  //
                 (y.s * p.s) * r.c - y.c * r.s, r.c * p.c, y.s * r.s + r.c * (p.s * y.c), 0,  //
                 y.s * p.c, 0 - p.s, y.c * p.c, 0,                                            //
                 0, 0, 0, 1}};
    }
    const Angle a(value("angle"));
    const float s = a.s, c = a.c, t = 1 - c;
    if (family == "RotationX") return {{1, 0, 0, 0, 0, c, s, 0, 0, 0 - s, c, 0, 0, 0, 0, 1}};
    if (family == "RotationY") return {{c, 0, 0 - s, 0, 0, 1, 0, 0, s, 0, c, 0, 0, 0, 0, 1}};
    if (family == "RotationZ") return {{c, s, 0, 0, 0 - s, c, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};
    const Vector3 n = Vector3(call["axis"]).normalized();
    const float x = n.x, y = n.y, z = n.z;
    return {{(t * x) * x + c, (t * y) * x + s * z, (t * z) * x - s * y, 0,  //
             (t * x) * y - s * z, (t * y) * y + c, y * (t * z) + s * x, 0,  //
             s * y + (t * x) * z, (t * y) * z - s * x, c + z * (t * z), 0,  //
             0, 0, 0, 1}};
}

Model4 lookAt(const Call& call)
{
    const Vector3 eye(call["eye"]), at(call["at"]), up(call["up"]);
    const bool isLeft = call.f.family == "LookAtLH";
    const Vector3 &to = isLeft ? at : eye, &from = isLeft ? eye : at;
    const Vector3 z = Vector3(to.x - from.x, to.y - from.y, to.z - from.z).normalized();
    const Vector3 x = cross(up, z).normalized(), y = cross(z, x);
    return {
        {x.x, y.x, z.x, 0, x.y, y.y, z.y, 0, x.z, y.z, z.z, 0, 0 - dot(x, eye), 0 - dot(y, eye), 0 - dot(z, eye), 1}};
}

Model4 projection(const Call& call)
{
    const std::string& family = call.f.family;
    const auto value = [&](const char* name) { return call[name].get<float>(0, 0); };
    const bool isLeft = family.ends_with("LH"), isOrtho = family.starts_with("Ortho");
    const bool offCenter = family.find("OffCenter") != family.npos, isFov = family.find("Fov") != family.npos;
    const float n = value("zNear"), f = value("zFar");
    const float l = offCenter ? value("left") : 0, r = offCenter ? value("right") : 0;
    const float b = offCenter ? value("bottom") : 0, t = offCenter ? value("top") : 0;
    const float w = offCenter ? r - l : isFov ? 0 : value("width"), h = offCenter ? t - b : isFov ? 0 : value("height");
    Model4 m;
    m(0, 0) = isOrtho ? 2 / w : (n + n) / w;
    m(1, 1) = isOrtho ? 2 / h : (n + n) / h;
    if (isFov) {
        const Angle half(value("fovY") * 0.5f);
        m(1, 1) = half.c / half.s;
        m(0, 0) = m(1, 1) / value("aspect");
    }
    m(2, 2) = (isOrtho ? 1 : f) / (isLeft ? f - n : n - f);
    const float depth = isOrtho ? n : n * f;
    m(3, 2) = !isLeft ? depth / (n - f) : isFov ? (0 - depth) / (f - n) : depth / (0 - (f - n));
    if (offCenter) {
        m(isOrtho ? 3 : 2, 0) = (l + r) / (isOrtho || isLeft ? 0 - (r - l) : r - l);
        m(isOrtho ? 3 : 2, 1) = (b + t) / (isOrtho || isLeft ? 0 - (t - b) : t - b);
    }
    m(2, 3) = isOrtho ? 0.0f : isLeft ? 1.0f : -1.0f;
    m(3, 3) = isOrtho;
    return m;
}

VormStatus make(const Call& call, int)
{
    const std::string& family = call.f.family;
    const auto value = [&](const char* name) { return call[name].get<float>(0, 0); };
    Model4 m = {{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}};
    if (family == "Translation") m(3, 0) = value("x"), m(3, 1) = value("y"), m(3, 2) = value("z");
    if (family == "Scaling") m(0, 0) = value("x"), m(1, 1) = value("y"), m(2, 2) = value("z");
    if (family.starts_with("Rotation")) m = rotation(call);
    if (family.starts_with("LookAt")) m = lookAt(call);
    if (family.starts_with("Ortho") || family.starts_with("Perspective")) m = projection(call);
    m.to(call["dst"]);
    return StatusOk;
}

// Four lanes and the two ways to swap them.
struct Four {
    float v[4];
    friend Four operator*(Four a, Four b) { return {a[0] * b[0], a[1] * b[1], a[2] * b[2], a[3] * b[3]}; }
    friend Four operator+(Four a, Four b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2], a[3] + b[3]}; }
    friend Four operator-(Four a, Four b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2], a[3] - b[3]}; }
    friend Four p(Four a) { return {a[1], a[0], a[3], a[2]}; }
    friend Four h(Four a) { return {a[2], a[3], a[0], a[1]}; }
    float operator[](int i) const { return v[i]; }
};

VormStatus invert(const Call& call)
{
    const Model4 a = Model4::of(call["src"]);
    const auto column = [&](int c) { return Four{a(0, c), a(1, c), a(2, c), a(3, c)}; };
    const Four r0 = column(0), r1 = h(column(1)), r2 = column(2), r3 = h(column(3)), q = h(r2);
    Four t = p(r2 * r3), u = h(t), m0 = r1 * u - r1 * t, m1 = h(r0 * u - r0 * t);
    t = p(r1 * r2), u = h(t), m0 = (r3 * t + m0) - r3 * u;
    Four m3 = h(r0 * u - r0 * t);
    t = p(h(r1) * r3), u = h(t), m0 = (q * t + m0) - q * u;
    Four m2 = h(r0 * u - r0 * t);
    t = p(r0 * r1), u = h(t), m2 = r3 * u - (r3 * t + m2), m3 = (q * t - m3) - q * u;
    t = p(r0 * r3), u = h(t), m1 = q * u + (m1 - q * t), m2 = (r1 * t + m2) - r1 * u;
    t = p(r0 * q), u = h(t), m1 = (r3 * t + m1) - r3 * u, m3 = r1 * u + (m3 - r1 * t);
    const Four d = r0 * m0, e = h(d) + d;
    const float det = e[1] + e[0];
    const bool isSingular = std::fabs(det) < 0x1p-119f;
    call["det"].set(0, 0, isSingular ? 0.0f : det);
    if (isSingular) return StatusSingular;
    const float estimate = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(det))), square = estimate * estimate;
    const float r = (estimate + estimate) - (std::isnormal(square) ? det * square : (det * estimate) * estimate);
    const Four rows[4] = {m0, m1, m2, m3};
    for (int k = 0; k < 16; ++k) call["dst"].set(0, k, rows[k / 4][k % 4] * r);
    return StatusOk;
}

float determinant(const Model4& a)
{
    float k[4];
    for (int lane = 0; lane < 4; ++lane) {
        const int i = lane == 0, j = lane < 2 ? 2 : 1, l = lane == 3 ? 2 : 3;
        const float d1 = a(2, j) * a(3, l) - a(2, l) * a(3, j), d2 = a(2, i) * a(3, l) - a(3, i) * a(2, l),
                    d3 = a(3, j) * a(2, i) - a(2, j) * a(3, i);
        k[lane] = ((d1 * a(1, i) - d2 * a(1, j)) + d3 * a(1, l)) * a(0, lane);
    }
    return (k[0] - k[1]) + (k[2] - k[3]);
}

int isIdentity(const Model4& m)
{
    bool agrees = false;
    for (int c = 0; c < 4; ++c) {
        bool column = true;
        for (int r = 0; r < 4; ++r) column = column && m(r, c) == float(r == c);
        agrees = agrees || column;
    }
    return m(0, 0) == 1 && agrees;
}

VormStatus operate(const Call& call, int)
{
    const std::string& family = call.f.family;
    if (family == "Invert") return invert(call);
    const bool isProduct = family == "MulTranspose";
    const Model4 a = Model4::of(call[isProduct ? "src1" : "src"]);
    if (family == "Det") {
        call["dst"].set(0, 0, determinant(a));
    } else if (family == "IsIdentity") {
        call["result"].set(0, 0, isIdentity(a));
    } else {
        const Model4 from = isProduct ? a * Model4::of(call["src2"]) : a;
        for (int e = 0; e < 16; ++e) call["dst"].set(0, e, from(e % 4, e / 4));
    }
    return StatusOk;
}

// Nearly identities, and matrices whose determinant is near the limit or far out.
void fill(const Call& call, Values values, Random& random)
{
    const std::string& family = call.f.family;
    if (family == "IsIdentity") {
        for (int e = 0; e < 16; ++e) call["src"].put(0, e, float(e % 5 == 0));
        for (int k = pick(random, 0, 4); k-- > 0;)
            call["src"].put(0, pick(random, 0, 15), chance(random, 30) ? -0.0f : float(pick(random, 0, 1)) / 3);
    }
    if (family != "Invert" || values == Values::special || chance(random, 50)) return;
    const float scale = float(std::ldexp(uniform(random, 0.5, 2), pick(random, -31, 31)));
    const bool isDiagonal = chance(random, 50);
    for (int e = 0; e < 16; ++e)
        call["src"].put(0, e, isDiagonal ? (e % 5 == 0 ? scale : 0.0f) : call["src"].found<float>(0, e) * scale);
}

bool isOperation(const Function& f)
{
    return f.shape == "m4" && (f.family == "Invert" || f.family == "Det" || f.family == "Transpose" ||
                               f.family == "MulTranspose" || f.family == "IsIdentity");
}

}  // namespace

Stored storedFixed(const Operand& o, const Function& f, const Problem&)
{
    if (o.kind == 'c' || o.name == "det" || o.name == "result") return {1, 1};
    if (o.name == "axis" || o.name == "eye" || o.name == "at" || o.name == "up") return {1, 3};
    const int len = f.shape.starts_with("m4v") ? f.shape[3] - '0' : 16;
    if (o.name == "src") return {1, len};
    if (o.name == "dst") return {1, f.family == "AffineTransform" ? 4 : f.family == "Det" ? 1 : len};
    return {1, 16};
}

extern const Family transformMatrices, matrixOperations;
const Family transformMatrices = {.name = "TransformMatrices",
                                  .has =
                                      [](const Function& f) {
                                          return f.shape == "v3m4" || f.family.starts_with("LookAt") ||
                                                 (f.shape == "m4" && !isOperation(f));
                                      },
                                  .sizes = [](const Function&) { return std::vector<Sizes>(60); },
                                  .model32f = make,
                                  .stored = storedFixed};
const Family matrixOperations = {.name = "MatrixOperations",
                                 .has = isOperation,
                                 .sizes = [](const Function&) { return std::vector<Sizes>(200); },
                                 .model32f = operate,
                                 .inPlace = [](const Function& f, const Sizes&) -> const char* {
                                     if (f.family == "MulTranspose") return "src2";
                                     return f.family == "Invert" || f.family == "Transpose" ? "src" : nullptr;
                                 },
                                 .fill = fill,
                                 .stored = storedFixed};
