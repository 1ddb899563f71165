// SPDX-License-Identifier: MIT
// Pixel formats by name, those of picture files, and what one can be made of another without arithmetic on colours.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "picture.h"

namespace zorcc::tool {

// All that some function takes or gives, by name.
const std::vector<const Format*>& namedFormats();

// One of them, in small or capital letters; also by the names of the outside world, such as yuyv422 and rgb565le, where
// the channel named first is in the high bits. Throws UsageError for other names.
const Format& formatNamed(const std::string& name);

// The interleaved format of three channels, of a colour model that is neither RGB nor luma and chroma with a matrix, by
// the model's name: xyz, luv, lab, photoycc, hls, hsv. Of samples like those of `from` where there is one, otherwise of
// 16 bits. Null where the name is no such model's.
const Format* formatOfModel(const std::string& name, const Format& from);

inline bool isGrey(const Format& format) { return format.channels == "L"; }
inline bool hasAlpha(const Format& format) { return format.channels.find('A') != std::string_view::npos; }
inline bool isDeep(const Format& format) { return format.sample != Sample::u8; }
inline bool isRgb(const Format& format)
{
    return format.model == interface::Model::rgb || format.model == interface::Model::grey;
}
inline bool isYCoCg(const Format& format)
{
    return format.model == interface::Model::ycocg || format.model == interface::Model::ycocgRev;
}
inline bool isYuv(const Format& format) { return interface::isYcc(format.model); }

// How a picture file that holds red, green and blue, or grey, of the given sample type says it.
const Format& pictureFormat(bool grey, bool alpha, Sample sample);

// A luma-chroma format's twin by another matrix, null or a Cause if there is none.
const Format* twin(const Format& format, interface::Model model);
const Format& withModel(const Format& format, interface::Model model);

// Whether values of one model are values of the other: formats whose samples only change places go with any matrix.
bool isSameModel(interface::Model a, interface::Model b);

// The planar format, without alpha, of a luma-chroma format's own matrix and chroma sampling: 4:4:4, 4:2:2, 4:1:1,
// otherwise 4:2:0.
const Format& planarYuv(const Format& format);

// What it costs to rearrange pictures of one format into another: 0 for the same, more the more is moved, added or
// lost; no value where rearrangement is not enough. It may change the order and layout of channels, repeat grey,
// add opaque alpha or drop alpha, scale between 8 bits, 16 bits (signed ones from the least) and 0..1 floats, cut
// channels down to packed bits, and expand those with zeros below.
std::optional<int> rearrangementCost(const Format& from, const Format& to);

// The picture in another format and size, which rearrangementCost must allow: pixels beyond the visible ones repeat the
// last visible column and row. Comes back untouched where nothing is to be done.
Picture rearranged(Picture picture, const Format& to, ZorSize size);

// Alpha of the visible pixels, from one picture to another; both have it.
void copyAlpha(const Picture& from, const Picture& to);

// Sets alpha, where there is any, to opaque.
void setOpaque(const Picture& picture);

} // namespace zorcc::tool
