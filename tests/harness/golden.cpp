// SPDX-License-Identifier: MIT
#include "tests/harness/golden.h"

#include <gtest/gtest.h>

#include "interface/functions.h"
#include "tests/harness/test_image.h"
#include "tests/harness/tiers.h"
#include "tests/reference/pixels.h"

namespace zorcc::test {

using reference::Pixels;

namespace {

interface::Image imageOf(const interface::Format& format, int width, std::vector<Bytes>& planes)
{
    interface::Image image;
    interface::setContiguousSteps(format, width, image);
    for (std::size_t p = 0; p < planes.size(); ++p) image.plane[p] = planes[p].data();
    return image;
}

// Calls visit(channel, x, y, value) for what an image of the repeated colours has.
template <class Visit> void eachSample(const Pixels& pixels, const Colours& colours, std::size_t count, Visit visit)
{
    const bool shared = colours.size() != 3 * count;
    reference::eachPixel(pixels.size(), [&](int x, int y) {
        for (int c = 0; c < 3; ++c) {
            if (!pixels.has(c, x, y) || testing::Test::HasFatalFailure()) continue;
            const std::size_t pixel = static_cast<std::size_t>(count == 1 ? 0 : x % 2 + (count == 4 ? y % 2 * 2 : 0));
            visit(c, x, y, colours[!shared ? 3 * pixel + c : c == 0 ? pixel : count + c - 1]);
        }
    });
}

} // namespace

void expectGolden(const GoldenCall& golden)
{
    const interface::Function* const function = interface::findFunction(golden.function);
    ASSERT_TRUE(function) << golden.function;
    for (const Tier tier : tiersHere()) {
        const OnTier chosen(tier);
        std::vector<Bytes> source = golden.source, destination = golden.destination;
        for (Bytes& plane : destination) plane.assign(plane.size(), kept);
        EXPECT_EQ((*function)(imageOf(*function->source, golden.size.width, source),
                              imageOf(*function->destination, golden.size.width, destination), golden.size,
                              golden.extra),
                  golden.status)
            << golden.function << " on " << nameOf(tier);
        EXPECT_EQ(destination, golden.destination) << golden.function << " on " << nameOf(tier);
    }
}

void expectGolden(const GoldenColours& golden)
{
    const std::size_t count = golden.source.size() / 3;
    for (const std::string_view name : golden.functions) {
        const interface::Function* const function = interface::findFunction(name);
        ASSERT_TRUE(function) << name;
        const bool inPlace = function->signature.inPlace;
        const ZorSize size{golden.width, 2}, used{golden.width & (function->destination->log2Y() > 0 ? ~1 : ~0), 2};
        Images images(*function, size, used);
        Pixels from(*function->source, (inPlace ? images.destination : images.source).image(), used);
        const auto fillSource = [&] {
            eachSample(from, golden.source, count,
                       [&](int c, int x, int y, double value) { from.put(c, x, y, value); });
        };
        fillSource();
        for (const Tier tier : tiersHere()) {
            const OnTier chosen(tier);
            images.destination.fillPattern(1);
            if (inPlace) fillSource();
            ASSERT_EQ((*function)(images.source.image(), images.destination.image(), size, golden.extra), zorStatusOk)
                << name;
            const Pixels to(*function->destination, images.destination.image(), used);
            eachSample(to, golden.destination, count, [&](int c, int x, int y, double value) {
                ASSERT_EQ(to.get<double>(c, x, y), value)
                    << name << " on " << nameOf(tier) << ", channel " << c << ", (" << x << ", " << y << "), of "
                    << testing::PrintToString(golden.source);
            });
        }
    }
}

} // namespace zorcc::test
