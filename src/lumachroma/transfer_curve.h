// SPDX-License-Identifier: MIT
// The transfer curve of ITU-R BT.709, from linear light to video levels, of bytes.
#pragma once

#include "simd/byte_table.h"

namespace zorcc {

// x to the power of 0.45, for x in 0.01 .. 1: the root of y^20 = x^9.
constexpr double powerOf045(double x)
{
    const auto power = [](double base, int exponent) {
        double p = 1;
        for (int i = 0; i < exponent; ++i) p *= base;
        return p;
    };
    const double ninth = power(x, 9);
    double y = 1;
    for (int step = 0; step < 100; ++step) y -= (y - ninth / power(y, 19)) / 20;
    return y;
}

// 4.5 x below 0.018, 1.099 x^0.45 - 0.099 from there on, in 255ths, rounded to nearest, ties to even. Ties occur in the
// linear part alone, which is 9 i / 2 and ends before the fifth entry.
constexpr ByteTable toVideoLevels = [] {
    ByteTable table{};
    for (int i = 0; i < 256; ++i)
        table.of[i] = static_cast<uint8_t>(i < 5 ? (9 * i + (9 * i / 2 & 1)) / 2
                                                 : 255 * (1.099 * powerOf045(i / 255.0) - 0.099) + 0.5);
    return table;
}();

} // namespace zorcc
