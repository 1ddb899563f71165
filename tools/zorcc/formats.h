// SPDX-License-Identifier: MIT
// Pixel formats by name, as the conversion layer knows them, and those of picture files.
#pragma once

#include <string>
#include <vector>

#include "picture.h"

namespace zorcc::tool {

// The names of all.
std::vector<std::string> formatNames();

// By a name or an alias that the layer knows, which may include the colour: yuv420p_bt709, yuvj420p.
// Throws UsageError for other names.
PictureKind formatNamed(const std::string& name);

// The layer's format with the memory of any other, such as a function's.
const Format& layerFormat(const Format& format);

// Whether samples in one are samples in the other, at the same places in whole blocks.
inline bool areSame(const Format& a, const Format& b) { return &layerFormat(a) == &layerFormat(b); }

// The interleaved format of three channels of a colour model, by the model's name: xyz, luv, lab, photoycc, hls, hsv.
// With samples like those of `from` where there is such a format, otherwise of 16 bits. Null for other names.
const Format* formatOfModel(const std::string& name, const Format& from);

// Throws UsageError for a name that is no matrix.
void checkMatrix(const std::string& name);

// The matrix and range of images of a model of functions; empty where the model leaves them open.
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

// The format of RGB or grey pictures, with samples of this type, in picture files.
const Format& pictureFormat(bool grey, bool alpha, Sample sample);

// The format of luma and chroma in Y4M files: of the same sampling where Y4M has it.
const Format& y4mFormat(const Format& format);

} // namespace zorcc::tool
