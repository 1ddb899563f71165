// SPDX-License-Identifier: MIT
// The table of formats, beside GStreamer's own descriptions and the conversion layer's.
#include "formats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "pairs.h"

namespace zorcc::gstreamer {

namespace {

ZorLayout layoutOf(const char* name, ZorSize size)
{
    ZorLayout layout{};
    const ZorPicture picture{name, nullptr, zorRangeDefault, size};
    EXPECT_EQ(zorPictureLayout(&picture, &layout), zorStatusOk) << name;
    return layout;
}

// Where a channel's first sample is, and how far it is to the next one, in bytes.
struct Place {
    int plane, offset, stride;
    bool operator==(const Place&) const = default;
};

Place placeIn(const ZorLayout& layout, char channel)
{
    const std::string_view channels = layout.channels;
    const int index = static_cast<int>(channels.find(channel)), count = static_cast<int>(channels.size());
    const int bytes = layout.sampleBytes;
    if (layout.planes == count) return {index, 0, bytes};
    if (layout.planes == 2) return {index > 0, (index > 0 ? index - 1 : 0) * bytes, (index > 0 ? 2 : 1) * bytes};
    const bool isPair = channels.find('Y') != channels.rfind('Y');
    return {0, index * bytes, (isPair && channel == 'Y' ? 2 : count) * bytes};
}

bool isPackedBits(const ZorLayout& layout) { return layout.fieldBits[0] != 0; }

// GStreamer describes BGR16, BGR15 and VYUY as if they were RGB16, RGB15 and UYVY; what it unpacks is right.
bool isWronglyDescribed(const ZorLayout& layout)
{
    return isPackedBits(layout) || std::string_view(layout.channels) == "VYUY" ||
           std::string_view(layout.channels) == "UYVY";
}

// A line of random bytes, as a picture of a known format.
struct Line {
    static constexpr int width = 64, step = 8 * width;

    std::vector<guint8> memory[GST_VIDEO_MAX_PLANES];
    gpointer planes[GST_VIDEO_MAX_PLANES] = {};
    gint strides[GST_VIDEO_MAX_PLANES] = {};

    Line()
    {
        std::mt19937 random(1);
        for (int p = 0; p < GST_VIDEO_MAX_PLANES; ++p) {
            memory[p].resize(step);
            for (guint8& byte : memory[p]) byte = static_cast<guint8>(random());
            planes[p] = memory[p].data(), strides[p] = step;
        }
    }

