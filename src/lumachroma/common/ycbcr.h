// SPDX-License-Identifier: MIT
// What the formulas between RGB and YCbCr have in common, for any matrix.
#pragma once

#include "lumachroma/common/rgb_to_ycc.h"
#include "lumachroma/common/ycc_to_rgb.h"

namespace zorcc::ycbcr {

struct FromRgb {
    Weights y, cb, cr;
};

// What is added to luma: 16 and a half; 16 alone; a half.
inline constexpr int studioLuma = 16 * 65536 + 32768, studioLumaDown = 16 * 65536, fullLuma = 32768;

// What is added to chroma: 128 and a half, for each pixel of a sum of 1 or 2; 128 and an eighth for each of 4.
constexpr int chromaBias(int pixels) { return pixels * (128 * 65536 + (pixels == 4 ? 8192 : 32768)); }

} // namespace zorcc::ycbcr

namespace zorcc::ZORCC_TIER {
namespace {

// 4:4:4. No result needs a clamp: studio range leaves room (the tests go through all colours).
template <ycbcr::FromRgb k> using RgbToYCbCr = MatrixToYcc<k.y, ycbcr::studioLuma, k.cb, k.cr, ycbcr::chromaBias(1)>;

// Chroma of sums over 2 or 4 pixels.
template <ycbcr::FromRgb k, int pixels, int crBias = ycbcr::chromaBias(pixels)>
using YCbCrChroma = MatrixChroma<k.cb, ycbcr::chromaBias(pixels), k.cr, crBias, pixels == 2 ? 17 : 18>;

template <ycbcr::FromRgb k, int lumaBias>
using RgbToYCbCr420 = RgbToSubsampled<2, WeightedLuma<k.y, lumaBias>, YCbCrChroma<k, 4>>;

} // namespace
} // namespace zorcc::ZORCC_TIER
