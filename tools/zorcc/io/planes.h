// SPDX-License-Identifier: MIT
// Pictures as headerless files and the frames of Y4M files hold them: the visible rows, plane after plane.
#pragma once

#include <cstdint>

#include "../picture.h"
#include "atomic_file.h"
#include "input_file.h"

namespace zorcc::tool {

// Calls visit(first byte, count) with the stretches of memory that files hold of a picture: whole planes, unless only a
// part of each row is visible.
template <class Visit> void eachStretch(const Picture& picture, Visit visit)
{
    for (int p = 0; p < picture.format().planes; ++p) {
        const std::size_t rowBytes = picture.visibleRowBytes(p);
        const int rows = picture.visibleRows(p);
        const bool isWhole = static_cast<std::size_t>(picture.image().step[p]) == rowBytes;
        if (isWhole)
            visit(picture.row(p, 0), rowBytes * rows);
        else
            for (int y = 0; y < rows; ++y) visit(picture.row(p, y), rowBytes);
    }
}

// The next picture of the file, whose chroma covers `size` and whose other channels cover `visible`.
inline Picture readPlanes(InputFile& file, const Format& format, ZorSize size, ZorSize visible)
{
    checkRowBytes(format, size);
    file.expect(bytesInFile(format, size, visible));
    checkPixels(visible);
    Picture picture(format, size, visible, size == visible ? Contents::any : Contents::zeros);
    eachStretch(picture, [&](std::uint8_t* to, std::size_t count) { file.read(to, count); });
    return picture;
}

inline void writePlanes(AtomicFile& file, const Picture& picture)
{
    eachStretch(picture, [&](const std::uint8_t* from, std::size_t count) { file.write(from, count); });
}

} // namespace zorcc::tool
