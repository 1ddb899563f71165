// SPDX-License-Identifier: MIT
// Frames, and elements with a harness around them.
#pragma once

#include <gst/check/gstharness.h>
#include <gst/video/video.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "zorconvert.h"

namespace zorcc::gstreamer {

struct Unref {
    void operator()(GstBuffer* buffer) const { gst_buffer_unref(buffer); }
    void operator()(GstCaps* caps) const { gst_caps_unref(caps); }
    void operator()(GstMessage* message) const { gst_message_unref(message); }
};
using Buffer = std::unique_ptr<GstBuffer, Unref>;
using Caps = std::unique_ptr<GstCaps, Unref>;

inline std::string rawCaps(const std::string& fields) { return "video/x-raw,framerate=25/1," + fields; }

inline std::string sized(const std::string& format, int width, int height, const std::string& more = "")
{
    return rawCaps("format=" + format + ",width=" + std::to_string(width) + ",height=" + std::to_string(height) +
                   (more.empty() ? "" : "," + more));
}

inline GstVideoInfo infoOf(const std::string& caps)
{
    GstVideoInfo info;
    EXPECT_TRUE(gst_video_info_from_caps(&info, Caps(gst_caps_from_string(caps.c_str())).get())) << caps;
    return info;
}

// A frame in memory as caps lay it out, or as a video meta of the buffer does.
class Frame {
public:
    Frame(const GstVideoInfo& info, GstBuffer* buffer, GstMapFlags flags = GST_MAP_READ)
    {
        EXPECT_TRUE(gst_video_frame_map(&frame, &info, buffer, flags));
    }
    ~Frame() { gst_video_frame_unmap(&frame); }
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    int planes() const { return static_cast<int>(GST_VIDEO_FRAME_N_PLANES(&frame)); }
    guint8* row(int p, int y) const
    {
        return static_cast<guint8*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, p)) +
               GST_VIDEO_FRAME_PLANE_STRIDE(&frame, p) * y;
    }
    int step(int p) const { return GST_VIDEO_FRAME_PLANE_STRIDE(&frame, p); }

private:
    GstVideoFrame frame;
};

inline Buffer randomBuffer(const GstVideoInfo& info, unsigned seed = 1)
{
    GstBuffer* const buffer = gst_buffer_new_and_alloc(info.size);
    std::mt19937 random(seed);
    GstMapInfo map;
    gst_buffer_map(buffer, &map, GST_MAP_WRITE);
    for (gsize i = 0; i < map.size; ++i) map.data[i] = static_cast<guint8>(random());
    gst_buffer_unmap(buffer, &map);
    return Buffer(buffer);
}

// An element between pads of the test.
class Harness {
public:
    explicit Harness(const std::string& launch) : bus(gst_bus_new())
    {
        const bool isName = launch.find(' ') == std::string::npos;
        harness = isName ? gst_harness_new(launch.c_str()) : gst_harness_new_parse(launch.c_str());
        gst_element_set_bus(harness->element, bus);
    }
    ~Harness()
    {
        gst_element_set_bus(harness->element, nullptr);
        gst_harness_teardown(harness);
        gst_object_unref(bus);
    }
    Harness(const Harness&) = delete;
    Harness& operator=(const Harness&) = delete;

    // What comes in, and what the other side permits.
    void setCaps(const std::string& input, const std::string& output)
    {
        gst_harness_set_sink_caps_str(harness, output.c_str());
        gst_harness_set_src_caps_str(harness, input.c_str());
    }
    void setInput(const std::string& input) { gst_harness_set_src_caps_str(harness, input.c_str()); }

    // Null where it is refused.
    Buffer convert(const Buffer& buffer)
    {
        if (gst_harness_push(harness, gst_buffer_ref(buffer.get())) != GST_FLOW_OK) return {};
        return Buffer(gst_harness_pull(harness));
    }

    std::string outputCaps() const
    {
        const Caps caps(gst_pad_get_current_caps(harness->sinkpad));
        if (!caps) return "none";
        gchar* const text = gst_caps_to_string(caps.get());
        const std::string result = text;
        g_free(text);
        return result;
    }
    GstVideoInfo outputInfo() const { return infoOf(outputCaps()); }

    // Of warnings and errors since the last call.
    std::string words()
    {
        std::string words;
        while (GstMessage* const message =
                   gst_bus_pop_filtered(bus, static_cast<GstMessageType>(GST_MESSAGE_WARNING | GST_MESSAGE_ERROR))) {
            GError* error = nullptr;
            const bool isError = GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR;
            isError ? gst_message_parse_error(message, &error, nullptr)
                    : gst_message_parse_warning(message, &error, nullptr);
            words += error->message;
            g_error_free(error);
            gst_message_unref(message);
        }
        return words;
    }

    GstElement* element() const { return harness->element; }
    GstElement* find(const char* name) const { return gst_harness_find_element(harness, name); }

private:
    GstBus* bus;
    GstHarness* harness;
};

// The conversion layer, called by hand.
inline ZorPicture pictureOf(const char* name, const char* matrix, ZorRange range, ZorSize size)
{
    return {name, matrix, range, size};
}

inline double psnr(const GstVideoInfo& info, const char* name, const Buffer& a, const Buffer& b)
{
    const ZorPicture picture{name, nullptr, zorRangeDefault, {info.width, info.height}};
    ZorLayout layout;
    EXPECT_EQ(zorPictureLayout(&picture, &layout), zorStatusOk);
    const Frame one(info, a.get()), other(info, b.get());
    double squares = 0, samples = 0;
    for (int p = 0; p < layout.planes; ++p)
        for (int y = 0; y < layout.rows[p]; ++y)
            for (int i = 0; i < layout.rowBytes[p]; ++i, ++samples)
                squares += std::pow(one.row(p, y)[i] - other.row(p, y)[i], 2);
    return 10 * std::log10(255.0 * 255.0 * samples / squares);
}

} // namespace zorcc::gstreamer
