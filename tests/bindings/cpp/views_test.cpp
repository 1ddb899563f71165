// SPDX-License-Identifier: MIT
// What the headers for C++ add to the functions: views, what compiles, errors, scratch memory.
#include <climits>
#include <cstring>
#include <type_traits>
#include <vector>
#if __has_include(<span>)
    #include <span>
#endif

#include <gtest/gtest.h>

#include "zorcc.hpp"

namespace {

using namespace zorcc;
using Rgb = Interleaved<uint8_t, 3>;
using ConstRgb = Interleaved<const uint8_t, 3>;
constexpr ZorSize size = {24, 16};

std::vector<uint8_t> someBytes(std::size_t count)
{
    std::vector<uint8_t> bytes(count);
    for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<uint8_t>(i * i * 7 + i / 5);
    return bytes;
}

// ---- what compiles --------------------------------------------------------------------------------------------------

constexpr auto toYuv420 = [](auto&&... a) -> decltype(rgbToYCbCr420(std::forward<decltype(a)>(a)...)) {
    return rgbToYCbCr420(std::forward<decltype(a)>(a)...);
};
template <class... A> constexpr bool converts = std::is_invocable_v<decltype(toYuv420), A...>;

static_assert(converts<Rgb, Planar420<uint8_t>> && converts<ConstRgb, Planar420<uint8_t>>);
static_assert(converts<Rgb, Planar420<uint8_t>, std::error_code&>);
static_assert(!converts<Rgb, Planar420<const uint8_t>>, "a source as destination");
static_assert(!converts<Planar420<uint8_t>, Rgb>, "the reverse");
static_assert(!converts<Rgb, Planar422<uint8_t>> && !converts<Rgb, Planar<uint8_t, 3>>, "other chroma");
static_assert(!converts<Rgb, SemiPlanar<uint8_t>>, "other planes");
static_assert(!converts<Interleaved<uint8_t, 4>, Planar420<uint8_t>>, "other channels");
static_assert(!converts<InterleavedAlpha<uint8_t>, Planar420<uint8_t>>, "alpha");
static_assert(!converts<Interleaved<uint16_t, 3>, Planar420<uint8_t>>, "other samples");
static_assert(!converts<Rgb, Planar420<uint8_t>, int>, "what is no argument");
static_assert(!converts<Rgb, Planar420<uint8_t>, const std::error_code&>, "an error_code that is const");
static_assert(!converts<Rgb>, "no destination");

constexpr auto gamma = [](auto&&... a) -> decltype(gammaFwd(std::forward<decltype(a)>(a)...)) {
    return gammaFwd(std::forward<decltype(a)>(a)...);
};
static_assert(std::is_invocable_v<decltype(gamma), Rgb> && !std::is_invocable_v<decltype(gamma), ConstRgb>, "in place");
static_assert(std::is_invocable_v<decltype(gamma), Interleaved<float, 3>, float, float>);
static_assert(!std::is_invocable_v<decltype(gamma), Interleaved<float, 3>>, "bounds of floats");

static_assert(noexcept(rgbToYCbCr420(ConstRgb(), Planar420<uint8_t>(), std::declval<std::error_code&>())));
static_assert(!noexcept(rgbToYCbCr420(ConstRgb(), Planar420<uint8_t>())));

// ---- views of other things ------------------------------------------------------------------------------------------

struct Mat { // as cv::Mat
    unsigned char* data;
    std::size_t step;
    int cols, rows;
    std::size_t pixelBytes;

