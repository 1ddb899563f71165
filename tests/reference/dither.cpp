// SPDX-License-Identifier: MIT
#include "tests/reference/dither.h"

#include <vector>

namespace zorcc::reference {

int ditheredField(int sample, int bits, int outerBits, int x, int y)
{
    constexpr int fine[4][4] = {
        {0, 1118, 279, 1398}, {1678, 559, 1957, 839}, {419, 1538, 139, 1258}, {2097, 978, 1817, 699}};
    constexpr int coarse[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}}; // times 289
    const int threshold = outerBits == 4 ? 289 * coarse[y % 4][x % 4] : fine[y % 4][x % 4];
    const int levels = bits == 4 ? 15 : bits == 5 ? 31 : 63, distance = bits == 4 ? 4352 : bits == 5 ? 2105 : 1036;
    const int lower = sample * levels >> 8, left = sample * 256 - lower * distance;
    return left > (bits == 6 ? threshold >> 1 : threshold) ? lower + 1 : lower;
}

void dither(void (*formula)(const Pixels& source, Pixels& destination), const Pixels& source, Pixels& destination)
{
    std::vector<std::uint8_t> bytes(3 * static_cast<std::size_t>(source.width()) * source.height());
    Pixels colours(interface::formats::rgb24, {{bytes.data()}, {3 * source.width()}}, source.size());
    formula(source, colours);
    eachPixel(source.size(), [&](int x, int y) {
        for (int c = 0; c < 3; ++c) {
            const int bits = destination.bits(c);
            destination.put(c, x, y,
                            ditheredField(colours.get(c, x, y), bits, destination.bits(red), x, y) << (8 - bits));
        }
    });
}

} // namespace zorcc::reference
