// SPDX-License-Identifier: MIT
// The cases of a family are its functions, all of them and once; the tiers are those of the processor.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <stdexcept>

#include "tests/harness/cases.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {

const interface::Function& functionOf(const reference::Case& c)
{
    if (const interface::Function* function = interface::findFunction(c.name)) return *function;
    throw std::logic_error("no such function: " + std::string(c.name));
}

namespace {

TEST(Coverage, EveryFunctionOfTheFamilyHasACase)
{
    ASSERT_FALSE(familyCases().empty());
    std::set<std::string_view> cases;
    for (const reference::Case& c : familyCases()) EXPECT_TRUE(cases.insert(c.name).second) << c.name << " twice";
    const std::string_view family = functionOf(familyCases().front()).family;
    std::set<std::string_view> functions;
    for (const interface::Function& function : interface::functions())
        if (function.family == family) functions.insert(function.name);
    EXPECT_EQ(cases, functions);
}

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
