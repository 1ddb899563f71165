// SPDX-License-Identifier: MIT
// Frames through the element, beside the conversion layer called by hand.
#include <gst/video/gstvideometa.h>

#include "formats.h"
#include "pairs.h"
#include "tests/bindings/gstreamer/frames.h"

namespace zorcc::gstreamer {

namespace {

// A plan, run from frame to frame; of the rows of one parity where it is 0 or 1.
void convertByHand(const GstVideoInfo& from, GstBuffer* source, const GstVideoInfo& to, GstBuffer* destination,
                   ZorPlanOptions options = {}, int parity = -1)
{
    const int height = parity < 0 ? from.height : (from.height + 1 - parity) / 2;
    const ZorPicture ends[2] = {kindOf(from)->picture({from.width, height}), kindOf(to)->picture({from.width, height})};
    const bool isPadded = !GST_VIDEO_INFO_HAS_ALPHA(&from) && GST_VIDEO_INFO_HAS_ALPHA(&to);
    options.structBytes = sizeof options;
    if (isPadded) options.alpha = zorAlphaOpaque;
    const Frame input(from, source), output(to, destination, GST_MAP_WRITE);
    const void* sources[ZOR_MAX_PLANES];
    void* destinations[ZOR_MAX_PLANES];
    int steps[2][ZOR_MAX_PLANES];
    const int first = parity == 1, every = parity < 0 ? 1 : 2;
    for (int p = 0; p < input.planes(); ++p) sources[p] = input.row(p, first), steps[0][p] = every * input.step(p);
    for (int p = 0; p < output.planes(); ++p)
        destinations[p] = output.row(p, first), steps[1][p] = every * output.step(p);
    ZorPlan* const plan = zorPlanCreate(&ends[0], &ends[1], &options);
    ASSERT_EQ(zorPlanRun(plan, sources, steps[0], destinations, steps[1]), zorStatusOk) << zorPlanDescribe(plan);
    zorPlanFree(plan);
}

Buffer convertedByHand(const GstVideoInfo& from, const Buffer& source, const GstVideoInfo& to,
                       const ZorPlanOptions& options = {})
{
    Buffer result(gst_buffer_new_and_alloc(to.size));
    convertByHand(from, source.get(), to, result.get(), options);
    return result;
}

const char* nameOf(const GstVideoInfo& info) { return knownFormats[indexOf(GST_VIDEO_INFO_FORMAT(&info))].name; }

void expectSame(const GstVideoInfo& info, const Buffer& found, const Buffer& expected, const std::string& what)
{
    ASSERT_TRUE(found && expected) << what;
    EXPECT_TRUE(std::isinf(psnr(info, nameOf(info), found, expected))) << what;
}

} // namespace

TEST(GstElement, AllPairsAreTheConversionLayers)
{
    constexpr int width = 37, height = 21;
    for (const auto& [source, sourceName] : knownFormats)
        for (const auto& [destination, destinationName] : knownFormats) {
            const std::string from = sized(gst_video_format_to_string(source), width, height);
            const std::string to = sized(gst_video_format_to_string(destination), width, height);
            const std::string what = std::string(sourceName) + " to " + destinationName;
            Harness harness("zorconvert");
            harness.setCaps(from, to);
            const Buffer input = randomBuffer(infoOf(from)), output = harness.convert(input);
            const bool isExpected = source == destination || connects(*kindOf(infoOf(from)), *kindOf(infoOf(to)));
            ASSERT_EQ(output != nullptr, isExpected) << what;
            if (source == destination) {
                EXPECT_EQ(output, input) << "not passed: " << what;
            } else if (isExpected) {
                const GstVideoInfo found = harness.outputInfo();
                expectSame(found, output, convertedByHand(infoOf(from), input, found), what);
            }
        }
}

TEST(GstElement, StridesAndOffsetsAreThoseOfTheVideoMeta)
{
    const std::string caps = sized("NV12", 30, 6), output = sized("BGRx", 30, 6);
    const GstVideoInfo info = infoOf(caps);
    const Buffer input(gst_buffer_new_and_alloc(4096));
    gsize offsets[GST_VIDEO_MAX_PLANES] = {131, 2050};
    gint strides[GST_VIDEO_MAX_PLANES] = {33, 77};
    gst_buffer_add_video_meta_full(input.get(), GST_VIDEO_FRAME_FLAG_NONE, GST_VIDEO_FORMAT_NV12, 30, 6, 2, offsets,
                                   strides);
    const Buffer tight = randomBuffer(info);
    {
        const Frame from(info, tight.get()), to(info, input.get(), GST_MAP_WRITE);
        for (int y = 0; y < 6; ++y) std::memcpy(to.row(0, y), from.row(0, y), 30);
        for (int y = 0; y < 3; ++y) std::memcpy(to.row(1, y), from.row(1, y), 30);
    }
    Harness harness("zorconvert");
    harness.setCaps(caps, output);
    expectSame(infoOf(output), harness.convert(input), convertedByHand(info, tight, infoOf(output)), "with meta");
}

TEST(GstElement, CapsMayChangeOnTheWay)
{
    Harness harness("zorconvert");
    harness.setCaps(sized("I420", 64, 48), rawCaps("format=BGRx"));
    for (const std::string& caps :
         {sized("I420", 64, 48), sized("I420", 33, 21), sized("YUY2", 33, 21, "colorimetry=bt709"),
          sized("BGRx", 33, 21), sized("GRAY8", 8, 8), sized("I420", 64, 48)}) {
        harness.setInput(caps);
        const Buffer input = randomBuffer(infoOf(caps)), output = harness.convert(input);
        const GstVideoInfo found = harness.outputInfo();
        EXPECT_EQ(found.width, infoOf(caps).width);
        if (caps.find("BGRx") != std::string::npos)
            EXPECT_EQ(output, input);
        else
            expectSame(found, output, convertedByHand(infoOf(caps), input, found), caps);
    }
}

TEST(GstElement, FieldsShareChromaWithThemselves)
{
    for (const int height : {4, 6, 7, 48}) {
        const std::string more = "interlace-mode=interleaved,field-order=top-field-first";
        const GstVideoInfo from = infoOf(sized("I420", 20, height, more)), to = infoOf(sized("RGB", 20, height, more));
        Harness harness("zorconvert");
        harness.setCaps(sized("I420", 20, height, more), sized("RGB", 20, height));
        const Buffer input = randomBuffer(from);
        GST_BUFFER_FLAG_SET(input.get(), GST_VIDEO_BUFFER_FLAG_TFF);
        const Buffer output = harness.convert(input), expected(gst_buffer_new_and_alloc(to.size));
        for (const int parity : {0, 1}) convertByHand(from, input.get(), to, expected.get(), {}, parity);
        expectSame(to, output, expected, "height " + std::to_string(height));
        EXPECT_TRUE(GST_BUFFER_FLAG_IS_SET(output.get(), GST_VIDEO_BUFFER_FLAG_TFF));
        EXPECT_NE(harness.outputCaps().find("interleaved"), std::string::npos);
    }
}

// Memory that ends with the picture has no fourth row of chroma for two fields of three rows.
TEST(GstElement, FieldsWithoutMemoryForTheirChromaAreOneFrame)
{
    const std::string more = "interlace-mode=interleaved";
    const GstVideoInfo interlaced = infoOf(sized("I420", 20, 6, more)), progressive = infoOf(sized("I420", 20, 6));
    GstVideoInfo layout = progressive;
    const GstVideoInfo to = infoOf(sized("RGB", 20, 6));
    ASSERT_GT(interlaced.size, progressive.size);
    const Buffer input = randomBuffer(progressive);
    gst_buffer_add_video_meta_full(input.get(), GST_VIDEO_FRAME_FLAG_INTERLACED, GST_VIDEO_FORMAT_I420, 20, 6, 3,
                                   layout.offset, layout.stride);
    Harness harness("zorconvert");
    harness.setCaps(sized("I420", 20, 6, more), sized("RGB", 20, 6));
    expectSame(to, harness.convert(input), convertedByHand(progressive, input, to), "as one frame");
}

TEST(GstElement, PropertiesAreThePlans)
{
    ZorPlanOptions ordered{}, stucki{}, opaque{};
    ordered.depth = zorDepthOrdered, ordered.fields = zorFieldsDither;
    stucki.depth = zorDepthStucki;
    opaque.alpha = zorAlphaOpaque;
    const struct {
        const char *launch, *from, *to;
        ZorPlanOptions options;
    } cases[] = {{"zorconvert dither=ordered", "I420", "RGB16", ordered},
                 {"zorconvert dither=stucki", "RGBA64_LE", "RGB", stucki},
                 {"zorconvert alpha=opaque", "BGRA", "RGBA", opaque},
                 {"zorconvert n-threads=3", "NV12", "RGB", {}}};
    for (const auto& [launch, from, to, options] : cases) {
        Harness harness(launch);
        harness.setCaps(sized(from, 64, 300), sized(to, 64, 300));
        const Buffer input = randomBuffer(infoOf(sized(from, 64, 300)));
        expectSame(infoOf(sized(to, 64, 300)), harness.convert(input),
                   convertedByHand(infoOf(sized(from, 64, 300)), input, infoOf(sized(to, 64, 300)), options), launch);
    }
}

TEST(GstElement, PropertiesMayChangeOnTheWay)
{
    const std::string from = sized("GRAY16_LE", 40, 40), to = sized("GRAY8", 40, 40);
    const Buffer input = randomBuffer(infoOf(from));
    Harness harness("zorconvert");
    harness.setCaps(from, to);
    for (const char* const dither : {"none", "floyd-steinberg", "truncate", "ordered", "none"}) {
        gst_util_set_object_arg(G_OBJECT(harness.element()), "dither", dither);
        ZorPlanOptions options{};
        gint value = 0;
        g_object_get(harness.element(), "dither", &value, nullptr);
        options.depth = static_cast<ZorDepth>(value);
        expectSame(infoOf(to), harness.convert(input), convertedByHand(infoOf(from), input, infoOf(to), options),
                   dither);
    }
}

TEST(GstElement, MetasAndTimesAreKept)
{
    Harness harness("zorconvert");
    harness.setCaps(sized("I420", 32, 32), sized("RGB", 32, 32));
    const Buffer input = randomBuffer(infoOf(sized("I420", 32, 32)));
    const Caps reference(gst_caps_new_empty_simple("timestamp/x-test"));
    GST_BUFFER_PTS(input.get()) = 7 * GST_SECOND;
    gst_buffer_add_reference_timestamp_meta(input.get(), reference.get(), 42, GST_CLOCK_TIME_NONE);
    gst_buffer_add_video_region_of_interest_meta(input.get(), "face", 1, 2, 3, 4);
    const Buffer output = harness.convert(input);
    ASSERT_TRUE(output);
    EXPECT_EQ(GST_BUFFER_PTS(output.get()), 7 * GST_SECOND);
    const auto* const time = gst_buffer_get_reference_timestamp_meta(output.get(), reference.get());
    ASSERT_TRUE(time);
    EXPECT_EQ(time->timestamp, 42U);
    EXPECT_TRUE(gst_buffer_get_meta(output.get(), GST_VIDEO_REGION_OF_INTEREST_META_API_TYPE));
}

} // namespace zorcc::gstreamer
