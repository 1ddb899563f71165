// SPDX-License-Identifier: MIT
// Pixel formats as data: what a caller of the library must lay out in memory. Tests, benchmarks and the tool share it.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace zorcc::interface {

// ---- colour models --------------------------------------------------------------------------------------------------

// The Y'CbCr models differ in their matrix; anyYcc is that of conversions which only move samples.
enum class Model {
    mosaic,
    grey,
    rgb,
    yuv,
    bt601,
    bt709,
    bt709full,
    anyYcc,
    ycocg,
    ycocgRev,
    hls,
    hsv,
    xyz,
    luv,
    lab,
    photoycc
};

struct ModelProperties {
    Model model;
    // One letter each: M of a mosaic, L of grey and of lightness, U and V for Cb and Cr, O and G for Co and Cg, 1
    // and 2 for C1 and C2 of PhotoYCC, A for alpha.
    std::string_view channels;
    std::string_view matrix;    // as names of formats and the tool's options say it; empty without luma and chroma
    std::string_view name = ""; // in names of formats, where the channels do not say it
};

inline constexpr ModelProperties models[] = {
    {Model::mosaic, "M", "", "bayer"}, {Model::grey, "L", "", "grey"},     {Model::rgb, "RGBA", ""},
    {Model::yuv, "YUVA", "yuv"}, // analogue-television Y'UV
    {Model::bt601, "YUVA", "bt601"},   {Model::bt709, "YUVA", "bt709"},    {Model::bt709full, "YUVA", "bt709full"},
    {Model::anyYcc, "YUVA", "any"},    {Model::ycocg, "YOG", "", "ycocg"}, {Model::ycocgRev, "YOG", "", "ycocgr"},
    {Model::hls, "HLSA", "", "hls"},   {Model::hsv, "HSVA", "", "hsv"},    {Model::xyz, "XYZA", "", "xyz"},
    {Model::luv, "LUVA", "", "luv"},   {Model::lab, "Lab", "", "lab"},     {Model::photoycc, "Y12A", "", "photoycc"},
};

constexpr const ModelProperties& propertiesOf(Model model)
{
    for (const ModelProperties& row : models)
        if (row.model == model) return row;
    throw std::logic_error("a colour model without properties");
}

constexpr bool isYcc(Model model) { return !propertiesOf(model).matrix.empty(); } // luma and chroma

// ---- samples and planes ---------------------------------------------------------------------------------------------

enum class Sample { u8, s8, u16, s16, s32, f32 };

constexpr int sampleBytes(Sample sample)
{
    return sample == Sample::u8 || sample == Sample::s8 ? 1 : sample == Sample::u16 || sample == Sample::s16 ? 2 : 4;
}

enum class Layout {
    interleaved, // one plane, all channels of a pixel side by side
    planar,      // one plane a channel; channels 1 and 2 may be subsampled
    packed422,   // one plane, four samples for two pixels
    semiPlanar,  // a luma plane and a plane of interleaved chroma pairs
    packedBits   // one plane, all channels in the bits of one sample, the first in the lowest
};

// A plane holds `samples` samples for every (1 << log2X) x (1 << log2Y) pixels.
struct PlaneShape {
    int samples = 0, log2X = 0, log2Y = 0;

    constexpr bool operator==(const PlaneShape&) const = default;
};

inline constexpr int maxPlanes = 4;

struct Format {
    std::string_view name;     // as the tool's users write it; unique among formats that round alike
    std::string_view channels; // in memory order, one letter each: "BGRA", "YUV", packed 4:2:2 by bytes: "YUYV"
    Model model;
    Sample sample;
    Layout layout;
    int planes;
    PlaneShape plane[maxPlanes];
    int fieldBits = 0;     // packed bits: those of each channel, as three digits
    bool roundsUp = false; // an odd last column or row has subsampled chroma of its own

    constexpr bool subsampled() const { return layout == Layout::packed422 || plane[1].log2X > 0; }
    constexpr int log2X() const { return layout == Layout::packed422 ? 1 : plane[1].log2X; } // chroma subsampling
    constexpr int log2Y() const { return plane[1].log2Y; }
};

