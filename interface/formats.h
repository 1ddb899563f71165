// SPDX-License-Identifier: MIT
// Pixel formats as data: what a caller of the library must lay out in memory. Shared by tests, benchmarks and the tool.
#pragma once

#include <cstddef>
#include <string_view>

namespace zorcc::interface {

// Colour models: Bayer mosaics, grey, R'G'B', analogue-television Y'UV, Y'CbCr by its matrix, which is anyYcc where
// samples only change places, and the hexcone models. In channel strings M stands for a mosaic's sample, L for grey (in
// those of HLS for lightness), U for Cb, V for Cr (in those of HSV for the value).
enum class Model { mosaic, grey, rgb, yuv, bt601, bt709, bt709full, anyYcc, hls, hsv };

enum class Sample { u8, u16, s16, s32, f32 };

constexpr int sampleBytes(Sample sample)
{
    return sample == Sample::u8 ? 1 : sample == Sample::u16 || sample == Sample::s16 ? 2 : 4;
}

enum class Layout {
    interleaved, // one plane, all channels of a pixel side by side
    planar,      // one plane a channel; channels 1 and 2 may be subsampled
    packed422,   // one plane, four samples for two pixels
    semiPlanar,  // a luma plane and a plane of interleaved chroma pairs
    packedBits   // one plane, all channels in the bits of one sample
};

// A plane holds `samples` samples for every (1 << log2X) x (1 << log2Y) pixels.
struct PlaneShape {
    int samples = 0, log2X = 0, log2Y = 0;
};

inline constexpr int maxPlanes = 4;

struct Format {
    std::string_view name;     // unique, as the tool's users write it
    std::string_view channels; // in memory order, one letter each: "BGRA", "YUV", packed 4:2:2 by bytes: "YUYV"
    Model model;
    Sample sample;
    Layout layout;
    int planes;
    PlaneShape plane[maxPlanes];

