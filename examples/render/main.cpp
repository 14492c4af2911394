// Takes a mesh and a teapot into a picture, along the whole road from their own coordinates to the pixels, while a
// camera flies past; then goes back from the pixels of a line to the triangles that they show:
// render [input.obj [output.png]].
//
// Points are rows, p' = p M: a chain of transforms reads from left to right, mesh, world, camera, viewport.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <set>
#include <span>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "common/canvas.hpp"
#include "common/sheet.hpp"
#include "common/stages.hpp"
#include "render/body.hpp"
#include "render/camera.hpp"
#include "render/checks.hpp"
#include "render/picking.hpp"

using namespace examples;
using namespace render;

namespace {

constexpr int width = 720, height = 480, frameWidth = 180, frameHeight = 120, frames = 8;
constexpr float aspect = static_cast<float>(width) / height;
constexpr Colour clay{0.60f, 0.50f, 0.40f}, china{0.30f, 0.42f, 0.55f}, marked{0.80f, 0.03f, 0.02f};

constexpr Key path[] = {
    {{-5.2f, 0.9f, 1.7f}, {-0.2f, 0.9f, 0.0f}}, {{-2.9f, 1.4f, 4.5f}, {0.0f, 0.75f, 0.0f}},
    {{0.5f, 2.0f, 5.4f}, {0.02f, 0.8f, 0.0f}},  {{3.2f, 3.0f, 4.1f}, {0.1f, 0.6f, 0.0f}},
    {{4.7f, 1.8f, 1.7f}, {0.2f, 0.7f, 0.0f}},
};
constexpr float mainPart = 0.5f;  // of the path, where the large picture is taken

std::vector<Body> scene(const std::string& input)
{
    const Mesh mesh = readObj(input), teapot = readData("teapot.obj");
    std::printf("%s: %d vertices, %d triangles\n", input.c_str(), mesh.vertexCount(), mesh.triangleCount());
    std::printf("Nanoseconds per point (threads):\n");
    constexpr float degree = std::numbers::pi_v<float> / 180;
    return {standing(mesh, {-1.05f, 0, 28 * degree, {1, 1, 1}}, clay, timed),
            standing(teapot, {1.0f, 0.35f, -24 * degree, {1, 0.8f, 1}}, china)};
}

// A line across the picture, through the middles of samples.
std::vector<float> strokeOver(const Canvas& canvas)
{
    const auto columns = static_cast<float>(canvas.columns()), rows = static_cast<float>(canvas.rows());
    const float a[] = {0, 1.2f * rows}, b[] = {0.1f * columns, 0.5f * rows}, c[] = {0.9f * columns, 0.6f * rows},
                d[] = {columns, -0.4f * rows};
    std::vector<float> pixels;
    for (int k = 0; k < 400; ++k) {
        float point[2];
        vormInterpolationCatmullRom_v2_32f(a, b, c, d, point, static_cast<float>(k) / 400);
        pixels.insert(pixels.end(), {std::floor(point[0]) + 0.5f, std::floor(point[1]) + 0.5f, 0});
    }
    return pixels;
}

std::vector<float> gridOver(const Canvas& canvas)
{
    constexpr int step = 24;
    std::vector<float> pixels;
    for (int y = step / 2; y < canvas.rows(); y += step)
        for (int x = step / 2; x < canvas.columns(); x += step)
            pixels.insert(pixels.end(), {static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f, 0});
    return pixels;
}

// The rays through a grid of pixels and the z-buffer find the nearest surface in ways of their own. Where a ray
// passes an edge within rounding, they may differ.
void compareWithBuffer(Checks& checks, const std::vector<float>& grid, const std::vector<Hit>& hits,
                       std::span<const Body> bodies, const Camera& camera, const Canvas& canvas)
{
    int surfaces = 0, others = 0;
    double outside = 0;
    for (std::size_t n = 0; n < hits.size(); ++n) {
        others += !shown(hits[n], &grid[3 * n], camera, canvas, bodies);
        if (hits[n].body < 0) continue;
        ++surfaces;
        const Body& body = bodies[static_cast<std::size_t>(hits[n].body)];
        outside = std::max(outside, besides(hits[n], &grid[3 * n], camera, canvas, body));
    }
    std::printf("Rays through a grid of pixels: %zu, of which %d hit something\n", hits.size(), surfaces);
    checks.atMost("pixels outside of the triangle that they hit, by samples", outside, 0.02);
    checks.atMost("rays that end elsewhere than the z-buffer, in a thousand",
                  1000.0 * others / static_cast<double>(hits.size()), 2);
}

// All triangles along the line in another colour.
void markStroke(std::vector<Body>& bodies, const Camera& camera, const Canvas& canvas)
{
    std::set<std::pair<int, int>> triangles;
    for (const Hit& hit : picked(bodies, camera, canvas, strokeOver(canvas)))
        if (hit.body >= 0) triangles.insert({hit.body, hit.triangle});
    std::printf("Picked by a line over the picture: %zu triangles\n", triangles.size());
    for (const auto& [body, triangle] : triangles) mark(bodies[static_cast<std::size_t>(body)], triangle, marked);
}

Picture pictureFrom(const Camera& camera, std::span<const Body> bodies, int pictureWidth, int pictureHeight)
{
    Canvas canvas(pictureWidth, pictureHeight);
    drawBodies(camera, bodies, canvas);
    return canvas.picture(camera.towardsViewer());
}

std::vector<Camera> flight()
{
    std::vector<Camera> cameras;
    for (int n = 0; n < frames; ++n) cameras.push_back(onPath(path, static_cast<float>(n) / (frames - 1), aspect));
    return cameras;
}

void printFlight(std::span<const Camera> cameras, std::span<const Body> bodies)
{
    std::printf("Frame  eye                    vertices in view, of %d and %d\n", bodies[0].vertexCount(),
                bodies[1].vertexCount());
    int frame = 0;
    for (const Camera& camera : cameras)
        std::printf("%5d %6.3f %6.3f %6.3f   %d and %d\n", ++frame, camera.eye[0], camera.eye[1], camera.eye[2],
                    inView(camera, bodies[0]), inView(camera, bodies[1]));
}

void run(const std::string& input, const std::string& output)
{
    printVersion();
    std::vector<Body> bodies = scene(input);
    const Camera camera = onPath(path, mainPart, aspect);
    const std::vector<Camera> cameras = flight();
    Canvas canvas(width, height);
    projected(camera, canvas, bodies[0], timed);
    drawBodies(camera, bodies, canvas);
    const std::vector<float> grid = gridOver(canvas);
    const std::vector<Hit> hits = picked(bodies, camera, canvas, grid, timed);
    printFlight(cameras, bodies);

    Checks checks;
    compareWithBuffer(checks, grid, hits, bodies, camera, canvas);
    double astray = 0, crooked = 0;
    for (const Body& body : bodies) {
        crooked = std::max(crooked, askew(body));
        for (const Camera& there : cameras) astray = std::max(astray, wayBack(there, canvas, body));
    }
    checks.atMost("vertices to the viewport and back, by epsilons of depth", astray, 16);
    checks.atMost("normals and edges of the turned meshes, by epsilons", crooked, 64);
    if (checks.failed()) throw std::runtime_error("the road into the picture and back does not lead to where it began");

    markStroke(bodies, camera, canvas);
    constexpr int columns = width / frameWidth;
    Picture sheet = blackSheet(width, height + frames / columns * frameHeight);
    paste(pictureFrom(camera, bodies, width, height), sheet, 0, 0);
    for (int n = 0; n < frames; ++n)
        paste(pictureFrom(cameras[static_cast<std::size_t>(n)], bodies, frameWidth, frameHeight), sheet,
              n % columns * frameWidth, height + n / columns * frameHeight);
    writePng(sheet, output);
    std::printf("%s: %d x %d pixels\n", output.c_str(), sheet.width, sheet.height);
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "render.png", run); }
