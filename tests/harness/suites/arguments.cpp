// SPDX-License-Identifier: MIT
#include "tests/harness/argument_checks.h"
#include "tests/harness/family_test.h"

namespace zorcc::test {
namespace {

class Arguments : public FamilyTest {};

TEST_P(Arguments, FirstFailingCheckDecides) { EXPECT_TRUE(checkFaultyArguments(GetParam(), function)); }

TEST_P(Arguments, OddSizes) { EXPECT_TRUE(checkOddSizes(GetParam(), function)); }

ZORCC_FOR_EVERY_FUNCTION(Arguments);

} // namespace
} // namespace zorcc::test
