// SPDX-License-Identifier: MIT
#include "tests/reference/cie.h"

#include <algorithm>

#include "simd/cube_root.h"
#include "tests/reference/colours.h"

namespace zorcc::reference {

using interface::Sample;

namespace {

Three xyzOf(const Three& rgb)
{
    const auto [r, g, b] = rgb;
    return {0.412453f * r + 0.357580f * g + 0.180423f * b, 0.212671f * r + 0.715160f * g + 0.072169f * b,
            0.019334f * r + 0.119193f * g + 0.950227f * b};
}

Three rgbOf(const Three& xyz)
{
    const auto [x, y, z] = xyz;
    return {3.240479f * x + -1.53715f * y + -0.498535f * z, -0.969256f * x + 1.875991f * y + 0.041556f * z,
            0.055648f * x + -0.204043f * y + 1.057311f * z};
}

// ---- XYZ of bytes ----

using Bytes = std::array<int, 3>;

Bytes bytesOf(const Three& v) { return {static_cast<int>(v[0]), static_cast<int>(v[1]), static_cast<int>(v[2])}; }

Three xyzOfBytes(const Bytes& rgb, bool isInBlock)
{
    const auto [r, g, b] = rgb;
    if (isInBlock)
        return levelsOf((13515 * r + 11717 * g + 5912 * b) >> 15, (6969 * r + 23434 * g + 2365 * b) >> 15,
                        (634 * r + 3906 * g + 31137 * b) >> 15);
    return levelsOf((27030 * r + 23434 * g + 11824 * b) >> 16, (13937 * r + 46868 * g + 4729 * b) >> 16,
                    (1267 * r + 7811 * g + 62274 * b) >> 16);
}

Three rgbOfBytes(const Bytes& xyz)
{
    const auto [x, y, z] = xyz;
    return levelsOf((26546 * x - 12591 * y - 4083 * z) >> 13, (-7939 * x + 15368 * y + 340 * z) >> 13,
                    (456 * x - 1671 * y + 8661 * z) >> 13);
}

// ---- LUV ----

struct Chromaticity {
    float u, v;
};

Chromaticity chromaticityOf(float x, float y, float z)
{
    const float d = x + 15 * y + 3 * z;
    return d != 0 ? Chromaticity{4 * x / d, 9 * y / d} : Chromaticity{0, 0};
}

Three luvOf(float l, const Chromaticity& c) { return {l, 13 * l * (c.u - 0.197839f), 13 * l * (c.v - 0.468342f)}; }

Three luvOfFloats(const Three& rgb)
{
    const auto [x, y, z] = xyzOf(rgb);
    return luvOf(y > 0.008856f ? 116 * cubeRoot(y) - 16 : 903.3f * y, chromaticityOf(x, y, z));
}

Three luvOfWords(const Three& rgb)
{
    const auto [x, y, z] = xyzOf(rgb);
    const float unit = y * 1.5259022e-5f;
    const auto [l, u, v] = luvOf(y > 580.378f ? 116 * cubeRoot(unit) - 16 : 903.3f * unit, chromaticityOf(x, y, z));
    return {std::nearbyint(l * 655.35f), std::nearbyint((u + 134) * 185.12712f), (v + 140) * 250.13359f + 0.5f};
}

// Lightness of t as a byte, of which there are `perUnit`, rounded.
int lightnessCode(double t, double perUnit)
{
    return static_cast<int>(perUnit * (t > 0.008856 ? 116 * std::cbrt(t) - 16 : 903.3 * t) + 0.5);
}

Three luvOfBytes(const Three& rgb)
{
    const auto [x, y, z] = xyzOf(rgb);
    const int whole = static_cast<int>(y + 0.5f), quarters = static_cast<int>(4 * y + 0.5f);
    const bool isBright = whole >= 32;
    static const auto codes = [] {
        std::array<std::array<int, 256>, 2> table{};
        for (int i = 0; i < 256; ++i) table[0][i] = lightnessCode(i / 255.0, 2.55);
        for (int j = 0; j < 128; ++j) table[1][j] = lightnessCode(j / 1020.0, 10.2);
        return table;
    }();
    const int code = isBright ? codes[0][whole] : codes[1][quarters];
    const float l = isBright ? static_cast<float>(code) : static_cast<float>(code) / 4;
    const Chromaticity c = isBright || quarters > 0 ? chromaticityOf(x / 255, y / 255, z / 255) : Chromaticity{0, 0};
    return {static_cast<float>(isBright ? code : (code + 2) >> 2), 3.6723163f * l * (c.u - 0.197839f) + 97.02543f,
            4.961832f * l * (c.v - 0.468342f) + 136.75955f};
}

Three rgbOfLuv(const Three& luv, const Chromaticity& white, float least)
{
    const auto [l, u, v] = luv;
    if (l < 9e-5f) return {0, 0, 0};
    const float root = (l + 16) / 116, y = l >= 7.9996247f ? root * root * root : l / 903.3f;
    const float u1 = u / (13 * l) + white.u;
    float v1 = v / (13 * l) + white.v;
    if (std::abs(v1) < least) v1 += 9e-5f;
    const float x = 2.25f * (y / v1) * u1, z = 3 * (y / v1) - 5 * y - x / 3;
    return withinUnit(rgbOf({x, y, z}));
}

Three scaled(const Three& v, float factor) { return {v[0] * factor, v[1] * factor, v[2] * factor}; }

// Of integers.
Three rgbOfLuv(const Three& luv, float white)
{
    return rounded(scaled(rgbOfLuv(luv, {0.19783941f, 0.4683422f}, 1.1920929e-5f), white));
}

// ---- Lab ----

float curve(float t) { return t > 0.008856f ? cubeRoot(t) : 7.787f * t + 0.137931034f; }

// a and b are raised by 128 and multiplied by `colourUnit`.
Three labOf(const Three& rgb, float lightnessUnit, float colourUnit)
{
    const auto [x255, y255, z255] = xyzOf(rgb);
    const float x = x255 * 0.0041259914f, y = y255 * 0.003921569f, z = z255 * 0.0036018905f;
    const float l = y > 0.008856f ? 116 * cubeRoot(y) - 16 : 903.3f * y;
    return {lightnessUnit * l, (500 * (curve(x) - curve(y)) + 128) * colourUnit,
            (200 * (curve(y) - curve(z)) + 128) * colourUnit};
}

Three rgbOfLab(float l, float a, float b)
{
    const float fy = (l + 16) * 0.00862069f, fx = fy + a * 0.002f, fz = fy - b * 0.005f;
    return rgbOf({242.366f * (fx * fx * fx), 255 * (fy * fy * fy), 277.632f * (fz * fz * fz)});
}

} // namespace

void rgbToXyz(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination, [&](const Three& rgb, int x) {
        return source.sample() == Sample::u8 ? xyzOfBytes(bytesOf(rgb), x < source.width() / 8 * 8) : xyzOf(rgb);
    });
}