    std::vector<guint8> unpackedBy(const GstVideoFormatInfo& info)
    {
        std::vector<guint8> pixels(step);
        info.unpack_func(&info, GST_VIDEO_PACK_FLAG_TRUNCATE_RANGE, pixels.data(), planes, strides, 0, 0, width);
        return pixels;
    }
};

bool isLike(const GstVideoFormatInfo& info, const ZorLayout& layout)
{
    const bool isGrey = GST_VIDEO_FORMAT_INFO_IS_GRAY(&info), isYuv = GST_VIDEO_FORMAT_INFO_IS_YUV(&info);
    const std::string letters = isGrey ? "L" : isYuv ? "YUVA" : "RGBA";
    const int components = static_cast<int>(GST_VIDEO_FORMAT_INFO_N_COMPONENTS(&info));
    const std::string_view channels = layout.channels;
    for (const char channel : channels)
        if (letters.find(channel) == std::string::npos) return false;
    // RGBx has bytes that are no component.
    const bool hasAlpha = channels.find('A') != std::string_view::npos;
    const bool isPadded = !isYuv && hasAlpha && components == 3 && layout.planes == 1;
    if (hasAlpha != (components == 4) && !isPadded) return false;
    const bool isLittle = GST_VIDEO_FORMAT_INFO_IS_LE(&info);
    if (layout.sample != (info.depth[0] > 8 ? zorSample16u : zorSample8u) || (info.depth[0] > 8 && !isLittle) ||
        info.depth[0] != 8U * layout.sampleBytes || GST_VIDEO_FORMAT_INFO_IS_TILED(&info) ||
        static_cast<int>(GST_VIDEO_FORMAT_INFO_N_PLANES(&info)) != layout.planes)
        return false;
    for (int c = 0; c < components; ++c) {
        if (channels.find(letters[c]) == std::string_view::npos) return false;
        if (placeIn(layout, letters[c]) !=
            Place{static_cast<int>(info.plane[c]), static_cast<int>(info.poffset[c]), info.pixel_stride[c]})
            return false;
    }
    return isGrey || (static_cast<int>(info.w_sub[1]) == layout.log2ChromaX &&
                      static_cast<int>(info.h_sub[1]) == layout.log2ChromaY);
}

} // namespace

TEST(GstFormats, TableHasWhatBothDescribeAlike)
{
    for (int format = GST_VIDEO_FORMAT_I420; format <= GST_VIDEO_FORMAT_NV12_10BE_8L128; ++format) {
        const GstVideoFormatInfo& info = *gst_video_format_get_info(static_cast<GstVideoFormat>(format));
        const int index = indexOf(info.format);
        int matches = 0;
        for (int i = 0; const char* const name = zorFormatAt(i); ++i) {
            const ZorLayout layout = layoutOf(name, {16, 16});
            const bool isPair = index >= 0 && std::string(knownFormats[index].name) == name;
            if (!isWronglyDescribed(layout)) {
                EXPECT_EQ(isPair, isLike(info, layout)) << info.name << " and " << name;
            }
            matches += isPair;
        }
        EXPECT_EQ(matches, index >= 0) << info.name;
    }
}

TEST(GstFormats, PlanesFitIntoGstreamersStridesAndSizes)
{
    for (const auto& [format, name] : knownFormats)
        for (int width = 1; width <= 17; ++width)
            for (int height = 1; height <= 9; ++height) {
                GstVideoInfo info;
                ASSERT_TRUE(gst_video_info_set_format(&info, format, width, height));
                const ZorLayout layout = layoutOf(name, {width, height});
                for (int p = 0; p < layout.planes; ++p) {
                    const gsize next = p + 1 < layout.planes ? info.offset[p + 1] : info.size;
                    ASSERT_GE(info.stride[p], layout.rowBytes[p]) << name << width << 'x' << height;
                    ASSERT_GE(next, info.offset[p] + info.stride[p] * (layout.rows[p] - 1) + layout.rowBytes[p])
                        << name << width << 'x' << height;
                }
            }
}

TEST(GstFormats, RgbIsWhatGstreamerUnpacks)
{
    for (const auto& [format, name] : knownFormats) {
        const GstVideoFormatInfo& info = *gst_video_format_get_info(format);
        if (!GST_VIDEO_FORMAT_INFO_IS_RGB(&info)) continue;
        Line line;
        std::vector<guint8> expected = line.unpackedBy(info), found(Line::step);
        const bool isDeep = info.unpack_format == GST_VIDEO_FORMAT_ARGB64;
        const ZorPicture from{name, nullptr, zorRangeDefault, {Line::width, 1}};
        const ZorPicture to{isDeep ? "rgba64" : "argb", nullptr, zorRangeDefault, {Line::width, 1}};
        ZorPlanOptions options{};
        options.structBytes = sizeof options;
        options.alpha = GST_VIDEO_FORMAT_INFO_HAS_ALPHA(&info) ? zorAlphaDrop : zorAlphaOpaque;
        ZorPlan* const plan = zorPlanCreate(&from, &to, &options);
        void* const destination = found.data();
        const int step = Line::step;
        ASSERT_EQ(zorPlanRun(plan, line.planes, line.strides, &destination, &step), zorStatusOk)
            << zorPlanDescribe(plan);
        zorPlanFree(plan);
        if (isDeep) // ARGB64 to RGBA64
            for (int x = 0; x < Line::width; ++x)
                std::rotate(&expected[8 * x], &expected[8 * x + 2], &expected[8 * x + 8]);
        if (!GST_VIDEO_FORMAT_INFO_HAS_ALPHA(&info)) // GStreamer unpacks the fourth byte of RGBx as it is
            for (int x = 0; x < Line::width; ++x) expected[4 * x] = 255;
        EXPECT_EQ(expected, found) << info.name;
    }
}

TEST(GstFormats, LumaAndChromaAreWhereGstreamerUnpacksThemFrom)
{
    for (const auto& [format, name] : knownFormats) {
        const GstVideoFormatInfo& info = *gst_video_format_get_info(format);
        if (!GST_VIDEO_FORMAT_INFO_IS_YUV(&info)) continue;
        ASSERT_EQ(info.unpack_format, GST_VIDEO_FORMAT_AYUV);
        Line line;
        const std::vector<guint8> expected = line.unpackedBy(info);
        const ZorLayout layout = layoutOf(name, {Line::width, 1});
        for (int c = 0; c < 3; ++c) {
            const Place place = placeIn(layout, "YUV"[c]);
            for (int x = 0; x < Line::width; ++x) {
                const int sample = c > 0 ? x >> layout.log2ChromaX : x;
                ASSERT_EQ(expected[4 * x + 1 + c], line.memory[place.plane][place.offset + place.stride * sample])
                    << info.name << ", "
                    << "YUV"[c] << " at " << x;
            }
        }
    }
}

TEST(GstFormats, ColoursAreConvertibleInOneLayoutOrInNone)
{
    for (int colour = 0; colour < Kind::colourCount; ++colour) {
        const Kind planes{indexOf(GST_VIDEO_FORMAT_I420), colour}, rgb{indexOf(GST_VIDEO_FORMAT_RGB), 0};
        for (int format = 0; format < formatCount; ++format)
            if (const Kind kind{format, colour}; GST_VIDEO_FORMAT_INFO_IS_YUV(kind.info())) {
                EXPECT_LE(connects(kind, rgb) || connects(rgb, kind), isConvertible(planes)) << infoOf(format)->name;
            }
        const bool isExpected = colour / 2 == 1 || colour == 0; // BT.709 in both ranges, BT.601 of limited range
        EXPECT_EQ(isConvertible(planes), isExpected) << colour;
    }
}

} // namespace zorcc::gstreamer
