// SPDX-License-Identifier: MIT
#include "tests/reference/chromasampling.h"

#include <algorithm>

namespace zorcc::reference {

namespace {

int average(int a, int b, bool up) { return (a + b + up) >> 1; }

// Averages of a row of `columns` doubled samples round up in whole blocks that end before the last sample.
bool doublingRoundsUp(int x, int columns) { return x < 16 * ((columns - 1) / 8); }

int doubled(const Samples& from, int x, int y)
{
    const int left = from.nearest(x / 2, y), right = from.nearest(x / 2 + 1, y);
    return x % 2 == 0 ? left : average(left, right, doublingRoundsUp(x, from.columns()));
}

// Columns that are deinterlaced in whole blocks, which round up.
int wholeColumns(const Samples& from) { return from.image.width() / 8 * 8 / from.shared().width; }

} // namespace

int Samples::nearest(int x, int y) const { return at(std::clamp(x, 0, columns() - 1), std::clamp(y, 0, rows() - 1)); }

int moved(const Samples& from, const Samples& to, int x, int y)
{
    return from.at(x * to.shared().width / from.shared().width, y * to.shared().height / from.shared().height);
}

int rearranged411As420(const Samples& from, const Samples&, int x, int y) { return from.at(x / 2, 2 * y + x % 2); }
int rearranged420As411(const Samples& from, const Samples&, int x, int y) { return from.at(2 * x + y % 2, y / 2); }

int filteredOddRows(const Samples& from, const Samples&, int x, int y)
{
    const auto row = [&](int i) { return from.nearest(x, y / 2 + i); };
    return y % 2 == 0 ? row(0) : std::clamp((9 * (row(0) + row(1)) - row(-1) - row(2) + 8) >> 4, 0, 255);
}

int mixedFields420(const Samples& from, const Samples&, int x, int y)
{
    const auto row = [&](int i) { return from.at(x, y / 2 * 4 + i); };
    return y % 2 == 0 ? (3 * row(0) + row(2) + 2) >> 2 : (row(1) + 3 * row(3) + 2) >> 2;
}

int mixedFields422(const Samples& from, const Samples& to, int x, int y)
{
    if (y < 2) return from.at(x, y);
    if (y >= to.rows() - 2) return from.at(x, from.rows() - (to.rows() - y));
    constexpr int weights[4][4] = {{5, 0, 3, 0}, {0, 7, 0, 1}, {1, 0, 7, 0}, {0, 3, 0, 5}};
    int sum = 4;
    for (int i = 0; i < 4; ++i) sum += weights[(y - 2) % 4][i] * from.at(x, (y - 2) / 4 * 2 + i);
    return sum >> 3;
}

int doubledColumnsAndRows(const Samples& from, const Samples&, int x, int y)
{
    const int upper = doubled(from, x, y / 2), lower = doubled(from, x, std::min(y / 2 + 1, from.rows() - 1));
    return y % 2 == 0 ? upper : average(upper, lower, doublingRoundsUp(x, from.columns()));
}

int doubledColumns(const Samples& from, const Samples&, int x, int y) { return doubled(from, x, 2 * y); }

int doubledRows(const Samples& from, const Samples& to, int x, int y)
{
    const int upper = from.at(2 * x, y / 2), lower = from.nearest(2 * x, y / 2 + 1);
    return y % 2 == 0 ? upper : average(upper, lower, x < to.columns() / 8 * 8);
}

int deinterlacedLuma(const Samples& from, const Samples&, int x, int y)
{
    const int above = from.nearest(x, y - 1), here = from.at(x, y), below = from.nearest(x, y + 1);
    return x < wholeColumns(from) ? average(average(above, here, true), average(here, below, true), true)
                                  : (above + 2 * here + below) >> 2;
}

int deinterlacedChroma(const Samples& from, const Samples& to, int x, int y)
{
    const int rowsOfOne = 2 / to.shared().height; // rows of the destination for one of the source
    const int upper = std::max(std::min(y / rowsOfOne, from.rows() - 2), 0);
    return average(from.at(x, upper), from.nearest(x, upper + 1), x < wholeColumns(from));
}

void resample(const Pixels& source, Pixels& destination, SampleRule& lumaRule, SampleRule& chromaRule)
{
    for (const Channel channel : {luma, chromaU, chromaV}) {
        const Samples from{source, channel}, to{destination, channel};
        const ZorSize shared = to.shared();
        eachPixel({to.columns(), to.rows()}, [&](int x, int y) {
            destination.put(channel, x * shared.width, y * shared.height,
                            (channel == luma ? lumaRule : chromaRule)(from, to, x, y));
        });
    }
}

} // namespace zorcc::reference
