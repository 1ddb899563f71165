// SPDX-License-Identifier: MIT
#include "tests/harness/golden.h"

#include <gtest/gtest.h>

#include "interface/functions.h"
#include "tests/harness/tiers.h"

namespace zorcc::test {

namespace {

interface::Image imageOf(const interface::Format& format, int width, std::vector<Bytes>& planes)
{
    interface::Image image;
    interface::setContiguousSteps(format, width, image);
    for (std::size_t p = 0; p < planes.size(); ++p) image.plane[p] = planes[p].data();
    return image;
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
                              imageOf(*function->destination, golden.size.width, destination), golden.size),
                  golden.status)
            << golden.function << " on " << nameOf(tier);
        EXPECT_EQ(destination, golden.destination) << golden.function << " on " << nameOf(tier);
    }
}

} // namespace zorcc::test
