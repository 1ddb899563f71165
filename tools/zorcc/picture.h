// SPDX-License-Identifier: MIT
// An image in memory, in any pixel format.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "interface/functions.h"
#include "zorconvert.h"

namespace zorcc::tool {

using interface::Format;
using interface::Sample;

std::string sizeName(ZorSize size);

inline bool operator==(ZorSize a, ZorSize b) { return a.width == b.width && a.height == b.height; }

// The size rounded up to whole blocks of pixels that share chroma.
ZorSize wholeBlocks(ZorSize size, int log2X, int log2Y);
inline ZorSize wholeBlocks(ZorSize size, const Format& format)
{
    return wholeBlocks(size, format.log2X(), format.log2Y());
}

// Throws Cause if a row of the image has more bytes than a step can express.
void checkRowBytes(const Format& format, ZorSize size);

// Pixels of a picture in a file, unless the user allows more: a short header can promise any number.
inline std::int64_t maxPixels = 1 << 28;

// Throws Cause for pictures of files that are larger.
void checkPixels(ZorSize size);

// The matrix and the range of luma and chroma, by their names in zorconvert.h; empty and the default where unknown.
struct Colour {
    std::string matrix = {};
    ZorRange range = zorRangeDefault;

    bool operator==(const Colour&) const = default;
};

// What pictures hold: a format, and what is known of the colour of luma and chroma.
struct PictureKind {
    const Format* format;
    Colour colour = {};

    bool operator==(const PictureKind&) const = default;
};

// What a new picture holds: zeros, or anything, for callers that write all of it.
enum class Contents { zeros, any };

// Every plane starts on a 64-byte boundary; its rows follow each other without gaps, as the functions
// without steps want them. Pixels outside `visible` only complete the last blocks.
class Picture {
public:
    Picture(const Format& format, ZorSize size, ZorSize visible, Contents contents = Contents::zeros);
    Picture(const Format& format, ZorSize size) : Picture(format, size, size) {}

    // The same bytes taken for another format of the same memory layout, or for another matrix and range.
    Picture takenFor(const Format& format) &&;
    Picture takenFor(Colour colour) &&;

    const Format& format() const { return *pixelFormat; }
    const Colour& colour() const { return colourOfSamples; }
    PictureKind kind() const { return {pixelFormat, colourOfSamples}; }
    ZorSize size() const { return whole; }
    ZorSize visible() const { return shown; }
    const interface::Image& image() const { return planes; }

    std::uint8_t* row(int plane, int y) const
    {
        return static_cast<std::uint8_t*>(planes.plane[plane]) + static_cast<std::ptrdiff_t>(planes.step[plane]) * y;
    }

    // Bytes and number of the visible rows of a plane, as files hold them: all of a plane with shared chroma.
    std::size_t visibleRowBytes(int plane) const;
    int visibleRows(int plane) const;

private:
    // Keeps the memory for the next picture of as many bytes.
    struct Release {
        std::size_t bytes;
        void operator()(void* block) const;
    };

    const Format* pixelFormat;
    Colour colourOfSamples;
    ZorSize whole, shown;
    interface::Image planes;
    std::unique_ptr<void, Release> memory;
};

// All visible rows of all planes.
std::uint64_t bytesInFile(const Format& format, ZorSize size, ZorSize visible);

// What a video file says about its pictures, in the terms of Y4M.
struct VideoTags {
    std::string frameRate = "25:1";
    std::string interlacing = "p";       // empty: unknown
    std::string aspect = "1:1";          // of a pixel; empty: unknown
    std::string sampling420 = "420jpeg"; // where the chroma samples of 4:2:0 lie
};

// One channel of a picture wherever its samples lie.
struct Channel {
    std::uint8_t* first;
    std::ptrdiff_t step, stride; // bytes from row to row, from sample to sample
    int width, height;           // samples; a shared channel of a very small picture can have none
};

// The channel with the given letter, which must exist, in the top left `extent` of the picture. Not for packed bits.
Channel channelOf(const Picture& picture, char letter, ZorSize extent);

} // namespace zorcc::tool
