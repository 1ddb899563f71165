// SPDX-License-Identifier: MIT
// Pictures as headerless files and the frames of Y4M files hold them: the visible rows, plane after plane.
#pragma once

#include <cstdint>

#include "../picture.h"
#include "atomic_file.h"
#include "input_file.h"

namespace zorcc::tool {

// The next picture of the file, whose chroma covers `size` and whose other channels cover `visible`.
inline Picture readPlanes(InputFile& file, const Format& format, ZorSize size, ZorSize visible)
{
    checkRowBytes(format, size);
    Picture picture(format, size, visible);
    std::uint64_t bytes = 0;
    for (int p = 0; p < format.planes; ++p) bytes += picture.visibleRowBytes(p) * picture.visibleRows(p);
    file.expect(bytes);
    for (int p = 0; p < format.planes; ++p)
        for (int y = 0; y < picture.visibleRows(p); ++y) file.read(picture.row(p, y), picture.visibleRowBytes(p));
    return picture;
}

inline void writePlanes(AtomicFile& file, const Picture& picture)
{
    for (int p = 0; p < picture.format().planes; ++p)
        for (int y = 0; y < picture.visibleRows(p); ++y) file.write(picture.row(p, y), picture.visibleRowBytes(p));
}

} // namespace zorcc::tool
