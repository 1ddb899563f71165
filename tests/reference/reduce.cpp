// SPDX-License-Identifier: MIT
#include "tests/reference/reduce.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zorcc::reference {

using interface::Extra;
using interface::Function;

namespace {

constexpr int noisePeriod = 1024;

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

constexpr Diffusion diffusions[] = {{{7, 0}, {0, 1, 5, 3, 0}, {}, 16},               // Floyd-Steinberg
                                    {{7, 5}, {3, 5, 7, 5, 3}, {1, 3, 5, 3, 1}, 48},  // Jarvis-Judice-Ninke
                                    {{8, 4}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}, 42}}; // Stucki

void diffuse(const Pixels& from, Pixels& to, int channel, const Extra& extra)
{
    const Diffusion& diffusion = diffusions[extra.method - zorDitherMethodFloydSteinberg];
    const float intervals = static_cast<float>(extra.levels - 1);
    const float white = from.white(), step = white / intervals, inverse = intervals / white;
    const float reciprocal = 1.0f / diffusion.divisor;
    std::optional<NoiseTable> noise;
    if (extra.noise > 0)
        noise.emplace(static_cast<float>(50 - extra.noise) * step / 100.0f,
                      static_cast<float>(50 + extra.noise) * step / 100.0f);
    // With zeros where neighbours are outside the image.
    const int stride = from.width() + 4;
    std::vector<float> errors(static_cast<std::size_t>(stride) * static_cast<std::size_t>(from.height() + 2));
    eachPixel(from.size(), [&](int x, int y) {
        float* const error = &errors[static_cast<std::size_t>((y + 2) * stride + x + 2)];
        float sum = diffusion.own[0] * error[-1] + diffusion.own[1] * error[-2];
        for (int i = 0; i < 5; ++i) sum += diffusion.above[i] * error[i - 2 - stride];
        for (int i = 0; i < 5; ++i) sum += diffusion.twoAbove[i] * error[i - 2 - 2 * stride];
        const float v = from.level(channel, x, y) + sum * reciprocal;
        double result = v >= white ? to.white() : 0;
        if (v >= 0 && v < white) {
            float k = std::trunc(v * inverse), q = k * step;
            const float threshold = noise ? noise->at(x, y) : 0.5f * step;
            if (v - q > threshold) {
                q += step;
                ++k;
            }
            *error = v - q;
            result = to.white() == white ? double{q} : levelValue(k, to.white(), extra.levels);
        }
        to.putLevel(channel, x, y, result);
    });
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

void reduceBits(const Function& function, const Pixels& from, Pixels& to, const Extra& extra)
{
    const int converted =
        function.alpha == interface::Alpha::keep ? 3 : static_cast<int>(function.source->channels.size());
    const bool ordered = extra.method == zorDitherMethodOrdered, plain = extra.method == zorDitherMethodNone;
    std::optional<NoiseTable> noise;
    const float most = static_cast<float>(extra.noise) / 100.0f;
    if (extra.noise > 0) noise.emplace(-most, most);
    for (int c = 0; c < converted; ++c) {
        if (!ordered && !plain) {
            diffuse(from, to, c, extra);
            continue;
        }
        eachPixel(from.size(), [&](int x, int y) {
            const float sample = from.level(c, x, y), threshold = (noise ? noise->at(x, y) : 0) + bayerThreshold(x, y);
            to.putLevel(c, x, y,
                        plain ? plainValue(sample, from.white(), to.white(), extra.levels)
                              : thresholdValue(sample, threshold, from.white(), to.white(), extra.levels));
        });
    }
}

} // namespace zorcc::reference
