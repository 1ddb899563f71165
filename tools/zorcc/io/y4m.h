// SPDX-License-Identifier: MIT
// Writing Y4M files, which players know as YUV4MPEG2.
#pragma once

#include "../picture.h"
#include "atomic_file.h"

namespace zorcc::tool {

// The header for pictures like this one, which must be of a y4mFormat() format.
void writeY4mHeader(AtomicFile& file, const Picture& picture, const VideoTags& tags);
void writeY4mFrame(AtomicFile& file, const Picture& picture);

} // namespace zorcc::tool
