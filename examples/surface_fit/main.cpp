// Fits a quadric to the neighbourhood of every vertex of a scan, solved with vorm in three ways, and draws the mean
// curvature: surface_fit [input.obj [output.png]].
//
// In a frame of its own, with z along the normal and the neighbourhood's radius as unit, each vertex has
// z = a x^2 + b xy + c y^2 + d x + e y + f, so that X (a, b, c, d, e, f) is nearly z, with a row of X for each
// neighbour: six unknowns per vertex.
#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/png_writer.hpp"
#include "common/rasteriser.hpp"
#include "common/stages.hpp"
#include "common/surface.hpp"
#include "surface_fit/comparison.hpp"

using namespace examples;
using namespace surface_fit;

namespace {

// The library calls a matrix of this order singular when no pivot is left at all. Rounding may leave some
// epsilons where it ought to be zero, and then the solution is noise: so the pivots are compared with each other.
enum class Rank { full, doubtful, singular };
Rank rankOf(double pivots)
{
    if (pivots == 0) return Rank::singular;
    return pivots > 1e-10 ? Rank::full : Rank::doubtful;
}

// The mean curvature at x = y = 0 of z(x, y), positive where the surface bulges towards its normal.
double meanCurvature(const double* quadric)
{
    const double zxx = 2 * quadric[0], zxy = quadric[1], zyy = 2 * quadric[2], zx = quadric[3], zy = quadric[4];
    const double slope = 1 + zx * zx + zy * zy;
    return -((1 + zy * zy) * zxx - 2 * zx * zy * zxy + (1 + zx * zx) * zyy) / (2 * slope * std::sqrt(slope));
}

void printVertices(const char* what, const std::vector<std::size_t>& vertices)
{
    if (vertices.empty()) return;
    std::printf("%s, left out: %zu, vertices", what, vertices.size());
    constexpr std::size_t enough = 12;
    for (std::size_t k = 0; k < std::min(enough, vertices.size()); ++k) std::printf(" %zu", vertices[k] + 1);
    std::printf(vertices.size() > enough ? " ...\n" : "\n");
}

// Prints what the methods found at the given vertices, which have a fit by the pivots of LU. Normal equations multiply
// errors by rounding up to the reciprocal of the pivots' ratio, QR by about its root. False where an error is much
// larger than that explains.
bool compare(const std::vector<Fits>& methods, const Doubles& exact, const Designs& designs,
             const std::vector<std::size_t>& vertices)
{
    constexpr double limit = 1000;  // some dozens are usual
    const Doubles& pivots = methods.back().pivots;
    bool good = true;
    std::printf("Fits      millions a second   error: middle    largest    from LU  residual  failed\n");
    for (const Fits& fits : methods) {
        Doubles errors = distances(fits.quadrics, exact, vertices);
        for (std::size_t k = 0; k < errors.size(); ++k) {
            const double ratio = pivots[vertices[k]];
            good = good && errors[k] < limit / (fits.normalEquations ? ratio : std::sqrt(ratio));
        }
        std::sort(errors.begin(), errors.end());
        const Doubles fromLU = distances(fits.quadrics, methods[0].quadrics, vertices);
        std::printf("  %-10s %15.2f %15.2f %10.3g %10.3g %9.5f %7d\n", fits.name, 1000 / fits.nanoseconds,
                    errors[errors.size() / 2], errors.back(), *std::max_element(fromLU.begin(), fromLU.end()),
                    residual(designs, fits.quadrics, vertices),
                    static_cast<int>(std::count(fits.pivots.begin(), fits.pivots.end(), 0.0)));
    }
    return good;
}

// Blue where the surface is hollow, red where it bulges, pale where it is flat, yellow where it is unknown.
std::vector<float> coloursOf(const Doubles& curvatures, double scale)
{
    std::vector<float> colours;
    for (const double curvature : curvatures) {
        const auto t = static_cast<float>(std::clamp(curvature / scale, -1.0, 1.0));
        const float pale = 1 - std::abs(t);
        if (std::isnan(curvature))
            colours.insert(colours.end(), {0.80f, 0.65f, 0.05f});
        else if (t < 0)
            colours.insert(colours.end(), {0.05f + 0.55f * pale, 0.15f + 0.45f * pale, 0.65f - 0.05f * pale});
        else
            colours.insert(colours.end(), {0.70f - 0.10f * pale, 0.08f + 0.52f * pale, 0.05f + 0.55f * pale});
    }
    return colours;
}

void run(const std::string& input, const std::string& output)
{
    printVersion();
    const Mesh mesh = readObj(input);
    std::printf("%s: %d vertices, %d triangles\n", input.c_str(), mesh.vertexCount(), mesh.triangleCount());
    if (mesh.vertexCount() > INT_MAX / design) throw BadMesh(0, "too many vertices for one array");
    const std::vector<float> placed = centredAndScaled(mesh.vertices);
    const auto normals = vertexNormals(faceNormals(edgesOf(placed, mesh.corners)), mesh.corners, placed.size()).normals;

    const Neighbourhoods around = neighbourhoodsOf(mesh, normals);
    std::printf("Nanoseconds per vertex (threads):\n");
    const Designs designs = designsOf(around);
    const Systems systems = systemsOf(designs);
    Factors factors;
    const std::vector<Fits> methods{byLU(systems, factors), byCholesky(systems), byQR(designs)};
    const Fits& fits = methods[0];

    Doubles curvatures, known;
    std::vector<std::size_t> good, singular, doubtful;
    for (std::size_t v = 0; v < around.radii.size(); ++v) {
        const Rank rank = rankOf(fits.pivots[v]);
        const double curvature = meanCurvature(&fits.quadrics[v * order]) / around.radii[v];
        (rank == Rank::full ? good : rank == Rank::singular ? singular : doubtful).push_back(v);
        curvatures.push_back(rank == Rank::full ? curvature : std::nan(""));
        if (rank == Rank::full) known.push_back(curvature);
    }
    printVertices("Singular", singular);
    printVertices("Nearly singular", doubtful);
    if (known.empty()) throw BadMesh(0, "no vertex has a neighbourhood to fit");
    if (!compare(methods, improved(designs, factors, fits.quadrics), designs, good))
        throw std::runtime_error(input + ": the fits of the methods are not those of one problem");
    std::sort(known.begin(), known.end());
    const auto share = [&](double part) {
        return known[static_cast<std::size_t>(part * static_cast<double>(known.size() - 1))];
    };
    std::printf("Mean curvature: %.4g to %.4g, middle %.4g, nine of ten within %.4g to %.4g\n", known.front(),
                known.back(), share(0.5), share(0.05), share(0.95));

    const double scale = std::max({std::abs(share(0.05)), std::abs(share(0.95)), 1e-30});
    const Picture picture =
        drawMesh(placed, normals, mesh.corners, View{-28, 14}, 800, 640, coloursOf(curvatures, scale));
    writePng(picture, output);
    std::printf("%s: %d x %d pixels\n", output.c_str(), picture.width, picture.height);
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "curvature.png", run); }
