// SPDX-License-Identifier: MIT
// Argument checks of the exported functions. Each gives zorStatusOk or the status to return.
#pragma once

#include "zortypes.h"

namespace zorcc {

// An image argument: a pointer to pixels, or to an array of `planes` plane pointers.
template <class T> struct Interleaved {
    const T* pixels;

    bool missing() const { return !pixels; }
    bool planeMissing() const { return false; }
};

template <int planes, class T> struct Planar {
    const T* const* plane;

    bool missing() const { return !plane; }
    bool planeMissing() const
    {
        for (int p = 0; p < planes; ++p)
            if (!plane[p]) return true;
        return false;
    }
};

template <class T> inline Interleaved<T> interleaved(const T* pixels) { return {pixels}; }
template <int planes, class T> inline Planar<planes, T> planar(const T* const* plane) { return {plane}; }

[[nodiscard]] inline ZorStatus checkSize(ZorSize size, int minWidth = 1, int minHeight = 1)
{
    return size.width < minWidth || size.height < minHeight ? zorStatusBadSize : zorStatusOk;
}

// The checks that most conversions share, in their order: the images themselves, the size, the planes of the images.
template <class Source, class Destination>
[[nodiscard]] inline ZorStatus checkImages(Source source, Destination destination, ZorSize size)
{
    if (source.missing() || destination.missing()) return zorStatusNullPointer;
    if (const ZorStatus status = checkSize(size); status != zorStatusOk) return status;
    return source.planeMissing() || destination.planeMissing() ? zorStatusNullPointer : zorStatusOk;
}

// The checks of the families that look at planes and steps before the size.
template <class Source, class Destination>
[[nodiscard]] inline ZorStatus checkPlanesAndSteps(Source source, int sourceStep, Destination destination,
                                                   int destinationStep, ZorSize size)
{
    if (source.missing() || source.planeMissing() || destination.missing() || destination.planeMissing())
        return zorStatusNullPointer;
    return sourceStep < 1 || destinationStep < 1 ? zorStatusBadStep : checkSize(size);
}

// What a conversion of whole 2 x 2 blocks returns after its work.
inline ZorStatus oddSizeStatus(ZorSize size)
{
    return ((size.width | size.height) & 1) != 0 ? zorStatusOddSize : zorStatusOk;
}

} // namespace zorcc
