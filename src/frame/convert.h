// SPDX-License-Identifier: MIT
// What an exported conversion consists of: its images, its checks in their order, and the call of its driver.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include <type_traits>

#include "zorcc/types.h"

namespace zorcc {

inline constexpr int maxPlanes = 4;

// The planes of an image and their steps in bytes. Sources are of this type, too, although nothing stores to them.
struct Image {
    uint8_t* plane[maxPlanes];
    ptrdiff_t step[maxPlanes];
    int planes; // how many there must be
    bool given; // neither the image argument nor its array of steps is null

    // First byte of a row. A step times a row need not fit an int.
    [[gnu::always_inline]] uint8_t* row(int p, ptrdiff_t y) const { return plane[p] + y * step[p]; }
};

// What converts an image once the arguments are checked. Row files fill tables of these, one table for each tier.
template <class... Arguments> using DriverWith = void(const Image& from, const Image& to, ZorSize size, Arguments...);
using Driver = DriverWith<>;

// The last argument is the fourth channel of every pixel of the destination.
template <class Sample> using DriverWithAlpha = DriverWith<Sample>;

// ---- image arguments ------------------------------------------------------------------------------------------------

template <class Sample> uint8_t* bytesOf(const Sample* samples)
{
    return reinterpret_cast<uint8_t*>(const_cast<Sample*>(samples));
}

template <class Sample> Image interleaved(const Sample* pixels, ptrdiff_t step)
{
    return {{bytesOf(pixels)}, {step}, 1, pixels != nullptr};
}

// A luma plane and a plane of chroma pairs.
inline Image semiPlanar(const uint8_t* luma, int lumaStep, const uint8_t* pairs, int pairsStep)
{
    return {{bytesOf(luma), bytesOf(pairs)}, {lumaStep, pairsStep}, 2, luma && pairs};
}

// One step serves all planes.
template <int planes, class Sample> Image planar(const Sample* const* plane, ptrdiff_t step)
{
    Image image = {{}, {}, planes, plane != nullptr};
    for (int p = 0; plane && p < planes; ++p) {
        image.plane[p] = bytesOf(plane[p]);
        image.step[p] = step;
    }
    return image;
}

// Three planes with a step each.
template <class Sample> Image planar(const Sample* const* plane, const int* step)
{
    if (!plane || !step) return {{}, {}, 3, false};
    return {{bytesOf(plane[0]), bytesOf(plane[1]), bytesOf(plane[2])}, {step[0], step[1], step[2]}, 3, true};
}

// The same where the caller's second plane is Cr and the third Cb: drivers expect Y, Cb, Cr.
template <class Sample> Image planarCrCb(const Sample* const* plane, const int* step)
{
    if (!plane || !step) return {{}, {}, 3, false};
    return {{bytesOf(plane[0]), bytesOf(plane[2]), bytesOf(plane[1])}, {step[0], step[2], step[1]}, 3, true};
}

// A step in bytes as one of whole floats, rounded towards zero.
constexpr int wholeFloats(int step) { return step / 4 * 4; }

// ---- images without steps: rows follow each other without gaps ------------------------------------------------------

inline Image contiguousC3(const uint8_t* pixels, int width) { return interleaved(pixels, ptrdiff_t{3} * width); }

inline Image contiguousPlanes(const uint8_t* const* plane, int width) { return planar<3>(plane, ptrdiff_t{width}); }

// Chroma planes have half the columns, rounded down.
inline Image contiguousHalfWidthChroma(const uint8_t* const* plane, int width)
{
    const int step[] = {width, width / 2, width / 2};
    return planar(plane, step);
}

// ---- checks and call ---

// What a conversion checks beside its image arguments, which come first. The defaults are those of most families.
struct Checks {
    enum class Planes { afterSize, beforeSize }; // when the pointers inside arrays are looked at
    enum class Steps { any, positiveBeforeSize, positiveAfterSize };
    enum class OddSize { cutOff, warned, convertedAndWarned, refused };

    ZorSize block = {1, 1}; // pixels that are converted as one; the sides are powers of two
    ZorSize minimum = {1, 1};
    OddSize oddSize = OddSize::cutOff; // what becomes of a size that is no multiple of the block
    Planes planes = Planes::afterSize;
    Steps steps = Steps::any;
    bool anySize = false; // sizes below 1 are not refused: nothing is converted
};

// Whole 2 x 2 blocks are converted; odd sizes have a status of their own.
inline constexpr Checks even = {.block = {2, 2}, .oddSize = Checks::OddSize::warned};

// Steps below 1 are refused, after the size.
inline constexpr Checks positiveSteps = {.steps = Checks::Steps::positiveAfterSize};

// Every pointer first, then the size, then the steps.
inline constexpr Checks pointersSizeSteps = {.planes = Checks::Planes::beforeSize,
                                             .steps = Checks::Steps::positiveAfterSize};

// An error is the status of the first check that fails. Otherwise the size is cut down to whole blocks, unless what
// does not fill one is converted, too, and the status is that of the finished conversion.
[[nodiscard]] ZorStatus check(const Checks& checks, const Image& from, const Image& to, ZorSize& size);

template <class... Arguments>
ZorStatus convert(const Checks& checks, DriverWith<Arguments...>& driver, const Image& from, const Image& to,
                  ZorSize size, std::type_identity_t<Arguments>... arguments)
{
    const ZorStatus status = check(checks, from, to, size);
    if (status >= 0) driver(from, to, size, arguments...);
    return status;
}

template <class... Arguments>
ZorStatus convert(DriverWith<Arguments...>& driver, const Image& from, const Image& to, ZorSize size,
                  std::type_identity_t<Arguments>... arguments)
{
    return convert(Checks{}, driver, from, to, size, arguments...);
}

} // namespace zorcc
