// SPDX-License-Identifier: MIT
#include "convert/moves_rows.h"

#include <utility>

namespace zorcc::ZORCC_TIER {

namespace {

using std::uint16_t;
using std::uint8_t;

template <class T, int sourceSamples, int destinationSamples, bool reversed>
void movePixels(const void* from, void* to, int pixels)
{
    const T* __restrict s = static_cast<const T*>(from);
    T* __restrict d = static_cast<T*>(to);
    for (std::ptrdiff_t i = 0; i < pixels; ++i) {
        const T first = s[sourceSamples * i], second = s[sourceSamples * i + 1], third = s[sourceSamples * i + 2];
        d[destinationSamples * i] = reversed ? third : first;
        d[destinationSamples * i + 1] = second;
        d[destinationSamples * i + 2] = reversed ? first : third;
        if constexpr (destinationSamples == 4)
            d[4 * i + 3] = sourceSamples == 4 ? s[4 * i + sourceSamples - 1] : static_cast<T>(~0);
    }
}

template <class T, int count> void split(const void* from, void* const to[], int pixels)
{
    const T* __restrict s = static_cast<const T*>(from);
    T* __restrict a = static_cast<T*>(to[0]);
    T* __restrict b = static_cast<T*>(to[1]);
    T* __restrict c = static_cast<T*>(to[count > 2 ? 2 : 0]);
    T* __restrict e = static_cast<T*>(to[count > 3 ? 3 : 0]);
    for (std::ptrdiff_t i = 0; i < pixels; ++i) {
        a[i] = s[count * i];
        b[i] = s[count * i + 1];
        if constexpr (count > 2) c[i] = s[count * i + 2];
        if constexpr (count > 3) e[i] = s[count * i + 3];
    }
}

template <class T, int count> void merge(const void* const from[], void* to, int pixels)
{
    T* __restrict d = static_cast<T*>(to);
    const T* __restrict a = static_cast<const T*>(from[0]);
    const T* __restrict b = static_cast<const T*>(from[1]);
    const T* __restrict c = static_cast<const T*>(from[count > 2 ? 2 : 0]);
    const T* __restrict e = static_cast<const T*>(from[count > 3 ? 3 : 0]);
    for (std::ptrdiff_t i = 0; i < pixels; ++i) {
        d[count * i] = a[i];
        d[count * i + 1] = b[i];
        if constexpr (count > 2) d[count * i + 2] = c[i];
        if constexpr (count > 3) d[count * i + 3] = e[i];
    }
}

void unpack(const void* from, void* to, int pixels, const int bits[3])
{
    const uint16_t* __restrict s = static_cast<const uint16_t*>(from);
    uint8_t* __restrict d = static_cast<uint8_t*>(to);
    const int second = bits[0], third = bits[0] + bits[1], up0 = 8 - bits[0], up1 = 8 - bits[1], up2 = 8 - bits[2];
    for (std::ptrdiff_t i = 0; i < pixels; ++i) {
        const unsigned word = s[i];
        d[3 * i] = static_cast<uint8_t>(word << up0);
        d[3 * i + 1] = static_cast<uint8_t>(word >> second << up1);
        d[3 * i + 2] = static_cast<uint8_t>(word >> third << up2);
    }
}

void pack(const void* from, void* to, int pixels, const int bits[3])
{
    const uint8_t* __restrict s = static_cast<const uint8_t*>(from);
    uint16_t* __restrict d = static_cast<uint16_t*>(to);
    const int second = bits[0], third = bits[0] + bits[1], down0 = 8 - bits[0], down1 = 8 - bits[1],
              down2 = 8 - bits[2];
    for (std::ptrdiff_t i = 0; i < pixels; ++i)
        d[i] =
            static_cast<uint16_t>(s[3 * i] >> down0 | s[3 * i + 1] >> down1 << second | s[3 * i + 2] >> down2 << third);
}

template <class T>
constexpr convert::MoveRows::OfSample ofSample = {
    .pixels = {{{movePixels<T, 3, 3, false>, movePixels<T, 3, 3, true>},
                {movePixels<T, 3, 4, false>, movePixels<T, 3, 4, true>}},
               {{movePixels<T, 4, 3, false>, movePixels<T, 4, 3, true>},
                {movePixels<T, 4, 4, false>, movePixels<T, 4, 4, true>}}},
    .split = {split<T, 2>, split<T, 3>, split<T, 4>},
    .merge = {merge<T, 2>, merge<T, 3>, merge<T, 4>},
};

} // namespace

const convert::MoveRows moveRows = {
    .bytes = ofSample<uint8_t>,
    .words = ofSample<uint16_t>,
    .unpack = unpack,
    .pack = pack,
};

} // namespace zorcc::ZORCC_TIER
