// Two scans of the same thing from two sides, one of them moved by an unknown rigid motion, are brought together:
// registration [input.obj [output.png]].
#include <cmath>
#include <cstdio>
#include <numbers>
#include <random>
#include <stdexcept>
#include <string>

#include "common/png_writer.hpp"
#include "common/stages.hpp"
#include "common/surface.hpp"
#include "registration/picture.hpp"
#include "registration/refine.hpp"
#include "registration/search.hpp"

using namespace examples;
using namespace registration;

namespace {

constexpr int points = 4096;  // of each scan

// The motion has to be found so well; the thing is in a box of edge 2. One point is known to alongSd.
constexpr Difference bound{0.2, alongSd};

// From the thing to a scanner above its front, turned to the right by an angle.
Vec towardsScanner(double degrees)
{
    const double turn = degrees * std::numbers::pi / 180, tilt = 15 * std::numbers::pi / 180;
    return {std::cos(tilt) * std::sin(turn), std::sin(tilt), std::cos(tilt) * std::cos(turn)};
}

// How the second scan is moved: any rotation, and a shift.
Motion unknownMotion(std::mt19937_64& random)
{
    Motion motion = randomTurn(random);
    motion[3] = 1.1, motion[7] = 0.2, motion[11] = -0.3;
    return motion;
}

void print(const char* what, const Difference& error)
{
    std::printf("  %-38s rotation %7.3f degrees, translation %.5f\n", what, error.degrees, error.distance);
}

void run(const std::string& input, const std::string& output)
{
    printVersion();
    const Mesh mesh = readObj(input);
    std::printf("%s: %d vertices, %d triangles\n", input.c_str(), mesh.vertexCount(), mesh.triangleCount());
    const std::vector<float> placed = centredAndScaled(mesh.vertices);

    std::mt19937_64 random(1);
    const Motion away = unknownMotion(random), back = inverse(away);
    const Scan first = scanned(placed, mesh.corners, towardsScanner(5), points, random);
    const Scan second = scanned(placed, mesh.corners, towardsScanner(-45), points, random);
    std::printf("Two scans of %d points, 50 degrees apart, with errors of %g along the line of sight and %g across\n",
                points, alongSd, acrossSd);

    std::printf("Nanoseconds per object (threads):\n");
    const Surface fixed(first, timed), moving(registration::moved(second, away));
    const Motion found = searched(fixed, moving, random, timed);
    const Refined result = refined(fixed, moving, found, timed);
    std::printf("Steps with covariances: %d, with %d correspondences; det(C) det(C^-1) = 1 to %.1g\n", result.steps,
                result.correspondences, result.determinants);

    const Difference error = difference(result.motion, back);
    std::printf("Errors of the motion:\n");
    print("at first", difference(motionOf({}, {}), back));
    print("point to plane, best of all starts", difference(found, back));
    print("plane to plane, weighted", error);
    print("bound", bound);
    if (!(result.determinants < 1e-9)) throw std::runtime_error("an inverse is not one");
    if (!(error.degrees < bound.degrees && error.distance < bound.distance))
        throw std::runtime_error(input + ": the motion is not recovered");

    const Picture picture = drawBeforeAndAfter(fixed, moving, result.motion);
    writePng(picture, output);
    std::printf("%s: %d x %d pixels\n", output.c_str(), picture.width, picture.height);
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "registration.png", run); }
