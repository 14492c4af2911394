// Runs the rows and writes one Markdown table per section.
//
// The contestants of a row take turns in random order, several times each; the least time of each
// counts, since everything that disturbs a measurement makes it longer.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <regex>
#include <sstream>

#include "memory.hpp"
#include "rows.hpp"

namespace bench {

namespace {

constexpr double allowedOverBandwidth = 1.3;
constexpr double repeatability = 0.03;  // two runs of the same row differ by so much

// The least time per call of each contestant, in ns.
class Least : public benchmark::BenchmarkReporter {
public:
    explicit Least(bool wallClock) : wallClock_(wallClock) {}
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration) continue;
            const double time = (wallClock_ ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime());
            const auto [known, isNew] = times.try_emplace(run.run_name.function_name, time);
            if (!isNew) known->second = std::min(known->second, time);
        }
    }
    std::map<std::string, double> times;

private:
    bool wallClock_;
};

// Empties the result, lets every contestant work once and compares what they leave.
void compareResults(const Row& row, const Task& task)
{
    std::vector<std::byte> expected;
    for (const Contestant& contestant : task.contestants) {
        if (task.result.empty() || contestant.name == bandwidth) continue;
        std::fill(task.result.begin(), task.result.end(), std::byte{0});
        contestant.work();
        if (expected.empty()) expected.assign(task.result.begin(), task.result.end());
        if (!std::equal(expected.begin(), expected.end(), task.result.begin())) {
            std::cerr << row.name << ": " << contestant.name << " gives another result\n";
            std::exit(1);
        }
    }
}

std::map<std::string, double> measure(const Section& section, const Row& row)
{
    Memory::startRow();
    const Task task = row.prepare();
    compareResults(row, task);
    benchmark::ClearRegisteredBenchmarks();
    for (const Contestant& contestant : task.contestants) {
        auto* const registered =
            benchmark::RegisterBenchmark(contestant.name.c_str(), [&contestant](benchmark::State& state) {
                for (auto _ : state) {
                    contestant.work();
                    benchmark::ClobberMemory();
                }
            });
        // Short measurements, since other processes wanting the processors disturb a team most.
        if (section.wallClock) registered->UseRealTime()->Iterations(20)->Repetitions(60);
    }
    Least least(section.wallClock);
    benchmark::RunSpecifiedBenchmarks(&least);
    auto times = least.times;
    for (auto& [name, time] : times) time /= static_cast<double>(row.objects);
    times["ours"] = times.at(task.contestants.front().name);
    times.erase(task.contestants.front().name);
    return times;
}

std::string number(double value, int digits = 2)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", digits, value);
    return text;
}

std::string marked(double value, bool good) { return good ? number(value) : "**" + number(value) + "**"; }

struct Tally {
    int rows = 0, slower = 0, missed = 0, overBandwidth = 0;
};

std::string tableLine(const Row& row, std::map<std::string, double> times, Tally& tally)
{
    const double ours = times.at("ours");
    times.erase("ours");
    std::string overBandwidth = "-";
    if (const auto moved = times.find(bandwidth); moved != times.end()) {
        const double ratio = ours / moved->second;
        const bool good = ratio <= allowedOverBandwidth;
        tally.overBandwidth += row.wanted > 0 && !good;
        overBandwidth = marked(ratio, good);
        times.erase(moved);
    }
    std::string atItsWidest = "-";
    if (const auto wide = times.find(widest); wide != times.end()) {
        atItsWidest = number(wide->second / ours);
        times.erase(wide);
    }
    auto best = times.begin();
    for (auto peer = times.begin(); peer != times.end(); ++peer)
        if (peer->second < best->second) best = peer;
    std::string others;
    for (auto peer = times.begin(); peer != times.end(); ++peer)
        if (peer != best) others += (others.empty() ? "" : ", ") + peer->first + " " + number(peer->second / ours);
    const double ratio = best->second / ours;
    const bool good = ratio >= std::max(row.wanted, 1.0) - repeatability;
    ++tally.rows;
    tally.slower += ratio < 1 - repeatability;
    tally.missed += row.wanted > 0 && !good;
    return "| " + row.name + " | " + number(ours, 3) + " | " + best->first + " " + number(best->second, 3) + " | " +
           marked(ratio, good) + " | " + (others.empty() ? "-" : others) + " | " + atItsWidest + " | " + overBandwidth +
           " |";
}

