// SPDX-License-Identifier: MIT
// Runs a function of the library against its reference, and looks at every byte.
#pragma once

#include <gtest/gtest.h>

#include <cfenv>
#include <functional>
#include <optional>
#include <string>

#include "tests/harness/contents.h"
#include "tests/harness/test_image.h"
#include "tests/harness/tiers.h"
#include "tests/reference/case.h"

namespace zorcc::test {

struct Trial {
    ZorSize size; // of the source
    Arrangement source = {}, destination = {};
    Contents contents = Contents::random;
    std::uint32_t seed = 1;
    std::optional<ZorRect> region = std::nullopt; // of the source, where the function takes one
    bool inPlace = false;            // the source is the destination, too; they must be images of one shape
    int roundingMode = FE_TONEAREST; // of the caller; must be the same after the call
};

// Keeps its memory from one check to the next.
class Checker {
public:
    Checker(const reference::Case& c, const interface::Function& function) : expectation(c), tested(function) {}

    const reference::Case& expected() const { return expectation; }

    // Status, every byte of the destination and of the memory around its rows and those of the scratch memory, the
    // untouched source; on every tier.
    [[nodiscard]] testing::AssertionResult check(const Trial& trial);

    // The same with a source that `fillSource` has filled.
    [[nodiscard]] testing::AssertionResult check(const Trial& trial,
                                                 const std::function<void(TestImage& source)>& fillSource);

private:
    const reference::Case expectation;
    const interface::Function tested;
    TestImage source, destination, scratch;
    interface::Extra extra; // of the trial

    Arrangement allowed(Arrangement arrangement) const;
    void arrangeScratch(Arrangement arrangement, int width);
    std::string heading(const Trial& trial, Tier tier) const;
    testing::AssertionResult runOn(Tier tier, const Trial& trial);
    void expectAsOnFirstTier(Tier tier);
    void acceptNearFloats(const TestImage& image);
    ZorStatus expectedStatus(ZorSize size) const;
};

} // namespace zorcc::test
