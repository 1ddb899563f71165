// SPDX-License-Identifier: MIT
// Pixel formats by name, as the conversion layer knows them, and those of picture files.
#pragma once

#include <string>
#include <vector>

#include "picture.h"

namespace zorcc::tool {

// The names of all.
std::vector<std::string> formatNames();

// By a name of the layer or one that the layer takes for it, which may say the colour, too: yuv420p_bt709, yuvj420p.
// Throws UsageError for other names.
PictureKind formatNamed(const std::string& name);

// The layer's format with the memory of any other, such as a function's.
const Format& layerFormat(const Format& format);

// Whether samples in one are samples in the other, at the same places in whole blocks.
inline bool areSame(const Format& a, const Format& b) { return &layerFormat(a) == &layerFormat(b); }

// The interleaved format of three channels of a colour model, by the model's name: xyz, luv, lab, photoycc, hls, hsv.
// Of samples like those of `from` where there is one, otherwise of 16 bits. Null where the name is no such model's.
const Format* formatOfModel(const std::string& name, const Format& from);

// Throws UsageError for a name that is no matrix.
void checkMatrix(const std::string& name);

// What a function's images are by; empty where its model leaves that open.
Colour colourOf(interface::Model model);

inline bool hasChannel(const Format& format, char letter)
{
    return format.channels.find(letter) != std::string_view::npos;
}
inline bool isGrey(const Format& format) { return format.channels == "L"; }
inline bool hasAlpha(const Format& format) { return hasChannel(format, 'A'); }
inline bool isDeep(const Format& format) { return format.sample != Sample::u8; }
inline bool isRgb(const Format& format) { return hasChannel(format, 'R') || isGrey(format); }
inline bool isYCoCg(const Format& format) { return hasChannel(format, 'O'); }
inline bool isYuv(const Format& format) { return hasChannel(format, 'Y') && hasChannel(format, 'U'); }

// How a picture file that holds red, green and blue, or grey, of the given sample type says it.
const Format& pictureFormat(bool grey, bool alpha, Sample sample);

// How Y4M holds luma and chroma: of the format's own sampling where it can be.
const Format& y4mFormat(const Format& format);

} // namespace zorcc::tool
