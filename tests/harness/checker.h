// SPDX-License-Identifier: MIT
// Runs a function of the library against its reference, and looks at every byte.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "tests/harness/contents.h"
#include "tests/harness/test_image.h"
#include "tests/harness/tiers.h"
#include "tests/reference/case.h"

namespace zorcc::test {

struct Trial {
    ZorSize size;
    Arrangement source = {}, destination = {};
    Contents contents = Contents::random;
    std::uint32_t seed = 1;
};

// Keeps its memory from one check to the next.
class Checker {
public:
    Checker(const reference::Case& c, const interface::Function& function) : expectation(c), tested(function) {}

    // Status, every byte of the destination and of the memory around its rows, the untouched source; on every tier.
    [[nodiscard]] testing::AssertionResult check(const Trial& trial);

    // The same with a source that `fillSource` has filled.
    [[nodiscard]] testing::AssertionResult check(const Trial& trial,
                                                 const std::function<void(TestImage& source)>& fillSource);

    // The same with one image as source and destination, whose formats must have the same shape.
    [[nodiscard]] testing::AssertionResult checkInPlace(const Trial& trial);

private:
    const reference::Case expectation;
    const interface::Function tested;
    TestImage source, destination;

    Arrangement allowed(Arrangement arrangement) const;
    interface::Extra argumentsOf(const Trial& trial) const;
    std::string heading(const Trial& trial, Tier tier) const;
    testing::AssertionResult runOn(Tier tier, const Trial& trial, const interface::Image& from, TestImage& to);
};

} // namespace zorcc::test
