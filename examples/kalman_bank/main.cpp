// Follows flyers over a scan with a bank of Kalman filters, all of them in every call of the library, and tests
// whether the filters are right about their own errors: kalman_bank [input.obj [output.png]].
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "common/png_writer.hpp"
#include "common/stages.hpp"
#include "common/surface.hpp"
#include "kalman_bank/bank.hpp"
#include "kalman_bank/picture.hpp"
#include "kalman_bank/simulation.hpp"
#include "kalman_bank/statistics.hpp"
#ifdef KALMAN_BANK_EIGEN
#include "kalman_bank/eigen_bank.hpp"
#endif

using namespace examples;
using namespace kalman;

namespace {

constexpr int filters = 4096, steps = 64;

// At first next to nothing is known: the guesses are off by fifty times the size of the scan.
Start firstGuesses(const Flight& flight, std::mt19937_64& random)
{
    Start start{flight.truth.front(), flight.measurementNoise, 100, 1};
    std::normal_distribution<double> normal;
    for (std::size_t n = 0; n < start.guesses.size(); ++n)
        start.guesses[n] += normal(random) * (n % states < seen ? start.positionSd : start.velocitySd);
    return start;
}

template <class Layout>
void step(Bank<Layout>& bank, const Flight& flight, std::size_t k)
{
    bank.step(arrayOf<Layout>(1, states, flight.controls[k]), arrayOf<Layout>(1, seen, flight.measurements[k]));
}

// The functions of the bank add their terms in one order in every layout (include/vorm/products.inc, factor.inc), or
// have none to add.
bool sameBits(const Doubles& a, const Doubles& b)
{
    return std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

Doubles errorsOf(const Doubles& estimates, const Doubles& truth)
{
    constexpr int element = sizeof(double), state = states * element;
    Doubles errors(truth.size());
    expectOk(vormSub_vava_64f(estimates.data(), state, element, truth.data(), state, element, errors.data(), state,
                              element, states, filters),
             "vormSub_vava_64f");
    return errors;
}

// The last step again and again: only its time counts. A call for a group of filters is too short for a team.
template <class Layout>
double timedStep(Bank<Layout>& bank, const Flight& flight)
{
    const auto control = arrayOf<Layout>(1, states, flight.controls.back());
    const auto measurement = arrayOf<Layout>(1, seen, flight.measurements.back());
    const std::string what = std::string(typeName<typename Layout::Element>()) + "  " + Layout::name;
    return timed(what.c_str(), filters, {1}, [&] { bank.step(control, measurement); });
}

// What became of a flight.
struct Result {
    std::vector<Doubles> estimates;  // after each step
    Doubles covariances;             // after the last
    Squares squares;
    double packedTime, arraysTime;  // nanoseconds of one filter for one step, on one thread
};

// Follows the flight in both layouts.
template <class T>
Result followed(const Start& start, const Flight& flight)
{
    Bank<Packed<T>> packed(start);
    Bank<StructureOfArrays<T>> arrays(start);
    Result result;
    for (std::size_t k = 0; k < steps; ++k) {
        step(packed, flight, k);
        step(arrays, flight, k);
        result.estimates.push_back(packed.estimates());
        result.covariances = packed.covariances();
        if (!sameBits(result.estimates.back(), arrays.estimates()) ||
            !sameBits(result.covariances, arrays.covariances()))
            throw std::runtime_error(std::string(typeName<T>()) + ": the layouts differ in step " + std::to_string(k));
        result.squares.innovations.push_back(meanSquare(packed.innovations(), packed.innovationCovariances(), seen));
        result.squares.errors.push_back(
            meanSquare(errorsOf(result.estimates.back(), flight.truth[k + 1]), result.covariances, states));
    }
    result.packedTime = timedStep(packed, flight);
    result.arraysTime = timedStep(arrays, flight);
    return result;
}

#ifdef KALMAN_BANK_EIGEN
// Eigen's filters compute the same in another order, so that they end some roundings away.
template <class T>
void compareWithEigen(const EigenResult& eigen, const Result& result)
{
    double largest = 0;
    for (const double error : errorsOf(result.estimates.back(), eigen.estimates))
        largest = std::isnan(error) ? INFINITY : std::max(largest, std::abs(error));
    const double epsilons = largest / static_cast<double>(std::numeric_limits<T>::epsilon());
    std::printf("  %s  Eigen %.3g, with estimates %.1f epsilons away\n", typeName<T>(), 1000 / eigen.nanoseconds,
                epsilons);
    if (!(epsilons < 64)) throw std::runtime_error("Eigen comes to other estimates");
}
#endif

void run(const std::string& input, const std::string& output)
{
    printVersion();
    const Mesh mesh = readObj(input);
    std::printf("%s: %d vertices, %d triangles\n", input.c_str(), mesh.vertexCount(), mesh.triangleCount());
    const std::vector<float> placed = centredAndScaled(mesh.vertices);
    const auto normals = vertexNormals(faceNormals(edgesOf(placed, mesh.corners)), mesh.corners, placed.size()).normals;

    std::mt19937_64 random(1);
    const Paths paths = pathsOver(mesh, placed, normals, filters, steps, random);
    const Flight flight = simulated(paths, random);
    const Start start = firstGuesses(flight, random);
    std::printf("%d filters follow as many flyers for %d steps\n", filters, steps);

    std::printf("Nanoseconds per filter and step (threads):\n");
    const Result single = followed<float>(start, flight), result = followed<double>(start, flight);
#ifdef KALMAN_BANK_EIGEN
    const EigenResult eigenSingle = followedWithEigen<float>(start, flight);
    const EigenResult eigenResult = followedWithEigen<double>(start, flight);
#endif
    std::printf("Million filters a second on one thread:\n");
    for (const auto& [type, it] : {std::pair("32f", &single), std::pair("64f", &result)})
        std::printf("  %s  packed %.3g, structure of arrays %.3g\n", type, 1000 / it->packedTime,
                    1000 / it->arraysTime);
#ifdef KALMAN_BANK_EIGEN
    compareWithEigen<float>(eigenSingle, single);
    compareWithEigen<double>(eigenResult, result);
#endif

    std::printf("Errors at the end:\n");
    printErrors("32f", errorsOf(single.estimates.back(), flight.truth.back()), single.covariances);
    printErrors("64f", errorsOf(result.estimates.back(), flight.truth.back()), result.covariances);
    std::printf("Means of normalised squares, within what chance allows once in a thousand runs:\n");
    const bool good = consistent("32f", single.squares, filters);
    if (!consistent("64f", result.squares, filters) || !good)
        throw std::runtime_error("the errors do not fit the covariances");

    const Picture picture = drawTracks(placed, normals, mesh.corners, paths, flight, result.estimates);
    writePng(picture, output);
    std::printf("%s: %d x %d pixels\n", output.c_str(), picture.width, picture.height);
}

}  // namespace

int main(int argc, char** argv) { return runProgram(argc, argv, "kalman.png", run); }
