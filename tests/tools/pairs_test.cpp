// SPDX-License-Identifier: MIT
// convert, called in this process, on headerless files of every pair of formats: what the layer's plan makes of the
// same planes, and a failure where there is no plan.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>

#include "tests/convert/picture.h"
#include "tools/zorcc/commands.h"
#include "tools/zorcc/messages.h"
#include "tools/zorcc/pipeline.h"

namespace {

using namespace zorcc::tool;
using zorcc::test::PictureInMemory;
using Bytes = std::vector<std::uint8_t>;

class Pairs : public testing::TestWithParam<ZorSize> {
protected:
    Pairs()
    {
        setThreads(1);
        beQuiet();
        std::filesystem::create_directory(folder);
    }
    ~Pairs() override { std::filesystem::remove_all(folder); }

    // Empty if the tool fails.
    Bytes convertedByTool(const char* from, const char* to)
    {
        ConvertOptions options;
        options.in = {(folder / "in.raw").string(), GetParam(), from};
        options.out.path = (folder / "out.raw").string();
        options.to = to;
        try {
            convert(options);
        } catch (const std::runtime_error&) {
            return {};
        }
        std::ifstream file(options.out.path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("zorcc-pairs-" + std::to_string(std::random_device{}()));
};

TEST_P(Pairs, AsTheLayerConvertsThem)
{
    zorcc::test::Random random(1);
    int connected = 0;
    for (int i = 0; const char* const from = zorFormatAt(i); ++i) {
        const ZorPicture source = {from, nullptr, zorRangeDefault, GetParam()};
        PictureInMemory given(from, GetParam());
        given.fill(random);
        const Bytes file = given.bytes();
        std::ofstream(folder / "in.raw", std::ios::binary)
            .write(reinterpret_cast<const char*>(file.data()), std::ssize(file));
        for (int j = 0; const char* const to = zorFormatAt(j); ++j) {
            const ZorPicture target = {to, nullptr, zorRangeDefault, GetParam()};
            const std::unique_ptr<ZorPlan, void (*)(ZorPlan*)> plan(zorPlanCreate(&source, &target, nullptr),
                                                                    zorPlanFree);
            Bytes expected;
            if (i == j) {
                expected = file; // also what belongs to no pixel
            } else if (zorPlanStatus(plan.get()) == zorStatusOk) {
                PictureInMemory made(to, GetParam());
                ASSERT_EQ(zorPlanRun(plan.get(), given.plane, given.step, made.plane, made.step), zorStatusOk);
                expected = made.bytes();
            }
            connected += !expected.empty();
            ASSERT_TRUE(convertedByTool(from, to) == expected) << from << " to " << to;
        }
    }
    EXPECT_GT(connected, 5000);
}

INSTANTIATE_TEST_SUITE_P(Sizes, Pairs, testing::Values(ZorSize{8, 4}, ZorSize{5, 3}));

} // namespace
