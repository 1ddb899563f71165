// SPDX-License-Identifier: MIT
#include "convert/catalogue.h"

#include <algorithm>

namespace zorcc::conversion {

namespace {

using interface::functions;
using interface::sampleBytes;

// ---- formats that no function has -----------------------------------------------------------------------------------

constexpr Format interleaved(std::string_view name, std::string_view channels, Sample sample = Sample::u8)
{
    return {name, channels, Model::rgb, sample, Layout::interleaved, 1, {{static_cast<int>(channels.size())}}};
}

constexpr Format semiPlanar(std::string_view name, std::string_view channels, int log2X, int log2Y)
{
    return {name, channels, Model::anyYcc, Sample::u8, Layout::semiPlanar, 2, {{1}, {2, log2X, log2Y}}};
}

constexpr Format planar(std::string_view name, std::string_view channels, Model model, int log2X = 0, int log2Y = 0)
{
    return {name,
            channels,
            model,
            Sample::u8,
            Layout::planar,
            static_cast<int>(channels.size()),
            {{1}, {1, log2X, log2Y}, {1, log2X, log2Y}, {1}}};
}

constexpr Format others[] = {
    interleaved("argb", "ARGB"),
    interleaved("abgr", "ABGR"),
    interleaved("bgr48", "BGR", Sample::u16),
    interleaved("bgra64", "BGRA", Sample::u16),
    planar("gbrp", "GBR", Model::rgb),
    planar("gbrap", "GBRA", Model::rgb),
    planar("yuva420p", "YUVA", Model::anyYcc, 1, 1),
    planar("yuva422p", "YUVA", Model::anyYcc, 1, 0),
    planar("yuv440p", "YUV", Model::anyYcc, 0, 1),
    semiPlanar("nv21", "YVU", 1, 1),
    semiPlanar("nv16", "YUV", 1, 0),
    semiPlanar("nv61", "YVU", 1, 0),
    semiPlanar("nv24", "YUV", 0, 0),
    semiPlanar("nv42", "YVU", 0, 0),
    {"vyuy", "VYUY", Model::anyYcc, Sample::u8, Layout::packed422, 1, {{2}}},
};

// ---- names of the outside world -------------------------------------------------------------------------------------

struct Alias {
    std::string_view name, ours;
    std::string_view matrix = {}; // where the name says it
    ZorRange range = zorRangeDefault;
};

constexpr Alias aliases[] = {
    // Packed 4:2:2 and planes, as ffmpeg and fourccs name them.
    {"yuyv422", "yuyv"},
    {"yuy2", "yuyv"},
    {"uyvy422", "uyvy"},
    {"yvyu422", "yvyu"},
    {"vyuy422", "vyuy"},
    {"hdyc", "uyvy", "bt709"},
    {"i420", "yuv420p"},
    {"iyuv", "yuv420p"},
    {"yu12", "yuv420p"},
    {"yv12", "yvu420p"},
    {"i422", "yuv422p"},
    {"y42b", "yuv422p"},
    {"i411", "yuv411p"},
    {"y41b", "yuv411p"},
    {"yuv410p", "i410"},
    {"i444", "yuv444p"},
    // Full range by name, which is that of JPEG.
    {"yuvj420p", "yuv420p", "bt601", zorRangeFull},
    {"yuvj422p", "yuv422p", "bt601", zorRangeFull},
    {"yuvj444p", "yuv444p", "bt601", zorRangeFull},
    {"yuvj411p", "yuv411p", "bt601", zorRangeFull},
    {"yuvj440p", "yuv440p", "bt601", zorRangeFull},
    // Grey and deep samples, which are little-endian here.
    {"gray", "grey8"},
    {"grey", "grey8"},
    {"gray8", "grey8"},
    {"y8", "grey8"},
    {"y800", "grey8"},
    {"gray16", "grey16"},
    {"gray16le", "grey16"},
    {"grayf32", "greyf32"},
    {"grayf32le", "greyf32"},
    {"rgb48le", "rgb48"},
    {"rgba64le", "rgba64"},
    {"bgr48le", "bgr48"},
    {"bgra64le", "bgra64"},
    {"rgb3", "rgb24"},
    {"bgr3", "bgr24"},
    {"rgbp", "rgb444p"},
    {"bgrp", "bgr444p"},
    // Elsewhere the channel in the highest bits is named first.
    {"rgb565le", "bgr565"},
    {"bgr565le", "rgb565"},
    {"rgb555le", "bgr555"},
    {"bgr555le", "rgb555"},
    {"rgb444le", "bgr444"},
    {"bgr444le", "rgb444"},
};

// A name without the matrix that stands at its end.
std::string_view withoutMatrix(std::string_view name)
{
    const std::size_t end = name.find('_');
    return {name.data(), end < name.size() ? end : name.size()};
}

// interface::isYcc, which may throw where it is not evaluated by the compiler.
bool hasMatrix(Model model)
{
    for (const interface::ModelProperties& row : interface::models)
        if (row.model == model) return !row.matrix.empty();
    return false;
}

bool isSameLayout(const Format& a, const Format& b)
{
    return a.model == b.model && a.channels == b.channels && a.sample == b.sample && a.layout == b.layout &&
           a.fieldBits == b.fieldBits && a.log2X() == b.log2X() && a.log2Y() == b.log2Y();
}

} // namespace

// Nothing throws, but to say so would link the C++ runtime, for the call that might be made if something did.
const Catalogue catalogue; // NOLINT(cert-err58-cpp)

// The function table is constant, so it is there when this is made.
Catalogue::Catalogue()
{
    const auto all = functions();
    for (std::size_t i = 0; i < all.size() && i < maxFunctions; ++i) {
        ofFunction[i][0] = static_cast<short>(indexOf(*all[i].source));
        ofFunction[i][1] = static_cast<short>(indexOf(*all[i].destination));
    }
    for (const Format& format : others) indexOf(format);
}

// Enters a format where it is new.
int Catalogue::indexOf(const Format& format)
{
    Format layout = format;
    if (hasMatrix(layout.model)) layout.model = Model::anyYcc;
    for (int i = 0; i < formatCount; ++i)
        if (isSameLayout(formats[i], layout)) return i;
    if (formatCount == maxFormats) return -1;
    layout.name = withoutMatrix(format.name);
    layout.roundsUp = true;
    formats[formatCount] = layout;
    names[formatCount].add(layout.name);
    return formatCount++;
}

int Catalogue::named(std::string_view name) const
{
    for (int i = 0; i < formatCount; ++i)
        if (formats[i].name == name) return i;
    return -1;
}

NamedFormat Catalogue::find(std::string_view name) const
{
    const Name lower = lowerCase(name);
    if (const int own = named(lower); own >= 0) return {own};
    for (const Alias& alias : aliases)
        if (alias.name == lower) return {named(alias.ours), matrixNamed(alias.matrix), alias.range};
    std::string_view matrix = lower;
    const std::string_view layout = withoutMatrix(lower);
    NamedFormat found{named(layout)};
    if (layout == matrix || found.index < 0) return found;
    matrix.remove_prefix(layout.size() + 1);
    found.matrix = matrixNamed(matrix);
    found.range = found.matrix.range;
    return found.matrix.matrix && isYcc(formats[found.index]) ? found : NamedFormat{};
}

std::string_view Catalogue::nearest(std::string_view name) const
{
    const Name lower = lowerCase(name);
    std::string_view nearest = formats[0].name;
    const auto offer = [&](std::string_view other) {
        if (distance(other, lower) < distance(nearest, lower)) nearest = other;
    };
    for (int i = 0; i < formatCount; ++i) offer(formats[i].name);
    for (const Alias& alias : aliases) offer(alias.name);
    return nearest;
}

Place placeOf(const Format& format, char letter)
{
    const int index = static_cast<int>(format.channels.find(letter)), bytes = sampleBytes(format.sample);
    if (format.layout == Layout::packed422) {
        const bool isLuma = letter == 'Y';
        return {0, index, isLuma ? 2 : 4, !isLuma, 0};
    }
    const int plane = format.layout == Layout::planar ? index : format.layout == Layout::semiPlanar && index > 0;
    const interface::PlaneShape& shape = format.plane[plane];
    const int position = format.layout == Layout::planar       ? 0
                         : format.layout == Layout::semiPlanar ? index - plane
                                                               : index;
    return {plane, position * bytes, shape.samples * bytes, shape.log2X, shape.log2Y};
}

int bitsOf(const Format& format)
{
    if (format.fieldBits == 0) return 8 * sampleBytes(format.sample);
    return std::min({format.fieldBits / 100, format.fieldBits / 10 % 10, format.fieldBits % 10});
}

std::size_t bytesOfRow(const Format& format, int p, int width)
{
    const std::size_t inPairs = format.layout == Layout::packed422 ? width + (width & std::size_t{1}) : width;
    const std::size_t groups = (inPairs + (std::size_t{1} << format.plane[p].log2X) - 1) >> format.plane[p].log2X;
    return groups * format.plane[p].samples * sampleBytes(format.sample);
}

int rowsOf(const Format& format, int p, int height)
{
    const int log2 = format.plane[p].log2Y;
    return static_cast<int>((height + (std::int64_t{1} << log2) - 1) >> log2);
}

} // namespace zorcc::conversion
