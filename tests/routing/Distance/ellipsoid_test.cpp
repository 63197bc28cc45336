#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include "routing/Distance/method.h"
#include "tests/support/temporary_folder.h"

/// The geodesics beside those of an independent program, GeodSolve of GeographicLib.

namespace vantore::distance {
namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double mostAngle = 178; // degrees between the places on a sphere; opposite ones are left out

/// Metres by which the nine decimals of the degrees in a radian move both ends of a line near a pole.
constexpr double poleShift = 3E-5;

struct Pair {
    Place origin;
    Place destination;
};

double angleBetween(const Pair& pair) {
    const double a = pair.origin.latitude * degree;
    const double b = pair.destination.latitude * degree;
    const double difference = (pair.destination.longitude - pair.origin.longitude) * degree;
    const double cosine = std::sin(a) * std::sin(b) + std::cos(a) * std::cos(b) * std::cos(difference);
    return std::acos(std::min(1.0, std::max(-1.0, cosine))) / degree;
}

/// Half of the pairs anywhere, the others within some hundred miles.
std::vector<Pair> randomPairs(std::size_t count) {
    std::mt19937 random(1866);
    std::uniform_real_distribution<double> latitude(-90, 90);
    std::uniform_real_distribution<double> longitude(-180, 180);
    std::uniform_real_distribution<double> nearby(-5, 5);
    std::vector<Pair> pairs;
    while (pairs.size() < count) {
        Pair pair{{latitude(random), longitude(random)}, {latitude(random), longitude(random)}};
        if (pairs.size() % 2 == 0)
            pair.destination = {std::min(90.0, std::max(-90.0, pair.origin.latitude + nearby(random))),
                                pair.origin.longitude + nearby(random)};
        if (angleBetween(pair) < mostAngle) pairs.push_back(pair);
    }
    return pairs;
}

struct LibraryLine {
    double originAzimuth, destinationAzimuth, metres;
};

std::vector<LibraryLine> solvedByLibrary(const std::vector<Pair>& pairs) {
    const vantore::tests::TemporaryFolder folder;
    const std::string in = (folder.path() / "pairs").string();
    const std::string out = (folder.path() / "lines").string();
    std::ofstream file(in);
    file << std::setprecision(17);
    // The library counts longitudes eastward.
    for (const Pair& pair : pairs)
        file << pair.origin.latitude << ' ' << -pair.origin.longitude << ' ' << pair.destination.latitude
             << ' ' << -pair.destination.longitude << '\n';
    file.close();
    const std::string command = std::string(GEODSOLVE) +
                                " -i -e 6378206.4 1/294.9786982138 -p 6 --input-file " + in +
                                " --output-file " + out;
    if (std::system(command.c_str()) != 0) return {};
    std::vector<LibraryLine> lines;
    std::ifstream result(out);
    for (LibraryLine line{}; result >> line.originAzimuth >> line.destinationAzimuth >> line.metres;)
        lines.push_back(line);
    return lines;
}

/// Metres that the least sure thing of a direction measures: the line itself, or an end's way to its pole.
double shortestRun(const Pair& pair, const LibraryLine& line) {
    constexpr double metresPerDegree = 111000;
    const double latitude = std::max(std::abs(pair.origin.latitude), std::abs(pair.destination.latitude));
    return std::min(line.metres, (90 - latitude) * metresPerDegree);
}

/// Radians between two directions.
double turnBetween(double radians, double degrees) {
    return std::abs(std::remainder(radians - degrees * degree, 2 * std::numbers::pi));
}

TEST(GeodesicBesideALibrary, IsRightToAMillimetreInAThousandKilometres) {
    const std::vector<Pair> pairs = randomPairs(10000);
    const std::vector<LibraryLine> lines = solvedByLibrary(pairs);
    ASSERT_EQ(lines.size(), pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto line = geodesic(pairs[i].origin, pairs[i].destination, [](const std::string&) {});
        ASSERT_TRUE(line) << i;
        ASSERT_NEAR(line->metres, lines[i].metres, 1E-9 * lines[i].metres + poleShift) << i;
        // A direction is as sure as the places that it joins.
        const double sure = 1E-8 + (poleShift + 1E-9 * lines[i].metres) / shortestRun(pairs[i], lines[i]);
        ASSERT_LT(turnBetween(line->originAzimuth, lines[i].originAzimuth), sure) << i;
        ASSERT_LT(turnBetween(line->destinationAzimuth, lines[i].destinationAzimuth), sure) << i;
    }
}

} // namespace
} // namespace vantore::distance
