// Fits a quadric to the neighbourhood of every vertex of a scan, by normal equations solved with vorm, and
// draws the mean curvature: surface_fit [input.obj [output.png]].
//
// In a frame of its own, with z along the normal and the neighbourhood's radius as unit, each vertex has
// z = a x^2 + b xy + c y^2 + d x + e y + f, so that X^T X (a, b, c, d, e, f) = X^T z with a row of X for each
// neighbour: six equations with six unknowns per vertex.
#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <string>
#include <vector>

#include "common/png_writer.hpp"
#include "common/rasteriser.hpp"
#include "common/stages.hpp"
#include "common/surface.hpp"

using namespace examples;

namespace {

using Doubles = std::vector<double>;

constexpr int order = 6, rows = 24;  // rows: most neighbours that take part, the vertex itself among them
constexpr int element = sizeof(double), row3 = 3 * element, row6 = order * element;
constexpr int points = rows * row3, design = rows * row6, heights = rows * element;  // from vertex to vertex
constexpr int frame = 3 * row3, matrix = order * row6;
constexpr std::size_t elements = order * order;

std::size_t index(int n) { return static_cast<std::size_t>(n); }

// The vertices that share a triangle with each vertex.
std::vector<std::vector<int>> ringsOf(const Mesh& mesh)
{
    std::vector<std::vector<int>> rings(index(mesh.vertexCount()));
    for (std::size_t k = 0; k < mesh.corners.size(); k += 3)
        for (std::size_t c = 0; c < 3; ++c) {
            auto& ring = rings[index(mesh.corners[k + c])];
            ring.insert(ring.end(), {mesh.corners[k + (c + 1) % 3], mesh.corners[k + (c + 2) % 3]});
        }
    for (auto& ring : rings) {
        std::sort(ring.begin(), ring.end());
        ring.erase(std::unique(ring.begin(), ring.end()), ring.end());
    }
    return rings;
}

struct Neighbour {
    double distance, offset[3];
};

// The nearest of the vertices at most two edges away, from the vertex itself on.
std::vector<Neighbour> nearest(const Mesh& mesh, const std::vector<std::vector<int>>& rings, std::size_t v)
{
    std::vector<int> near{static_cast<int>(v)};
    for (const int first : rings[v]) {
        near.push_back(first);
        near.insert(near.end(), rings[index(first)].begin(), rings[index(first)].end());
    }
    std::sort(near.begin(), near.end());
    near.erase(std::unique(near.begin(), near.end()), near.end());
    std::vector<Neighbour> neighbours;
    for (const int n : near) {
        Neighbour& neighbour = neighbours.emplace_back();
        for (std::size_t i = 0; i < 3; ++i)
            neighbour.offset[i] = static_cast<double>(mesh.vertices[3 * index(n) + i]) - mesh.vertices[3 * v + i];
        neighbour.distance = std::hypot(neighbour.offset[0], neighbour.offset[1], neighbour.offset[2]);
    }
    std::sort(neighbours.begin(), neighbours.end(),
              [](const Neighbour& a, const Neighbour& b) { return a.distance < b.distance; });
    if (neighbours.size() > rows) neighbours.resize(rows);
    return neighbours;
}

// The neighbourhoods as arrays of equal objects: rows behind the last neighbour are zero, which changes
// neither X^T X nor X^T z.
struct Neighbourhoods {
    Doubles offsets;  // of the neighbours from the vertex, in units of the radius; rows x 3 for each vertex
    Doubles frames;   // tangent, tangent, normal; 3 x 3 for each vertex
    Doubles radii;
    std::vector<int> sizes;
};

// A vertex without a normal has no neighbourhood.
Neighbourhoods neighbourhoodsOf(const Mesh& mesh, const std::vector<float>& normals)
{
    const auto rings = ringsOf(mesh);
    Neighbourhoods result{Doubles(rings.size() * rows * 3), Doubles(rings.size() * 9), Doubles(rings.size()),
                          std::vector<int>(rings.size())};
    for (std::size_t v = 0; v < rings.size(); ++v) {
        const float* const normal = &normals[3 * v];
        if (normal[0] == 0 && normal[1] == 0 && normal[2] == 0) continue;
        const bool alongX = std::abs(normal[0]) > 0.7f;
        const float axis[3] = {alongX ? 0.0f : 1.0f, alongX ? 1.0f : 0.0f, 0};
        float tangents[2][3];
        vormCrossProduct_v3_32f(normal, axis, tangents[0]);
        vormNormalize_v3_32f(tangents[0], tangents[0]);
        vormCrossProduct_v3_32f(normal, tangents[0], tangents[1]);
        double* axes = &result.frames[9 * v];
        for (const float* from : std::initializer_list<const float*>{tangents[0], tangents[1], normal})
            axes = std::copy_n(from, 3, axes);

        const auto neighbours = nearest(mesh, rings, v);
        const double radius = neighbours.back().distance;
        result.radii[v] = radius;
        result.sizes[v] = static_cast<int>(neighbours.size());
        if (radius == 0) continue;
        double* to = &result.offsets[v * rows * 3];
        for (const Neighbour& neighbour : neighbours)
            for (const double offset : neighbour.offset) *to++ = offset / radius;
    }
    return result;
}

// X^T X and X^T z of every vertex.
struct Systems {
    Doubles matrices, sides;
};
Systems systemsOf(const Neighbourhoods& around)
{
    const int count = static_cast<int>(around.sizes.size());
    Doubles local(around.offsets.size());
    timed("into the frames    vormMul_mata_64f 24x3", count, {1, 0}, [&] {
        expectOk(vormMul_mata_64f(around.offsets.data(), points, row3, element, 3, rows, around.frames.data(), frame,
                                  row3, element, 3, 3, local.data(), points, row3, element, count),
                 "vormMul_mata_64f");
    });

    Doubles x(index(count) * rows * order), z(index(count) * rows);
    for (std::size_t v = 0; v < index(count); ++v)
        for (std::size_t r = v * rows; r < v * rows + index(around.sizes[v]); ++r) {
            const double px = local[3 * r], py = local[3 * r + 1];
            const double terms[order] = {px * px, px * py, py * py, px, py, 1};
            std::copy_n(terms, order, &x[order * r]);
            z[r] = local[3 * r + 2];
        }

    Systems systems{Doubles(index(count) * elements), Doubles(index(count) * order)};
    timed("normal equations   vormMul_tama_64f 24x6", count, {1, 0}, [&] {
        expectOk(vormMul_tama_64f(x.data(), design, row6, element, order, rows, x.data(), design, row6, element, order,
                                  rows, systems.matrices.data(), matrix, row6, element, count),
                 "vormMul_tama_64f");
    });
    timed("right-hand sides   vormMul_tava_64f 24x6", count, {1, 0}, [&] {
        expectOk(vormMul_tava_64f(x.data(), design, row6, element, order, rows, z.data(), heights, element, rows,
                                  systems.sides.data(), row6, element, count),
                 "vormMul_tava_64f");
    });
    return systems;
}

// What vormLUDecomp makes of all systems.
struct Factors {
    Doubles matrices;
    std::vector<int> pivots;  // of every system the row numbers

