// SPDX-License-Identifier: MIT
// All 2^24 colours of three 8-bit channels through one function of every reference.
#include <gtest/gtest.h>

#include <vector>

#include "tests/harness/cases.h"
#include "tests/harness/checker.h"

namespace zorcc::test {
namespace {

using reference::Case;
using reference::Pixels;

constexpr int colours = 1 << 24;
constexpr ZorSize band{4096, 16};

// Steps of `count` by an odd number reach every value, and neighbours have little in common.
int scattered(int i, int count) { return static_cast<int>((static_cast<unsigned>(i) * 0x9e3779b1u) & (count - 1u)); }

// Fills the band with the colours from number `first` on. A subsampled image has every pair of chroma values, each with
// every luma in one of the blocks that have it.
void fillColours(TestImage& image, int first)
{
    const interface::Format& format = image.format();
    const int log2X = format.log2X(), log2Y = format.log2Y(), log2Block = log2X + log2Y;
    Pixels pixels(format, image.image(), band);
    for (int y = 0; y < band.height; ++y)
        for (int x = 0; x < band.width; ++x) {
            if (!format.subsampled()) {
                const int colour = scattered(first + y * band.width + x, colours);
                for (int c = 0; c < 3; ++c) pixels.put(c, x, y, colour >> 8 * c & 255);
                continue;
            }
            const int block = (first >> log2Block) + (y >> log2Y) * (band.width >> log2X) + (x >> log2X);
            const int inBlock = ((y & ((1 << log2Y) - 1)) << log2X) + (x & ((1 << log2X) - 1));
            const int chroma = scattered(block & 0xffff, 0x10000);
            pixels.put(reference::luma, x, y, (((block >> 16) << log2Block) + inBlock + chroma) & 255);
            pixels.put(reference::chromaU, x, y, chroma & 255);
            pixels.put(reference::chromaV, x, y, chroma >> 8);
        }
}

// The first function of each reference with samples of its own for every channel.
std::vector<Case> oneCaseOfEachReference()
{
    std::vector<Case> chosen;
    for (const Case& c : familyCases()) {
        const interface::Format& source = *functionOf(c).source;
        const bool fits = source.sample == interface::Sample::u8 && source.channels.size() == 3;
        bool seen = false;
        for (const Case& other : chosen) seen |= other.reference == c.reference;
        if (fits && !seen) chosen.push_back(c);
    }
    return chosen;
}

class AllColours : public testing::TestWithParam<Case> {};

TEST_P(AllColours, SameAsReference)
{
    Checker checker(GetParam(), functionOf(GetParam()));
    for (int first = 0; first < colours; first += band.width * band.height)
        ASSERT_TRUE(checker.check({band, {Steps::sample}, {Steps::sample}},
                                  [&](TestImage& image) { fillColours(image, first); }))
            << "colours from " << first;
}

INSTANTIATE_TEST_SUITE_P(References, AllColours, testing::ValuesIn(oneCaseOfEachReference()),
                         caseName<testing::TestParamInfo<Case>>);

} // namespace
} // namespace zorcc::test
