// A k-d tree: what lies on the far side of a border is looked at only where the border is near enough.
#include "registration/nearest.hpp"

#include <algorithm>
#include <numeric>

namespace registration {
namespace {

constexpr int leafSize = 8;

double squareOfDistance(const double* a, const double* b)
{
    const double x = a[0] - b[0], y = a[1] - b[1], z = a[2] - b[2];
    return x * x + y * y + z * z;
}

}  // namespace

Tree::Tree(const Doubles& points) : points_(points), order_(points.size() / 3)
{
    std::iota(order_.begin(), order_.end(), 0);
    built(0, static_cast<int>(order_.size()));
}

int Tree::built(int first, int end)
{
    const int number = static_cast<int>(nodes_.size());
    Node node{.first = first, .end = end};
    nodes_.push_back(node);
    if (end - first <= leafSize) return number;

    const auto at = [this](int point, int axis) { return points_[index(3 * point + axis)]; };
    double longest = -1;
    for (int axis = 0; axis < 3; ++axis) {
        const auto [low, high] = std::minmax_element(order_.begin() + first, order_.begin() + end,
                                                     [&](int a, int b) { return at(a, axis) < at(b, axis); });
        const double side = at(*high, axis) - at(*low, axis);
        if (side > longest) longest = side, node.axis = axis;
    }
    const int middle = first + (end - first) / 2;
    std::nth_element(order_.begin() + first, order_.begin() + middle, order_.begin() + end,
                     [&](int a, int b) { return at(a, node.axis) < at(b, node.axis); });
    node.border = at(order_[index(middle)], node.axis);
    node.below = built(first, middle);
    node.above = built(middle, end);
    nodes_[index(number)] = node;
    return number;
}

template <class Visit>
void Tree::walk(int number, const double* p, double& limit, const Visit& visit) const
{
    const Node& node = nodes_[index(number)];
    if (node.axis < 0) {
        for (int k = node.first; k < node.end; ++k) {
            const int point = order_[index(k)];
            const double square = squareOfDistance(p, &points_[index(3 * point)]);
            if (square < limit) limit = visit(point, square);
        }
        return;
    }
    const double side = p[node.axis] - node.border;
    walk(side < 0 ? node.below : node.above, p, limit, visit);
    if (side * side < limit) walk(side < 0 ? node.above : node.below, p, limit, visit);
}

int Tree::nearest(const double* p, double reach) const
{
    int best = -1;
    double limit = reach * reach;
    walk(0, p, limit, [&](int point, double square) {
        best = point;
        return square;
    });
    return best;
}

std::vector<int> Tree::nearest(const double* p, int count) const
{
    std::vector<Found> heap;  // the farthest of those found is in front
    double limit = std::numeric_limits<double>::infinity();
    walk(0, p, limit, [&](int point, double square) {
        if (heap.size() == index(count)) {
            std::pop_heap(heap.begin(), heap.end());
            heap.pop_back();
        }
        heap.push_back({square, point});
        std::push_heap(heap.begin(), heap.end());
        return heap.size() < index(count) ? std::numeric_limits<double>::infinity() : heap.front().square;
    });
    std::sort_heap(heap.begin(), heap.end());
    std::vector<int> result;
    for (const Found& found : heap) result.push_back(found.point);
    return result;
}

}  // namespace registration