    std::size_t elemSize() const { return pixelBytes; }
};

struct Frame { // as AVFrame
    uint8_t* data[8];
    int linesize[8];
    int width, height;
};

TEST(CppViewsTest, OfMatrices)
{
    std::vector<uint8_t> bytes = someBytes(16 * 100);
    const Mat mat{bytes.data(), 100, 24, 16, 3};
    const ConstRgb view = viewOfMat<ConstRgb>(mat);
    EXPECT_EQ(view.data[0], bytes.data());
    EXPECT_EQ(view.row(2), bytes.data() + 200);
    EXPECT_EQ(view.size.width * 100 + view.size.height, 2416);

    const Mat yuy2{bytes.data(), 100, 24, 16, 2};
    EXPECT_EQ(viewOfMat<Packed422<uint8_t>>(yuy2).data[0], bytes.data());
    EXPECT_THROW(viewOfMat<Packed422<uint8_t>>(mat), Error);
    std::error_code error;
    EXPECT_EQ(viewOfMat<InterleavedAlpha<uint8_t>>(mat, error).data[0], nullptr);
    EXPECT_EQ(error, makeErrorCode(zorStatusBadArgument));
}

TEST(CppViewsTest, OfFrames)
{
    std::vector<uint8_t> luma = someBytes(16 * 32), chroma = someBytes(8 * 40);
    const Frame nv12{{luma.data(), chroma.data()}, {32, 40}, 24, 16};
    const auto view = viewOfFrame<SemiPlanar<const uint8_t>>(nv12);
    EXPECT_EQ(view.data[1], chroma.data());
    EXPECT_EQ(view.step[1], 40);
    EXPECT_EQ(view.plane(1).row(3), chroma.data() + 120);
    EXPECT_EQ(view.plane(1).size.height, 8);
    EXPECT_THROW(viewOfFrame<Planar420<const uint8_t>>(nv12), Error) << "a plane too few";
    using OnePlane = Interleaved<const uint8_t, 1>;
    EXPECT_THROW(viewOfFrame<OnePlane>(nv12), Error) << "a plane too many";
}

template <class Samples> void expectPlanesOf(Samples&& samples, ZorSize odd)
{
    const auto view = viewOfSamples<Planar420<uint8_t>>(samples, odd); // 5 x 3 and twice 3 x 2
    EXPECT_EQ(view.data[1] - view.data[0], 15);
    EXPECT_EQ(view.data[2] - view.data[1], 6);
    EXPECT_EQ(view.step[0] * 10 + view.step[2], 53);
}

TEST(CppViewsTest, OfSamples)
{
    const ZorSize odd = {5, 3};
    EXPECT_EQ(Planar420<uint8_t>::samples(odd), 27u);
    EXPECT_EQ(Packed422<uint8_t>::samples(odd), 36u);
    EXPECT_EQ(SemiPlanar<uint16_t>::samples(odd), 27u);
    uint8_t array[27];
    std::vector<uint8_t> vector(27);
    expectPlanesOf(array, odd);
    expectPlanesOf(vector, odd);
#if defined(__cpp_lib_span)
    expectPlanesOf(std::span<uint8_t>(vector), odd);
#endif
    vector.pop_back();
    EXPECT_THROW(viewOfSamples<Planar420<uint8_t>>(vector, odd), Error);
    EXPECT_THROW(viewOfSamples<Planar420<uint8_t>>(vector, ZorSize{-5, 3}), Error);
}

TEST(CppViewsTest, RegionsAndRowsUpwards)
{
    const std::vector<uint8_t> rgb = someBytes(Rgb::samples(size));
    const ZorRect part = {6, 4, 10, 8};
    std::vector<uint8_t> yuv(Planar420<uint8_t>::samples(size)), yuvOfPart(yuv), turned(yuv);
    const auto whole = viewOfSamples<Planar420<uint8_t>>(yuv, size);
    const auto of = viewOfSamples<Planar420<uint8_t>>(yuvOfPart, size).region(part);
    const auto src = viewOfSamples<ConstRgb>(rgb, size);
    rgbToYCbCr420(src, whole);
    rgbToYCbCr420(src.region(part), of);
    for (int p = 0; p < 3; ++p)
        for (int y = 0; y < of.plane(p).size.height; ++y)
            EXPECT_EQ(std::memcmp(of.plane(p).row(y), whole.region(part).plane(p).row(y),
                                  static_cast<std::size_t>(of.plane(p).size.width)),
                      0);

    std::vector<uint8_t> once(rgb.size()), twice(rgb.size());
    const Rgb upwards(once.data() + 15 * 72, -72, size);
    bgrToHLS(src, viewOfSamples<Planar<uint8_t, 3>>(once, size)); // any conversion that fills it
    rgbToHLS(src, upwards);
    rgbToHLS(src, viewOfSamples<Rgb>(twice, size));
    for (int y = 0; y < 16; ++y) EXPECT_EQ(std::memcmp(upwards.row(y), &twice[72u * static_cast<unsigned>(y)], 72), 0);
}

// ---- errors ---------------------------------------------------------------------------------------------------------

TEST(CppErrorsTest, WarningsAreReturned)
{
    const std::vector<uint8_t> rgb = someBytes(Rgb::samples({5, 4}));
    std::vector<uint8_t> yuv(Planar420<uint8_t>::samples({5, 4}));
    const auto src = viewOfSamples<ConstRgb>(rgb, {5, 4});
    const auto dst = viewOfSamples<Planar420<uint8_t>>(yuv, {5, 4});
    std::error_code error = makeErrorCode(zorStatusBadSize);
    EXPECT_EQ(rgbToYCbCr420(src, dst, error), zorStatusOddSize);
    EXPECT_FALSE(error);
    EXPECT_EQ(rgbToYCbCr420(src, dst), zorStatusOddSize);
}

TEST(CppErrorsTest, HaveTheWordsOfTheirDeclarations)
{
    std::error_code error;
    EXPECT_EQ(rgbToYCbCr420(ConstRgb(nullptr, 72, size), Planar420<uint8_t>(), error), zorStatusBadSize);
    EXPECT_EQ(error.message(), statusText(zorStatusBadSize));
    EXPECT_EQ(error.category(), statusCategory());
    EXPECT_STREQ(statusText(zorStatusNoiseRange), "zorStatusNoiseRange: the noise amount is outside 0..100");
    EXPECT_STREQ(statusText(zorStatusOk), "zorStatusOk");
    EXPECT_STREQ(statusText(-1000), "a status that zorcc does not have");
    EXPECT_EQ(makeErrorCode(zorStatusNoMemory), std::errc::not_enough_memory);
    EXPECT_NE(makeErrorCode(zorStatusBadStep), std::errc::not_enough_memory);
}

TEST(CppErrorsTest, StepsThatTheFunctionCannotTake)
{
    std::vector<uint8_t> rgb = someBytes(Rgb::samples(size)), yuv(rgb.size());
    const auto src = viewOfSamples<ConstRgb>(rgb, size);
    const auto dst = viewOfSamples<Planar<uint8_t, 3>>(yuv, size);
    std::error_code error;
    ConstRgb far = src;
    far.step[0] = std::ptrdiff_t{INT_MAX} + 1;
    EXPECT_EQ(rgbToYCbCr(far, dst, error), zorStatusBadStep);
    auto uneven = dst;
    uneven.step[2] += 1;
    EXPECT_EQ(rgbToYCbCr(src, uneven, error), zorStatusBadStep);
    EXPECT_EQ(yuv, std::vector<uint8_t>(rgb.size()));
    EXPECT_EQ(rgbToYCbCr(src, dst, error), zorStatusOk);

    const auto planes = viewOfSamples<Planar420<uint8_t>>(yuv, size);
    EXPECT_EQ(rgbToYUV420(src, planes, withoutSteps, error), zorStatusOk);
    EXPECT_EQ(rgbToYUV420(far, planes, withoutSteps, error), zorStatusBadStep);
    EXPECT_EQ(rgbToYUV420(src.region({0, 0, 22, 16}), planes.region({0, 0, 22, 16}), withoutSteps, error),
              zorStatusBadStep);
    EXPECT_EQ(error, makeErrorCode(zorStatusBadStep));
}

// ---- demosaicing ----------------------------------------------------------------------------------------------------

TEST(CppDemosaicTest, ScratchMemoryMakesNoDifference)
{
    const std::vector<uint8_t> raw = someBytes(24 * 16);
    const auto mosaic = viewOfSamples<Interleaved<const uint8_t, 1>>(raw, size);
    std::vector<uint8_t> own(Rgb::samples(size)), given(own), scratch(demosaicScratchBytes(24));
    demosaicAHD(mosaic, viewOfSamples<Rgb>(own, size), zorBayerGRBG);
    demosaicAHD(mosaic, viewOfSamples<Rgb>(given, size), zorBayerGRBG, scratch);
    EXPECT_EQ(own, given);
    EXPECT_NE(own, std::vector<uint8_t>(own.size()));
    scratch.pop_back();
    std::error_code error;
    EXPECT_EQ(demosaicAHD(mosaic, viewOfSamples<Rgb>(given, size), zorBayerGRBG, scratch, error), zorStatusBadArgument);
    EXPECT_TRUE(error);
}

TEST(CppDemosaicTest, RegionsAreClipped)
{
    const std::vector<uint8_t> raw = someBytes(24 * 16);
    const auto mosaic = viewOfSamples<Interleaved<const uint8_t, 1>>(raw, size);
    std::vector<uint8_t> whole(Rgb::samples(size)), part(Rgb::samples({20, 5}));
    const auto picture = viewOfSamples<Rgb>(whole, size);
    demosaicAHD(mosaic, picture, zorBayerRGGB);
    struct Case {
        ZorRect region;
        ZorRect inside;
    };
    for (const Case& c : {Case{{4, 8, 20, 5}, {4, 8, 20, 5}},
                          {{-3, -4, 10, 9}, {0, 0, 7, 5}},
                          {{20, 12, INT_MAX, INT_MAX}, {20, 12, 4, 4}}}) {
        const ZorSize inside = {c.inside.width, c.inside.height};
        const auto dst = viewOfSamples<Rgb>(part, inside);
        demosaicAHD(mosaic, c.region, dst, zorBayerRGGB);
        for (int y = 0; y < inside.height; ++y)
            EXPECT_EQ(
                std::memcmp(dst.row(y), picture.region(c.inside).row(y), 3u * static_cast<unsigned>(inside.width)), 0);
        std::error_code error;
        cfaToRGB(mosaic, c.region, dst.region({0, 0, inside.width - 1, inside.height}), zorBayerRGGB, error);
        EXPECT_EQ(error, makeErrorCode(zorStatusBadSize));
    }
}

} // namespace
