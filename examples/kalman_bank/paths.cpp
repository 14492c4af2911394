// Paths over the surface of a mesh: sampled along its edges and smoothed.
#include "kalman_bank/paths.hpp"

#include <algorithm>
#include <cmath>

namespace kalman {
namespace {

// Of a scan in a box of edge 2, a second.
constexpr double speed = 0.2, height = 0.03, shortest = 1e-4;

struct Point {
    double x = 0, y = 0, z = 0;
};
Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Point operator*(double f, Point a) { return {f * a.x, f * a.y, f * a.z}; }
double dot(Point a, Point b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
double length(Point a) { return std::sqrt(dot(a, a)); }

// The mesh as corners above its vertices and the edges between them.
struct Net {
    std::vector<Point> points;
    std::vector<std::vector<int>> neighbours;  // along edges that lead somewhere

    const Point& at(int vertex) const { return points[static_cast<std::size_t>(vertex)]; }
};

Net netAbove(const examples::Mesh& mesh, const std::vector<float>& vertices, const std::vector<float>& normals)
{
    Net net{std::vector<Point>(vertices.size() / 3), std::vector<std::vector<int>>(vertices.size() / 3)};
    for (std::size_t v = 0; v < net.points.size(); ++v) {
        const float *const p = &vertices[3 * v], *const n = &normals[3 * v];
        net.points[v] = Point{p[0], p[1], p[2]} + height * Point{n[0], n[1], n[2]};
    }
    for (std::size_t k = 0; k < mesh.corners.size(); k += 3)
        for (std::size_t c = 0; c < 3; ++c) {
            const int a = mesh.corners[k + c], b = mesh.corners[k + (c + 1) % 3];
            if (!(length(net.at(b) - net.at(a)) > shortest)) continue;
            net.neighbours[static_cast<std::size_t>(a)].push_back(b);
            net.neighbours[static_cast<std::size_t>(b)].push_back(a);
        }
    return net;
}

// A walk from a vertex, sampled at every step; it stays where there is no edge.
struct Walk {
    std::vector<Point> points;
    std::vector<int> vertices;  // the last one before each sample
};
Walk walk(const Net& net, int vertex, Point heading, std::size_t samples, double step)
{
    Walk result;
    double ahead = 0;  // the way to the next sample
    while (result.points.size() < samples) {
        const Point from = net.at(vertex);
        const auto& choices = net.neighbours[static_cast<std::size_t>(vertex)];
        if (choices.empty()) return {std::vector<Point>(samples, from), std::vector<int>(samples, vertex)};
        const auto straightness = [&](int to) {
            const Point edge = net.at(to) - from;
            return dot(heading, edge) / length(edge);
        };
        const int next = *std::max_element(choices.begin(), choices.end(),
                                           [&](int a, int b) { return straightness(a) < straightness(b); });
        const Point edge = net.at(next) - from;
        const double way = length(edge);
        for (; ahead < way && result.points.size() < samples; ahead += step) {
            result.points.push_back(from + ahead / way * edge);
            result.vertices.push_back(vertex);
        }
        ahead -= way;
        heading = heading + 1 / way * edge;  // edges zigzag: half of the heading is what it was
        heading = 1 / std::max(length(heading), 1e-6) * heading;
        vertex = next;
    }
    return result;
}

void smooth(std::vector<Point>& line)
{
    for (int pass = 0; pass < 4; ++pass) {
        Point before = line.front();
        for (std::size_t k = 1; k + 1 < line.size(); ++k) {
            const Point here = line[k];
            line[k] = 0.25 * (before + 2 * here + line[k + 1]);
            before = here;
        }
    }
}

}  // namespace

Paths pathsOver(const examples::Mesh& mesh, const std::vector<float>& vertices, const std::vector<float>& normals,
                int count, int steps, std::mt19937_64& random)
{
    const Net net = netAbove(mesh, vertices, normals);
    std::uniform_int_distribution<int> anyVertex(0, static_cast<int>(net.points.size()) - 1);
    std::normal_distribution<double> normal;
    const auto times = static_cast<std::size_t>(steps + 1);
    Paths paths{std::vector<Doubles>(times), std::vector<std::vector<int>>(times)};
    for (int n = 0; n < count; ++n) {
        const int start = anyVertex(random);
        const Point heading{normal(random), normal(random), normal(random)};
        Walk line = walk(net, start, heading, times + 1, speed * interval);
        smooth(line.points);
        for (std::size_t k = 0; k < times; ++k) {
            const Point p = line.points[k], v = 1 / interval * (line.points[k + 1] - line.points[k]);
            paths.planned[k].insert(paths.planned[k].end(), {p.x, p.y, p.z, v.x, v.y, v.z});
            paths.vertices[k].push_back(line.vertices[k]);
        }
    }
    return paths;
}

}  // namespace kalman
