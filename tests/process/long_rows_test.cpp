// SPDX-License-Identifier: MIT
// Rows of almost 2^31 pixels, regions at their right end, and almost 2^31 rows. Pixels repeat in memory, so the result
// of a formula on them repeats, too.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <climits>
#include <csignal>
#include <cstring>
#include <deque>
#include <set>
#include <vector>

#include "interface/functions.h"
#include "tests/harness/random.h"
#include "tests/process/repeated_memory.h"

namespace zorcc::test {
namespace {

constexpr int period = 1 << 20; // pixels, whole pages in every plane of every format

// An image whose rows repeat after `period` pixels, and each other.
struct RepeatedImage {
    interface::Image image;
    std::deque<RepeatedMemory> planes;

    RepeatedImage(const interface::Format& format, int width)
    {
        constexpr std::size_t rows = 8; // each a period after the one before
        for (int p = 0; p < format.planes; ++p) {
            const std::size_t bytes = interface::rowBytes(format, p, period);
            const auto& memory = planes.emplace_back(bytes, interface::rowBytes(format, p, width) + rows * bytes);
            image.plane[p] = memory.data();
            image.step[p] = static_cast<int>(bytes);
        }
    }

    void fill(std::uint32_t seed)
    {
        Random random(seed);
        for (const RepeatedMemory& plane : planes)
            for (std::size_t i = 0; i < plane.period; i += 4) {
                const std::uint32_t samples = random() & 0x3fffffff; // finite as floats
                std::memcpy(plane.data() + i, &samples, sizeof samples);
            }
    }

    std::vector<std::vector<std::uint8_t>> content() const
    {
        std::vector<std::vector<std::uint8_t>> all;
        for (const RepeatedMemory& plane : planes) all.emplace_back(plane.data(), plane.data() + plane.period);
        return all;
    }
};

TEST(LongRows, OfEveryFamily)
{
    constexpr int width = INT_MAX & -16; // whole groups of pixels that share samples
    std::set<std::string_view> families;
    for (const interface::Function& function : interface::functions()) {
        if (function.name.starts_with("zoriRGBToCbYCr422")) continue; // its filter sees where a row begins
        if (function.family == "Demosaicing" || !families.insert(function.family).second) continue;
        RepeatedImage source(*function.source, width), result(*function.destination, width),
            wanted(*function.destination, period);
        source.fill(1);
        result.fill(2);
        ASSERT_EQ(function(source.image, wanted.image, {period, 2}), zorStatusOk) << function.name;
        ASSERT_EQ(function(source.image, result.image, {width, 2}), zorStatusOk) << function.name;
        EXPECT_EQ(result.content(), wanted.content()) << function.name;
    }
    EXPECT_GE(families.size(), 15u);
}

struct LongMosaic : testing::Test {
    static constexpr int height = 5;

    // The region of a mosaic `width` pixels wide; the result has rows of `step` bytes.
    static void convert(const char* name, const RepeatedImage& source, int width, int x, int regionWidth, int rows,
                        std::uint8_t* result, int step)
    {
        std::vector<std::uint8_t> scratch(64 * 32 * (400 + 32));
        const ZorRect region{x, 0, regionWidth, rows};
        interface::Image image;
        image.plane[0] = result;
        image.step[0] = step;
        const interface::Extra extra {
            .region = region, .scratch = scratch.data(), .scratchStep = 32 * (400 + 32)
        };
        ASSERT_EQ(interface::findFunction(name)->bound({source.image, image, {width, height}, extra}), zorStatusOk)
            << name;
    }
};

// The end of the row looks the same wherever the row begins, by whole cells of the mosaic.
TEST_F(LongMosaic, RegionsAtTheRightEnd)
{
    constexpr int width = 300, near = 2 * period - 1;
    for (const char* const name :
         {"zoriCFAToRGB_8u_C1C3R", "zoriCFAToRGB_16u_C1C3R", "zoriDemosaicAHD_8u_C1C3R", "zoriDemosaicAHD_16u_C1C3R"}) {
        RepeatedImage source(*interface::findFunction(name)->source, INT_MAX);
        source.fill(3);
        std::vector<std::uint8_t> result(6 * width * height, 1), wanted(6 * width * height, 2);
        convert(name, source, near, near - width, width, height, wanted.data(), 6 * width);
        convert(name, source, INT_MAX, INT_MAX - width, width, height, result.data(), 6 * width);
        if (std::strstr(name, "8u")) // which fill half of every row
            for (int y = 0; y < height; ++y) {
                std::memset(result.data() + (2 * y + 1) * 3 * width, 0, 3 * width);
                std::memset(wanted.data() + (2 * y + 1) * 3 * width, 0, 3 * width);
            }
        EXPECT_EQ(result, wanted) << name;
    }
}

// A row of the result that is longer than 4 GiB.
TEST_F(LongMosaic, WideRegions)
{
    constexpr int width = 1500 * period / 2; // 2.4 and 4.7 thousand million bytes
    for (const char* const name : {"zoriCFAToRGB_8u_C1C3R", "zoriCFAToRGB_16u_C1C3R"}) {
        const interface::Function& function = *interface::findFunction(name);
        RepeatedImage source(*function.source, INT_MAX), result(*function.destination, width),
            wanted(*function.destination, period);
        source.fill(4);
        result.fill(5);
        convert(name, source, INT_MAX, period, period, 1, wanted.planes[0].data(), 0);
        convert(name, source, INT_MAX, period, width, 1, result.planes[0].data(), 0);
        EXPECT_EQ(result.content(), wanted.content()) << name;
    }
}

// The rows of the slice before are counted, too. All rows lie in one place; to convert them would take a minute.
TEST(LongColumns, SlicesOfAlmostTwoThousandMillionRows)
{
    auto* const shared = static_cast<volatile std::uint8_t*>(
        mmap(nullptr, pageBytes(), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(const_cast<std::uint8_t*>(shared), MAP_FAILED);
    const pid_t child = fork();
    if (child == 0) {
        const interface::Function& function = *interface::findFunction("zoriYCbCr420ToYCbCr422_Filter_8u_P2C2R");
        std::vector<std::uint8_t> grey(256, 77);
        interface::Image source, result;
        for (void*& plane : source.plane) plane = grey.data() + 128;
        result.plane[0] = const_cast<std::uint8_t*>(shared);
        static_cast<void>(function(source, result, {2, INT_MAX - 1}, {.slice = 4}));
        _exit(0);
    }
    for (int i = 0; i < 12000 && shared[0] != 77; ++i) usleep(10000); // two minutes at most
    EXPECT_EQ(shared[0], 77);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    munmap(const_cast<std::uint8_t*>(shared), pageBytes());
}

} // namespace
} // namespace zorcc::test
