// The z-buffer: filling triangles, then shading with a normal for each sample, and a soft shadow on the ground.
#include "common/canvas.hpp"

#include <vorm/vorm.h>

#include <algorithm>
#include <cmath>

namespace examples {
namespace {

using Vec = std::array<float, 3>;

constexpr float nothing = 2;  // a depth behind all others
constexpr Vec clay{0.60f, 0.50f, 0.40f};

Vec operator+(const Vec& a, const Vec& b) { return {a[0] + b[0], a[1] + b[1], a[2] + b[2]}; }
Vec operator*(float f, const Vec& a) { return {f * a[0], f * a[1], f * a[2]}; }
Vec operator*(const Vec& a, const Vec& b) { return {a[0] * b[0], a[1] * b[1], a[2] * b[2]}; }
float dot(const Vec& a, const Vec& b)
{
    float result;
    vormDotProduct_v3_32f(a.data(), b.data(), &result);
    return result;
}
Vec unit(const Vec& a)
{
    Vec result;
    vormNormalize_v3_32f(a.data(), result.data());
    return std::isfinite(result[0]) ? result : a;
}
Vec mix(const Vec& a, const Vec& b, float t)
{
    Vec result;
    vormInterpolationLinear_v3_32f(a.data(), b.data(), result.data(), t);
    return result;
}

// Calls sample(column, row, weights of b and c) for every sample inside the triangle.
template <class Sample>
void fillTriangle(const float* a, const float* b, const float* c, int columns, int rows, const Sample& sample)
{
    const float area = (b[0] - a[0]) * (c[1] - a[1]) - (b[1] - a[1]) * (c[0] - a[0]);
    if (!(std::abs(area) > 0)) return;
    const auto within = [](float v, int limit) {
        return static_cast<int>(std::clamp(v, 0.0f, static_cast<float>(limit)));
    };
    const int left = within(std::floor(std::min({a[0], b[0], c[0]})), columns);
    const int right = within(std::ceil(std::max({a[0], b[0], c[0]})) + 1, columns);
    const int top = within(std::floor(std::min({a[1], b[1], c[1]})), rows);
    const int bottom = within(std::ceil(std::max({a[1], b[1], c[1]})) + 1, rows);
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x) {
            const float px = static_cast<float>(x) + 0.5f, py = static_cast<float>(y) + 0.5f;
            const float wa = ((b[0] - px) * (c[1] - py) - (b[1] - py) * (c[0] - px)) / area;
            const float wb = ((c[0] - px) * (a[1] - py) - (c[1] - py) * (a[0] - px)) / area;
            const float wc = 1 - wa - wb;
            if (wa >= 0 && wb >= 0 && wc >= 0) sample(x, y, wb, wc);
        }
}

// Colours are linear light, written with the usual gamma at the end.
class Light {
public:
    explicit Light(const Vec& towardsViewer)
        : viewer_(towardsViewer),
          key_(unit({-0.45f, 0.75f, 0.65f})),
          fill_(unit({0.9f, 0.1f, 0.45f})),
          glossy_(unit(key_ + viewer_))
    {
    }

    Vec on(const Vec& normal, const Vec& colour) const
    {
        Vec n = unit(normal);
        float facing = dot(n, viewer_);
        // An inner side; along the outline a smooth normal may point away a little.
        if (facing < -0.25f) n = -1 * n, facing = -facing;
        const float sky = 0.5f + 0.5f * n[1];
        const float diffuse = std::max(0.0f, dot(n, key_));
        const float gloss = std::pow(std::max(0.0f, dot(n, glossy_)), 40.0f);
        const float rim = std::pow(1 - std::min(1.0f, facing), 3.0f);
        const Vec light = mix({0.05f, 0.045f, 0.04f}, {0.19f, 0.21f, 0.24f}, sky) + diffuse * Vec{0.85f, 0.82f, 0.76f} +
                          0.22f * std::max(0.0f, dot(n, fill_)) * Vec{0.7f, 0.8f, 1.0f};
        const float shine = 0.16f * gloss + 0.10f * rim * sky;
        return colour * light + shine * Vec{1, 1, 1};
    }

private:
    Vec viewer_, key_, fill_, glossy_;
};

Vec background(float height)  // 0 at the top, 1 at the bottom
{
    return mix({0.78f, 0.80f, 0.82f}, {0.55f, 0.56f, 0.57f}, height * height);
}

// A running mean over 2 radius + 1 values along rows (step 1) or columns.
void blur(std::vector<float>& values, int lines, std::size_t lineStep, int length, std::size_t step, int radius)
{
    std::vector<float> line(static_cast<std::size_t>(length));
    const auto at = [&](int i) { return i < 0 || i >= length ? 0.0f : line[static_cast<std::size_t>(i)]; };
    for (int k = 0; k < lines; ++k) {
        float* const p = values.data() + static_cast<std::size_t>(k) * lineStep;
        for (int i = 0; i < length; ++i) line[static_cast<std::size_t>(i)] = p[static_cast<std::size_t>(i) * step];
        float sum = 0;
        for (int i = -radius; i < radius; ++i) sum += at(i);
        for (int i = 0; i < length; ++i) {
            sum += at(i + radius);
            p[static_cast<std::size_t>(i) * step] = sum / static_cast<float>(2 * radius + 1);
            sum -= at(i - radius);
        }
    }
}

std::uint8_t encoded(float linear)
{
    return static_cast<std::uint8_t>(std::lround(255 * std::pow(std::clamp(linear, 0.0f, 1.0f), 1 / 2.2f)));
}

}  // namespace

