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
#include "tests/reduce/methods.h"
#include "tests/reference/reduce.h"

namespace zorcc::test {
namespace {

template <class Src, class Dst>
using Function = ZorStatus (*)(const Src*, int, Dst*, int, ZorSize, int, ZorDitherMethod, int);

template <class Sample> constexpr float whiteOf = std::is_same_v<Sample, float> ? 1 : (1ll << 8 * sizeof(Sample)) - 1;

// What is added to a signed sample for the value that it stands for.
template <class Sample> constexpr int biasOf = std::is_same_v<Sample, std::int16_t> ? 32768 : 0;

// One sample, without its neighbours.
template <class Src, class Dst> Dst expected(Src sample, int x, int y, ZorDitherMethod method, int levels)
{
    const float value = static_cast<float>(sample) + static_cast<float>(biasOf<Src>);
    const double result = method == plain ? reference::plainValue(value, whiteOf<Src>, whiteOf<Dst>, levels)
                                          : reference::thresholdValue(value, reference::bayerThreshold(x, y),
                                                                      whiteOf<Src>, whiteOf<Dst>, levels);
    return static_cast<Dst>(static_cast<int>(std::clamp(result, 0.0, double{whiteOf<Dst>})) - biasOf<Dst>);
}

// Four columns and rows of each value, so that it meets every threshold. Once and again and again, as images of
// different sizes may be converted in different ways.
template <class Src, class Dst>
void expectAll(Function<Src, Dst> function, const std::vector<Src>& values, std::vector<int> allLevels)
{
    const int width = 4 * static_cast<int>(values.size());
    for (const int copies : {1, 1 + (1 << 16) / (4 * width)}) {
        const int samples = 4 * width * copies;
        std::vector<Src> source;
        for (int i = 0; i < samples; ++i) source.push_back(values[static_cast<std::size_t>(i % width / 4)]);
        for (const ZorDitherMethod method : {plain, ordered})
            for (const int levels : allLevels) {
                std::vector<Dst> wanted, result(source.size());
                for (int i = 0; i < samples; ++i)
                    wanted.push_back(
                        expected<Src, Dst>(source[static_cast<std::size_t>(i)], i % width, i / width, method, levels));
                for (const Tier tier : tiersHere()) {
                    const OnTier chosen(tier);
                    ASSERT_EQ(function(source.data(), width * static_cast<int>(sizeof(Src)), result.data(),
                                       width * static_cast<int>(sizeof(Dst)), {width, 4 * copies}, 0, method, levels),
                              zorStatusOk);
                    const auto wrong = std::mismatch(result.begin(), result.end(), wanted.begin()).first;
                    const auto i = wrong - result.begin();
                    ASSERT_EQ(i, samples) << nameOf(tier) << ", method " << method << ", " << levels
                                          << " levels, value " << +source[static_cast<std::size_t>(i)] << " at ("
                                          << i % width << ", " << i / width << "): " << +*wrong;
                }
            }
    }
}

template <class Integer> std::vector<Integer> allOf()
{
    std::vector<Integer> values;
    for (int i = std::numeric_limits<Integer>::min(); i <= std::numeric_limits<Integer>::max(); ++i)
        values.push_back(static_cast<Integer>(i));
    return values;
}

TEST(ReduceInputs, AllBytesWithAllLevels)
{
    std::vector<int> levels(255);
    std::iota(levels.begin(), levels.end(), 2);
    expectAll(zoriReduceBits_8u_C1R, allOf<std::uint8_t>(), levels);
}

TEST(ReduceInputs, AllWords)
{
    const std::vector<std::uint16_t> words = allOf<std::uint16_t>();
    const std::vector<std::int16_t> signedWords = allOf<std::int16_t>();
    expectAll(zoriReduceBits_16u8u_C1R, words, {2, 3, 7, 16, 86, 255, 256});
    expectAll(zoriReduceBits_16s8u_C1R, signedWords, {2, 3, 7, 16, 86, 255, 256});
    expectAll(zoriReduceBits_16u_C1R, words, {2, 3, 7, 16, 86, 255, 256, 4097, 30001, 65535, 65536});
    expectAll(zoriReduceBits_16s_C1R, signedWords, {4097, 30001, 65535, 65536});
}

TEST(ReduceInputs, FloatsOfEveryKind)
{
    using Limits = std::numeric_limits<float>;
    std::vector<float> floats;
    for (const float f :
         {Limits::quiet_NaN(), Limits::infinity(), Limits::max(), 1e10f, 2.5f, 2.0f, 1.5f, 1.0f,
          std::nextafter(1.0f, 2.0f), std::nextafter(1.0f, 0.0f), Limits::min(), Limits::denorm_min(), 0.0f})
        floats.insert(floats.end(), {f, -f});
    for (int i = 0; i <= 2000; ++i) floats.push_back(static_cast<float>(i) / 1000 - 0.5f);
    const std::vector<int> levels = {2, 3, 4, 7, 15, 52, 103, 128, 255, 256};
    expectAll(zoriReduceBits_32f8u_C1R, floats, levels);
    expectAll(zoriReduceBits_32f16u_C1R, floats, levels);
    expectAll(zoriReduceBits_32f16s_C1R, floats, levels);
}

// What saturates is extreme and leaves no error: the samples around it are as if it were not there.
TEST(ReduceInputs, DiffusionOfFloatsOfEveryKind)
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN(), infinity = std::numeric_limits<float>::infinity();
    const float source[] = {nan, infinity, -infinity, 1e30f, -1e30f, 0, 1, nan};
    const std::vector<std::uint8_t> wanted = {0, 255, 0, 255, 0, 0, 255, 0};
    for (const Tier tier : tiersHere())
        for (const ZorDitherMethod method : diffusions)
            for (const int noise : {0, 100}) { // which changes nothing of the first five
                const OnTier chosen(tier);
                std::vector<std::uint8_t> result(8, 99);
                EXPECT_EQ(zoriReduceBits_32f8u_C1R(source, 32, result.data(), 8, {8, 1}, noise, method, 2),
                          zorStatusOk);
                EXPECT_TRUE(std::equal(wanted.begin(), wanted.end() - (noise > 0 ? 3 : 0), result.begin()))
                    << nameOf(tier) << ", method " << method << ", noise " << noise;
            }
}

// Words, whose levels are rounded down by next to nothing. Near black the errors that leave the image at its edges
// count.
TEST(ReduceInputs, DiffusionKeepsTheMean)
{
    constexpr int width = 512, samples = width * width;
    std::vector<std::uint16_t> result(samples);
    for (const ZorDitherMethod method : diffusions)
        for (const int levels : {2, 3, 4, 17})
            for (const int value : {16384, 25001, 32768, 51111, 64000}) {
                const std::vector<std::uint16_t> source(samples, static_cast<std::uint16_t>(value));
                ASSERT_EQ(zoriReduceBits_16u_C1R(source.data(), 2 * width, result.data(), 2 * width, {width, width}, 0,
                                                 method, levels),
                          zorStatusOk);
                const double mean = std::accumulate(result.begin(), result.end(), 0.0) / samples;
                EXPECT_NEAR(mean, value, 0.005 * value) << "method " << method << ", " << levels << " levels";
            }
}

} // namespace
} // namespace zorcc::test
