// SPDX-License-Identifier: MIT
// The tiers that tests run on are those of the processor.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

TEST(Tiers, StartWithTheBest)
{
    EXPECT_EQ(activeTier(), bestTier());
    const char* expected = std::getenv("ZORCC_TEST_BEST_TIER");
    if (expected) {
        EXPECT_STREQ(nameOf(bestTier()), expected);
    }
}

} // namespace
} // namespace zorcc::test
