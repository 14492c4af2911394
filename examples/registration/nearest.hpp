// Which of many points is the nearest one: a k-d tree.
#pragma once

#include <limits>
#include <utility>
#include <vector>

#include "registration/motion.hpp"

namespace registration {

// The points are halved along the longest side of their box, the halves likewise, down to a few. They have to outlive
// the tree.
class Tree {
public:
    explicit Tree(const Doubles& points);

    // The number of the nearest point, -1 where none is closer than reach.
    int nearest(const double* p, double reach = std::numeric_limits<double>::infinity()) const;

    // The numbers of the count nearest ones, the nearest first.
    std::vector<int> nearest(const double* p, int count) const;

private:
    struct Node {
        int axis = -1;  // -1 in a leaf
        double border = 0;
        int first = 0, end = 0;    // of the points below, in order_
        int below = 0, above = 0;  // the halves
    };
    struct Found {
        double square;
        int point;
        bool operator<(const Found& other) const { return square < other.square; }
    };

    int built(int first, int end);
    // visit(point, square of the distance) gives the square from which on points do not matter any more.
    template <class Visit>
    void walk(int node, const double* p, double& limit, const Visit& visit) const;

    const Doubles& points_;
    std::vector<int> order_;
    std::vector<Node> nodes_;
};

}  // namespace registration
