// A host that loads the library as a plug-in, lets it work in a team and unloads it: the team's threads, and what
// watches for fork(), must not run code that is gone.

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <vector>

#include "vorm/vorm.h"

namespace {

TEST(Unload, WhileThreadsOfATeamWait)
{
    const int count = 200000;
    std::vector<double> src(3 * count, 1), dst(3 * count);
    const double offset[3] = {1, 2, 3};
    for (int again = 0; again < 3; ++again) {
        void* const library = dlopen(VORM_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(library, nullptr) << dlerror();
        const auto add = reinterpret_cast<decltype(&vormAdd_vav_64f)>(dlsym(library, "vormAdd_vav_64f"));
        for (int calls = 0; calls < 5; ++calls)
            EXPECT_EQ(add(src.data(), 24, 8, offset, 8, dst.data(), 24, 8, 3, count), StatusOk);
        EXPECT_EQ(dst.back(), 4);
        EXPECT_EQ(dlclose(library), 0);
        usleep(20000);
        const pid_t child = fork();
        if (child == 0) _exit(7);
        int result = 0;
        EXPECT_EQ(waitpid(child, &result, 0), child);
        EXPECT_EQ(WEXITSTATUS(result), 7);
    }
}

}  // namespace
