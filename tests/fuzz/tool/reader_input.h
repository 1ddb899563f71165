// SPDX-License-Identifier: MIT
// Bytes as a file that readers open.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

#include "tools/zorcc/error.h"
#include "tools/zorcc/io/reader.h"
#include "tools/zorcc/messages.h"

namespace zorcc::tool {

// Readers take what they get as far as they can and throw; anything else is a fault. Every byte of a picture must be
// there.
template <class Read> int readBytes(const std::uint8_t* data, std::size_t size, Read read)
{
    // A limit that keeps each input fast: what is larger is refused as it is from 2^28 on.
    maxPixels = 1 << 20;
    beQuiet();
    static const int file = memfd_create("input", MFD_CLOEXEC);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    if (file < 0 || ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size)) std::abort();
    try {
        read(path);
    } catch (const Error&) {
    } catch (const Cause&) {
    }
    return 0;
}

inline void touch(const Picture& picture)
{
    static volatile unsigned sum = 0;
    for (int p = 0; p < picture.format().planes; ++p)
        for (int y = 0; y < picture.visibleRows(p); ++y)
            for (std::size_t x = 0; x < picture.visibleRowBytes(p); x += 61) sum = sum + picture.row(p, y)[x];
}

inline void readAll(Reader& reader)
{
    constexpr int most = 16; // a file of many tiny pictures tells no more
    for (auto picture = reader.next(); picture && reader.count() < most; picture = reader.next()) touch(*picture);
}

} // namespace zorcc::tool
