// SPDX-License-Identifier: MIT
// Bands of fields join without seams, however many there are.
#include <gtest/gtest.h>

#include "tests/harness/cases.h"
#include "tests/harness/checker.h"
#include "zorcore.h"

namespace zorcc::test {
namespace {

TEST(InterlaceThreads, OneToEight)
{
    const int before = ownGetNumThreads();
    int functions = 0;
    for (const reference::Case& c : familyCases()) {
        if (c.name.find("_Interlace_") == std::string_view::npos) continue;
        ++functions;
        Checker checker(c, functionOf(c));
        for (int threads = 1; threads <= 8; ++threads) {
            ASSERT_EQ(zorSetNumThreads(threads), zorStatusOk);
            // At the thresholds, on either side of them, and with rows left over.
            for (const ZorSize size : {ZorSize{127, 200}, {128, 128}, {128, 129}, {128, 132}, {130, 140}, {201, 403}})
                EXPECT_TRUE(checker.check({size, {Steps::sample}, {Steps::wide}})) << threads << " threads";
        }
    }
    EXPECT_EQ(functions, 4);
    static_cast<void>(zorSetNumThreads(before));
}

} // namespace
} // namespace zorcc::test
