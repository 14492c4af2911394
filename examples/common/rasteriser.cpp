// A z-buffer rasteriser: four samples a pixel, a normal for each sample, and a soft shadow on the ground.
#include "common/rasteriser.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace examples {
namespace {

struct Vec {
    float x = 0, y = 0, z = 0;
};
Vec operator+(Vec a, Vec b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Vec operator*(float f, Vec a) { return {f * a.x, f * a.y, f * a.z}; }
float dot(Vec a, Vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Vec unit(Vec a)
{
    const float length = std::sqrt(dot(a, a));
    return length > 0 ? 1 / length * a : a;
}
Vec mix(Vec a, Vec b, float t) { return (1 - t) * a + t * b; }
Vec vecAt(std::span<const float> values, std::size_t n)
{
    return {values[3 * n], values[3 * n + 1], values[3 * n + 2]};
}

constexpr int samplesPerSide = 2;
constexpr float cameraDistance = 5;

// From the mesh to the viewer, who looks along -z.
class Turn {
public:
    explicit Turn(View view)
    {
        constexpr float degree = std::numbers::pi_v<float> / 180;
        cosTurn_ = std::cos(view.turn * degree), sinTurn_ = std::sin(view.turn * degree);
        cosTilt_ = std::cos(view.tilt * degree), sinTilt_ = std::sin(view.tilt * degree);
    }
    Vec operator()(Vec p) const
    {
        const Vec q{cosTurn_ * p.x + sinTurn_ * p.z, p.y, cosTurn_ * p.z - sinTurn_ * p.x};
        return {q.x, cosTilt_ * q.y - sinTilt_ * q.z, sinTilt_ * q.y + cosTilt_ * q.z};
    }

private:
    float cosTurn_, sinTurn_, cosTilt_, sinTilt_;
};

// x and y on a plane at distance 1, z the depth.
Vec project(Vec p)
{
    const float depth = cameraDistance - p.z;
    return {p.x / depth, -p.y / depth, depth};
}

// Calls sample(x, y, weights of the corners) for every sample inside the triangle.
template <class Sample>
void fillTriangle(Vec a, Vec b, Vec c, int width, int height, const Sample& sample)
{
    const float area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    if (!(std::abs(area) > 0)) return;
    const auto pixel = [](float v, int limit) {
        return static_cast<int>(std::clamp(v, 0.0f, static_cast<float>(limit)));
    };
    const int left = pixel(std::floor(std::min({a.x, b.x, c.x})), width);
    const int right = pixel(std::ceil(std::max({a.x, b.x, c.x})) + 1, width);
    const int top = pixel(std::floor(std::min({a.y, b.y, c.y})), height);
    const int bottom = pixel(std::ceil(std::max({a.y, b.y, c.y})) + 1, height);
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x) {
            const float px = static_cast<float>(x) + 0.5f, py = static_cast<float>(y) + 0.5f;
            const float wa = ((b.x - px) * (c.y - py) - (b.y - py) * (c.x - px)) / area;
            const float wb = ((c.x - px) * (a.y - py) - (c.y - py) * (a.x - px)) / area;
            const float wc = 1 - wa - wb;
            if (wa >= 0 && wb >= 0 && wc >= 0) sample(x, y, Vec{wa, wb, wc});
        }
}

// Colours are linear light, written with the usual gamma at the end.
Vec shade(Vec normal, Vec colour)
{
    const Vec key = unit({-0.45f, 0.75f, 0.65f}), fill = unit({0.9f, 0.1f, 0.45f}), eye{0, 0, 1};
    Vec n = unit(normal);
    if (n.z < -0.25f) n = -1 * n;  // an inner side; along the outline a smooth normal may point away a little
    const float sky = 0.5f + 0.5f * n.y;
    const float diffuse = std::max(0.0f, dot(n, key));
    const float gloss = std::pow(std::max(0.0f, dot(n, unit(key + eye))), 40.0f);
    const float rim = std::pow(1 - std::min(1.0f, n.z), 3.0f);
    const Vec light = mix(Vec{0.05f, 0.045f, 0.04f}, Vec{0.19f, 0.21f, 0.24f}, sky) +
                      diffuse * Vec{0.85f, 0.82f, 0.76f} + 0.22f * std::max(0.0f, dot(n, fill)) * Vec{0.7f, 0.8f, 1.0f};
    const float shine = 0.16f * gloss + 0.10f * rim * sky;
    return Vec{colour.x * light.x, colour.y * light.y, colour.z * light.z} + shine * Vec{1, 1, 1};
}

Vec background(float height)  // 0 at the top, 1 at the bottom
{
    return mix(Vec{0.78f, 0.80f, 0.82f}, Vec{0.55f, 0.56f, 0.57f}, height * height);
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

Picture drawMesh(std::span<const float> vertices, std::span<const float> normals, std::span<const int> corners,
                 View view, int width, int height, std::span<const float> colours)
{
    const std::size_t vertexCount = vertices.size() / 3;
    const int samplesX = width * samplesPerSide, samplesY = height * samplesPerSide;
    const auto index = [&](int x, int y) {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(samplesX) + static_cast<std::size_t>(x);
    };
    const auto frameWidth = static_cast<float>(samplesX), frameHeight = static_cast<float>(samplesY);

    // Where the vertices, their normals and their shadows appear to the viewer.
    const Turn turn(view);
    const Vec lightFall{0.22f, -1, -0.12f};
    float ground = std::numeric_limits<float>::max();
    for (std::size_t n = 0; n < vertexCount; ++n) ground = std::min(ground, vertices[3 * n + 1]);
    std::vector<Vec> points(vertexCount), shadows(vertexCount), turned(vertexCount);
    constexpr float far = std::numeric_limits<float>::max();
    float left = far, right = -far, top = far, bottom = -far;
    for (std::size_t n = 0; n < vertexCount; ++n) {
        const Vec p = vecAt(vertices, n);
        points[n] = project(turn(p));
        shadows[n] = project(turn(p + (p.y - ground) * lightFall));
        turned[n] = turn(vecAt(normals, n));
        left = std::min(left, points[n].x), right = std::max(right, points[n].x);
        top = std::min(top, points[n].y), bottom = std::max(bottom, points[n].y);
    }
    const float scale =
        0.78f * std::min(frameWidth / std::max(right - left, 1e-6f), frameHeight / std::max(bottom - top, 1e-6f));
    const auto place = [&](Vec& p) {
        p.x = frameWidth / 2 + scale * (p.x - (left + right) / 2);
        p.y = frameHeight / 2 + scale * (p.y - (top + bottom) / 2);
    };
    std::for_each(points.begin(), points.end(), place);
    std::for_each(shadows.begin(), shadows.end(), place);

    // The nearest surface at each sample, and where the light does not reach the ground.
    const std::size_t samples = index(0, samplesY);
    std::vector<float> depth(samples, far), shadow(samples, 0.0f);
    constexpr Vec clay{0.60f, 0.50f, 0.40f};
    std::vector<Vec> surface(samples), colour(colours.empty() ? 0 : samples);
    for (std::size_t k = 0; k + 2 < corners.size(); k += 3) {
        const auto a = static_cast<std::size_t>(corners[k]), b = static_cast<std::size_t>(corners[k + 1]),
                   c = static_cast<std::size_t>(corners[k + 2]);
        fillTriangle(points[a], points[b], points[c], samplesX, samplesY, [&](int x, int y, Vec w) {
            const float z = dot(w, Vec{points[a].z, points[b].z, points[c].z});
            if (z >= depth[index(x, y)]) return;
            depth[index(x, y)] = z;
            surface[index(x, y)] = w.x * turned[a] + w.y * turned[b] + w.z * turned[c];
            if (colours.empty()) return;
            colour[index(x, y)] = w.x * vecAt(colours, a) + w.y * vecAt(colours, b) + w.z * vecAt(colours, c);
        });
        fillTriangle(shadows[a], shadows[b], shadows[c], samplesX, samplesY,
                     [&](int x, int y, Vec) { shadow[index(x, y)] = 1; });
    }
    for (int pass = 0; pass < 3; ++pass) {
        const auto row = static_cast<std::size_t>(samplesX);
        blur(shadow, samplesY, row, samplesX, 1, samplesX / 60);
        blur(shadow, samplesX, 1, samplesY, row, samplesX / 120);
    }

    Picture picture{width, height, {}};
    picture.rgb.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            Vec sum;
            for (int s = 0; s < samplesPerSide * samplesPerSide; ++s) {
                const std::size_t i =
                    index(x * samplesPerSide + s % samplesPerSide, y * samplesPerSide + s / samplesPerSide);
                const Vec plain = background(static_cast<float>(y) / static_cast<float>(height));
                sum = sum + (depth[i] < far ? shade(surface[i], colour.empty() ? clay : colour[i])
                                            : (1 - 0.45f * shadow[i]) * plain);
            }
            const Vec pixel = 1.0f / (samplesPerSide * samplesPerSide) * sum;
            for (const float channel : {pixel.x, pixel.y, pixel.z}) picture.rgb.push_back(encoded(channel));
        }
    return picture;
}

}  // namespace examples
