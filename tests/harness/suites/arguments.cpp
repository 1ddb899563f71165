// SPDX-License-Identifier: MIT
#include "tests/harness/argument_checks.h"

#include "tests/harness/cases.h"

namespace zorcc::test {
namespace {

using reference::Case;

class Arguments : public testing::TestWithParam<Case> {};

TEST_P(Arguments, FirstFailingCheckDecides)
{
    EXPECT_TRUE(checkFaultyArguments(functionOf(GetParam()), GetParam().checks));
}

TEST_P(Arguments, OddSizes) { EXPECT_TRUE(checkOddSizes(GetParam(), functionOf(GetParam()))); }

INSTANTIATE_TEST_SUITE_P(Functions, Arguments, testing::ValuesIn(familyCases().begin(), familyCases().end()),
                         caseName<testing::TestParamInfo<Case>>);

} // namespace
} // namespace zorcc::test
