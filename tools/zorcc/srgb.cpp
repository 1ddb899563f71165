// SPDX-License-Identifier: MIT
#include "srgb.h"

#include <cmath>
#include <cstring>
#include <utility>
#include <vector>

namespace zorcc::tool {

namespace {

double decoded(double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); }
double encoded(double v) { return v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1 / 2.4) - 0.055; }

using Curve = double (*)(double);

template <class T, class Map> void changeEach(const Channel& channel, Map map)
{
    for (int y = 0; y < channel.height; ++y)
        for (int x = 0; x < channel.width; ++x) {
            std::uint8_t* const place = channel.first + channel.step * y + channel.stride * x;
            T sample;
            std::memcpy(&sample, place, sizeof sample);
            sample = map(sample);
            std::memcpy(place, &sample, sizeof sample);
        }
}

// Integers by a table of all values.
template <class T> void changeIntegers(const Picture& picture, Curve curve)
{
    constexpr double most = static_cast<T>(-1);
    std::vector<T> table(static_cast<std::size_t>(most) + 1);
    for (std::size_t v = 0; v < table.size(); ++v)
        table[v] = static_cast<T>(std::lround(most * curve(static_cast<double>(v) / most)));
    for (char letter : picture.format().channels)
        if (letter != 'A') changeEach<T>(channelOf(picture, letter, picture.size()), [&](T v) { return table[v]; });
}

void changeFloats(const Picture& picture, Curve curve)
{
    for (char letter : picture.format().channels)
        if (letter != 'A')
            changeEach<float>(channelOf(picture, letter, picture.size()),
                              [&](float v) { return static_cast<float>(curve(v)); });
}

Picture changed(Picture picture, Curve curve)
{
    if (picture.format().sample == Sample::u8)
        changeIntegers<std::uint8_t>(picture, curve);
    else if (picture.format().sample == Sample::u16)
        changeIntegers<std::uint16_t>(picture, curve);
    else
        changeFloats(picture, curve);
    return picture;
}

} // namespace

Picture linearFromSrgb(Picture picture) { return changed(std::move(picture), decoded); }
Picture srgbFromLinear(Picture picture) { return changed(std::move(picture), encoded); }

} // namespace zorcc::tool
