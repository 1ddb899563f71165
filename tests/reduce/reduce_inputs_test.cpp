// SPDX-License-Identifier: MIT
// Every input: all bytes with all numbers of levels, all words, floats of every kind; and what the eye sees of error
// diffusion, the mean.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <type_traits>
#include <vector>

#include "tests/harness/tiers.h"
#include "tests/reference/reduce.h"
#include "zorcc.h"

namespace zorcc::test {
namespace {

template <class Src, class Dst>
using Function = ZorStatus (*)(const Src*, int, Dst*, int, ZorSize, int, ZorDitherMethod, int);

template <class Sample> constexpr float whiteOf = 65535;
template <> constexpr float whiteOf<std::uint8_t> = 255;
template <> constexpr float whiteOf<float> = 1;

// Signed samples stand for a value so much greater.
template <class Sample> constexpr int biasOf = std::is_same_v<Sample, std::int16_t> ? 32768 : 0;

// One sample, without its neighbours.
template <class Src, class Dst> int expected(Src sample, int x, int y, ZorDitherMethod method, int levels)
{
    const float value = static_cast<float>(sample) + static_cast<float>(biasOf<Src>);
    const double result =
        method == zorDitherMethodNone
            ? reference::plainValue(value, whiteOf<Src>, whiteOf<Dst>, levels)
            : reference::thresholdValue(value, reference::bayerThreshold(x, y), whiteOf<Src>, whiteOf<Dst>, levels);
    return static_cast<int>(std::clamp(result, 0.0, double{whiteOf<Dst>})) - biasOf<Dst>;
}

// Four columns and rows of each value, so that it meets every threshold.
template <class Src, class Dst>
void expectAll(Function<Src, Dst> function, const std::vector<Src>& values, ZorDitherMethod method, int levels)
{
    const int width = 4 * static_cast<int>(values.size());
    std::vector<Src> source;
    for (int i = 0; i < 4 * width; ++i) source.push_back(values[static_cast<std::size_t>(i % width / 4)]);
    std::vector<int> wanted;
    for (int i = 0; i < 4 * width; ++i)
        wanted.push_back(expected<Src, Dst>(source[static_cast<std::size_t>(i)], i % width, i / width, method, levels));
    // Again and again, as images of different sizes may be converted in different ways.
    for (const int copies : {1, 1 + (1 << 16) / (4 * width)})
        for (const Tier tier : tiersHere()) {
            const OnTier chosen(tier);
            std::vector<Src> tall;
            for (int i = 0; i < copies; ++i) tall.insert(tall.end(), source.begin(), source.end());
            std::vector<Dst> result(tall.size());
            ASSERT_EQ(function(tall.data(), width * static_cast<int>(sizeof(Src)), result.data(),
                               width * static_cast<int>(sizeof(Dst)), {width, 4 * copies}, 0, method, levels),
                      zorStatusOk);
            for (std::size_t i = 0; i < result.size(); ++i) {
                if (int{result[i]} == wanted[i % wanted.size()]) continue;
                FAIL() << nameOf(tier) << ", method " << method << ", " << levels << " levels, " << copies
                       << " copies, value " << +tall[i] << " at (" << i % static_cast<std::size_t>(width) << ", "
                       << i / static_cast<std::size_t>(width) << "): " << +result[i] << ", not "
                       << wanted[i % wanted.size()];
            }
        }
}

constexpr ZorDitherMethod pointwise[] = {zorDitherMethodNone, zorDitherMethodOrdered};

TEST(ReduceInputs, AllBytesWithAllLevels)
{
    std::vector<std::uint8_t> bytes(256);
    std::iota(bytes.begin(), bytes.end(), std::uint8_t{0});
    for (const ZorDitherMethod method : pointwise)
        for (int levels = 2; levels <= 256; ++levels) {
            expectAll(zoriReduceBits_8u_C1R, bytes, method, levels);
            if (HasFatalFailure()) return;
        }
}

TEST(ReduceInputs, AllWords)
{
    std::vector<std::uint16_t> words(65536);
    std::iota(words.begin(), words.end(), std::uint16_t{0});
    std::vector<std::int16_t> signedWords(65536);
    std::iota(signedWords.begin(), signedWords.end(), std::numeric_limits<std::int16_t>::min());
    for (const ZorDitherMethod method : pointwise)
        for (const int levels : {2, 3, 7, 16, 86, 255, 256}) {
            expectAll(zoriReduceBits_16u8u_C1R, words, method, levels);
            expectAll(zoriReduceBits_16s8u_C1R, signedWords, method, levels);
            expectAll(zoriReduceBits_16u_C1R, words, method, levels);
            if (HasFatalFailure()) return;
        }
    for (const ZorDitherMethod method : pointwise)
        for (const int levels : {4097, 30001, 65535, 65536}) {
            expectAll(zoriReduceBits_16u_C1R, words, method, levels);
            expectAll(zoriReduceBits_16s_C1R, signedWords, method, levels);
            if (HasFatalFailure()) return;
        }
}

TEST(ReduceInputs, FloatsOfEveryKind)
{
    using Limits = std::numeric_limits<float>;
    std::vector<float> floats = {Limits::quiet_NaN(),
                                 Limits::infinity(),
                                 Limits::max(),
                                 1e10f,
                                 2.5f,
                                 2.0f,
                                 1.5f,
                                 1.0f,
                                 std::nextafter(1.0f, 2.0f),
                                 std::nextafter(1.0f, 0.0f),
                                 Limits::min(),
                                 Limits::denorm_min(),
                                 0.0f};
    for (const float f : std::vector<float>(floats)) floats.push_back(-f);
    for (int i = 0; i <= 2000; ++i) floats.push_back(static_cast<float>(i) / 1000 - 0.5f);
    for (const ZorDitherMethod method : pointwise)
        for (const int levels : {2, 3, 4, 7, 15, 52, 103, 128, 255, 256}) {
            expectAll(zoriReduceBits_32f8u_C1R, floats, method, levels);
            expectAll(zoriReduceBits_32f16u_C1R, floats, method, levels);
            expectAll(zoriReduceBits_32f16s_C1R, floats, method, levels);
            if (HasFatalFailure()) return;
        }
}

// What saturates is extreme and leaves no error: the samples around it are as if it were not there.
TEST(ReduceInputs, DiffusionOfFloatsOfEveryKind)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN(), infinity = std::numeric_limits<float>::infinity();
    const std::vector<float> source = {nan, infinity, -infinity, 1e30f, -1e30f, 0.0f, 1.0f, nan};
    for (const Tier tier : tiersHere())
        for (const int method : {1, 2, 3})
            for (const int noise : {0, 100}) {
                const OnTier chosen(tier);
                std::vector<std::uint8_t> result(source.size(), 99);
                EXPECT_EQ(zoriReduceBits_32f8u_C1R(source.data(), 32, result.data(), 8, {8, 1}, noise,
                                                   static_cast<ZorDitherMethod>(method), 2),
                          zorStatusOk);
                if (noise == 0) {
                    EXPECT_EQ(result, (std::vector<std::uint8_t>{0, 255, 0, 255, 0, 0, 255, 0}));
                }
                result.resize(5);
                EXPECT_EQ(result, (std::vector<std::uint8_t>{0, 255, 0, 255, 0}));
            }
}

// Words, whose levels are rounded down by next to nothing. Near black the errors that leave the image at its edges
// count.
TEST(ReduceInputs, DiffusionKeepsTheMean)
{
    constexpr ZorSize size{512, 512};
    constexpr int samples = 512 * 512;
    std::vector<std::uint16_t> result(samples);
    for (const int method : {1, 2, 3})
        for (const int levels : {2, 3, 4, 17})
            for (const int value : {16384, 25001, 32768, 51111, 64000}) {
                const std::vector<std::uint16_t> source(samples, static_cast<std::uint16_t>(value));
                ASSERT_EQ(zoriReduceBits_16u_C1R(source.data(), 2 * size.width, result.data(), 2 * size.width, size, 0,
                                                 static_cast<ZorDitherMethod>(method), levels),
                          zorStatusOk);
                const double mean = std::accumulate(result.begin(), result.end(), 0.0) / samples;
                EXPECT_NEAR(mean, value, 0.005 * value) << "method " << method << ", " << levels << " levels";
            }
}

} // namespace
} // namespace zorcc::test
