// SPDX-License-Identifier: MIT
// All 2^24 colours of three 8-bit channels through one function of every formula, and of 16-bit channels all values
// of each with a grid of the others.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <tuple>
#include <vector>

#include "tests/harness/family_test.h"

namespace zorcc::test {
namespace {

using reference::Case;
using reference::Pixels;

constexpr ZorSize band{4096, 16};

// Colours of a subsampled image: every pair of chroma values, each with every luma in one of the blocks that have it.
void fillBlocks(TestImage& image, int first)
{
    const interface::Format& format = image.format();
    const int log2X = format.log2X(), log2Y = format.log2Y(), log2Block = log2X + log2Y;
    Pixels pixels(format, image.image(), band);
    reference::eachPixel(band, [&](int x, int y) {
        const int block = (first >> log2Block) + (y >> log2Y) * (band.width >> log2X) + (x >> log2X);
        const int inBlock = ((y & ((1 << log2Y) - 1)) << log2X) + (x & ((1 << log2X) - 1));
        const int chroma = scattered(block & 0xffff, 0x10000);
        pixels.put(reference::luma, x, y, (((block >> 16) << log2Block) + inBlock + chroma) & 255);
        pixels.put(reference::chromaU, x, y, chroma & 255);
        pixels.put(reference::chromaV, x, y, chroma >> 8);
    });
}

constexpr int grid[] = {0, 1, 13107, 21845, 32767, 32768, 43691, 54321, 65534, 65535};
constexpr int gridSize = static_cast<int>(std::size(grid)), sweeps = 3 * gridSize * gridSize;

// All values of a channel, each with the same two of the others.
void fillSweep(TestImage& image, int sweep)
{
    Pixels pixels(image.format(), image.image(), band);
    const int channel = sweep % 3, others[] = {grid[sweep / 3 % gridSize], grid[sweep / 3 / gridSize]};
    reference::eachPixel(band, [&](int x, int y) {
        const int values[] = {scattered(y * band.width + x, 65536), others[0], others[1]};
        for (int c = 0; c < 3; ++c) pixels.putLevel((channel + c) % 3, x, y, values[c]);
    });
}

// Functions that have these in common convert alike.
auto formulaOf(const Case& c)
{
    const interface::Format &source = *functionOf(c).source, &destination = *functionOf(c).destination;
    return std::tuple(c.reference, c.imageReference, c.arguments, source.sample, destination.sample,
                      source.subsampled(), destination.log2X(), destination.log2Y(), destination.fieldBits,
                      destination.channels, functionOf(c).dithers);
}

// The first function of each formula on integers that have samples of their own for every channel.
std::vector<Case> oneCaseOfEachFormula()
{
    std::vector<Case> chosen;
    for (const Case& c : familyCases()) {
        const interface::Format& source = *functionOf(c).source;
        const bool fits = source.sample != interface::Sample::f32 &&
                          source.channels.find('A') == std::string_view::npos &&
                          source.layout != interface::Layout::packedBits;
        const auto isAlike = [&](const Case& other) { return formulaOf(other) == formulaOf(c); };
        if (fits && std::none_of(chosen.begin(), chosen.end(), isAlike)) chosen.push_back(c);
    }
    return chosen;
}

class AllColours : public FamilyTest {};

TEST_P(AllColours, SameAsReference)
{
    const Trial trial{band, {Steps::sample}, {Steps::sample}};
    const auto fillAll = function.source->subsampled() ? fillBlocks : fillColours;
    if (function.source->sample == interface::Sample::u8)
        for (int first = 0; first < colours; first += band.width * band.height)
            ASSERT_TRUE(checker.check(trial, [&](TestImage& image) { fillAll(image, first); }))
                << "colours from " << first;
    else
        for (int sweep = 0; sweep < sweeps; ++sweep)
            ASSERT_TRUE(checker.check(trial, [&](TestImage& image) { fillSweep(image, sweep); })) << "sweep " << sweep;
}

INSTANTIATE_TEST_SUITE_P(Formulas, AllColours, testing::ValuesIn(oneCaseOfEachFormula()),
                         caseName<testing::TestParamInfo<Case>>);

} // namespace
} // namespace zorcc::test
