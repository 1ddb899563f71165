// SPDX-License-Identifier: MIT
// Every exported conversion has a reference and runs through the tests of a family.
#include "tests/harness/cases.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace zorcc::test {
namespace {

TEST(Cases, CoverEveryFunction)
{
    std::istringstream names(ZORCC_FAMILIES);
    std::set<std::string> withTests;
    for (std::string name; names >> name;) withTests.insert(name);
    std::set<const reference::Case*> used;
    for (const interface::Function& function : interface::functions()) {
        const Rule rule = ruleOf(function);
        ASSERT_TRUE(rule.expected) << function.name;
        EXPECT_TRUE(rule.expected->reference || rule.expected->imageReference || rule.expected->demosaic);
        EXPECT_TRUE(withTests.contains(std::string(rule.family->name))) << rule.family->name;
        used.insert(rule.expected);
    }
    for (const Family& family : families())
        for (const reference::Case& rule : family.rules)
            EXPECT_TRUE(used.contains(&rule)) << "no function for " << rule.name << " of " << family.name;
}

} // namespace
} // namespace zorcc::test
