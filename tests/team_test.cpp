// Teams of several callers at the same time, and inside other teams.

#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <thread>
#include <vector>

#include "standin_core.hpp"
#include "vorm/vorm.h"

namespace {

TEST(Teams, NestedAndSeveralCallers)
{
    standinThreads = 3;
    const int len = 5, count = 3000, callers = 4;
    const std::vector<double> a(len * count, 1.5), b(len, 2.25);
    std::vector<std::vector<double>> dst(callers, std::vector<double>(a.size()));
    const auto call = [&](int caller) {
        for (int again = 0; again < 5; ++again)
            vormAdd_vav_64f(a.data(), 40, 8, b.data(), 8, dst[std::size_t(caller)].data(), 40, 8, len, count);
    };
    const auto check = [&] {
        for (auto& d : dst) {
            EXPECT_EQ(std::count(d.begin(), d.end(), 3.75), len * count);
            std::fill(d.begin(), d.end(), 0);
        }
    };
    for (int levels : {1, 2}) {  // nesting off and on
        omp_set_max_active_levels(levels);
#pragma omp parallel for num_threads(callers)
        for (int caller = 0; caller < callers; ++caller) call(caller);
        check();
    }
    std::vector<std::thread> threads;
    for (int caller = 0; caller < callers; ++caller) threads.emplace_back(call, caller);
    for (auto& thread : threads) thread.join();
    check();
}

}  // namespace
