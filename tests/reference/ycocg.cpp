// SPDX-License-Identifier: MIT
#include "tests/reference/ycocg.h"

#include <algorithm>

namespace zorcc::reference {

namespace {

using interface::Sample;
using Number = std::int64_t;

// Words wrap; bytes saturate, what becomes bytes after it was cut to 16 bits.
Number stored(Number value, const Pixels& destination)
{
    if (destination.sample() == Sample::s32) return value;
    if (destination.sample() == Sample::s16) return static_cast<std::int16_t>(value);
    return std::clamp<Number>(static_cast<std::int16_t>(value), 0, 255);
}

// Chroma in bytes is around 128.
Number centre(const Pixels& ycc) { return ycc.sample() == Sample::u8 ? 128 : 0; }

template <class Formula> void each(const Pixels& source, Pixels& destination, Formula formula)
{
    eachPixel(source.size(), [&](int x, int y) {
        Number c[3];
        for (int i = 0; i < 3; ++i) c[i] = source.get<Number>(i, x, y);
        formula(c);
        for (int i = 0; i < 3; ++i) destination.put(i, x, y, static_cast<double>(stored(c[i], destination)));
    });
}

} // namespace

void rgbToYCoCg(const Pixels& source, Pixels& destination)
{
    each(source, destination, [&](Number(&c)[3]) {
        const Number r = c[0], g = c[1], b = c[2];
        c[0] = (r + 2 * g + b + 2) >> 2;
        c[1] = ((r - b + 1) >> 1) + centre(destination);
        c[2] = ((2 * g - r - b + 2) >> 2) + centre(destination);
    });
}

void rgbToYCoCgReversible(const Pixels& source, Pixels& destination)
{
    each(source, destination, [&](Number(&c)[3]) {
        const Number r = c[0], g = c[1], b = c[2];
        c[1] = stored(r - b, destination);
        const Number t = stored(b + (c[1] >> 1), destination);
        c[2] = stored(g - t, destination);
        c[0] = t + (c[2] >> 1);
    });
}

void yCoCgToRgb(const Pixels& source, Pixels& destination)
{
    each(source, destination, [&](Number(&c)[3]) {
        const Number y = c[0], co = c[1] - centre(source), cg = c[2] - centre(source);
        c[0] = y + co - cg;
        c[1] = y + cg;
        c[2] = y - co - cg;
    });
}

void yCoCgReversibleToRgb(const Pixels& source, Pixels& destination)
{
    each(source, destination, [](Number(&c)[3]) {
        const Number co = c[1], cg = c[2], t = c[0] - (cg >> 1);
        c[1] = cg + t;
        c[2] = t - (co >> 1);
        c[0] = c[2] + co;
    });
}

} // namespace zorcc::reference
