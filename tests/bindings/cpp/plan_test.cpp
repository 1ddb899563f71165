// SPDX-License-Identifier: MIT
// Plans as objects, beside the functions of zorconvert.h.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "zorconvert.hpp"

namespace {

using namespace zorcc;
using Nv12 = SemiPlanar<const uint8_t>;
using Rgb = Interleaved<uint8_t, 3>;
constexpr ZorSize size = {23, 14};

ZorPicture picture(const char* format, ZorSize pixels = size) { return {format, nullptr, zorRangeDefault, pixels}; }

TEST(CppPlanTest, RunsOnViews)
{
    std::vector<uint8_t> yuv(Nv12::samples(size)), rgb(Rgb::samples(size)), expected(rgb);
    for (std::size_t i = 0; i < yuv.size(); ++i) yuv[i] = static_cast<uint8_t>(i * i / 3);
    const auto nv12 = viewOfSamples<Nv12>(yuv, size);

    Plan plan(picture("nv12"), picture("rgb24"));
    EXPECT_EQ(plan.run(nv12, viewOfSamples<Rgb>(rgb, size)), zorStatusOk);
    const void* const planes[] = {nv12.data[0], nv12.data[1]};
    void* const destination[] = {expected.data()};
    const int steps[] = {23, 24}, destinationSteps[] = {69};
    zorPlanRun(plan.get(), planes, steps, destination, destinationSteps);
    EXPECT_EQ(rgb, expected);
    EXPECT_NE(rgb, std::vector<uint8_t>(rgb.size()));
    EXPECT_STREQ(plan.describe(), zorPlanDescribe(plan.get()));
    EXPECT_STREQ(plan.losses(), zorPlanLosses(plan.get()));

    Plan moved = std::move(plan);
    EXPECT_EQ(moved.run(nv12, viewOfSamples<Rgb>(rgb, size)), zorStatusOk);
    std::error_code error;
    EXPECT_EQ(plan.run(nv12, viewOfSamples<Rgb>(rgb, size), error), zorStatusNoMemory) << "as zorPlanStatus of null";
}

TEST(CppPlanTest, RefusesOtherViews)
{
    std::vector<uint8_t> bytes(4096);
    std::vector<uint16_t> words(4096);
    std::vector<int8_t> chars(4096);
    Plan plan(picture("nv12"), picture("rgb24"));
    const auto nv12 = viewOfSamples<Nv12>(bytes, size);
    const auto rgb = viewOfSamples<Rgb>(bytes, size);
    std::error_code error;
    EXPECT_EQ(plan.run(nv12, viewOfSamples<Rgb>(bytes, {22, 14}), error), zorStatusBadSize);
    EXPECT_EQ(plan.run(viewOfSamples<Planar420<uint8_t>>(bytes, size), rgb, error), zorStatusBadArgument);
    EXPECT_EQ(plan.run(nv12, viewOfSamples<Interleaved<uint8_t, 4>>(bytes, size), error), zorStatusBadArgument);
    EXPECT_EQ(plan.run(nv12, viewOfSamples<Interleaved<uint16_t, 3>>(words, size), error), zorStatusBadArgument);
    EXPECT_EQ(plan.run(nv12, viewOfSamples<Interleaved<int8_t, 3>>(chars, size), error), zorStatusBadArgument);
    EXPECT_EQ(error, makeErrorCode(zorStatusBadArgument));
    auto far = rgb;
    far.step[0] += std::ptrdiff_t{1} << 32;
    EXPECT_EQ(plan.run(nv12, far, error), zorStatusBadStep);
    EXPECT_EQ(plan.run(nv12, Rgb(nullptr, 69, size), error), zorStatusNullPointer);
    EXPECT_THROW(plan.run(nv12, viewOfSamples<Rgb>(bytes, {22, 14})), Error);

    Plan packed(picture("grey16"), picture("rgb24"));
    EXPECT_EQ(packed.run(viewOfSamples<Packed16<uint16_t>>(words, size), rgb, error), zorStatusBadArgument);
    EXPECT_EQ(packed.run(viewOfSamples<Interleaved<uint16_t, 1>>(words, size), rgb, error), zorStatusOk);
    EXPECT_FALSE(error);
}

TEST(CppPlanTest, SaysWhyThereIsNone)
{
    std::error_code error;
    const Plan none(picture("nv12"), picture("nothing"), error);
    EXPECT_EQ(error, makeErrorCode(zorStatusUnknownFormat));
    EXPECT_NE(std::string(none.describe()).find("nothing"), std::string::npos) << none.describe();
    try {
        Plan(picture("nv12"), picture("rgb24", {5, 5}));
        ADD_FAILURE() << "does not throw";
    } catch (const Error& thrown) {
        EXPECT_EQ(thrown.status(), zorStatusBadSize);
        EXPECT_NE(std::string(thrown.what()).find(statusText(zorStatusBadSize)), std::string::npos);
    }
}

TEST(CppPlanTest, TakesOptions)
{
    PlanOptions options;
    options.alpha = zorAlphaRefuse;
    std::error_code error;
    const Plan refused(picture("rgba"), picture("rgb24"), options, error);
    EXPECT_EQ(error, makeErrorCode(zorStatusRefused));
    const Plan allowed(picture("rgba"), picture("rgb24"), PlanOptions(), error);
    EXPECT_FALSE(error);
    EXPECT_NE(std::string(allowed.losses()), "");
}

} // namespace
