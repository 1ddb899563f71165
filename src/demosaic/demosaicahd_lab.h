// SPDX-License-Identifier: MIT
// The space in which the homogeneity of a candidate is judged: CIE 1976 L*a*b* of sRGB primaries and white D65, but for
// a common factor. Linear in the samples up to here, so that values out of range need no limit.
#pragma once

#include "simd/cube_root.h"

namespace zorcc::ZORCC_TIER {
namespace {

struct Lab {
    f32v light, red, blue; // f(Y), 2.5 (f(X) - f(Y)), f(Y) - f(Z): L*, a* and b* in the proportion of 116 : 500 : 200
};

struct LabLines {
    float *light, *red, *blue;
};

ZORCC_INLINE Lab loadLab(const LabLines& from, int i)
{
    return {load<f32v>(from.light + i), load<f32v>(from.red + i), load<f32v>(from.blue + i)};
}

ZORCC_INLINE void storeLab(const Lab& lab, const LabLines& to, int i)
{
    store(to.light + i, lab.light);
    store(to.red + i, lab.red);
    store(to.blue + i, lab.blue);
}

// Where t is above 0.008856 its cube root, otherwise the line that continues it; both less a constant, as only
// differences matter: root(max) + slope * min. t y^2 times a polynomial for u^(-2/3), u = t y^3, through its values at
// the Chebyshev nodes, is within 2e-4 of the root.
ZORCC_INLINE f32v labCurve(f32v t)
{
    const f32v knee = fillFloat(0.008856f), above = max(t, knee);
    const f32v y = inverseCubeRoot(above);
    const f32v root = above * y * y, u = root * y;
    return root * ((u * 0.5588924f - 1.7887134f) * u + 2.2298227f) + min(t, knee) * 7.787037f;
}

// From green and the differences of red and blue to it, for samples of 16 bits. The coefficients of green are the sums
// of the matrix's rows.
ZORCC_INLINE Lab toLab(f32v green, f32v redLessGreen, f32v blueLessGreen)
{
    constexpr float unit = 1 / 257.f; // the matrix is for samples of 8 bits
    const auto weighted = [&](f32v gray, float red, float blue) {
        return gray + redLessGreen * (red * unit) + blueLessGreen * (blue * unit);
    };
    const f32v gray = green * (0.003922f * unit);
    const f32v x = labCurve(weighted(green * (0.003921f * unit), 0.001702f, 0.000744f));
    const f32v y = labCurve(weighted(gray, 0.000834f, 0.000283f));
    const f32v z = labCurve(weighted(gray, 0.00007f, 0.003423f));
    return {y, (x - y) * 2.5f, y - z};
}

} // namespace
} // namespace zorcc::ZORCC_TIER
