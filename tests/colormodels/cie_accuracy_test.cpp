// SPDX-License-Identifier: MIT
// How far results are from those of the same formulas in double precision: all colours of bytes within one unit, floats
// within four units in the last place of the largest term.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "tests/harness/cases.h"
#include "tests/harness/checker.h"
#include "tests/reference/cie.h"

namespace zorcc::test {
namespace {

using Three = std::array<double, 3>;

Three product(const double (&matrix)[3][3], const Three& v)
{
    Three result;
    for (int i = 0; i < 3; ++i) result[i] = matrix[i][0] * v[0] + matrix[i][1] * v[1] + matrix[i][2] * v[2];
    return result;
}

Three xyzOf(const Three& rgb)
{
    return product({{0.412453, 0.357580, 0.180423}, {0.212671, 0.715160, 0.072169}, {0.019334, 0.119193, 0.950227}},
                   rgb);
}

constexpr double fromXyz[3][3] = {
    {3.240479, -1.53715, -0.498535}, {-0.969256, 1.875991, 0.041556}, {0.055648, -0.204043, 1.057311}};

Three rgbOf(const Three& xyz) { return product(fromXyz, xyz); }

double lightnessOf(double y) { return y > 0.008856 ? 116 * std::cbrt(y) - 16 : 903.3 * y; }

Three luvOf(const Three& xyz, double l)
{
    const auto [x, y, z] = xyz;
    const double d = x + 15 * y + 3 * z;
    return {l, 13 * l * ((d > 0 ? 4 * x / d : 0) - 0.197839), 13 * l * ((d > 0 ? 9 * y / d : 0) - 0.468342)};
}

// Which code stands for Y is part of the definition, and is decided in single precision.
Three luvCodesOf(const Three& rgb)
{
    const float y255 = 0.212671f * static_cast<float>(rgb[0]) + 0.71516f * static_cast<float>(rgb[1]) +
                       0.072169f * static_cast<float>(rgb[2]);
    const bool isBright = static_cast<int>(y255 + 0.5f) >= 32;
    const double level = isBright ? std::floor(y255 + 0.5f) : std::floor(4 * y255 + 0.5f) / 4;
    const double perUnit = isBright ? 2.55 : 10.2;
    const double l = std::floor(perUnit * lightnessOf(level / 255) + 0.5) / perUnit;
    const auto [l1, u, v] = luvOf(xyzOf(rgb), l);
    return {2.55 * l1, (u + 134) * 255 / 354, (v + 140) * 255 / 262};
}

Three rgbOfLuv(const Three& luv, double u0, double v0, double least)
{
    const auto [l, u, v] = luv;
    if (l < 9e-5) return {};
    const double root = (l + 16) / 116, y = l >= 7.9996247 ? root * root * root : l / 903.3;
    const double u1 = u / (13 * l) + u0;
    double v1 = v / (13 * l) + v0;
    if (std::abs(v1) < least) v1 += 9e-5;
    const double x = 2.25 * y / v1 * u1;
    return rgbOf({x, y, 3 * y / v1 - 5 * y - x / 3});
}

double curve(double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16 / 116.0; }

Three labOf(const Three& rgb255)
{
    const auto [x255, y255, z255] = xyzOf(rgb255);
    const double x = x255 / 242.36628, y = y255 / 255, z = z255 / 277.63227;
    return {lightnessOf(y), 500 * (curve(x) - curve(y)), 200 * (curve(y) - curve(z))};
}

Three rgb255OfLab(const Three& lab)
{
    const auto cube = [](double v) { return v * v * v; };
    const double fy = (lab[0] + 16) / 116, fx = fy + lab[1] / 500, fz = fy - lab[2] / 200;
    return rgbOf({242.36628 * cube(fx), 255 * cube(fy), 277.63227 * cube(fz)});
}

Three times(const Three& v, double factor) { return {v[0] * factor, v[1] * factor, v[2] * factor}; }

// ---- bytes ----------------------------------------------------------------------------------------------------------

constexpr ZorSize band{4096, 16};
constexpr int pixels = band.width * band.height;

struct Formula {
    const char* function;
    Three (*of)(const Three&); // codes
    bool roundsDown;
    long long differing; // of 3 * 2^24 bytes, by one
};

const Formula formulas[] = {
    {"zoriRGBToXYZ_8u_C3R", xyzOf, true, 94358},
    {"zoriXYZToRGB_8u_C3R", rgbOf, true, 364319},
    {"zoriRGBToLUV_8u_C3R", luvCodesOf, false, 26181},
    {"zoriLUVToRGB_8u_C3R",
     [](const Three& c) {
         return times(rgbOfLuv({c[0] * 100 / 255, c[1] * 354 / 255 - 134, c[2] * 262 / 255 - 140}, 0.19783941,
                               0.4683422, 1.1920929e-5),
                      255);
     },
     false, 573},
    {"zoriBGRToLab_8u_C3R",
     [](const Three& c) {
         const Three lab = labOf({c[2], c[1], c[0]});
         return Three{2.55 * lab[0], lab[1] + 128, lab[2] + 128};
     },
     false, 3545},
    {"zoriLabToBGR_8u_C3R",
     [](const Three& c) {
         const Three rgb = rgb255OfLab({c[0] / 2.55, c[1] - 128, c[2] - 128});
         return Three{rgb[2], rgb[1], rgb[0]};
     },
     false, 3376},
};

class ByteAccuracy : public testing::TestWithParam<Formula> {};

TEST_P(ByteAccuracy, AllColours)
{
    const Formula& formula = GetParam();
    std::vector<std::uint8_t> source(3 * pixels), destination(3 * pixels);
    interface::Image from, to;
    from.plane[0] = source.data();
    to.plane[0] = destination.data();
    from.step[0] = to.step[0] = 3 * band.width;
    long long differing = 0;
    int worst = 0;
    for (int first = 0; first < colours; first += pixels) {
        for (int i = 0; i < pixels; ++i)
            for (int c = 0; c < 3; ++c) source[3 * i + c] = static_cast<std::uint8_t>((first + i) >> 8 * c);
        ASSERT_EQ((*interface::findFunction(formula.function))(from, to, band), zorStatusOk);
        for (int i = 0; i < pixels; ++i) {
            const std::uint8_t* const s = &source[3 * i];
            const Three codes = formula.of({double(s[0]), double(s[1]), double(s[2])});
            for (int c = 0; c < 3; ++c) {
                const double code = std::floor(codes[c] + (formula.roundsDown ? 0 : 0.5));
                const int difference = std::abs(destination[3 * i + c] - static_cast<int>(std::clamp(code, 0., 255.)));
                differing += difference != 0;
                worst = std::max(worst, difference);
            }
        }
    }
    EXPECT_LE(worst, 1);
    EXPECT_EQ(differing, formula.differing);
}

INSTANTIATE_TEST_SUITE_P(Formulas, ByteAccuracy, testing::ValuesIn(formulas),
                         [](const auto& of) { return std::string(of.param.function); });

// Rows that are shorter than the blocks, whose pixels have other weights.
TEST(XyzOfBytes, AllColoursAfterTheBlocksOfARow)
{
    constexpr ZorSize size{7, 9363};
    const reference::Case c{"zoriRGBToXYZ_8u_C3R", reference::rgbToXyz};
    Checker checker(c, functionOf(c));
    for (int first = 0; first < colours; first += size.width * size.height)
        ASSERT_TRUE(checker.check({size}, [&](TestImage& image) { fillColours(image, first); })) << "from " << first;
}

// ---- floats ---------------------------------------------------------------------------------------------------------

// Results and, for each, the sum of the sizes of the terms that it is made of last.
struct Terms {
    Three result, size;
};

Three sizeOf(const double (&matrix)[3][3], const Three& v)
{
    Three size{};
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j) size[i] += std::abs(matrix[i][j] * v[j]);
    return size;
}

Three limited(const Three& v) { return {std::clamp(v[0], 0., 1.), std::clamp(v[1], 0., 1.), std::clamp(v[2], 0., 1.)}; }

struct FloatFormula {
    const char* function;
    Three (*source)(const Three& rgb);
    Terms (*of)(const Three&);
};

Three luvOfRgb(const Three& rgb) { return luvOf(xyzOf(rgb), lightnessOf(xyzOf(rgb)[1])); }

const FloatFormula floatFormulas[] = {
    {"zoriRGBToXYZ_32f_C3R", [](const Three& rgb) { return rgb; },
     [](const Three& rgb) {
         return Terms{xyzOf(rgb), xyzOf(rgb)};
     }},
    {"zoriXYZToRGB_32f_C3R", xyzOf,
     [](const Three& xyz) {
         return Terms{limited(rgbOf(xyz)), sizeOf(fromXyz, xyz)};
     }},
    {"zoriRGBToLUV_32f_C3R", [](const Three& rgb) { return rgb; },
     [](const Three& rgb) {
         const Three luv = luvOfRgb(rgb);
         const double thirteen = 13 * luv[0];
         return Terms{
             luv,
             {luv[0] + 32, std::abs(luv[1]) + 2 * 0.197839 * thirteen, std::abs(luv[2]) + 2 * 0.468342 * thirteen}};
     }},
    {"zoriLUVToRGB_32f_C3R", luvOfRgb,
     [](const Three& luv) {
         const Three rgb = rgbOfLuv(luv, 0.197839, 0.468342, 1.1920929e-7);
         const auto [x, y, z] = xyzOf(rgb);
         const double q = luv[0] < 9e-5 ? 0 : y / (luv[2] / (13 * luv[0]) + 0.468342);
         return Terms{limited(rgb), sizeOf(fromXyz, {x, y, 3 * q + 5 * y + x / 3})};
     }},
};

class FloatAccuracy : public testing::TestWithParam<FloatFormula> {};

TEST_P(FloatAccuracy, ColoursOfAGridWithinFourUnits)
{
    constexpr int steps = 128, count = steps * steps * steps;
    constexpr ZorSize size{steps * steps, steps};
    std::vector<float> source(3 * count), destination(3 * count);
    for (int i = 0; i < count; ++i) {
        const double unit = steps - 1;
        const Three rgb{i % steps / unit, i / steps % steps / unit, i / steps / steps / unit};
        const Three from = GetParam().source(rgb);
        for (int c = 0; c < 3; ++c) source[3 * i + c] = static_cast<float>(from[c]);
    }
    interface::Image from, to;
    from.plane[0] = source.data();
    to.plane[0] = destination.data();
    from.step[0] = to.step[0] = 3 * size.width * int{sizeof(float)};
    ASSERT_EQ((*interface::findFunction(GetParam().function))(from, to, size), zorStatusOk);
    Three worst{};
    for (int i = 0; i < count; ++i) {
        const Terms terms = GetParam().of({source[3 * i], source[3 * i + 1], source[3 * i + 2]});
        for (int c = 0; c < 3; ++c) {
            const double unit = std::max(std::ldexp(1, std::ilogb(terms.size[c]) - 23), 1e-12);
            worst[c] = std::max(worst[c], std::abs(destination[3 * i + c] - terms.result[c]) / unit);
        }
    }
    for (const double units : worst) EXPECT_LE(units, 4);
}

INSTANTIATE_TEST_SUITE_P(Formulas, FloatAccuracy, testing::ValuesIn(floatFormulas),
                         [](const auto& of) { return std::string(of.param.function); });

} // namespace
} // namespace zorcc::test
