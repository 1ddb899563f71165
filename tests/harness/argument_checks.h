// SPDX-License-Identifier: MIT
// What a function must do with faulty arguments.
#pragma once

#include <gtest/gtest.h>

#include "interface/functions.h"
#include "tests/reference/case.h"

namespace zorcc::test {

// Every combination of faulty arguments gives the status of the first failing check, and writes nothing.
[[nodiscard]] testing::AssertionResult
checkFaultyArguments(const interface::Function& function,
                     reference::Checks checks = reference::Checks::imagesSizePlanes);

// Sizes below the least one and sizes of broken blocks give what the case says.
[[nodiscard]] testing::AssertionResult checkOddSizes(const reference::Case& c, const interface::Function& function);

} // namespace zorcc::test