void xyzToRgb(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination, [&](const Three& xyz, int) {
        return source.sample() == Sample::u8    ? rgbOfBytes(bytesOf(xyz))
               : source.sample() == Sample::f32 ? withinUnit(rgbOf(xyz))
                                                : rgbOf(xyz);
    });
}

void rgbToLuv(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination, [&](const Three& rgb, int) {
        return source.sample() == Sample::u8    ? luvOfBytes(rgb)
               : source.sample() == Sample::f32 ? luvOfFloats(rgb)
                                                : luvOfWords(rgb);
    });
}

void luvToRgb(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination, [&](const Three& luv, int) {
        const auto [l, u, v] = luv;
        if (source.sample() == Sample::f32) return rgbOfLuv(luv, {0.197839f, 0.468342f}, 1.1920929e-7f);
        if (source.sample() == Sample::u8)
            return rgbOfLuv({l * 0.39215687f, u * 1.38823533f - 134, v * 1.02745104f - 140}, 255);
        return rgbOfLuv({l * 0.0015259022f, u / 185.12712f - 134, v / 250.13359f - 140}, 65535);
    });
}

void rgbToLab(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination, [&](const Three& rgb, int) {
        return rounded(destination.sample() == Sample::u8 ? labOf(rgb, 2.55f, 1) : labOf(rgb, 655.35f, 255));
    });
}

void labToRgb(const Pixels& source, Pixels& destination)
{
    eachColour(source, destination, [&](const Three& lab, int) {
        const auto [l, a, b] = lab;
        return rounded(source.sample() == Sample::u8
                           ? rgbOfLab(l * 0.39215687f, a - 128, b - 128)
                           : rgbOfLab(l * 0.0015259022f, a * 0.003921569f - 128, b * 0.003921569f - 128));
    });
}

bool isLinear(const float* pixel) { return areWithin(pixel, 1e30f); }

bool isLuv(const float* luv) { return areWithin(luv, 1e6f); }

} // namespace zorcc::reference
