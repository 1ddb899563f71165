// SPDX-License-Identifier: MIT
// Reads and writes single channels of an image in any format. Plain and slow on purpose.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>

#include "interface/functions.h"

namespace zorcc::reference {

// Channels by what they mean, whatever their order in memory.
enum Channel { red = 0, green = 1, blue = 2, luma = 0, chromaU = 1, chromaV = 2, alpha = 3 };
inline constexpr int channels = 4;

// Calls body with a variable of the samples' type.
template <class Body> inline auto withType(interface::Sample sample, Body body)
{
    switch (sample) {
    case interface::Sample::u8:
        return body(std::uint8_t{});
    case interface::Sample::s8:
        return body(std::int8_t{});
    case interface::Sample::u16:
        return body(std::uint16_t{});
    case interface::Sample::s16:
        return body(std::int16_t{});
    case interface::Sample::s32:
        return body(std::int32_t{});
    default:
        return body(float{});
    }
}

// Calls body(x, y) for every pixel.
template <class Body> void eachPixel(ZorSize size, Body body)
{
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) body(x, y);
}

class Pixels {
public:
    Pixels(const interface::Format& format, const interface::Image& image, ZorSize size);

    ZorSize size() const { return imageSize; }
    int width() const { return imageSize.width; }
    int height() const { return imageSize.height; }
    interface::Sample sample() const { return sampleType; }

    // Whether the image stores this channel for the pixel: subsampled images may lack it at an odd end.
    bool has(int channel, int x, int y) const
    {
        const Place& p = place[channel];
        return (x >> p.log2X) * p.stride + p.offset < p.rowBytes && y >> p.log2Y < p.rows;
    }

    // Of a format that packs its channels into one word.
    int bits(int channel) const { return place[channel].bits; }

    // The pixels that share a sample of the channel.
    ZorSize shared(int channel) const { return {1 << place[channel].log2X, 1 << place[channel].log2Y}; }

    std::uint8_t* at(int channel, int x, int y) const
    {
        const Place& p = place[channel];
        if (x < 0 || y < 0 || x >= width() || y >= height() || !has(channel, x, y))
            throw std::out_of_range("reference: no such sample");
        return p.plane + (y >> p.log2Y) * p.step + (x >> p.log2X) * p.stride + p.offset;
    }

    // Values as they are stored; the sample must be able to hold them.
    template <class T = int> T get(int channel, int x, int y) const
    {
        const Place& p = place[channel];
        return withType(sampleType, [&](auto sample) {
            std::memcpy(&sample, at(channel, x, y), sizeof sample);
            if (p.bits == 0) return static_cast<T>(sample);
            return static_cast<T>((static_cast<int>(sample) >> p.shift & ((1 << p.bits) - 1)) << (8 - p.bits));
        });
    }
    void put(int channel, int x, int y, double value);

    // Values from 0 to white, of signed samples as well. Integers truncate and saturate.
    float white() const { return whiteLevel; }
    float level(int channel, int x, int y) const { return get<float>(channel, x, y) - offset; }
    void putLevel(int channel, int x, int y, double level);

private:
    // The sample of pixel (x, y) starts at plane + (y >> log2Y) * step + (x >> log2X) * stride + offset. In a format
    // that packs its channels into one word the channel is `bits` bits from `shift` up, and stands for the top of a
    // byte.
    struct Place {
        std::uint8_t* plane = nullptr;
        std::ptrdiff_t step = 0, stride = 0, offset = 0;
        int log2X = 0, log2Y = 0;
        std::ptrdiff_t rowBytes = 0; // none where the format lacks the channel
        int rows = 0;
        int shift = 0, bits = 0;
        bool highest = false; // of the word: what is above it is 0
    };
    Place place[channels];
    ZorSize imageSize;
    interface::Sample sampleType;
    float whiteLevel;
    float offset; // of stored values from levels
};

} // namespace zorcc::reference
