// What the 3D math means, beyond the formulas of the models: directions and ranges, known cases, and arrays at any
// distance of bytes.

#include <gtest/gtest.h>

#include <array>

#include "operands.hpp"

namespace {

using Matrix = std::array<float, 16>;
using Point = std::array<float, 3>;
constexpr Matrix identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

// The matrix that a function makes.
template <class Make, class... Argument>
Matrix made(Make make, Argument... arguments)
{
    Matrix m;
    m.fill(-7);
    EXPECT_EQ(make(m.data(), arguments...), StatusOk);
    return m;
}
Matrix product(const Matrix& a, const Matrix& b)
{
    Matrix m;
    vormMul_mm4x4_32f(a.data(), b.data(), m.data());
    return m;
}
Point through(const Matrix& m, const Point& p)
{
    Point q;
    vormAffineTransformCoord_m4v3_32f(m.data(), p.data(), q.data());
    return q;
}
template <std::size_t size>
void expectNear(const std::array<float, size>& a, const std::array<float, size>& b, float gate, const char* what)
{
    for (std::size_t k = 0; k < size; ++k) EXPECT_NEAR(a[k], b[k], gate) << what << ", element " << k;
}

TEST(Matrices, Rotations)
{
    const float quarter = 1.57079632679f;
    expectNear(through(made(vormRotationX_m4_32f, quarter), {0, 1, 0}), {0, 0, 1}, 1e-7f, "y to z");
    expectNear(through(made(vormRotationY_m4_32f, quarter), {0, 0, 1}), {1, 0, 0}, 1e-7f, "z to x");
    expectNear(through(made(vormRotationZ_m4_32f, quarter), {1, 0, 0}), {0, 1, 0}, 1e-7f, "x to y");
    EXPECT_FALSE(std::signbit(made(vormRotationZ_m4_32f, 0.0f)[4]));
    for (float angle : {-100.0f, -3.0f, -0.1f, 1e-6f, 0.7f, 2.0f, 50.0f, 1e6f}) {
        const Matrix z = made(vormRotationZ_m4_32f, angle);
        EXPECT_NEAR(z[0], std::cos(double(angle)), 6e-8) << angle;
        EXPECT_NEAR(z[1], std::sin(double(angle)), 6e-8) << angle;
        Matrix about;
        const float axis[] = {0, 0, 2};
        vormRotationAxis_v3m4_32f(axis, about.data(), angle);
        expectNear(about, z, 2e-7f, "about z");
        const Matrix all = made(vormRotationYawPitchRoll_m4_32f, angle, 0.5f, -1.3f);
        const Matrix x = made(vormRotationX_m4_32f, 0.5f), y = made(vormRotationY_m4_32f, angle);
        expectNear(all, product(product(made(vormRotationZ_m4_32f, -1.3f), x), y), 3e-7f, "roll, pitch, yaw");
    }
}

TEST(Matrices, Cameras)
{
    Matrix m;
    const Point origin = {0, 0, 0}, ahead = {0, 0, 1}, up = {0, 1, 0};
    vormLookAtLH_m4_32f(origin.data(), ahead.data(), up.data(), m.data());
    EXPECT_EQ(m, identity);
    // From (1, 2, 8) down the z axis: the right-handed frame is the world's, moved; the left-handed one has x turned.
    const Point eye = {1, 2, 8}, at = {1, 2, 3};
    vormLookAtRH_m4_32f(eye.data(), at.data(), up.data(), m.data());
    EXPECT_EQ(m, (Matrix{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, -1, -2, -8, 1}));
    vormLookAtLH_m4_32f(eye.data(), at.data(), up.data(), m.data());
    EXPECT_EQ(m, (Matrix{-1, 0, 0, 0, 0, 1, 0, 0, 0, 0, -1, 0, 1, -2, 8, 1}));
    // What is looked at is straight ahead, as far away as it is.
    const Point high = {3, 5, -2}, low = {-1, 1, 5};
    for (const auto& [look, sign] : {std::pair{&vormLookAtLH_m4_32f, 1.0f}, {&vormLookAtRH_m4_32f, -1.0f}}) {
        look(high.data(), low.data(), up.data(), m.data());
        expectNear(through(m, low), {0, 0, sign * 9}, 2e-6f, "the point looked at");
        expectNear(through(m, high), {0, 0, 0}, 2e-6f, "the eye");
        EXPECT_GT(through(m, {3, 6, -2})[1], 0);
    }
    vormLookAtLH_m4_32f(eye.data(), eye.data(), up.data(), m.data());
    EXPECT_TRUE(std::isnan(m[0]) && m[3] == 0 && m[15] == 1);
}

// The corners of what is to be seen, near and far, become those of -1 to 1 by -1 to 1 by 0 to 1.
TEST(Matrices, Projections)
{
    const float n = 2, f = 10, l = -1, r = 3, b = -2, t = 0.5f, w = 4, h = 2, aspect = 2,
                fov = 2 * std::atan2(1.0f, 2.0f);
    struct Case {
        const char* name;
        Matrix m;
        float left, right, bottom, top, side;
        bool spreads;
    };
    const Case cases[] = {
        {"OrthoLH", made(vormOrthoLH_m4_32f, w, h, n, f), -2, 2, -1, 1, 1, false},
        {"OrthoRH", made(vormOrthoRH_m4_32f, w, h, n, f), -2, 2, -1, 1, -1, false},
        {"OrthoOffCenterLH", made(vormOrthoOffCenterLH_m4_32f, l, r, b, t, n, f), l, r, b, t, 1, false},
        {"OrthoOffCenterRH", made(vormOrthoOffCenterRH_m4_32f, l, r, b, t, n, f), l, r, b, t, -1, false},
        {"PerspectiveLH", made(vormPerspectiveLH_m4_32f, w, h, n, f), -2, 2, -1, 1, 1, true},
        {"PerspectiveRH", made(vormPerspectiveRH_m4_32f, w, h, n, f), -2, 2, -1, 1, -1, true},
        {"PerspectiveFovLH", made(vormPerspectiveFovLH_m4_32f, fov, aspect, n, f), -2, 2, -1, 1, 1, true},
        {"PerspectiveFovRH", made(vormPerspectiveFovRH_m4_32f, fov, aspect, n, f), -2, 2, -1, 1, -1, true},
        {"PerspectiveOffCenterLH", made(vormPerspectiveOffCenterLH_m4_32f, l, r, b, t, n, f), l, r, b, t, 1, true},
        {"PerspectiveOffCenterRH", made(vormPerspectiveOffCenterRH_m4_32f, l, r, b, t, n, f), l, r, b, t, -1, true},
    };
    for (const Case& c : cases) {
        const float grown = c.spreads ? f / n : 1;
        expectNear(through(c.m, {c.left, c.bottom, c.side * n}), {-1, -1, 0}, 1e-6f, c.name);
        expectNear(through(c.m, {c.right, c.top, c.side * n}), {1, 1, 0}, 1e-6f, c.name);
        expectNear(through(c.m, {c.left * grown, c.top * grown, c.side * f}), {-1, 1, 1}, 1e-6f, c.name);
        expectNear(through(c.m, {c.right * grown, c.bottom * grown, c.side * f}), {1, -1, 1}, 1e-6f, c.name);
    }
    // Nothing is tested.
    EXPECT_TRUE(std::isinf(made(vormOrthoLH_m4_32f, 0.0f, h, n, f)[0]));
    EXPECT_FALSE(std::isfinite(made(vormPerspectiveLH_m4_32f, w, h, n, n)[10]));
}

TEST(Matrices, IsIdentityByOneColumn)
{
    const auto answer = [](Matrix m) {
        int result = -7;
        EXPECT_EQ(vormIsIdentity_m4_32f(m.data(), &result), StatusOk);
        return result;
    };
    EXPECT_EQ(answer(identity), 1);
    EXPECT_EQ(answer(made(vormTranslation_m4_32f, 5.0f, 0.0f, 0.0f)), 1);
    EXPECT_EQ(answer(made(vormTranslation_m4_32f, 5.0f, 6.0f, 7.0f)), 1);
    EXPECT_EQ(answer(made(vormScaling_m4_32f, 2.0f, 1.0f, 1.0f)), 0);
    EXPECT_EQ(answer({1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2}), 0);
    Matrix m = identity;
    m[14] = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(answer(m), 1);
}

TEST(Matrices, Inverses)
{
    Matrix m, dst = identity;
    float det = -7;
    EXPECT_EQ(vormInvert_m4_32f(identity.data(), nullptr, m.data()), StatusOk);
    expectNear(m, identity, 2e-7f, "identity");
    EXPECT_EQ(vormInvert_m4_32f(made(vormScaling_m4_32f, 1e-20f, 1e-20f, 1e4f).data(), &det, dst.data()),
              StatusSingular);
    EXPECT_EQ(det, 0);
    EXPECT_EQ(dst, identity);
    EXPECT_EQ(vormInvert_m4_32f(m.data(), nullptr, dst.data()), StatusOk);
    const auto statusOf = [&](float determinant) {
        const Matrix scaled = made(vormScaling_m4_32f, 1.0f, determinant, 1.0f);
        return vormInvert_m4_32f(scaled.data(), &det, dst.data());
    };
    for (const float limit : {0x1p-119f, -0x1p-119f}) {
        EXPECT_EQ(statusOf(limit), StatusOk);
        EXPECT_EQ(det, limit);
        EXPECT_EQ(statusOf(std::nextafter(limit, 0.0f)), StatusSingular);
    }
    EXPECT_EQ(statusOf(std::numeric_limits<float>::quiet_NaN()), StatusOk);
    for (float scale : {1e-8f, 1e-5f, 1e5f, 1e9f}) {  // the square of 1 / det leaves the range
        for (std::size_t k = 0; k < 16; ++k) m[k] = identity[k] * scale;
        EXPECT_EQ(vormInvert_m4_32f(m.data(), &det, dst.data()), StatusOk);
        EXPECT_FLOAT_EQ(det, scale * scale * scale * scale);
        for (std::size_t k = 0; k < 16; ++k) EXPECT_NEAR(dst[k] * scale, identity[k], 4e-7f) << scale;
    }
    Random random(3);
    for (int repeat = 0; repeat < 1000; ++repeat) {
        for (float& x : m) x = float(uniform(random, -2, 2));
        float other;
        ASSERT_EQ(vormInvert_m4_32f(m.data(), &det, dst.data()), StatusOk);
        vormDet_m4_32f(m.data(), &other);
        EXPECT_NEAR(det, other, 1e-5f);
        if (std::fabs(det) > 1) expectNear(product(m, dst), identity, 3e-5f, "inverse");
    }
}

TEST(Curves, Ends)
{
    const Point a = {1, -2, 0.3f}, b = {5, 7, -0.1f}, t = {3, 1, 4}, u = {-2, 8, 9};
    Point p;
    vormHermite_v3_32f(a.data(), t.data(), b.data(), u.data(), p.data(), 0);
    EXPECT_EQ(p, a);
    vormHermite_v3_32f(a.data(), t.data(), b.data(), u.data(), p.data(), 1);
    expectNear(p, b, 1e-6f, "end");
    vormInterpolationCatmullRom_v3_32f(t.data(), a.data(), b.data(), u.data(), p.data(), 1);
    expectNear(p, b, 1e-6f, "end");
    vormInterpolationLinear_v3_32f(a.data(), b.data(), p.data(), 2);
    expectNear(p, {9, 16, -0.5f}, 1e-6f, "beyond");
    vormBaryCentric_v3_32f(a.data(), b.data(), t.data(), p.data(), 0, 1);
    expectNear(p, t, 1e-6f, "third corner");
}

using Array = VormStatus (*)(const float*, const float*, int, float*, int, int);
using Single = VormStatus (*)(const float*, const float*, float*);

// Packed, apart, over each other, on the spot and backwards, at any address: the bits of the single member, and of
// all memory nothing else.
void checkStrides(Array array, Single single, int len, int dstLen)
{
    Random random(11);
    Matrix m;
    for (float& x : m) x = float(uniform(random, -2, 2));
    for (int srcStride : {-20, -12, -7, 0, 3, 8, 9, 12, 13, 16, 40})
        for (int dstStride : {-24, -16, -12, -9, 0, 5, 8, 12, 16, 17, 28})
            for (int count : {1, 2, 3, 4, 5, 8, 11, 19, 37}) {
                const auto span = [&](int stride, int n) {
                    return std::size_t(std::abs(stride) * (count - 1) + 4 * n);
                };
                const Guarded src(span(srcStride, len)), dst(span(dstStride, dstLen));
                const bool atEnd = chance(random, 50);  // else at the beginning
                const auto first = [&](const Guarded& memory, int stride, int n) {
                    char* const lowest = memory.data() + (atEnd ? memory.size() - span(stride, n) : 0);
                    return lowest + (stride < 0 ? -stride * (count - 1) : 0);
                };
                char *const from = first(src, srcStride, len), *const to = first(dst, dstStride, dstLen);
                // Bytes that make ordinary numbers of any four.
                for (std::size_t k = 0; k < src.size(); ++k)
                    src.data()[k] = char(pick(random, 0x38, 0x42) + (chance(random, 50) ? 0x80 : 0));
                for (std::size_t k = 0; k < dst.size(); ++k) dst.data()[k] = char(random());
                std::vector<char> model(dst.data(), dst.data() + dst.size());
                for (int n = 0; n < count; ++n) {
                    float in[4], out[4];
                    std::memcpy(in, from + n * srcStride, std::size_t(4 * len));
                    single(m.data(), in, out);
                    std::memcpy(model.data() + (to - dst.data()) + n * dstStride, out, std::size_t(4 * dstLen));
                }
                ASSERT_EQ(array(m.data(), reinterpret_cast<const float*>(from), srcStride, reinterpret_cast<float*>(to),
                                dstStride, count),
                          StatusOk);
                ASSERT_EQ(std::memcmp(dst.data(), model.data(), model.size()), 0)
                    << len << " elements, strides " << srcStride << " and " << dstStride << ", count " << count;
            }
    const Guarded unmapped(0);
    for (int count : {0, -1, INT32_MIN}) {
        auto* const nowhere = reinterpret_cast<float*>(unmapped.begin());
        EXPECT_EQ(array(m.data(), nowhere, 12, nowhere, 12, count), StatusOk);
    }
}

TEST(Transforms, AnyStride)
{
    checkStrides(vormAffineTransform_m4v2a_32f, vormAffineTransform_m4v2_32f, 2, 4);
    checkStrides(vormAffineTransform_m4v3a_32f, vormAffineTransform_m4v3_32f, 3, 4);
    checkStrides(vormAffineTransform_m4v4a_32f, vormAffineTransform_m4v4_32f, 4, 4);
    checkStrides(vormAffineTransformCoord_m4v2a_32f, vormAffineTransformCoord_m4v2_32f, 2, 2);
    checkStrides(vormAffineTransformCoord_m4v3a_32f, vormAffineTransformCoord_m4v3_32f, 3, 3);
    checkStrides(vormAffineTransformNormal_m4v2a_32f, vormAffineTransformNormal_m4v2_32f, 2, 2);
    checkStrides(vormAffineTransformNormal_m4v3a_32f, vormAffineTransformNormal_m4v3_32f, 3, 3);
}

TEST(Transforms, ViewportAndBack)
{
    Matrix view;
    const Point eye = {1, 2, -6}, at = {0, 0, 0}, up = {0, 1, 0};
    vormLookAtLH_m4_32f(eye.data(), at.data(), up.data(), view.data());
    const Matrix projection = made(vormPerspectiveFovLH_m4_32f, 0.8f, 1.5f, 1.0f, 20.0f);
    const Matrix world = product(made(vormRotationYawPitchRoll_m4_32f, 0.3f, -0.2f, 1.0f),
                                 made(vormTranslation_m4_32f, 0.1f, -0.4f, 0.2f));
    Random random(5);
    std::array<Point, 11> points, seen, back;
    for (Point& p : points)
        for (float& x : p) x = float(uniform(random, -1, 1));
    ASSERT_EQ(vormProject_m4v3a_32f(projection.data(), view.data(), world.data(), points[0].data(), 12, seen[0].data(),
                                    12, 11, 300, 200, 0.25f, 0.75f),
              StatusOk);
    ASSERT_EQ(vormUnproject_m4v3a_32f(projection.data(), view.data(), world.data(), seen[0].data(), 12, back[0].data(),
                                      12, 11, 300, 200, 0.25f, 0.75f),
              StatusOk);
    for (std::size_t k = 0; k < points.size(); ++k) {
        EXPECT_TRUE(seen[k][0] > 0 && seen[k][0] < 300 && seen[k][1] > 0 && seen[k][1] < 200);
        EXPECT_TRUE(seen[k][2] > 0.25f && seen[k][2] < 0.75f);
        expectNear(back[k], points[k], 1e-4f, "array");
        Point p;
        vormProject_m4v3_32f(projection.data(), view.data(), world.data(), points[k].data(), p.data(), 300, 200, 0.25f,
                             0.75f);
        expectNear(p, seen[k], 1e-4f, "single and array");
        vormUnproject_m4v3_32f(projection.data(), view.data(), world.data(), p.data(), p.data(), 300, 200, 0.25f,
                               0.75f);
        expectNear(p, points[k], 1e-4f, "single");
    }
    // The y axis of the viewport runs downward.
    Point p;
    for (float y : {1.0f, -1.0f}) {
        const Point unit = {0, y, 0};
        vormProject_m4v3_32f(identity.data(), identity.data(), identity.data(), unit.data(), p.data(), 200, 100, 0, 1);
        EXPECT_EQ(p, (Point{100, y > 0 ? 0.0f : 100.0f, 0}));
    }
}

TEST(Transforms, UnprojectWithoutInverse)
{
    const Matrix zero = {};
    Point p = {150, 50, 0.5f}, q = {-7, -7, -7};
    EXPECT_EQ(vormUnproject_m4v3_32f(zero.data(), identity.data(), identity.data(), p.data(), q.data(), 200, 100, 0, 1),
              StatusSingular);
    EXPECT_EQ(q, (Point{0.5f, 0, 0.5f}));
    q = {-7, -7, -7};
    EXPECT_EQ(vormUnproject_m4v3a_32f(zero.data(), identity.data(), identity.data(), p.data(), 12, q.data(), 12, 1, 200,
                                      100, 0, 1),
              StatusSingular);
    EXPECT_EQ(q, (Point{-7, -7, -7}));
    EXPECT_EQ(vormUnproject_m4v3a_32f(zero.data(), identity.data(), identity.data(), p.data(), 12, q.data(), 12, 0, 200,
                                      100, 0, 1),
              StatusOk);
}

TEST(Transforms, ColumnVectorsWithTranslation)
{
    Matrix m = identity;
    m[3] = 5, m[15] = 0, m[14] = 1;  // w is z
    float src[] = {1, 2, 4, 1, 2, 0, 1, 2, -1}, dst[9];
    EXPECT_EQ(vormAffineTransform3DH_mva_32f(m.data(), 16, 4, src, 12, 4, dst, 12, 4, 3), StatusDivisionByZero);
    const float most = std::numeric_limits<float>::max();
    const float wanted[] = {1.5f, 0.5f, 1, most, most, most, -6, -2, 1};
    for (int k = 0; k < 9; ++k) EXPECT_EQ(dst[k], wanted[k]) << k;
}

}  // namespace
