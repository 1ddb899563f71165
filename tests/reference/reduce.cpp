// SPDX-License-Identifier: MIT
#include "tests/reference/reduce.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

namespace zorcc::reference {

using interface::Extra;
using interface::Function;
using interface::Image;
using interface::Sample;

namespace {

constexpr int noisePeriod = 1024;
constexpr double bias = 32768; // signed samples stand for a value so much greater

float whiteOf(Sample sample) { return sample == Sample::u8 ? 255.0f : sample == Sample::f32 ? 1.0f : 65535.0f; }

// The samples of an image as floats from 0 to white.
class Samples {
public:
    Samples(const interface::Format& f, const Image& i)
        : format(f), image(i), count(static_cast<int>(f.channels.size())), white(whiteOf(f.sample))
    {
    }

    const interface::Format& format;
    const Image& image;
    const int count; // of a pixel
    const float white;

    float get(int x, int y, int c) const
    {
        switch (format.sample) {
        case Sample::u8:
            return read<std::uint8_t>(x, y, c);
        case Sample::u16:
            return read<std::uint16_t>(x, y, c);
        case Sample::s16:
            return static_cast<float>(read<std::int16_t>(x, y, c) + bias);
        default:
            return read<float>(x, y, c);
        }
    }

    // Rounds down what is positive, and saturates.
    void put(int x, int y, int c, double value) const
    {
        const double whole = std::clamp(std::trunc(value), 0.0, double{white});
        if (format.sample == Sample::u8)
            write(x, y, c, static_cast<std::uint8_t>(whole));
        else if (format.sample == Sample::u16)
            write(x, y, c, static_cast<std::uint16_t>(whole));
        else
            write(x, y, c, static_cast<std::int16_t>(whole - bias));
    }

private:
    std::uint8_t* at(int x, int y, int c) const
    {
        return static_cast<std::uint8_t*>(image.plane[0]) + std::ptrdiff_t{y} * image.step[0] +
               (std::ptrdiff_t{x} * count + c) * interface::sampleBytes(format.sample);
    }
    template <class T> T read(int x, int y, int c) const
    {
        T value;
        std::memcpy(&value, at(x, y, c), sizeof value);
        return value;
    }
    template <class T> void write(int x, int y, int c, T value) const
    {
        std::memcpy(at(x, y, c), &value, sizeof value);
    }
};

// Numbers between two bounds that are the same in every call.
class NoiseTable {
public:
    NoiseTable(float low, float high)
        : amount(uniformNumbers(noisePeriod, low, high)), offset(uniformNumbers(noisePeriod, 0, noisePeriod))
    {
    }

    float at(int x, int y) const
    {
        const int start = static_cast<int>(std::nearbyint(offset[static_cast<std::size_t>(x % noisePeriod)]));
        return static_cast<float>(amount[(start + 2ll * y + x) % noisePeriod]);
    }

private:
    std::vector<double> amount, offset;
};

// Towards zero, but where nothing is defined: NaN and numbers beyond 32 bits become the end of the range.
double wholeSteps(float steps) { return std::isnan(steps) ? -1e9 : std::clamp(std::trunc(double{steps}), -1e9, 1e9); }

// The value of level k where source and destination differ in scale.
double levelValue(double k, float destinationWhite, int levels)
{
    const auto value = static_cast<std::int64_t>(k) * static_cast<std::int64_t>(destinationWhite);
    return static_cast<double>(value / (levels - 1));
}

// Weights of what error diffusion gathers, in the order in which it is added: from the left neighbour and the one
// before it, from the row above and from the one above that, each from two columns to the left to two to the right.
struct Diffusion {
    float own[2], above[5], twoAbove[5], divisor;
};

constexpr Diffusion floydSteinberg = {{7, 0}, {0, 1, 5, 3, 0}, {}, 16};
constexpr Diffusion jarvisJudiceNinke = {{7, 5}, {3, 5, 7, 5, 3}, {1, 3, 5, 3, 1}, 48};
constexpr Diffusion stucki = {{8, 4}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}, 42};

const Diffusion& diffusionOf(ZorDitherMethod method)
{
    return method == zorDitherMethodFloydSteinberg      ? floydSteinberg
           : method == zorDitherMethodJarvisJudiceNinke ? jarvisJudiceNinke
                                                        : stucki;
}

void diffuse(const Samples& from, const Samples& to, int channel, ZorSize size, const Extra& extra)
{
    const Diffusion& diffusion = diffusionOf(extra.method);
    const float intervals = static_cast<float>(extra.levels - 1);
    const float white = from.white, step = white / intervals, inverse = intervals / white;
    const float reciprocal = 1.0f / diffusion.divisor;
    std::optional<NoiseTable> noise;
    if (extra.noise > 0)
        noise.emplace(static_cast<float>(50 - extra.noise) * step / 100.0f,
                      static_cast<float>(50 + extra.noise) * step / 100.0f);
    std::vector<float> errors(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height), 0.0f);
    auto error = [&](int x, int y) -> float& {
        return errors[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) + static_cast<std::size_t>(x)];
    };
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const auto at = [&](int column, int row) {
                return column >= 0 && column < size.width && row >= 0 ? error(column, row) : 0.0f;
            };
            float sum = diffusion.own[0] * at(x - 1, y) + diffusion.own[1] * at(x - 2, y);
            for (int i = 0; i < 5; ++i) sum += diffusion.above[i] * at(x + i - 2, y - 1);
            for (int i = 0; i < 5; ++i) sum += diffusion.twoAbove[i] * at(x + i - 2, y - 2);
            const float v = from.get(x, y, channel) + sum * reciprocal;
            if (v >= white) {
                to.put(x, y, channel, to.white);
            } else if (!(v >= 0)) {
                to.put(x, y, channel, 0);
            } else {
                float k = std::trunc(v * inverse), q = k * step;
                const float threshold = noise ? noise->at(x, y) : 0.5f * step;
                if (v - q > threshold) {
                    q += step;
                    ++k;
                }
                error(x, y) = v - q;
                to.put(x, y, channel, to.white == white ? double{q} : levelValue(k, to.white, extra.levels));
            }
        }
}

} // namespace

