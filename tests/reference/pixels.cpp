// SPDX-License-Identifier: MIT
#include "tests/reference/pixels.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zorcc::reference {

using namespace interface;

Pixels::Pixels(const Format& format, const Image& image, ZorSize size)
    : imageSize(size), sampleType(format.sample),
      whiteLevel(sampleType == Sample::f32                                             ? 1
                 : sampleBytes(sampleType) == 1 || format.layout == Layout::packedBits ? 255
                                                                                       : 65535),
      offset(sampleType == Sample::s16  ? -32768.0f
             : sampleType == Sample::s8 ? -128.0f
                                        : 0)
{
    const std::string_view names = propertiesOf(format.model).channels;
    for (int c = 0; c < static_cast<int>(names.size()); ++c) {
        const std::size_t position = format.channels.find(names[c]);
        if (position == std::string_view::npos) continue;
        const int index = static_cast<int>(position);
        const int plane = format.layout == Layout::planar       ? index
                          : format.layout == Layout::semiPlanar ? std::min(index, 1)
                                                                : 0;
        const bool ofTwo = format.layout == Layout::packed422 && c != luma;
        const PlaneShape& shape = format.plane[plane];
        Place& p = place[c];
        p.plane = static_cast<std::uint8_t*>(image.plane[plane]);
        p.step = image.step[plane];
        p.stride = (shape.samples * sampleBytes(sampleType)) << ofTwo;
        p.log2X = shape.log2X + ofTwo;
        p.log2Y = shape.log2Y;
        p.rowBytes = static_cast<std::ptrdiff_t>(rowBytes(format, plane, size.width));
        p.rows = rows(format, plane, size.height);
        if (format.layout == Layout::packedBits) {
            const int bits[] = {format.fieldBits / 100, format.fieldBits / 10 % 10, format.fieldBits % 10};
            for (int lower = 0; lower < index; ++lower) p.shift += bits[lower];
            p.bits = bits[index];
            p.highest = index == 2;
        } else {
            p.offset = (index - plane) * sampleBytes(sampleType);
        }
    }
}

void Pixels::put(int channel, int x, int y, double value)
{
    const Place& p = place[channel];
    withType(sampleType, [&](auto sample) {
        using Limits = std::numeric_limits<decltype(sample)>;
        if (p.bits != 0) { // beside those of the other channels
            std::memcpy(&sample, at(channel, x, y), sizeof sample);
            const int mask = (p.highest ? 0xffff : (1 << p.bits) - 1) << p.shift;
            value = (static_cast<int>(sample) & ~mask) | static_cast<int>(value) >> (8 - p.bits) << p.shift;
        }
        if (Limits::is_integer && (value < Limits::min() || value > Limits::max()))
            throw std::out_of_range("reference: value outside its sample");
        sample = static_cast<decltype(sample)>(value);
        std::memcpy(at(channel, x, y), &sample, sizeof sample);
    });
}

void Pixels::putLevel(int channel, int x, int y, double level)
{
    if (sampleType != Sample::f32) level = std::clamp(std::trunc(level), 0.0, double{whiteLevel}) + offset;
    put(channel, x, y, level);
}

} // namespace zorcc::reference
