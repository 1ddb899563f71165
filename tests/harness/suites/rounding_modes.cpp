// SPDX-License-Identifier: MIT
// The caller's rounding mode makes no difference, and is the same after the call.
#include <gtest/gtest.h>

#include <cfenv>

#include "tests/harness/family_test.h"

namespace zorcc::test {
namespace {

class RoundingModes : public FamilyTest {};

TEST_P(RoundingModes, MakeNoDifference)
{
    for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO})
        for (std::uint32_t trial = 0; trial < 12; ++trial)
            ASSERT_TRUE(checker.check({.size = {163, 3}, .seed = trial, .roundingMode = mode})) << "mode " << mode;
}

ZORCC_FOR_EVERY_FUNCTION(RoundingModes);

} // namespace
} // namespace zorcc::test
