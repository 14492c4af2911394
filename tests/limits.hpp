// The limits of the team as seen from outside, for all functions: the one place in which the tests hold them.
#pragma once

#include "harness.hpp"

// The 32-bit measure of a call's work, and the first one for which the driver runs.
struct Limit {
    std::int32_t measure, from;
    bool isReached() const { return measure >= from; }
};

Limit limitOf(const Function& f, const Sizes& sizes, int count, bool isContiguous);
