// SPDX-License-Identifier: MIT
#include "tests/reference/hexcone.h"

#include <algorithm>
#include <tuple>

#include "tests/reference/colours.h"

namespace zorcc::reference {

using interface::Sample;

namespace {

// The constants of a sample type.
struct Type {
    float most, fromDegrees, toDegrees, toUnit, sextant;
};
constexpr Type type8 = {255, 0.7083333f, 1.4117647f, 0.003921569f, 42.5f};
constexpr Type type16 = {65535, 182.04167f, 0.005493248f, 1.5259022e-5f, 10922.5f};

const Type& typeOf(const Pixels& pixels) { return pixels.sample() == Sample::u8 ? type8 : type16; }

Three hlsOf(const Three& rgb, const Type& type, bool isFloat)
{
    const auto [r, g, b] = rgb;
    // The sign of a zero among zeros of both signs is that of the last.
    const float most = std::max({b, g, r}), least = std::min({b, g, r}), d = most - least, sum = most + least;
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
    const auto [r, g, b] = rgb;
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
    const auto [h, s, v] = hsv;
    if (s == 0) return {v, v, v};
    const float sixths = h == type.most ? 0 : h * type.toDegrees * 0.016666668f, unit = s * type.toUnit;
    const float sextant = std::trunc(sixths), f = sixths - sextant;
    const float p = v - v * unit, q = v - f * v * unit, t = p + f * v * unit;
    const Three bySextant[] = {{v, t, p}, {q, v, p}, {p, v, t}, {p, q, v}, {t, p, v}, {v, p, q}};
    return bySextant[static_cast<int>(sextant)];
}

} // namespace

void rgbToHls(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination,
               [&](const Three& rgb, int) { return hlsOf(rgb, typeOf(source), source.sample() == Sample::f32); });
}

void hlsToRgb(const Pixels& source, Pixels& destination)
{
    const Type& type = typeOf(source);
    eachColour(source, destination, [&](const Three& hls, int) -> Three {
        const auto [h, l, s] = hls;
        if (source.sample() == Sample::f32) return rgbOfHls(h * 360, l, s, false);
        if (s == 0) return {l, l, l};
        Three rgb = rgbOfHls(h * type.toDegrees, l * type.toUnit, s * type.toUnit, source.sample() != Sample::u8);
        for (float& c : rgb) c *= type.most;
        return rgb;
    });
}

void rgbToHsv(const Pixels& source, Pixels& destination)
{
    const int whole = source.sample() == Sample::u8 ? source.width() / 4 * 4 : 0;
    eachColour(source, destination, [&](const Three& rgb, int x) {
        const Three hsv = hsvOf(rgb, typeOf(source));
        return x < whole ? hsv : rounded(hsv);
    });
}

void hsvToRgb(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination, [&](const Three& hsv, int) { return rounded(rgbOfHsv(hsv, typeOf(source))); });
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
