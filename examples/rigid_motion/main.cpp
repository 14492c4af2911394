// Moves a scan on a turntable through rotations and rigid transforms and back again:
// rigid_motion [input.obj [output.png]].
//
// Points are columns: a rotation R (3x3) takes p to R p, a transform (4x4) takes (p, 1) to (R p + t, 1),
// and the inverse of R is R read transposed, for which the products have shapes of their own.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <numbers>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/matrix.hpp"
#include "common/png_writer.hpp"
#include "common/rasteriser.hpp"
#include "common/sheet.hpp"
#include "common/stages.hpp"
#include "common/surface.hpp"

using namespace examples;

namespace {

using Floats = std::vector<float>;

constexpr int element = sizeof(float), row3 = 3 * element, row4 = 4 * element;
constexpr int matrix3 = 3 * row3, matrix4 = 4 * row4, slot = row4;  // a slot holds a point and its 1
constexpr int frames = 12;
constexpr float turnPerFrame = 2 * std::numbers::pi_v<float> / frames;

std::size_t index(int n) { return static_cast<std::size_t>(n); }

// The library makes rotations for points that are rows; for columns they are those by the opposite angle. They
// come as the upper left part of a 4x4 matrix, where the strides find them.
Matrix aboutX(float angle)
{
    Matrix rotation;
    vormRotationX_m4_32f(rotation.data(), -angle);
    return rotation;
}

Matrix aboutY(float angle)
{
    Matrix rotation;
    vormRotationY_m4_32f(rotation.data(), -angle);
    return rotation;
}

// The step that leads to each frame: the table turns on, then rocks.
Floats rotationSteps()
{
    Floats rock, steps(index(frames * 9));
    for (int n = 0; n < frames; ++n) {
        const Matrix matrix = aboutX(0.15f * std::sin(2 * turnPerFrame * static_cast<float>(n)));
        rock.insert(rock.end(), matrix.begin(), matrix.end());
    }
    const Matrix turn = aboutY(turnPerFrame);
    expectOk(vormMul_mam_32f(rock.data(), matrix4, row4, element, 3, 3, turn.data(), row4, element, 3, 3, steps.data(),
                             matrix3, row3, element, frames),
             "vormMul_mam_32f");
    return steps;
}

// The same steps as transforms: the table also drifts and is lifted.
Floats transformSteps(const Floats& rotations)
{
    Floats steps;
    for (int n = 0; n < frames; ++n) {
        const float* const r = &rotations[index(9 * n)];
        const float drift = 0.02f, lift = n % 2 == 0 ? 0.25f : -0.125f;
        const float matrix[16] = {r[0], r[1], r[2], drift,  r[3], r[4], r[5], lift,
                                  r[6], r[7], r[8], -drift, 0,    0,    0,    1};
        steps.insert(steps.end(), std::begin(matrix), std::end(matrix));
    }
    return steps;
}

// pose[n] = step[n] ... step[1] step[0], in passes over all frames: when pose[n] covers the last d steps,
// pose[n] pose[n - d] covers the last 2 d.
Floats composed(const Floats& steps, int order)
{
    const int row = order * element, object = order * row;
    Floats poses = steps, further = steps;
    for (int distance = 1; distance < frames; distance *= 2) {
        const std::size_t later = index(distance * order * order);
        expectOk(vormMul_mama_32f(&poses[later], object, row, element, order, order, poses.data(), object, row, element,
                                  order, order, &further[later], object, row, element, frames - distance),
                 "vormMul_mama_32f");
        poses = further;
    }
    return poses;
}

// The points with a fourth element of 1.
Floats slotsOf(const Floats& points)
{
    Floats slots;
    for (std::size_t n = 0; n < points.size(); n += 3)
        slots.insert(slots.end(), {points[n], points[n + 1], points[n + 2], 1});
    return slots;
}

// Every frame's view of the vectors, frame after frame: turned by its rotation.
Floats turned(const Floats& vectors, const Floats& rotations, Stage stage = once)
{
    const int count = static_cast<int>(vectors.size() / 3);
    Floats result(index(frames) * vectors.size());
    stage("rotate                  vormMul_mva_32f 3x3", frames * count, {1, 0}, [&] {
        for (std::size_t n = 0; n < index(frames); ++n)
            expectOk(vormMul_mva_32f(&rotations[9 * n], row3, element, 3, 3, vectors.data(), row3, element, 3,
                                     &result[n * vectors.size()], row3, element, count),
                     "vormMul_mva_32f");
    });
    return result;
}

// The inverse: the same rotations, read transposed.
Floats turnedBack(const Floats& views, const Floats& rotations)
{
    const std::size_t size = views.size() / index(frames);
    const int count = static_cast<int>(size / 3);
    Floats result(views.size());
    timed("rotate back             vormMul_tva_32f 3x3", frames * count, {1, 0}, [&] {
        for (std::size_t n = 0; n < index(frames); ++n)
            expectOk(vormMul_tva_32f(&rotations[9 * n], row3, element, 3, 3, &views[n * size], row3, element, 3,
                                     &result[n * size], row3, element, count),
                     "vormMul_tva_32f");
    });
    return result;
}

// Every frame's view of the points in slots, moved by its transform.
Floats moved(const Floats& slots, const Floats& transforms)
{
    const int count = static_cast<int>(slots.size() / 4);
    Floats result(index(frames) * slots.size());
    timed("move                    vormMul_mva_32f 4x4", frames * count, {1, 0}, [&] {
        for (std::size_t n = 0; n < index(frames); ++n)
            expectOk(vormMul_mva_32f(&transforms[16 * n], row4, element, 4, 4, slots.data(), slot, element, 4,
                                     &result[n * slots.size()], slot, element, count),
                     "vormMul_mva_32f");
    });
    return result;
}

// The inverse: R transposed times (q - t). The strides find R and the column t inside the transform.
Floats movedBack(const Floats& views, const Floats& transforms)
{
    const std::size_t size = views.size() / index(frames);
    const int count = static_cast<int>(size / 4);
    Floats shifted(3 * index(count)), result(index(frames) * shifted.size());
    timed("move back               vormSub_vav, Mul_tva", frames * count, {1, 0}, [&] {
        for (std::size_t n = 0; n < index(frames); ++n) {
            const float* const transform = &transforms[16 * n];
            expectOk(vormSub_vav_32f(&views[n * size], slot, element, transform + 3, row4, shifted.data(), row3,
                                     element, 3, count),
                     "vormSub_vav_32f");
            expectOk(vormMul_tva_32f(transform, row4, element, 3, 3, shifted.data(), row3, element, 3,
                                     &result[n * shifted.size()], row3, element, count),
                     "vormMul_tva_32f");
        }
    });
    return result;
}

// The same views without composing anything: one step after the other.
Floats walked(const Floats& slots, const Floats& steps)
{
    const int count = static_cast<int>(slots.size() / 4);
    Floats result(index(frames) * slots.size());
    const float* from = slots.data();
    for (std::size_t n = 0; n < index(frames); ++n) {
        float* const to = &result[n * slots.size()];
        expectOk(vormMul_mva_32f(&steps[16 * n], row4, element, 4, 4, from, slot, element, 4, to, slot, element, count),
                 "vormMul_mva_32f");
        from = to;
    }
    return result;
}

// A scan takes time. While its line climbs, the table turns on by a quarter of a step, so that each point
// is seen in a pose of its own.
Floats posesOfPoints(const Floats& points, const Floats& pose)
{
    Floats late;
    for (std::size_t n = 0; n < points.size(); n += 3) {
        const Matrix matrix = aboutY(turnPerFrame / 4 * (points[n + 1] + 1) / 2);
        late.insert(late.end(), matrix.begin(), matrix.end());
    }
    const int count = static_cast<int>(points.size() / 3);
    Floats poses(points.size() * 3);
    timed("a pose for each point   vormMul_mam_32f", count, {1, 0}, [&] {
        expectOk(vormMul_mam_32f(late.data(), matrix4, row4, element, 3, 3, pose.data(), row3, element, 3, 3,
                                 poses.data(), matrix3, row3, element, count),
                 "vormMul_mam_32f");
    });
    return poses;
}

// Each point by its own pose, or back again, where the poses are read transposed.
Floats eachMoved(const Floats& points, const Floats& poses)
{
    const int count = static_cast<int>(points.size() / 3);
    Floats result(points.size());
    timed("rotate each             vormMul_mava_32f", count, {1, 0}, [&] {
        expectOk(vormMul_mava_32f(poses.data(), matrix3, row3, element, 3, 3, points.data(), row3, element, 3,
                                  result.data(), row3, element, count),
                 "vormMul_mava_32f");
    });
    return result;
}

Floats eachMovedBack(const Floats& points, const Floats& poses)
{
    const int count = static_cast<int>(points.size() / 3);
    Floats result(points.size());
    timed("rotate each back        vormMul_tava_32f", count, {1, 0}, [&] {
        expectOk(vormMul_tava_32f(poses.data(), matrix3, row3, element, 3, 3, points.data(), row3, element, 3,
                                  result.data(), row3, element, count),
                 "vormMul_tava_32f");
    });
    return result;
}

// R transposed times R of each rotation, which ought to be 1.
Floats squares(const Floats& rotations)
{
    Floats result(rotations.size());
    expectOk(vormMul_tama_32f(rotations.data(), matrix3, row3, element, 3, 3, rotations.data(), matrix3, row3, element,
                              3, 3, result.data(), matrix3, row3, element, frames),
             "vormMul_tama_32f");
    return result;
}

Floats repeated(const Floats& values, int times)
{
    Floats result;
    for (int n = 0; n < times; ++n) result.insert(result.end(), values.begin(), values.end());
    return result;
}

// Centroid and bounding box of each view. A view is a matrix with a row for each point; its transpose
// times a vector of weights is the mean of the rows.
void printViews(const Floats& views, int count)
{
    const Floats weights(index(count), 1 / static_cast<float>(count));
    Floats centroids(index(frames) * 4);
    expectOk(vormMul_tav_32f(views.data(), count * slot, slot, element, 4, count, weights.data(), element, count,
                             centroids.data(), slot, element, frames),
             "vormMul_tav_32f");
    std::printf("Frame  centroid               bounding box\n");
    for (std::size_t n = 0; n < index(frames); ++n) {
        const float* const view = &views[n * index(count) * 4];
        float low[3], high[3];
        std::copy_n(view, 3, low), std::copy_n(view, 3, high);
        for (std::size_t k = 0; k < index(count); ++k) {
            vormMin_v3_32f(low, view + 4 * k, low);
            vormMax_v3_32f(high, view + 4 * k, high);
        }
        const float* const c = &centroids[4 * n];
        std::printf("%5d %6.3f %6.3f %6.3f   %6.3f %6.3f %6.3f to %6.3f %6.3f %6.3f\n", static_cast<int>(n) + 1, c[0],
                    c[1], c[2], low[0], low[1], low[2], high[0], high[1], high[2]);
    }
}

// All views side by side.
Picture contactSheet(const Floats& views, const Floats& normals, const std::vector<int>& corners)
{
    constexpr int columns = 4, rows = frames / columns, width = 240, height = 200;
    Picture sheet = blackSheet(columns * width, rows * height);
    const std::size_t size = views.size() / index(frames);
    for (int n = 0; n < frames; ++n) {
        const std::span view(&views[index(n) * size], size), ups(&normals[index(n) * size], size);
        const Picture picture = drawMesh(view, ups, corners, View{0, 14}, width, height);
        paste(picture, sheet, n % columns * width, n / columns * height);
    }
    return sheet;
}

// Differences are judged in units of the machine epsilon times the largest coordinate of the scan. Each
// of the few roundings on a point's way costs about one unit, a composed rotation up to one per step.
constexpr double limit = 64;

class Judge {
public:
    explicit Judge(const Floats& points)
    {
        for (const float x : points) size_ = std::max(size_, std::abs(x));
        std::printf("Largest differences, in epsilons times the size of the scan (limit %.0f):\n", limit);
    }

