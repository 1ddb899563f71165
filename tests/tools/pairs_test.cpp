// SPDX-License-Identifier: MIT
// convert, called in this process, on headerless files of every pair of formats: what the layer's plan makes of the
// same planes, and a failure where there is no plan.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>

#include "tools/zorcc/commands.h"
#include "tools/zorcc/messages.h"
#include "tools/zorcc/pipeline.h"

namespace {

using namespace zorcc::tool;
using Bytes = std::vector<char>;

// A file's planes, one after the other without gaps.
struct Planes {
    explicit Planes(const ZorPicture& picture)
    {
        zorPictureLayout(&picture, &layout);
        std::size_t offset[ZOR_MAX_PLANES + 1] = {};
        for (int p = 0; p < layout.planes; ++p)
            offset[p + 1] = offset[p] + static_cast<std::size_t>(layout.rowBytes[p]) * layout.rows[p];
        bytes.resize(offset[layout.planes]);
        for (int p = 0; p < layout.planes; ++p) plane[p] = bytes.data() + offset[p];
    }

    ZorLayout layout;
    Bytes bytes;
    void* plane[ZOR_MAX_PLANES] = {};
};

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
    std::minstd_rand dice(1);
    int connected = 0;
    for (int i = 0; const char* const from = zorFormatAt(i); ++i) {
        const ZorPicture source = {from, nullptr, zorRangeDefault, GetParam()};
        Planes given(source);
        for (char& byte : given.bytes) byte = static_cast<char>(dice() >> 8);
        std::ofstream(folder / "in.raw", std::ios::binary).write(given.bytes.data(), std::ssize(given.bytes));
        for (int j = 0; const char* const to = zorFormatAt(j); ++j) {
            const ZorPicture target = {to, nullptr, zorRangeDefault, GetParam()};
            const std::unique_ptr<ZorPlan, void (*)(ZorPlan*)> plan(zorPlanCreate(&source, &target, nullptr),
                                                                    zorPlanFree);
            Planes expected(target);
            if (i == j)
                expected.bytes = given.bytes; // also what belongs to no pixel
            else if (zorPlanStatus(plan.get()) != zorStatusOk)
                expected.bytes.clear();
            else
                ASSERT_EQ(zorPlanRun(plan.get(), given.plane, given.layout.rowBytes, expected.plane,
                                     expected.layout.rowBytes),
                          zorStatusOk);
            connected += !expected.bytes.empty();
            ASSERT_TRUE(convertedByTool(from, to) == expected.bytes) << from << " to " << to;
        }
    }
    EXPECT_GT(connected, 5000);
}

INSTANTIATE_TEST_SUITE_P(Sizes, Pairs, testing::Values(ZorSize{8, 4}, ZorSize{5, 3}));

} // namespace