    constexpr bool subsampled() const { return layout == Layout::packed422 || plane[1].log2X > 0; }
    constexpr int log2X() const { return layout == Layout::packed422 ? 1 : plane[1].log2X; } // chroma subsampling
    constexpr int log2Y() const { return plane[1].log2Y; }
};

// Bytes of one row of plane p, and its rows, that an image of the given size occupies. An odd last pixel counts for
// nothing in a subsampled plane; a packed 4:2:2 row ends behind the last pixel's own two bytes.
constexpr std::size_t rowBytes(const Format& f, int p, int width)
{
    return static_cast<std::size_t>(width >> f.plane[p].log2X) * f.plane[p].samples * sampleBytes(f.sample);
}
constexpr int rows(const Format& f, int p, int height) { return height >> f.plane[p].log2Y; }

namespace formats {

constexpr Format interleaved(std::string_view name, std::string_view channels, Model model, Sample sample)
{
    return {name, channels, model, sample, Layout::interleaved, 1, {{static_cast<int>(channels.size()), 0, 0}}};
}

// Chroma planes (1 and 2) hold one sample for (1 << log2X) x (1 << log2Y) pixels.
constexpr Format planar(std::string_view name, std::string_view channels, Model model, Sample sample, int log2X = 0,
                        int log2Y = 0)
{
    return {name,
            channels,
            model,
            sample,
            Layout::planar,
            static_cast<int>(channels.size()),
            {{1, 0, 0}, {1, log2X, log2Y}, {1, log2X, log2Y}, {channels.size() > 3 ? 1 : 0, 0, 0}}};
}

constexpr Format packed422(std::string_view name, std::string_view channels, Model model)
{
    return {name, channels, model, Sample::u8, Layout::packed422, 1, {{2, 0, 0}}};
}

// A plane of luma and one of pairs of chroma samples, each for (1 << log2X) x (1 << log2Y) pixels.
constexpr Format semiPlanar(std::string_view name, std::string_view channels, Model model, int log2X, int log2Y)
{
    return {name, channels, model, Sample::u8, Layout::semiPlanar, 2, {{1, 0, 0}, {2, log2X, log2Y}}};
}

constexpr Format packedBits(std::string_view name, std::string_view channels, Model model)
{
    return {name, channels, model, Sample::u16, Layout::packedBits, 1, {{1, 0, 0}}};
}

inline constexpr Format rgb24 = interleaved("rgb24", "RGB", Model::rgb, Sample::u8);
inline constexpr Format bgr24 = interleaved("bgr24", "BGR", Model::rgb, Sample::u8);
inline constexpr Format rgba = interleaved("rgba", "RGBA", Model::rgb, Sample::u8);
inline constexpr Format bgra = interleaved("bgra", "BGRA", Model::rgb, Sample::u8);
inline constexpr Format rgb444p = planar("rgb444p", "RGB", Model::rgb, Sample::u8);
inline constexpr Format rgb565 = packedBits("rgb565", "RGB", Model::rgb); // R in the lowest bits

inline constexpr Format rgb48 = interleaved("rgb48", "RGB", Model::rgb, Sample::u16);
inline constexpr Format rgba64 = interleaved("rgba64", "RGBA", Model::rgb, Sample::u16);
inline constexpr Format rgb48s = interleaved("rgb48s", "RGB", Model::rgb, Sample::s16);
inline constexpr Format rgba64s = interleaved("rgba64s", "RGBA", Model::rgb, Sample::s16);
inline constexpr Format rgbf32 = interleaved("rgbf32", "RGB", Model::rgb, Sample::f32);
inline constexpr Format rgbaf32 = interleaved("rgbaf32", "RGBA", Model::rgb, Sample::f32);

inline constexpr Format grey8 = interleaved("grey8", "L", Model::grey, Sample::u8);
inline constexpr Format grey16 = interleaved("grey16", "L", Model::grey, Sample::u16);
inline constexpr Format grey16s = interleaved("grey16s", "L", Model::grey, Sample::s16);
inline constexpr Format greyf32 = interleaved("greyf32", "L", Model::grey, Sample::f32);

// One sample a pixel, of the colour that its place in the mosaic tells.
inline constexpr Format bayer8 = interleaved("bayer8", "M", Model::mosaic, Sample::u8);
inline constexpr Format bayer16 = interleaved("bayer16", "M", Model::mosaic, Sample::u16);

inline constexpr Format yuv24 = interleaved("yuv24", "YUV", Model::yuv, Sample::u8);
inline constexpr Format yuva = interleaved("yuva", "YUVA", Model::yuv, Sample::u8);
inline constexpr Format yuv444p = planar("yuv444p", "YUV", Model::yuv, Sample::u8);
inline constexpr Format yuva444p = planar("yuva444p", "YUVA", Model::yuv, Sample::u8);
inline constexpr Format yuv422p = planar("yuv422p", "YUV", Model::yuv, Sample::u8, 1, 0);
inline constexpr Format yuv420p = planar("yuv420p", "YUV", Model::yuv, Sample::u8, 1, 1);
inline constexpr Format yuyv = packed422("yuyv", "YUYV", Model::yuv);

inline constexpr Format yuv24_bt601 = interleaved("yuv24_bt601", "YUV", Model::bt601, Sample::u8);
inline constexpr Format yuva_bt601 = interleaved("yuva_bt601", "YUVA", Model::bt601, Sample::u8);
inline constexpr Format yuv444p_bt601 = planar("yuv444p_bt601", "YUV", Model::bt601, Sample::u8);
inline constexpr Format yuv422p_bt601 = planar("yuv422p_bt601", "YUV", Model::bt601, Sample::u8, 1, 0);
inline constexpr Format yuv420p_bt601 = planar("yuv420p_bt601", "YUV", Model::bt601, Sample::u8, 1, 1);
inline constexpr Format yvu420p_bt601 = planar("yvu420p_bt601", "YVU", Model::bt601, Sample::u8, 1, 1);
inline constexpr Format yuv411p_bt601 = planar("yuv411p_bt601", "YUV", Model::bt601, Sample::u8, 2, 0);
inline constexpr Format yuyv_bt601 = packed422("yuyv_bt601", "YUYV", Model::bt601);

inline constexpr Format yuv444p_bt709 = planar("yuv444p_bt709", "YUV", Model::bt709, Sample::u8);
inline constexpr Format yuv420p_bt709 = planar("yuv420p_bt709", "YUV", Model::bt709, Sample::u8, 1, 1);
inline constexpr Format yvu420p_bt709 = planar("yvu420p_bt709", "YVU", Model::bt709, Sample::u8, 1, 1);
inline constexpr Format yuv420p_bt709full = planar("yuv420p_bt709full", "YUV", Model::bt709full, Sample::u8, 1, 1);
inline constexpr Format uyvy_bt709full = packed422("uyvy_bt709full", "UYVY", Model::bt709full);

inline constexpr Format i422 = planar("i422", "YUV", Model::anyYcc, Sample::u8, 1, 0);
inline constexpr Format yv16 = planar("yv16", "YVU", Model::anyYcc, Sample::u8, 1, 0);
inline constexpr Format i420 = planar("i420", "YUV", Model::anyYcc, Sample::u8, 1, 1);
inline constexpr Format yv12 = planar("yv12", "YVU", Model::anyYcc, Sample::u8, 1, 1);
inline constexpr Format i411 = planar("i411", "YUV", Model::anyYcc, Sample::u8, 2, 0);
inline constexpr Format i410 = planar("i410", "YUV", Model::anyYcc, Sample::u8, 2, 2);
inline constexpr Format nv12 = semiPlanar("nv12", "YUV", Model::anyYcc, 1, 1);
inline constexpr Format nv11 = semiPlanar("nv11", "YUV", Model::anyYcc, 2, 0);
inline constexpr Format yuy2 = packed422("yuy2", "YUYV", Model::anyYcc);
inline constexpr Format uyvy = packed422("uyvy", "UYVY", Model::anyYcc);
inline constexpr Format yvyu = packed422("yvyu", "YVYU", Model::anyYcc);

inline constexpr Format bgr444p = planar("bgr444p", "BGR", Model::rgb, Sample::u8);
inline constexpr Format bgra444p = planar("bgra444p", "BGRA", Model::rgb, Sample::u8);

inline constexpr Format hls24 = interleaved("hls24", "HLS", Model::hls, Sample::u8);
inline constexpr Format hlsa = interleaved("hlsa", "HLSA", Model::hls, Sample::u8);
inline constexpr Format hls48 = interleaved("hls48", "HLS", Model::hls, Sample::u16);
inline constexpr Format hlsa64 = interleaved("hlsa64", "HLSA", Model::hls, Sample::u16);
inline constexpr Format hls48s = interleaved("hls48s", "HLS", Model::hls, Sample::s16);
inline constexpr Format hlsa64s = interleaved("hlsa64s", "HLSA", Model::hls, Sample::s16);
inline constexpr Format hlsf32 = interleaved("hlsf32", "HLS", Model::hls, Sample::f32);
inline constexpr Format hlsaf32 = interleaved("hlsaf32", "HLSA", Model::hls, Sample::f32);
inline constexpr Format hls444p = planar("hls444p", "HLS", Model::hls, Sample::u8);
inline constexpr Format hlsa444p = planar("hlsa444p", "HLSA", Model::hls, Sample::u8);

inline constexpr Format hsv24 = interleaved("hsv24", "HSV", Model::hsv, Sample::u8);
inline constexpr Format hsva = interleaved("hsva", "HSVA", Model::hsv, Sample::u8);
inline constexpr Format hsv48 = interleaved("hsv48", "HSV", Model::hsv, Sample::u16);
inline constexpr Format hsva64 = interleaved("hsva64", "HSVA", Model::hsv, Sample::u16);

} // namespace formats

} // namespace zorcc::interface
