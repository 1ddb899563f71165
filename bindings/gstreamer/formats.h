// SPDX-License-Identifier: MIT
// GStreamer's formats and colours by their names in the conversion layer.
#pragma once

#include <gst/video/video.h>

#include <iterator>
#include <optional>

#include "zorconvert.h"

namespace zorcc::gstreamer {

struct KnownFormat {
    GstVideoFormat format;
    const char* name; // of zorFormatAt
};

// GStreamer names fields of 16 bits from the highest one, the conversion layer from the lowest.
inline constexpr KnownFormat knownFormats[] = {
    {GST_VIDEO_FORMAT_I420, "yuv420p"},     {GST_VIDEO_FORMAT_YV12, "yvu420p"},  {GST_VIDEO_FORMAT_NV12, "nv12"},
    {GST_VIDEO_FORMAT_NV21, "nv21"},        {GST_VIDEO_FORMAT_YUY2, "yuyv"},     {GST_VIDEO_FORMAT_UYVY, "uyvy"},
    {GST_VIDEO_FORMAT_YVYU, "yvyu"},        {GST_VIDEO_FORMAT_VYUY, "vyuy"},     {GST_VIDEO_FORMAT_Y42B, "yuv422p"},
    {GST_VIDEO_FORMAT_NV16, "nv16"},        {GST_VIDEO_FORMAT_NV61, "nv61"},     {GST_VIDEO_FORMAT_Y444, "yuv444p"},
    {GST_VIDEO_FORMAT_NV24, "nv24"},        {GST_VIDEO_FORMAT_v308, "yuv24"},    {GST_VIDEO_FORMAT_Y41B, "yuv411p"},
    {GST_VIDEO_FORMAT_YUV9, "i410"},        {GST_VIDEO_FORMAT_A420, "yuva420p"}, {GST_VIDEO_FORMAT_RGB, "rgb24"},
    {GST_VIDEO_FORMAT_BGR, "bgr24"},        {GST_VIDEO_FORMAT_RGBA, "rgba"},     {GST_VIDEO_FORMAT_BGRA, "bgra"},
    {GST_VIDEO_FORMAT_ARGB, "argb"},        {GST_VIDEO_FORMAT_ABGR, "abgr"},     {GST_VIDEO_FORMAT_RGBx, "rgba"},
    {GST_VIDEO_FORMAT_BGRx, "bgra"},        {GST_VIDEO_FORMAT_xRGB, "argb"},     {GST_VIDEO_FORMAT_xBGR, "abgr"},
    {GST_VIDEO_FORMAT_RGBP, "rgb444p"},     {GST_VIDEO_FORMAT_BGRP, "bgr444p"},  {GST_VIDEO_FORMAT_GBR, "gbrp"},
    {GST_VIDEO_FORMAT_GBRA, "gbrap"},       {GST_VIDEO_FORMAT_RGB16, "bgr565"},  {GST_VIDEO_FORMAT_BGR16, "rgb565"},
    {GST_VIDEO_FORMAT_RGB15, "bgr555"},     {GST_VIDEO_FORMAT_BGR15, "rgb555"},  {GST_VIDEO_FORMAT_RGBA64_LE, "rgba64"},
    {GST_VIDEO_FORMAT_BGRA64_LE, "bgra64"}, {GST_VIDEO_FORMAT_GRAY8, "grey8"},   {GST_VIDEO_FORMAT_GRAY16_LE, "grey16"},
};
inline constexpr int formatCount = static_cast<int>(std::size(knownFormats));

inline constexpr struct {
    GstVideoColorMatrix matrix;
    const char* name;
} knownMatrices[] = {
    {GST_VIDEO_COLOR_MATRIX_BT601, "bt601"},         {GST_VIDEO_COLOR_MATRIX_BT709, "bt709"},
    {GST_VIDEO_COLOR_MATRIX_BT2020, "bt2020"},       {GST_VIDEO_COLOR_MATRIX_FCC, "fcc"},
    {GST_VIDEO_COLOR_MATRIX_SMPTE240M, "smpte240m"},
};

inline const GstVideoFormatInfo* infoOf(int format) { return gst_video_format_get_info(knownFormats[format].format); }

// A known format with a colour: what matters of a picture's caps to a plan.
struct Kind {
    int format; // index in knownFormats
    int colour; // 2 * index in knownMatrices, plus 1 for full range; 0 for formats without luma and chroma

    // For both ranges of all matrices.
    static constexpr int colourCount = 2 * static_cast<int>(std::size(knownMatrices));

    const GstVideoFormatInfo* info() const { return infoOf(format); }
    ZorPicture picture(ZorSize size) const;

    bool operator==(const Kind&) const = default;
};

// -1: unknown.
int indexOf(GstVideoFormat format);

// None for colours that the conversion layer has no name for: RGB and grey of limited range, other matrices.
std::optional<Kind> kindOf(int format, const GstVideoColorimetry& colorimetry, int height);
std::optional<Kind> kindOf(const GstVideoInfo& info);

} // namespace zorcc::gstreamer