// Samples of a plane for `pixels` columns or rows of pixels, 1 << log2 of which share one. An odd last one counts for
// nothing unless the format rounds up.
constexpr int sharedSamples(const Format& f, int pixels, int log2)
{
    return (pixels + (f.roundsUp ? (1 << log2) - 1 : 0)) >> log2;
}

// Bytes of one row of plane p, and its rows, that an image of the given size occupies. A packed 4:2:2 row ends after
// the last pixel's own two bytes.
constexpr std::size_t rowBytes(const Format& f, int p, int width)
{
    return static_cast<std::size_t>(sharedSamples(f, width, f.plane[p].log2X)) * f.plane[p].samples *
           sampleBytes(f.sample);
}
constexpr int rows(const Format& f, int p, int height) { return sharedSamples(f, height, f.plane[p].log2Y); }

// ---- all formats ----------------------------------------------------------------------------------------------------

// What a format follows from. Channels in memory order; subsampled chroma planes hold one sample for
// (1 << log2X) x (1 << log2Y) pixels.
struct Shape {
    Model model;
    Sample sample;
    Layout layout;
    int channels;
    int log2X = 0, log2Y = 0;
    bool reversed = false;    // blue before red, Cr before Cb
    bool chromaFirst = false; // packed 4:2:2: chroma before luma
    int fieldBits = 0;        // packed bits: those of each channel, as three digits
    bool roundsUp = false;    // an odd last column or row has subsampled chroma of its own
};

struct Text {
    char letters[24] = {};
    std::size_t length = 0;

    constexpr Text& operator+=(std::string_view text)
    {
        for (char c : text) letters[length++] = c;
        return *this;
    }
    constexpr Text& operator+=(char c)
    {
        letters[length++] = c;
        return *this;
    }
    constexpr operator std::string_view() const { return {letters, length}; }
};

constexpr Text channelsOf(const Shape& s)
{
    Text text;
    text += propertiesOf(s.model).channels.substr(0, s.channels);
    char* const c = text.letters;
    if (s.reversed) std::swap(c[s.model == Model::rgb ? 0 : 1], c[2]);
    if (s.layout != Layout::packed422) return text;
    Text pair;
    for (int i : {0, 1, 0, 2}) pair += c[i];
    if (s.chromaFirst)
        for (int i : {0, 2}) std::swap(pair.letters[i], pair.letters[i + 1]);
    return pair;
}

// What follows the channels in the name of a format.
constexpr std::string_view arrangementOf(const Shape& s)
{
    if (s.layout == Layout::packedBits) return s.fieldBits == 565 ? "565" : s.fieldBits == 555 ? "555" : "444";
    if (s.layout == Layout::packed422) return "";
    if (s.log2X > 0) return s.log2X > 1 ? "411p" : s.log2Y ? "420p" : "422p";
    constexpr std::string_view planes[] = {"444p",    "444p8s",  "444p16",
                                           "444p16s", "444p32s", "444pf32"}; // by sample type
    if (s.layout == Layout::planar) return planes[static_cast<int>(s.sample)];
    constexpr std::string_view single[] = {"8", "8s", "16", "16s", "32s", "f32"};
    constexpr std::string_view three[] = {"24", "24s", "48", "48s", "96s", "f32"};
    constexpr std::string_view four[] = {"", "32s", "64", "64s", "128s", "f32"};
    return (s.channels == 1 ? single : s.channels == 3 ? three : four)[static_cast<int>(s.sample)];
}