Canvas::Canvas(int width, int height)
    : width_(width),
      height_(height),
      columns_(width * samplesPerSide),
      rows_(height * samplesPerSide),
      depth_(index(0, rows_), nothing),
      shadow_(depth_.size()),
      normal_(depth_.size()),
      colour_(depth_.size(), clay)
{
}

void Canvas::draw(std::span<const float> points, std::span<const float> normals, std::span<const int> corners,
                  std::span<const float> colours)
{
    for (std::size_t k = 0; k + 2 < corners.size(); k += 3) {
        const auto a = 3 * static_cast<std::size_t>(corners[k]), b = 3 * static_cast<std::size_t>(corners[k + 1]),
                   c = 3 * static_cast<std::size_t>(corners[k + 2]);
        fillTriangle(&points[a], &points[b], &points[c], columns_, rows_, [&](int x, int y, float wb, float wc) {
            const auto between = [=](std::span<const float> values, Vec& to) {
                vormBaryCentric_v3_32f(&values[a], &values[b], &values[c], to.data(), wb, wc);
            };
            const std::size_t here = index(x, y);
            Vec point;
            between(points, point);
            if (point[2] >= depth_[here]) return;
            depth_[here] = point[2];
            between(normals, normal_[here]);
            colour_[here] = clay;
            if (!colours.empty()) between(colours, colour_[here]);
        });
    }
}

void Canvas::drawShadow(std::span<const float> points, std::span<const int> corners)
{
    const auto at = [&](int corner) { return &points[3 * static_cast<std::size_t>(corner)]; };
    for (std::size_t k = 0; k + 2 < corners.size(); k += 3)
        fillTriangle(at(corners[k]), at(corners[k + 1]), at(corners[k + 2]), columns_, rows_,
                     [&](int x, int y, float, float) { shadow_[index(x, y)] = 1; });
}

Picture Canvas::picture(const Vec& towardsViewer) const
{
    std::vector<float> shadow = shadow_;
    for (int pass = 0; pass < 3; ++pass) {
        blur(shadow, rows_, index(0, 1), columns_, 1, columns_ / 60);
        blur(shadow, columns_, 1, rows_, index(0, 1), columns_ / 120);
    }
    const Light light(towardsViewer);
    Picture picture{width_, height_, {}};
    picture.rgb.reserve(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_) * 3);
    for (int y = 0; y < height_; ++y)
        for (int x = 0; x < width_; ++x) {
            const Vec plain = background(static_cast<float>(y) / static_cast<float>(height_));
            Vec sum{};
            for (int s = 0; s < samplesPerSide * samplesPerSide; ++s) {
                const std::size_t i =
                    index(x * samplesPerSide + s % samplesPerSide, y * samplesPerSide + s / samplesPerSide);
                sum = sum + (depth_[i] < nothing ? light.on(normal_[i], colour_[i]) : (1 - 0.45f * shadow[i]) * plain);
            }
            for (const float channel : 1.0f / (samplesPerSide * samplesPerSide) * sum)
                picture.rgb.push_back(encoded(channel));
        }
    return picture;
}

}  // namespace examples
