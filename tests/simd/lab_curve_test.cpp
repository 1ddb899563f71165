// SPDX-License-Identifier: MIT
// The curve of L*a*b* is within 2e-4 of the true one.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <vector>

#include "operation.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

constexpr double knee = 0.008856, slope = 7.787037; // (29 / 3)^3 / 116, to the last digits of single precision

// The cube root above the knee and the line that continues it below, both plus a constant, as only differences matter.
double trueCurve(double t) { return t > knee ? std::cbrt(t) + knee * slope : std::cbrt(knee) + t * slope; }

class LabCurve : public testing::TestWithParam<Tier> {};

// Samples and differences of them make -2 < t < 2. In bits, so that the steps are as fine near 0: a step that has no
// factor in common with the vector or with powers of two.
TEST_P(LabCurve, WithinItsBound)
{
    if (GetParam() > bestTier()) GTEST_SKIP() << "not on this processor";
    const OnTier chosen(GetParam());
    const Curve& curve = labCurves();
    std::vector<float> t(static_cast<std::size_t>(curve.lanes)), result(t.size());
    double worst = 0;
    for (const std::uint32_t sign : {0u, 0x80000000u})
        for (std::uint32_t bits = 0; bits < 0x40000000;) {
            for (float& element : t) element = std::bit_cast<float>(sign | std::min(bits += 331, 0x40000000u));
            curve.at(t.data(), result.data());
            for (std::size_t i = 0; i < t.size(); ++i) worst = std::max(worst, std::abs(result[i] - trueCurve(t[i])));
        }
    EXPECT_LE(worst, 2e-4);
}

INSTANTIATE_TEST_SUITE_P(Tiers, LabCurve, testing::Values(Tier::ssse3, Tier::avx2, Tier::avx512),
                         [](const auto& tier) { return nameOf(tier.param); });

} // namespace
} // namespace zorcc::test
