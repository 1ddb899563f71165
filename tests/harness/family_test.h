// SPDX-License-Identifier: MIT
// Tests that run once for every function of the family that the program is for.
#pragma once

#include "tests/harness/arrangements.h"
#include "tests/harness/cases.h"

namespace zorcc::test {

class FamilyTest : public testing::TestWithParam<reference::Case> {
protected:
    const interface::Function& function = functionOf(GetParam());
    Checker checker{GetParam(), function};
    Arrangements arrangements;
    const testing::ScopedTrace seed{__FILE__, __LINE__, "ZORCC_TEST_SEED=" + std::to_string(baseSeed())};
};

} // namespace zorcc::test

#define ZORCC_FOR_EVERY_FUNCTION(Suite)                                                                                \
    INSTANTIATE_TEST_SUITE_P(Functions, Suite, testing::ValuesIn(familyCases()),                                       \
                             caseName<testing::TestParamInfo<reference::Case>>)