constexpr Text nameOf(const Shape& s)
{
    Text text;
    if (s.model == Model::anyYcc && s.layout == Layout::semiPlanar) return text += s.log2Y ? "nv12" : "nv11";
    if (s.model == Model::anyYcc && s.layout == Layout::planar && s.reversed) return text += s.log2Y ? "yv12" : "yv16";
    if (s.model == Model::anyYcc && s.layout == Layout::planar)
        return text += s.log2Y > 1 ? "i410" : s.log2X > 1 ? "i411" : s.log2Y ? "i420" : "i422";
    if (s.model == Model::anyYcc && !s.chromaFirst && !s.reversed) return text += "yuy2";
    if (const std::string_view name = propertiesOf(s.model).name; !name.empty()) {
        text += name;
        if (s.channels == 4) text += 'a';
    } else {
        const Text channels = channelsOf(s);
        for (char c : std::string_view(channels)) text += static_cast<char>(c - 'A' + 'a');
    }
    text += arrangementOf(s);
    if (isYcc(s.model) && s.model != Model::yuv && s.model != Model::anyYcc)
        (text += "_") += propertiesOf(s.model).matrix;
    return text;
}

template <Shape s> struct FormatOf {
    static constexpr Text name = nameOf(s), channels = channelsOf(s);

    static constexpr Format make()
    {
        Format f{name, channels, s.model, s.sample, s.layout, 1, {{s.channels}}};
        const PlaneShape chroma{s.layout == Layout::semiPlanar ? 2 : 1, s.log2X, s.log2Y};
        if (s.layout == Layout::packed422) f.plane[0] = {2};
        if (s.layout == Layout::packedBits) f.plane[0] = {1};
        f.fieldBits = s.fieldBits;
        f.roundsUp = s.roundsUp;
        if (s.layout == Layout::semiPlanar || s.layout == Layout::planar) {
            f.planes = s.layout == Layout::semiPlanar ? 2 : s.channels;
            f.plane[0] = {1};
            for (int p = 1; p < f.planes; ++p) f.plane[p] = p < 3 ? chroma : PlaneShape{1};
        }
        return f;
    }
    static constexpr Format format = make();
};

// One object for each format: they compare by their addresses.
template <Shape s> inline constexpr const Format& format = FormatOf<s>::format;

namespace formats {

template <Model model, int channels, Sample sample = Sample::u8, bool reversed = false>
inline constexpr const Format& interleaved =
    format<Shape{model, sample, Layout::interleaved, channels, 0, 0, reversed}>;

template <Model model, int channels, int log2X = 0, int log2Y = 0>
inline constexpr const Format& planar = format<Shape{model, Sample::u8, Layout::planar, channels, log2X, log2Y}>;

inline constexpr const Format& grey8 = interleaved<Model::grey, 1>;
inline constexpr const Format& grey16 = interleaved<Model::grey, 1, Sample::u16>;
inline constexpr const Format& greyf32 = interleaved<Model::grey, 1, Sample::f32>;
inline constexpr const Format& rgb24 = interleaved<Model::rgb, 3>;
inline constexpr const Format& bgr24 = interleaved<Model::rgb, 3, Sample::u8, true>;
inline constexpr const Format& rgb48 = interleaved<Model::rgb, 3, Sample::u16>;
inline constexpr const Format& rgbf32 = interleaved<Model::rgb, 3, Sample::f32>;
inline constexpr const Format& rgba = interleaved<Model::rgb, 4>;
inline constexpr const Format& rgba64 = interleaved<Model::rgb, 4, Sample::u16>;
inline constexpr const Format& bgra = interleaved<Model::rgb, 4, Sample::u8, true>;
inline constexpr const Format& rgbaf32 = interleaved<Model::rgb, 4, Sample::f32>;
inline constexpr const Format& rgb444p = planar<Model::rgb, 3>;
inline constexpr const Format& yuva = interleaved<Model::yuv, 4>;
inline constexpr const Format& yuv444p = planar<Model::yuv, 3>;
inline constexpr const Format& yuv422p = planar<Model::yuv, 3, 1>;
inline constexpr const Format& yuv420p = planar<Model::yuv, 3, 1, 1>;
inline constexpr const Format& i420 = planar<Model::anyYcc, 3, 1, 1>;
inline constexpr const Format& i411 = planar<Model::anyYcc, 3, 2>;

} // namespace formats

} // namespace zorcc::interface
