// Takes the normals of a cloud, the vertices of a mesh without its triangles, and compares them with those of the
// mesh: cloud_normals [input.obj [output.png]].
//
// The normal of a point is the direction in which the points near it are spread least: the eigenvector of their
// covariance with the smallest eigenvalue.
#include <vorm/vorm.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <string>
#include <vector>

#include "cloud_normals/neighbourhoods.hpp"
#include "cloud_normals/picture.hpp"
#include "common/png_writer.hpp"
#include "common/principal_axes.hpp"
#include "common/stages.hpp"
#include "common/surface.hpp"

using namespace examples;
using namespace cloud_normals;

namespace {

// The last axes, zero where the spread along two of them is nearly the same: points on a line, or all in one place.
std::vector<float> normalsOf(const PrincipalAxes<float>& axes)
{
    std::vector<float> normals(axes.shares.size());
    for (std::size_t n = 0; n < normals.size(); n += 3)
        if (axes.shares[n + 1] - axes.shares[n + 2] > 1e-3f) std::copy_n(&axes.vectors[3 * n + 6], 3, &normals[n]);
    return normals;
}

// Degrees between lines, as the sides of the normals are not known; NaN where there is none.
std::vector<float> anglesBetween(const std::vector<float>& a, const std::vector<float>& b)
{
    std::vector<float> angles;
    for (std::size_t n = 0; n < a.size(); n += 3) {
        float cross[3], sine, cosine;
        vormCrossProduct_v3_32f(&a[n], &b[n], cross);
        vormLen_v3_32f(cross, &sine);
        vormDotProduct_v3_32f(&a[n], &b[n], &cosine);
        const bool isKnown = sine != 0 || cosine != 0;
        angles.push_back(isKnown ? std::atan2(sine, std::abs(cosine)) * 180 / std::numbers::pi_v<float>
                                 : std::nanf(""));
    }
    return angles;
}

std::vector<int> histogramOf(const std::vector<float>& angles)
{
    std::vector<int> histogram(bins);
    for (const float angle : angles)
        if (!std::isnan(angle)) ++histogram[static_cast<std::size_t>(binOf(angle))];
    return histogram;
}

void print(const std::vector<int>& histogram)
{
    const int most = std::max(1, *std::max_element(histogram.begin(), histogram.end()));
    for (int bin = 0; bin < bins; ++bin) {
        const int number = histogram[static_cast<std::size_t>(bin)];
        const std::string bar(static_cast<std::size_t>((number * 60LL + most - 1) / most), '*');
        std::printf("  %4g degrees and more %6d%s%s\n", static_cast<double>(static_cast<float>(bin) * binWidth), number,
                    bar.empty() ? "" : "  ", bar.c_str());
    }
}

void run(const std::string& input, const std::string& output)
{
    printVersion();
    const Mesh mesh = readObj(input);
    std::printf("%s: %d points\n", input.c_str(), mesh.vertexCount());
    const std::vector<float> points = centredAndScaled(mesh.vertices);
    if (mesh.vertexCount() < near) throw BadMesh(0, "too few points for a neighbourhood");
    if (mesh.vertexCount() > INT_MAX / (near * 3 * static_cast<int>(sizeof(float))))
        throw BadMesh(0, "too many points for one array");

    std::printf("Nanoseconds per object (threads):\n");
    const Neighbourhoods around = neighbourhoodsOf(points, timed);
    const PrincipalAxes<float> axes = principalAxes(around.covariances, timed);
    const std::vector<float> normals = normalsOf(axes);
    std::printf("Values that did not fit their matrix, found in a turned frame: %d\n", axes.doneAgain);
    int without = 0;
    for (std::size_t n = 0; n < normals.size(); n += 3)
        without += normals[n] == 0 && normals[n + 1] == 0 && normals[n + 2] == 0;
    if (without == mesh.vertexCount()) throw BadMesh(0, "no point has a normal");
    std::printf("Points without a normal: %d\n", without);

    const auto meshNormals =
        vertexNormals(faceNormals(edgesOf(points, mesh.corners)), mesh.corners, points.size()).normals;
    const std::vector<float> errors = anglesBetween(normals, meshNormals);
    std::vector<float> known;
    std::copy_if(errors.begin(), errors.end(), std::back_inserter(known), [](float x) { return !std::isnan(x); });
    if (known.empty()) throw BadMesh(0, "no normal to compare");
    std::sort(known.begin(), known.end());
    std::printf("Angle to the normals of the mesh: middle %.3g, nine of ten below %.3g, largest %.3g degrees\n",
                static_cast<double>(known[known.size() / 2]), static_cast<double>(known[known.size() * 9 / 10]),
                static_cast<double>(known.back()));
    const std::vector<int> histogram = histogramOf(errors);
    print(histogram);

    const Picture picture = drawCloud(points, normals, around.radii, errors, histogram);
    writePng(picture, output);
    std::printf("%s: %d x %d pixels\n", output.c_str(), picture.width, picture.height);
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "cloud.png", run); }
