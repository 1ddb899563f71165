// SPDX-License-Identifier: MIT
#include "tests/reference/pixels.h"

#include <cstring>
#include <stdexcept>
#include <string>

namespace zorcc::reference {

using namespace interface;

namespace {

struct Field {
    int shift, bits;
};

Field fieldOf(const Format& format, int channel)
{
    constexpr Field rgb565[] = {{0, 5}, {5, 6}, {11, 5}};
    if (format.name == "rgb565") return rgb565[channel];
    throw std::logic_error("unknown fields of " + std::string(format.name));
}

} // namespace

Pixels::Pixels(const Format& format, const Image& image, ZorSize imageSize)
    : size(imageSize), sampleType(format.sample), sampleBytes(interface::sampleBytes(format.sample))
{
    const std::string_view names = propertiesOf(format.model).channels;
    for (int c = 0; c < static_cast<int>(names.size()); ++c) {
        const std::size_t position = format.channels.find(names[c]);
        Place& p = place[c];
        p.present = position != std::string_view::npos;
        if (!p.present) continue;
        const int index = static_cast<int>(position);
        int plane = 0;
        switch (format.layout) {
        case Layout::interleaved:
            p.stride = format.plane[0].samples * sampleBytes;
            p.offset = index * sampleBytes;
            break;
        case Layout::planar:
            plane = index;
            p.stride = sampleBytes;
            p.log2X = format.plane[index].log2X;
            p.log2Y = format.plane[index].log2Y;
            break;
        case Layout::packed422:
            p.log2X = c == luma ? 0 : 1;
            p.stride = c == luma ? 2 : 4;
            p.offset = index;
            break;
        case Layout::packedBits:
            p.stride = sampleBytes;
            p.shift = fieldOf(format, c).shift;
            p.bits = fieldOf(format, c).bits;
            break;
        case Layout::semiPlanar:
            plane = c == luma ? 0 : 1;
            p.stride = format.plane[plane].samples;
            p.offset = c == luma ? 0 : index - 1;
            p.log2X = format.plane[plane].log2X;
            p.log2Y = format.plane[plane].log2Y;
            break;
        }
        p.plane = static_cast<std::uint8_t*>(image.plane[plane]);
        p.step = image.step[plane];
        p.rowBytes = static_cast<std::ptrdiff_t>(interface::rowBytes(format, plane, size.width));
        p.rows = interface::rows(format, plane, size.height);
    }
}

bool Pixels::has(int channel, int x, int y) const
{
    const Place& p = place[channel];
    return p.present && (x >> p.log2X) * p.stride + p.offset < p.rowBytes && y >> p.log2Y < p.rows;
}

std::uint8_t* Pixels::at(int channel, int x, int y) const
{
    if (x < 0 || y < 0 || x >= size.width || y >= size.height || !has(channel, x, y))
        throw std::out_of_range("reference: no such sample");
    const Place& p = place[channel];
    return p.plane + (y >> p.log2Y) * p.step + (x >> p.log2X) * p.stride + p.offset;
}

int Pixels::get(int channel, int x, int y) const
{
    const std::uint8_t* const sample = at(channel, x, y);
    if (sampleBytes == 1) return *sample;
    if (sampleBytes > 2) throw std::logic_error("reference: not an integer sample");
    std::uint16_t word;
    std::memcpy(&word, sample, sizeof word);
    if (sampleType == Sample::s16) return static_cast<std::int16_t>(word);
    const Place& p = place[channel];
    return p.bits == 0 ? word : (word >> p.shift & ((1 << p.bits) - 1)) << (8 - p.bits);
}

void Pixels::put(int channel, int x, int y, int value)
{
    std::uint8_t* const sample = at(channel, x, y);
    if (sampleBytes > 2) throw std::logic_error("reference: not an integer sample");
    if (sampleType == Sample::s16 && value >= -32768 && value <= 32767) {
        const auto word = static_cast<std::int16_t>(value);
        std::memcpy(sample, &word, sizeof word);
        return;
    }
    if (value < 0 || value >> 8 * (place[channel].bits == 0 ? sampleBytes : 1) != 0)
        throw std::out_of_range("reference: value outside its sample");
    if (sampleBytes == 1) {
        *sample = static_cast<std::uint8_t>(value);
        return;
    }
    std::uint16_t word = static_cast<std::uint16_t>(value);
    const Place& p = place[channel];
    if (p.bits != 0) {
        std::memcpy(&word, sample, sizeof word);
        const int mask = ((1 << p.bits) - 1) << p.shift;
        word = static_cast<std::uint16_t>((word & ~mask) | value >> (8 - p.bits) << p.shift);
    }
    std::memcpy(sample, &word, sizeof word);
}

float Pixels::getFloat(int channel, int x, int y) const
{
    float value;
    std::memcpy(&value, at(channel, x, y), sizeof value);
    return value;
}

void Pixels::putFloat(int channel, int x, int y, float value) { std::memcpy(at(channel, x, y), &value, sizeof value); }

} // namespace zorcc::reference
