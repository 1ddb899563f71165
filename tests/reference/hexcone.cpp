// SPDX-License-Identifier: MIT
#include "tests/reference/hexcone.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace zorcc::reference {

using interface::Sample;

namespace {

struct Three {
    float of[3];
};

// The constants of a sample type.
struct Type {
    float most, fromDegrees, toDegrees, toUnit, sextant;
};
constexpr Type type8 = {255, 0.7083333f, 1.4117647f, 0.003921569f, 42.5f};
constexpr Type type16 = {65535, 182.04167f, 0.005493248f, 1.5259022e-5f, 10922.5f};

const Type& typeOf(const Pixels& pixels) { return pixels.sample() == Sample::u8 ? type8 : type16; }

int offsetOf(const Pixels& pixels) { return pixels.sample() == Sample::s16 ? 32768 : 0; }

Three read(const Pixels& pixels, int x, int y)
{
    Three three;
    for (int c = 0; c < 3; ++c)
        three.of[c] = pixels.sample() == Sample::f32 ? pixels.getFloat(c, x, y)
                                                     : static_cast<float>(pixels.get(c, x, y) + offsetOf(pixels));
    return three;
}

void write(Pixels& pixels, int x, int y, const Three& three, float (*toInteger)(float))
{
    for (int c = 0; c < 3; ++c)
        if (pixels.sample() == Sample::f32)
            pixels.putFloat(c, x, y, three.of[c]);
        else
            pixels.put(c, x, y,
                       static_cast<int>(std::clamp(toInteger(three.of[c]), 0.0f, typeOf(pixels).most)) -
                           offsetOf(pixels));
}

float truncated(float v) { return std::trunc(v); }
float rounded(float v) { return std::nearbyint(v); } // ties to even

Three hlsOf(const Three& rgb, const Type& type, bool isFloat)
{
    const auto [r, g, b] = rgb.of;
    const float most = std::max({r, g, b}), least = std::min({r, g, b}), d = most - least, sum = most + least;
    const float l = sum * 0.5f, full = isFloat ? 1 : type.most;
    if (isFloat ? !(d > 1.1920929e-7f) : d == 0) return {0, l, 0};
    const float s = l <= full / 2 ? d / sum : d / (2 * full - sum);
    float h = most == r ? 60 * (g - b) / d : most == g ? 60 * (b - r) / d + 120 : 60 * (r - g) / d + 240;
    if (h < 0) h += 360;
    return isFloat ? Three{h / 360, l, s} : Three{h * type.fromDegrees, l, s * full};
}

// Rises in the first 60 degrees and falls from 180 to 240. 16-bit samples divide by 60, the others multiply by 1/60.
float channel(float angle, float m1, float m2, bool divides)
{
    if (angle >= 240) return m1;
    if (angle >= 60 && angle < 180) return m2;
    const float slope = (m2 - m1) * (angle < 60 ? angle : 240 - angle);
    return m1 + (divides ? slope / 60 : slope * 0.016666668f);
}

Three rgbOfHls(float h, float l, float s, bool divides)
{
    if (s == 0) return {l, l, l};
    const float m2 = l <= 0.5f ? l * (1 + s) : l + s - l * s, m1 = 2 * l - m2;
    float red = h + 120, blue = h - 120;
    if (red > 360) red -= 360;
    if (blue < 0) blue += 360;
    return {channel(red, m1, m2, divides), channel(h, m1, m2, divides), channel(blue, m1, m2, divides)};
}

Three hsvOf(const Three& rgb, const Type& type)
{
    const auto [r, g, b] = rgb.of;
    const float most = std::max({r, g, b}), d = most - std::min({r, g, b});
    if (most == 0 || d == 0) return {0, 0, most};
    const float red = (most - r) / d, green = (most - g) / d, blue = (most - b) / d;
    float sixths = 0;
    if (r == most) sixths = blue - green;
    if (g == most) sixths = 2 + red - blue;
    if (b == most) sixths = 4 + green - red;
    const float h = sixths * type.sextant;
    return {h < 0 ? h + type.most : h, d / most * type.most, most};
}

Three rgbOfHsv(const Three& hsv, const Type& type)
{
    const auto [h, s, v] = hsv.of;
    if (s == 0) return {v, v, v};
    const float sixths = h == type.most ? 0 : h * type.toDegrees * 0.016666668f, unit = s * type.toUnit;
    const float sextant = std::trunc(sixths), f = sixths - sextant;
    const float p = v - v * unit, q = v - f * v * unit, t = p + f * v * unit;
    const Three bySextant[] = {{v, t, p}, {q, v, p}, {p, v, t}, {p, q, v}, {t, p, v}, {v, p, q}};
    return bySextant[static_cast<int>(sextant)];
}

template <class Convert> void eachPixel(const Pixels& source, Convert convert)
{
    for (int y = 0; y < source.height(); ++y)
        for (int x = 0; x < source.width(); ++x) convert(x, y);
}

} // namespace

void rgbToHls(const Pixels& source, Pixels& destination)
{
    eachPixel(source, [&](int x, int y) {
        write(destination, x, y, hlsOf(read(source, x, y), typeOf(source), source.sample() == Sample::f32), truncated);
    });
}

void hlsToRgb(const Pixels& source, Pixels& destination)
{
    const Type& type = typeOf(source);
    eachPixel(source, [&](int x, int y) {
        const auto [h, l, s] = read(source, x, y).of;
        Three rgb;
        if (source.sample() == Sample::f32) {
            rgb = rgbOfHls(h * 360, l, s, false);
        } else if (s == 0) {
            rgb = {l, l, l};
        } else {
            rgb = rgbOfHls(h * type.toDegrees, l * type.toUnit, s * type.toUnit, source.sample() != Sample::u8);
            for (float& c : rgb.of) c *= type.most;
        }
        write(destination, x, y, rgb, truncated);
    });
}

void rgbToHsv(const Pixels& source, Pixels& destination)
{
    const int whole = source.sample() == Sample::u8 ? source.width() / 4 * 4 : 0;
    eachPixel(source, [&](int x, int y) {
        write(destination, x, y, hsvOf(read(source, x, y), typeOf(source)), x < whole ? truncated : rounded);
    });
}

void hsvToRgb(const Pixels& source, Pixels& destination)
{
    eachPixel(source,
              [&](int x, int y) { write(destination, x, y, rgbOfHsv(read(source, x, y), typeOf(source)), rounded); });
}

bool hasHls(const float* rgb)
{
    const auto fits = [](float v) { return std::abs(v) < 1e15f; }; // and is a number
    const auto [r, g, b] = std::tuple{rgb[0], rgb[1], rgb[2]};
    const float h = 60 * (g - b) / (r - g);
    const bool isMinusZero = r >= b && b >= g && h == 0 && std::signbit(h); // not below 0, so that nothing is added
    return fits(r) && fits(g) && fits(b) && !isMinusZero;
}

bool isHls(const float* hls) { return hasHls(hls) && hls[0] >= 0 && hls[0] <= 1 && hls[1] != 0; }

} // namespace zorcc::reference