    void compare(const char* what, const Floats& values, const Floats& expected)
    {
        double largest = 0;
        for (std::size_t n = 0; n < expected.size(); ++n) {
            const double difference = std::abs(static_cast<double>(values[n]) - expected[n]);
            largest = std::isnan(difference) ? std::numeric_limits<double>::infinity() : std::max(largest, difference);
        }
        const double units = largest / (std::numeric_limits<float>::epsilon() * static_cast<double>(size_));
        const bool good = units <= limit;
        std::printf("  %-46s %8.2f%s\n", what, units, good ? "" : "  TOO MUCH");
        failed_ = failed_ || !good;
    }

    bool failed() const { return failed_; }

private:
    float size_ = 0;
    bool failed_ = false;
};

void run(const std::string& input, const std::string& output)
{
    printVersion();
    const Mesh mesh = readObj(input);
    std::printf("%s: %d vertices, %d triangles\n", input.c_str(), mesh.vertexCount(), mesh.triangleCount());

    const Floats points = centredAndScaled(mesh.vertices), slots = slotsOf(points);
    const Floats turns = rotationSteps(), rotations = composed(turns, 3);
    const Floats steps = transformSteps(turns), transforms = composed(steps, 4);

    std::printf("Nanoseconds per point (threads):\n");
    const Floats views = turned(points, rotations, timed), viewsBack = turnedBack(views, rotations);
    const Floats movedViews = moved(slots, transforms), movedViewsBack = movedBack(movedViews, transforms);
    const Floats poses = posesOfPoints(points, Floats(rotations.end() - 9, rotations.end()));
    const Floats swept = eachMoved(points, poses), sweptBack = eachMovedBack(swept, poses);
    printViews(movedViews, mesh.vertexCount());

    Judge judge(points);
    judge.compare("rotations: transpose times itself", squares(rotations),
                  repeated({1, 0, 0, 0, 1, 0, 0, 0, 1}, frames));
    judge.compare("transforms: composed and step by step", movedViews, walked(slots, steps));
    judge.compare("scan rotated and back", viewsBack, repeated(points, frames));
    judge.compare("scan moved and back", movedViewsBack, repeated(points, frames));
    judge.compare("each point by its own pose and back", sweptBack, points);
    if (judge.failed()) throw std::runtime_error("the motion and its inverse do not give the scan");

    const Floats normals =
        vertexNormals(faceNormals(edgesOf(points, mesh.corners)), mesh.corners, points.size()).normals;
    const Picture picture = contactSheet(views, turned(normals, rotations), mesh.corners);
    writePng(picture, output);
    std::printf("%s: %d x %d pixels\n", output.c_str(), picture.width, picture.height);
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "rigid_motion.png", run); }
