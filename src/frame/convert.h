// SPDX-License-Identifier: MIT
// The body of an exported conversion: its checks in their order, then its driver.
#pragma once

#include <type_traits>

#include "frame/image.h"

namespace zorcc {

// What a conversion checks beside its image arguments, which come first. The defaults are those of most families.
struct Checks {
    enum class Planes { afterSize, beforeSize }; // when the pointers inside arrays are looked at
    enum class Steps { any, positiveBeforeSize };
    enum class OddSize { cutOff, warned, refused };

    ZorSize block = {1, 1}; // pixels that are converted together; the sides are powers of two
    ZorSize minimum = {1, 1};
    OddSize oddSize = OddSize::cutOff; // what becomes of a size that is no multiple of the block
    Planes planes = Planes::afterSize;
    Steps steps = Steps::any;
};

// Whole 2 x 2 blocks are converted; the status tells of odd sizes.
inline constexpr Checks evenPart = {.block = {2, 2}, .oddSize = Checks::OddSize::warned};

// An error is the status of the first check that fails. Otherwise the size is cut down to whole blocks, and the status
// is that of the finished conversion.
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
