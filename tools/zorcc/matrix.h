// SPDX-License-Identifier: MIT
// The matrix of luma and chroma: named by a format, by the user, or the usual one of a picture's size.
#pragma once

#include <optional>
#include <string>

#include "picture.h"

namespace zorcc::tool {

using Matrix = std::optional<interface::Model>; // where somebody names one

// Of limited range: BT.709 from 720 rows on, which is HD, BT.601 below.
interface::Model usualMatrix(ZorSize size);

// yuv, bt601, bt709 or bt709full; throws UsageError for other names.
interface::Model matrixNamed(const std::string& name);

// The matrix that the name of a format gives. Plain names such as yuv420p and nv12 give none.
Matrix ownMatrix(const Format& format);

// The matrix of a picture from a file: its format's own, the one that the user names, or the usual one of its range and
// size. Throws Cause for full range below 720 rows, for which there is no exact function.
interface::Model matrixOf(const Picture& picture, const VideoTags& tags, Matrix named = {});

// The picture, if it has luma and chroma, in the format of its matrix where there is one.
Picture withMatrix(Picture picture, const VideoTags& tags, Matrix named = {});

} // namespace zorcc::tool
