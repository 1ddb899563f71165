// SPDX-License-Identifier: MIT
#include "tests/reference/chromasampling.h"

#include <algorithm>

namespace zorcc::reference {

namespace {

constexpr Channel chromaChannels[] = {chromaU, chromaV};

// A channel by its samples instead of by pixels.
struct Plane {
    const Pixels& image;
    int channel;

    int columns() const { return image.width() / image.shared(channel).width; }
    int rows() const { return image.height() / image.shared(channel).height; }
    int at(int x, int y) const
    {
        return image.get(channel, x * image.shared(channel).width, y * image.shared(channel).height);
    }
    int nearest(int x, int y) const { return at(std::clamp(x, 0, columns() - 1), std::clamp(y, 0, rows() - 1)); }
};

// Fills a channel of the destination with sample(source plane, column, row).
template <class Sample> void fill(const Pixels& source, Pixels& destination, int channel, Sample sample)
{
    const Plane from{source, channel}, to{destination, channel};
    const ZorSize shared = destination.shared(channel);
    for (int y = 0; y < to.rows(); ++y)
        for (int x = 0; x < to.columns(); ++x)
            destination.put(channel, x * shared.width, y * shared.height, sample(from, x, y));
}

template <class Sample> void copyLumaAndFillChroma(const Pixels& source, Pixels& destination, Sample sample)
{
    fill(source, destination, luma, [](const Plane& from, int x, int y) { return from.at(x, y); });
    for (const Channel channel : chromaChannels) fill(source, destination, channel, sample);
}

int average(int a, int b, bool up) { return (a + b + up) >> 1; }

// Averages of a row of `columns` doubled samples round up in whole blocks that end before the last sample.
bool doublingRoundsUp(int x, int columns) { return x < 16 * ((columns - 1) / 8); }

int doubled(const Plane& from, int x, int y)
{
    const int left = from.nearest(x / 2, y), right = from.nearest(x / 2 + 1, y);
    return x % 2 == 0 ? left : average(left, right, doublingRoundsUp(x, from.columns()));
}

} // namespace

void moveChroma(const Pixels& source, Pixels& destination)
{
    const ZorSize shared = destination.shared(chromaU), sourceShared = source.shared(chromaU);
    copyLumaAndFillChroma(source, destination, [=](const Plane& from, int x, int y) {
        return from.at(x * shared.width / sourceShared.width, y * shared.height / sourceShared.height);
    });
}

void rearrange411As420(const Pixels& source, Pixels& destination)
{
    copyLumaAndFillChroma(source, destination,
                          [](const Plane& from, int x, int y) { return from.at(x / 2, 2 * y + x % 2); });
}

void rearrange420As411(const Pixels& source, Pixels& destination)
{
    copyLumaAndFillChroma(source, destination,
                          [](const Plane& from, int x, int y) { return from.at(2 * x + y % 2, y / 2); });
}

void filterOddRows(const Pixels& source, Pixels& destination)
{
    copyLumaAndFillChroma(source, destination, [](const Plane& from, int x, int y) {
        const auto row = [&](int k) { return from.nearest(x, k); };
        const int k = y / 2;
        if (y % 2 == 0) return row(k);
        return std::clamp((9 * (row(k) + row(k + 1)) - row(k - 1) - row(k + 2) + 8) >> 4, 0, 255);
    });
}

void mixFieldsTo420(const Pixels& source, Pixels& destination)
{
    copyLumaAndFillChroma(source, destination, [](const Plane& from, int x, int y) {
        const int m = y / 2;
        return y % 2 == 0 ? (3 * from.at(x, 4 * m) + from.at(x, 4 * m + 2) + 2) >> 2
                          : (from.at(x, 4 * m + 1) + 3 * from.at(x, 4 * m + 3) + 2) >> 2;
    });
}

void mixFieldsTo422(const Pixels& source, Pixels& destination)
{
    const int rows = destination.height();
    copyLumaAndFillChroma(source, destination, [=](const Plane& from, int x, int y) {
        if (y < 2) return from.at(x, y);
        if (y >= rows - 2) return from.at(x, from.rows() - (rows - y));
        const int g = (y - 2) / 4;
        const auto row = [&](int k) { return from.at(x, 2 * g + k); };
        switch ((y - 2) % 4) {
        case 0:
            return (5 * row(0) + 3 * row(2) + 4) >> 3;
        case 1:
            return (7 * row(1) + row(3) + 4) >> 3;
        case 2:
            return (row(0) + 7 * row(2) + 4) >> 3;
        default:
            return (3 * row(1) + 5 * row(3) + 4) >> 3;
        }
    });
}

void doubleColumnsAndRows(const Pixels& source, Pixels& destination)
{
    copyLumaAndFillChroma(source, destination, [](const Plane& from, int x, int y) {
        const int upper = doubled(from, x, y / 2);
        const int lower = doubled(from, x, std::min(y / 2 + 1, from.rows() - 1));
        return y % 2 == 0 ? upper : average(upper, lower, doublingRoundsUp(x, from.columns()));
    });
}

void doubleColumns(const Pixels& source, Pixels& destination)
{
    copyLumaAndFillChroma(source, destination, [](const Plane& from, int x, int y) { return doubled(from, x, 2 * y); });
}

void doubleRows(const Pixels& source, Pixels& destination)
{
    const int columns = destination.width() / destination.shared(chromaU).width;
    copyLumaAndFillChroma(source, destination, [=](const Plane& from, int x, int y) {
        const int upper = from.at(2 * x, y / 2), lower = from.nearest(2 * x, y / 2 + 1);
        return y % 2 == 0 ? upper : average(upper, lower, x < columns / 8 * 8);
    });
}

void deinterlace(const Pixels& source, Pixels& destination)
{
    const int whole = source.width() / 8 * 8;
    fill(source, destination, luma, [=](const Plane& from, int x, int y) {
        const int above = from.nearest(x, y - 1), here = from.at(x, y), below = from.nearest(x, y + 1);
        return x < whole ? average(average(above, here, true), average(here, below, true), true)
                         : (above + 2 * here + below) >> 2;
    });
    const int perRow = 2 / destination.shared(chromaU).height; // rows of the destination for one of the source
    for (const Channel channel : chromaChannels)
        fill(source, destination, channel, [=](const Plane& from, int x, int y) {
            const int upper = std::max(std::min(y / perRow, from.rows() - 2), 0);
            return average(from.at(x, upper), from.nearest(x, upper + 1), 2 * x < whole);
        });
}

} // namespace zorcc::reference
