// SPDX-License-Identifier: MIT
#include "tests/reference/gray.h"

#include "frame/reductions.h"
#include "tests/reference/rounding.h"

namespace zorcc::reference {

using interface::Sample;

namespace {

constexpr float lumaWeights[] = {0.299f, 0.587f, 0.114f};

// Of the samples that are numbers.
float maximumOf(const Pixels& image)
{
    float most = -std::numeric_limits<float>::infinity();
    eachPixel(image.size(), [&](int x, int y) {
        const float sample = image.get<float>(luma, x, y);
        if (sample > most) most = sample;
    });
    return most;
}

// By the primitive, which has tests of its own: where large samples cancel, it is the order of additions that counts.
double twiceMeanOf(const Pixels& image)
{
    double mean = 0;
    const std::uint8_t* const first = image.at(luma, 0, 0);
    const int step = image.height() > 1 ? static_cast<int>(image.at(luma, 0, 1) - first) : 0;
    zoriMean_32f_C1R(reinterpret_cast<const float*>(first), step, image.size(), &mean);
    return 2 * mean;
}

template <class White> ZorStatus outcomeOf(White white) { return white < 0 ? zorStatusNothingDone : zorStatusOk; }

// byteOf(product of sample and factor) for every pixel, unless white is too small or there is none.
template <class White, class ByteOf> void scale(const Pixels& from, Pixels& to, White white, ByteOf byteOf)
{
    if (white < 0) return;
    const float factor = static_cast<float>(255 / white);
    const bool isBlack = !(white > 1.1754943508222875e-38);
    eachPixel(from.size(),
              [&](int x, int y) { to.put(luma, x, y, isBlack ? 0 : byteOf(from.get<float>(luma, x, y) * factor)); });
}

} // namespace

void toGray(const interface::Function&, const Pixels& from, Pixels& to, const interface::Extra& extra)
{
    const float* const w = extra.weights ? extra.weights : lumaWeights;
    eachPixel(from.size(), [&](int x, int y) {
        if (from.sample() == Sample::u8) {
            std::int64_t sum = 2048;
            for (int c = 0; c < 3; ++c)
                sum += from.get(c, x, y) * (static_cast<std::int64_t>(w[c] * 4096.0 + 0.5) & 0xffff);
            to.put(luma, x, y, static_cast<double>(std::min<std::int64_t>(sum >> 12, 255)));
            return;
        }
        const float bias = from.sample() == Sample::s16 ? 32768 : 0;
        const float sum = w[0] * (from.get<float>(0, x, y) + bias) + w[1] * (from.get<float>(1, x, y) + bias) +
                          w[2] * (from.get<float>(2, x, y) + bias);
        if (from.sample() == Sample::f32)
            to.put(luma, x, y, sum);
        else
            to.put(luma, x, y, std::nearbyint(std::clamp(sum, 0.0f, 65535.0f)) - bias);
    });
}

void toneMapLinear(const Pixels& from, Pixels& to)
{
    scale(from, to, maximumOf(from), [](float v) {
        const float whole = std::trunc(v), wrapped = whole - 256 * std::floor(whole / 256);
        return std::isfinite(v) ? wrapped : 0;
    });
}

void toneMapMean(const Pixels& from, Pixels& to)
{
    scale(from, to, twiceMeanOf(from),
          [](float v) { return std::isnan(v) ? 0 : std::trunc(std::clamp(v, 0.0f, 255.0f)); });
}

ZorStatus outcomeOfLinear(const Pixels& source) { return outcomeOf(maximumOf(source)); }
ZorStatus outcomeOfMean(const Pixels& source) { return outcomeOf(twiceMeanOf(source)); }

} // namespace zorcc::reference
