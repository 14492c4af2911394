// A scanner far away, with errors that are larger along the line of sight than across it.
#include "registration/scan.hpp"

#include <vorm/vorm.h>

#include <cmath>

#include "common/stages.hpp"

using examples::BadMesh;
using examples::expectOk;

namespace registration {
namespace {

// A root of the covariance of the errors, (along - across) d d^T + across 1, times normal numbers.
void addErrors(Scan& scan, std::mt19937_64& random)
{
    double root[9];
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j)
            root[3 * i + j] = (alongSd - acrossSd) * scan.towards[i] * scan.towards[j] + (i == j ? acrossSd : 0);
    std::normal_distribution<double> normal;
    Doubles numbers(scan.points.size()), errors(scan.points.size());
    for (double& number : numbers) number = normal(random);
    expectOk(vormMul_mva_64f(root, row3, element, 3, 3, numbers.data(), row3, element, 3, errors.data(), row3, element,
                             scan.count()),
             "vormMul_mva_64f");
    expectOk(vormAdd_vava_64f(errors.data(), row3, element, scan.points.data(), row3, element, scan.points.data(), row3,
                              element, 3, scan.count()),
             "vormAdd_vava_64f");
}

}  // namespace

Scan scanned(const std::vector<float>& vertices, const std::vector<int>& corners, const Vec& towards, int count,
             std::mt19937_64& random)
{
    const auto corner = [&](std::size_t k, std::size_t i) {
        return static_cast<double>(vertices[3 * index(corners[k]) + i]);
    };
    Doubles areas;  // as the scanner sees them
    double all = 0;
    for (std::size_t k = 0; k < corners.size(); k += 3) {
        double a[3], b[3];
        for (std::size_t i = 0; i < 3; ++i)
            a[i] = corner(k + 1, i) - corner(k, i), b[i] = corner(k + 2, i) - corner(k, i);
        const double normal[3] = {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
        const double area = dot(normal, towards.data());
        const bool facing = area > 0.2 * std::sqrt(dot(normal, normal));
        areas.push_back(facing ? area : 0);
        all += areas.back();
    }
    if (!(all > 0)) throw BadMesh(0, "a scanner sees nothing of it");

    Scan scan{{}, towards};
    std::discrete_distribution<std::size_t> triangle(areas.begin(), areas.end());
    std::uniform_real_distribution<double> uniform(0, 1);
    for (int n = 0; n < count; ++n) {
        const std::size_t k = 3 * triangle(random);
        double u = uniform(random), v = uniform(random);
        if (u + v > 1) u = 1 - u, v = 1 - v;
        for (std::size_t i = 0; i < 3; ++i)
            scan.points.push_back((1 - u - v) * corner(k, i) + u * corner(k + 1, i) + v * corner(k + 2, i));
    }
    addErrors(scan, random);
    return scan;
}

Scan moved(const Scan& scan, const Motion& motion)
{
    Scan result{moved(scan.points, motion), {}};
    const Doubles towards = turned({scan.towards.begin(), scan.towards.end()}, motion);
    for (std::size_t i = 0; i < 3; ++i) result.towards[i] = towards[i];
    return result;
}

}  // namespace registration
