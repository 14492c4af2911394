// What the example programs share around their calls of the library.
#include "common/stages.hpp"

#include <vorcore/vorcore.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>

namespace examples {
namespace {

// The fastest of many runs, as other programs may be running.
double nanosecondsPerObject(int objects, const std::function<void()>& work)
{
    using Nanoseconds = std::chrono::duration<double, std::nano>;
    const auto now = [] { return std::chrono::steady_clock::now(); };
    Nanoseconds fastest = Nanoseconds::max(), all{};
    for (int rounds = 0; rounds < 5 || all < std::chrono::milliseconds(30); ++rounds) {
        const auto start = now();
        work();
        const Nanoseconds round = now() - start;
        fastest = std::min(fastest, round), all += round;
    }
    return fastest.count() / objects;
}

}  // namespace

void expectOk(VormStatus status, const char* function)
{
    if (status != StatusOk) throw std::runtime_error(std::string(function) + ": status " + std::to_string(status));
}

void printVersion()
{
    const VersionRecord& version = *vormGetLibVersion();
    std::printf("%s %s, built %s\n", version.libraryLabel, version.versionLabel, version.buildDateLabel);
}

int threads()
{
    std::int32_t number = 0;
    vorGetNumThreads(&number);
    return number;
}

// Its line is none of the input's.
Mesh readData(const std::string& name)
{
    const std::string path = VORM_EXAMPLE_DATA "/" + name;
    try {
        return readObj(path);
    } catch (const BadMesh& bad) {
        throw std::runtime_error(path + ": " + bad.what());
    }
}

double once(const char*, int, std::initializer_list<int>, const std::function<void()>& work)
{
    work();
    return 0;
}

double timed(const char* what, int objects, std::initializer_list<int> threads, const std::function<void()>& work)
{
    std::printf("  %-46s %6d objects", what, objects);
    double result = 0;
    for (const int number : threads) {
        vorSetNumThreads(number);
        const int used = examples::threads();
        if (number != 1 && used == 1) continue;  // what 1 has told already
        result = nanosecondsPerObject(objects, work);
        std::printf(", %6.1f (%d)", result, used);
    }
    std::printf("\n");
    vorSetNumThreads(0);
    return result;
}

int runProgram(int argc, char** argv, const char* defaultOutput,
               void (*run)(const std::string& input, const std::string& output))
{
    if (argc > 3) {
        std::fprintf(stderr, "usage: %s [input.obj [output.png]]\n", argv[0]);
        return 1;
    }
    const std::string input = argc > 1 ? argv[1] : VORM_EXAMPLE_DATA "/bunny.obj";
    const std::string output = argc > 2 ? argv[2] : defaultOutput;
    try {
        std::error_code ignored;
        if (std::filesystem::equivalent(input, output, ignored)) throw std::runtime_error(output + ": is the input");
        run(input, output);
        return 0;
    } catch (const BadMesh& bad) {
        const std::string place = bad.line > 0 ? ":" + std::to_string(bad.line) : "";
        std::fprintf(stderr, "%s%s: %s\n", input.c_str(), place.c_str(), bad.what());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}

}  // namespace examples