    // The pivots are the diagonal of U, row k of which is in row pivots[k].
    double pivot(std::size_t v, std::size_t k) const
    {
        return matrices[v * elements + index(pivots[v * order + k]) * order + k];
    }
};

// An array stops at its first singular matrix, and on a team of threads every thread's part does, so that
// several stretches may be left undone. Their pivots tell: row numbers are never negative.
Factors decomposed(const Doubles& matrices)
{
    const std::size_t count = matrices.size() / elements;
    Factors result{Doubles(matrices.size()), std::vector<int>(count * order, -1)};
    const auto undone = [&](std::size_t v) { return result.pivots[v * order] < 0; };
    for (std::size_t first = 0; first < count;) {
        std::size_t end = first;
        while (end < count && undone(end)) ++end;
        if (end == first) {
            ++first;
            continue;
        }
        const VormStatus status = vormLUDecomp_ma_64f(&matrices[first * elements], matrix, row6, element,
                                                      &result.pivots[first * order], &result.matrices[first * elements],
                                                      matrix, row6, element, order, static_cast<int>(end - first));
        if (status != StatusSingular) expectOk(status, "vormLUDecomp_ma_64f");
    }
    return result;
}

// The library calls a matrix of this order singular when no pivot is left at all. Rounding may leave some
// epsilons where it ought to be zero, and then the solution is noise: so the pivots are compared with each other.
// A singular matrix has a zero among them, since the rows that were not reached are as they were.
enum class Rank { full, doubtful, singular };
Rank rankOf(const Factors& factors, std::size_t v)
{
    double least = std::abs(factors.pivot(v, 0)), most = least;
    for (std::size_t k = 1; k < order; ++k) {
        const double pivot = std::abs(factors.pivot(v, k));
        least = std::min(least, pivot), most = std::max(most, pivot);
    }
    if (least == 0) return Rank::singular;
    return least > 1e-10 * most ? Rank::full : Rank::doubtful;
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
    const Systems systems = systemsOf(around);
    const int count = mesh.vertexCount();
    Factors factors;
    Doubles quadrics(systems.sides.size());
    double time = timed("decomposition      vormLUDecomp_ma_64f 6x6", count, {1, 0},
                        [&] { factors = decomposed(systems.matrices); });
    time += timed("solution           vormLUBackSubst_mava_64f", count, {1, 0}, [&] {
        expectOk(
            vormLUBackSubst_mava_64f(factors.matrices.data(), matrix, row6, element, factors.pivots.data(),
                                     systems.sides.data(), row6, element, quadrics.data(), row6, element, order, count),
            "vormLUBackSubst_mava_64f");
    });
    std::printf("Systems: %d, %.2f million a second decomposed and solved\n", count, 1000 / time);

    Doubles curvatures, known;
    std::vector<std::size_t> singular, doubtful;
    for (std::size_t v = 0; v < index(count); ++v) {
        const Rank rank = rankOf(factors, v);
        const double curvature = meanCurvature(&quadrics[v * order]) / around.radii[v];
        if (rank == Rank::singular) singular.push_back(v);
        if (rank == Rank::doubtful) doubtful.push_back(v);
        curvatures.push_back(rank == Rank::full ? curvature : std::nan(""));
        if (rank == Rank::full) known.push_back(curvature);
    }
    printVertices("Singular", singular);
    printVertices("Nearly singular", doubtful);
    if (known.empty()) throw BadMesh(0, "no vertex has a neighbourhood to fit");
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