// The machine by what matters to the numbers.
std::string machine()
{
    const auto kib = [](int cache) { return std::to_string(sysconf(cache) / 1024); };
    const char* const widest = __builtin_cpu_supports("avx512f") ? "AVX-512"
                               : __builtin_cpu_supports("avx2")  ? "AVX2"
                                                                 : "SSE";
    return "x86-64 with " + std::string(widest) + ", " + std::to_string(sysconf(_SC_NPROCESSORS_ONLN)) +
           " processors, caches of " + kib(_SC_LEVEL1_DCACHE_SIZE) + ", " + kib(_SC_LEVEL2_CACHE_SIZE) + " and " +
           kib(_SC_LEVEL3_CACHE_SIZE) + " KiB";
}

std::string compiler()
{
#ifdef __clang__
    return "clang " __clang_version__;
#else
    return "g++ " __VERSION__;
#endif
}

int run(const std::string& filter, const std::string& output)
{
    Sections sections;
    addElementwise(sections);
    addMatrixSums(sections);
    addVectorProducts(sections);
    addMatrixProducts(sections);
    addGaxpy(sections);
    addLu(sections);
    addCholesky(sections);
    addDet(sections);
    addMath3d(sections);
    addQr(sections);
    addMeasures(sections);
    addCrossProducts(sections);
    addMovement(sections);
    addExtract(sections);
    addEigenSym(sections);
    addEigenValues(sections);
    addEigenVectors(sections);
    addCalls(sections);
    addTeam(sections);

    const std::regex wanted(filter);
    std::ostringstream tables;
    Tally tally;
    for (const Section& section : sections) {
        bool open = false;
        for (const Row& row : section.rows) {
            if (!std::regex_search(section.title + ": " + row.name, wanted)) continue;
            if (!open) {
                tables << "\n## " << section.title << "\n\n"
                       << section.about << "\n\n"
                       << "| row | vorm, ns | best peer, ns | ratio | other ratios | libxsmm at its widest | against "
                          "bandwidth |\n"
                       << "|---|---|---|---|---|---|---|\n";
                std::cout << section.title << std::endl;
            }
            open = true;
            const std::string line = tableLine(row, measure(section, row), tally);
            tables << line << '\n';
            std::cout << line << std::endl;
        }
    }

    std::ostringstream report;
    report
        << "# Benchmarks\n\n"
        << "Written by `scripts/bench`. " << machine() << ", " << compiler() << ".\n\n"
        << "Times are ns per object, the least of several interleaved measurements. *Ratio* is the time of the best\n"
        << "peer, compiled with the same flags, over ours: above 1 we are faster. *Against bandwidth* is our time "
           "over\n"
        << "that of a plain SSE2 loop that moves the same bytes through the same number of streams in the same run.\n"
        << "*libxsmm at its widest* is a ratio too, against that library with registers wider than ours where the\n"
        << "processor has them; it is no peer, and `-` stands where a row has no such contestant.\n"
        << "Calls run on one thread except where a team is measured. All operands begin at multiples of 64 bytes.\n"
        << "Bold marks a ratio that misses what its row is held to (1, or more where the row has an aim of its own,\n"
        << "`wanted` in the sources) by more than the " << number(repeatability)
        << " that separate two runs, and a time above " << number(allowedOverBandwidth, 1) << " times that of\n"
        << "the bandwidth loop.\n\n"
        << tally.rows << " rows; " << tally.slower
        << " slower than their best peer. Of the rows with an aim of their own, " << tally.missed
        << " miss their ratio and\n"
        << tally.overBandwidth << " exceed the bandwidth allowed.\n"
        << tables.str();
    if (output.empty()) return 0;
    std::ofstream file(output);
    file << report.str();
    return file.good() ? 0 : 1;
}

}  // namespace

}  // namespace bench

// --filter=REGEX of "section: row", --quick, --output=FILE; the rest is for Google Benchmark.
int main(int count, char** arguments)
{
    std::string filter = ".", output;
    bool quick = false;
    std::vector<std::string> rest{arguments[0], "--benchmark_enable_random_interleaving=true"};
    std::vector<std::string> given;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (argument.starts_with("--filter="))
            filter = argument.substr(9);
        else if (argument.starts_with("--output="))
            output = argument.substr(9);
        else if (argument == "--quick")
            quick = true;
        else
            given.push_back(argument);
    }
    rest.push_back(quick ? "--benchmark_repetitions=3" : "--benchmark_repetitions=11");
    rest.push_back(quick ? "--benchmark_min_time=0.0005" : "--benchmark_min_time=0.003");
    rest.insert(rest.end(), given.begin(), given.end());
    std::vector<char*> pointers;
    for (std::string& argument : rest) pointers.push_back(argument.data());
    int left = static_cast<int>(pointers.size());
    benchmark::Initialize(&left, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(left, pointers.data())) return 1;

    vorSetNumThreads(1);
    return bench::run(filter, output);
}
