// SPDX-License-Identifier: MIT
// Images to convert: sizes, memory, content.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <random>
#include <string>

#include "interface/functions.h"
#include "zorcore.h"

namespace zorcc::bench {

// An image whose conversion stays within the second-level cache, and a frame that does not.
inline constexpr ZorSize cachedSize = {256, 64}, frameSize = {1920, 1080};

// Images so small that a call costs more than its pixels.
inline constexpr ZorSize tinySizes[] = {{16, 16}, {1, 1}};

inline bool same(ZorSize a, ZorSize b) { return a.width == b.width && a.height == b.height; }
inline bool isTiny(ZorSize size) { return size.width <= tinySizes[0].width; }

inline std::string sizeName(ZorSize size) { return std::to_string(size.width) + "x" + std::to_string(size.height); }

inline double pixels(ZorSize size) { return static_cast<double>(size.width) * size.height; }

// Memory on a 64-byte boundary, filled with random bytes, so that every page is there before a clock runs.
class Buffer {
public:
    explicit Buffer(std::size_t size) : memory(static_cast<std::uint8_t*>(zorMalloc(static_cast<int>(size))), zorFree)
    {
        if (!memory) throw std::bad_alloc();
        std::mt19937 random(static_cast<std::uint32_t>(size));
        for (std::size_t i = 0; i < size; ++i) memory[i] = static_cast<std::uint8_t>(random() >> 24);
    }

    std::uint8_t* data() const { return memory.get(); }

private:
    std::unique_ptr<std::uint8_t[], void (*)(void*)> memory;
};

inline std::size_t planeBytes(const interface::Format& format, int plane, ZorSize size)
{
    return interface::rowBytes(format, plane, size.width) * interface::rows(format, plane, size.height);
}

// Bytes of all planes.
inline std::size_t imageBytes(const interface::Format& format, ZorSize size)
{
    std::size_t bytes = 0;
    for (int p = 0; p < format.planes; ++p) bytes += planeBytes(format, p, size);
    return bytes;
}

// Sum of the bytes that one call of the function reads and those that it writes.
inline std::size_t trafficBytes(const interface::Function& function, ZorSize size)
{
    return imageBytes(*function.source, size) + imageBytes(*function.destination, size);
}

// An image of random content; floats are in 0..1. Planes and rows follow each other without gaps; at the sizes above
// this puts every plane on a 64-byte boundary.
class Picture {
public:
    Picture(const interface::Format& format, ZorSize size) : memory(imageBytes(format, size))
    {
        interface::setContiguousSteps(format, size.width, image);
        std::uint8_t* next = memory.data();
        for (int p = 0; p < format.planes; ++p) {
            image.plane[p] = next;
            next += planeBytes(format, p, size);
        }
        if (format.sample == interface::Sample::f32)
            for (std::uint8_t* at = memory.data(); at < next; at += sizeof(float)) {
                const float value = static_cast<float>(at[0] << 8 | at[1]) / 65535.0f;
                std::memcpy(at, &value, sizeof value);
            }
    }

    interface::Image image;

private:
    Buffer memory;
};

} // namespace zorcc::bench