std::vector<double> uniformNumbers(int count, double low, double high)
{
    const auto congruent = [](std::uint32_t x) { return x * 69069u + 1013904243u; };
    std::uint32_t x1 = 0, x2 = congruent(x1), x3 = congruent(x2), lcg = 1131199209, borrow = 0xffffffff;
    std::vector<double> numbers;
    for (int i = 0; i < count; ++i) {
        std::uint32_t t = x2 - x3 + borrow;
        borrow = t >> 31 ? 0xffffffff : 0;
        if (borrow) t -= 18;
        lcg = congruent(lcg);
        x3 = x2;
        x2 = x1;
        x1 = t;
        numbers.push_back(static_cast<std::int32_t>(t + lcg) * ((high - low) * 0x1p-32) + (low + high) * 0.5);
    }
    return numbers;
}

float bayerThreshold(int x, int y)
{
    constexpr int fifteenths[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
    return static_cast<float>(fifteenths[y % 4][x % 4]) / 15.0f;
}

double plainValue(float sample, float white, float destinationWhite, int levels)
{
    const float intervals = static_cast<float>(levels - 1), step = 1.0f / intervals, half = 0.5f / intervals;
    const float x = sample * (1.0f / white);
    float base = static_cast<float>(wholeSteps(x * intervals)) * step;
    if (x - base > half) base += step;
    return base * destinationWhite;
}

double thresholdValue(float sample, float threshold, float white, float destinationWhite, int levels)
{
    const float intervals = static_cast<float>(levels - 1), step = white / intervals, inverse = intervals / white;
    double k = wholeSteps(sample * inverse);
    float q = static_cast<float>(k) * step;
    if (sample - q > threshold * step) {
        q += step;
        ++k;
    }
    return white == destinationWhite ? double{q} : levelValue(k, destinationWhite, levels);
}

int mostLevels(const Function& function)
{
    return interface::sampleBytes(function.source->sample) == 2 &&
                   interface::sampleBytes(function.destination->sample) == 2
               ? 65536
               : 256;
}

void reduceBits(const Function& function, const Image& source, const Image& destination, ZorSize size,
                const Extra& extra)
{
    const Samples from(*function.source, source), to(*function.destination, destination);
    const int channels = function.alpha == interface::Alpha::keep ? 3 : from.count;
    if (extra.method != zorDitherMethodNone && extra.method != zorDitherMethodOrdered) {
        for (int c = 0; c < channels; ++c) diffuse(from, to, c, size, extra);
        return;
    }
    const float most = static_cast<float>(extra.noise) / 100.0f;
    std::optional<NoiseTable> noise;
    if (extra.noise > 0) noise.emplace(-most, most);
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            float threshold = bayerThreshold(x, y);
            if (noise) threshold = noise->at(x, y) + threshold;
            for (int c = 0; c < channels; ++c) {
                const float sample = from.get(x, y, c);
                to.put(x, y, c,
                       extra.method == zorDitherMethodNone
                           ? plainValue(sample, from.white, to.white, extra.levels)
                           : thresholdValue(sample, threshold, from.white, to.white, extra.levels));
            }
        }
}

} // namespace zorcc::reference
