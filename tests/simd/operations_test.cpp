// SPDX-License-Identifier: MIT
// Every operation of the vector vocabulary, on every tier, against a loop over elements; inside its bytes of memory.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "inputs.h"
#include "operation.h"
#include "tests/harness/guarded.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {
namespace {

struct Table {
    const char* name;
    const Operations& (*onActiveTier)();
};
constexpr Table tables[] = {{"vec", vecOperations},
                            {"order", orderOperations},
                            {"floats", floatsOperations},
                            {"interleave", interleaveOperations}};
constexpr Tier tiers[] = {Tier::ssse3, Tier::avx2, Tier::avx512};

class Vocabulary : public testing::TestWithParam<std::tuple<Table, Tier>> {};

TEST_P(Vocabulary, SameAsElementByElement)
{
    const auto [table, tier] = GetParam();
    if (tier > bestTier()) GTEST_SKIP() << "not on this processor";
    const OnTier chosen(tier);
    const Operations& operations = table.onActiveTier();
    ASSERT_GT(operations.count, 0);
    for (const Operation& operation : std::span(operations.first, static_cast<std::size_t>(operations.count)))
        for (const Edge edge : edges) {
            const auto inBytes = static_cast<std::size_t>(operation.inBytes),
                       outBytes = static_cast<std::size_t>(operation.outBytes);
            const GuardedBuffer in(inBytes, edge), out(outBytes, edge);
            std::vector<std::uint8_t> expected(outBytes);
            for (int round = 0; round < 300; ++round) {
                fillInputs({in.data(), inBytes}, round);
                operation.onElements(in.data(), expected.data());
                operation.onVectors(in.data(), out.data());
                const auto wrong = std::mismatch(expected.begin(), expected.end(), out.data());
                ASSERT_EQ(wrong.first, expected.end())
                    << operation.name << ", round " << round << ", byte " << wrong.second - out.data() << ": "
                    << +*wrong.second << ", not " << +*wrong.first;
            }
        }
}

INSTANTIATE_TEST_SUITE_P(Headers, Vocabulary, testing::Combine(testing::ValuesIn(tables), testing::ValuesIn(tiers)),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).name) + "_" + nameOf(std::get<1>(test.param));
                         });

} // namespace
} // namespace zorcc::test
