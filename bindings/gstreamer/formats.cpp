// SPDX-License-Identifier: MIT
#include "formats.h"

namespace zorcc::gstreamer {

namespace {

int indexOf(GstVideoColorMatrix matrix)
{
    for (int i = 0; i < static_cast<int>(std::size(knownMatrices)); ++i)
        if (knownMatrices[i].matrix == matrix) return i;
    return -1;
}

// Of luma and chroma that do not say it, as GStreamer fills in caps.
GstVideoColorMatrix usualMatrix(int height)
{
    return height > 576 ? GST_VIDEO_COLOR_MATRIX_BT709 : GST_VIDEO_COLOR_MATRIX_BT601;
}

} // namespace

int indexOf(GstVideoFormat format)
{
    for (int i = 0; i < formatCount; ++i)
        if (knownFormats[i].format == format) return i;
    return -1;
}

ZorPicture Kind::picture(ZorSize size) const
{
    if (!GST_VIDEO_FORMAT_INFO_IS_YUV(info())) return {knownFormats[format].name, nullptr, zorRangeDefault, size};
    return {knownFormats[format].name, knownMatrices[colour / 2].name, colour % 2 ? zorRangeFull : zorRangeLimited,
            size};
}

std::optional<Kind> kindOf(int format, const GstVideoColorimetry& colorimetry, int height)
{
    if (format < 0) return {};
    const bool isLimited = colorimetry.range == GST_VIDEO_COLOR_RANGE_16_235;
    if (!GST_VIDEO_FORMAT_INFO_IS_YUV(infoOf(format))) return isLimited ? std::optional<Kind>{} : Kind{format, 0};
    const bool isSaid = colorimetry.matrix != GST_VIDEO_COLOR_MATRIX_UNKNOWN;
    const int matrix = indexOf(isSaid ? colorimetry.matrix : usualMatrix(height));
    if (matrix < 0) return {};
    return Kind{format, 2 * matrix + (colorimetry.range == GST_VIDEO_COLOR_RANGE_0_255)};
}

std::optional<Kind> kindOf(const GstVideoInfo& info)
{
    return kindOf(indexOf(GST_VIDEO_INFO_FORMAT(&info)), info.colorimetry, info.height);
}

} // namespace zorcc::gstreamer
