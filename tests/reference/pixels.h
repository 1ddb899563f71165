// SPDX-License-Identifier: MIT
// Reads and writes single channels of an image in any format. Plain and slow on purpose.
#pragma once

#include <cstddef>
#include <cstdint>

#include "interface/functions.h"

namespace zorcc::reference {

// Channels by what they mean, whatever their order in memory.
enum Channel { red = 0, green = 1, blue = 2, luma = 0, chromaU = 1, chromaV = 2, alpha = 3 };
inline constexpr int channels = 4;

class Pixels {
public:
    Pixels(const interface::Format& format, const interface::Image& image, ZorSize size);

    int width() const { return size.width; }
    int height() const { return size.height; }

    // Whether the image stores this channel for the pixel: subsampled images may lack it at an odd end.
    bool has(int channel, int x, int y) const;

    // The pixels that share a sample of the channel.
    ZorSize shared(int channel) const { return {1 << place[channel].log2X, 1 << place[channel].log2Y}; }

    int get(int channel, int x, int y) const;
    void put(int channel, int x, int y, int value);

private:
    // The sample of pixel (x, y) starts at plane + (y >> log2Y) * step + (x >> log2X) * stride + offset. In a format
    // that packs its channels into one word the channel is `bits` bits from `shift` up, and stands for the top of a
    // byte.
    struct Place {
        bool present = false;
        std::uint8_t* plane = nullptr;
        std::ptrdiff_t step = 0, stride = 0, offset = 0;
        int log2X = 0, log2Y = 0;
        std::ptrdiff_t rowBytes = 0;
        int rows = 0;
        int shift = 0, bits = 0;
    };
    Place place[channels];
    ZorSize size;
    int sampleBytes;

    std::uint8_t* at(int channel, int x, int y) const;
};

} // namespace zorcc::reference
