// SPDX-License-Identifier: MIT
// Every operation of the vector vocabulary, on every tier, against a loop over elements; inside its bytes of memory.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <random>
#include <span>
#include <vector>

#include "operation.h"
#include "simd/cube_root.h"
#include "tests/harness/guarded.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

// Every byte the same at first, and then random bytes, of which in every second round most are extreme: signs, zeros,
// and the ends of ranges.
void fillInputs(std::span<std::uint8_t> bytes, int round)
{
    constexpr std::uint8_t extremes[] = {0, 0xff, 0x80, 0x7f, 1};
    static std::mt19937 random(1);
    for (std::uint8_t& byte : bytes) {
        const auto any = random() >> 8;
        byte = round < 5                       ? extremes[round]
               : round % 2 == 0 && any % 4 > 0 ? extremes[any / 4 % 5]
                                               : static_cast<std::uint8_t>(any / 32);
    }
}

void expectSameAsElementByElement(const Operation& operation, Edge edge)
{
    const auto inBytes = static_cast<std::size_t>(operation.inBytes),
               outBytes = static_cast<std::size_t>(operation.outBytes);
    const GuardedBuffer in(inBytes, edge), out(outBytes, edge);
    std::vector<std::uint8_t> expected(outBytes);
    for (int round = 0; round < 300; ++round) {
        fillInputs({in.data(), inBytes}, round);
        operation.onElements(in.data(), expected.data());
        operation.onVectors(in.data(), out.data());
        const auto wrong = std::mismatch(expected.begin(), expected.end(), out.data());
        ASSERT_EQ(wrong.first, expected.end())
            << operation.name << ", on " << nameOf(activeTier()) << ", round " << round << ", byte "
            << wrong.second - out.data() << ": " << +*wrong.second << ", not " << +*wrong.first;
    }
}

TEST(Vocabulary, SameAsElementByElement)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        for (const Operations& operations : {vecOperations(), orderOperations(), floatsOperations()})
            for (const Operation& operation : std::span(operations.first, static_cast<std::size_t>(operations.count)))
                for (const Edge edge : edges) expectSameAsElementByElement(operation, edge);
    }
}

// The curve of L*a*b*: the cube root above the knee and the line that continues it below, both plus a constant, as only
// differences matter.
constexpr double knee = 0.008856, slope = 7.787037; // (29 / 3)^3 / 116, to the last digits of single precision
double trueCurve(double t) { return t > knee ? std::cbrt(t) + knee * slope : std::cbrt(knee) + t * slope; }

// Samples and differences of them make -2 < t < 2. In bits, so that the steps are as fine near 0: a step that has no
// factor in common with the vector or with powers of two.
TEST(LabCurve, Within2e4OfTheTrueOne)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        const Operation& curve = labCurves();
        std::vector<float> t(static_cast<std::size_t>(curve.inBytes) / sizeof(float)), result(t.size());
        double worst = 0;
        for (const std::uint32_t sign : {0u, 0x80000000u})
            for (std::uint32_t bits = 0; bits < 0x40000000;) {
                for (float& element : t) element = std::bit_cast<float>(sign | std::min(bits += 331, 0x40000000u));
                curve.onVectors(reinterpret_cast<const std::uint8_t*>(t.data()),
                                reinterpret_cast<std::uint8_t*>(result.data()));
                for (std::size_t i = 0; i < t.size(); ++i)
                    worst = std::max(worst, std::abs(result[i] - trueCurve(t[i])));
            }
        EXPECT_LE(worst, 2e-4) << nameOf(tier);
    }
}

// Every float where the formulas of the CIE take a root of a colour.
TEST(CubeRoot, WithinTwoUnitsInTheLastPlace)
{
    double worst = 0;
    const auto last = std::bit_cast<std::uint32_t>(1.1f);
    for (auto bits = std::bit_cast<std::uint32_t>(0.008856f) + 1; bits <= last; ++bits) {
        const float t = std::bit_cast<float>(bits);
        const double root = std::cbrt(double{t});
        const double unit = root < 0.25 ? 0x1p-26 : root < 0.5 ? 0x1p-25 : root < 1 ? 0x1p-24 : 0x1p-23;
        worst = std::max(worst, std::abs(cubeRoot(t) - root) / unit);
    }
    EXPECT_LE(worst, 1.89);
}

// Bases of all sizes whose powers are within 2^-64..2^64, and next to 1: within 1e-13 of the true power, and the same
// bits for vectors as for numbers.
TEST(Power, Within1e13OfTheTrueOne)
{
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        const Operation& power = powers();
        std::vector<double> x(static_cast<std::size_t>(power.inBytes) / sizeof(double)), result(x.size()),
            same(x.size());
        const auto bytes = [](std::vector<double>& v) { return reinterpret_cast<std::uint8_t*>(v.data()); };
        std::mt19937_64 random(1);
        double worst = 0;
        for (int round = 0; round < 20000; ++round) {
            for (double& element : x) {
                const double unit = static_cast<double>(random()) * 0x1p-63 - 1;
                element = std::exp2(round % 2 == 0 ? 29 * unit : unit / 1000);
            }
            power.onVectors(bytes(x), bytes(result));
            power.onElements(bytes(x), bytes(same));
            ASSERT_EQ(result, same) << nameOf(tier);
            for (std::size_t i = 0; i < x.size(); ++i)
                worst = std::max(worst, std::abs(result[i] / std::pow(x[i], 2.2) - 1));
        }
        EXPECT_LE(worst, 1e-13) << nameOf(tier);
    }
}

} // namespace
} // namespace zorcc::test
