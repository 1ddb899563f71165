// SPDX-License-Identifier: MIT
// Thresholds of ordered dithering, sample by sample along a row.
#pragma once

#include "reduce/reduction.h"

namespace zorcc::ZORCC_TIER {
namespace {

constexpr int bayerSide = 4;

// Of one quantisation step. By fifteenths, not sixteenths: the greatest is a whole step, which no sample exceeds.
constexpr float bayer_thresh[bayerSide][bayerSide] = {
    {0.0f / 15.0f, 8.0f / 15.0f, 2.0f / 15.0f, 10.0f / 15.0f},
    {12.0f / 15.0f, 4.0f / 15.0f, 14.0f / 15.0f, 6.0f / 15.0f},
    {3.0f / 15.0f, 11.0f / 15.0f, 1.0f / 15.0f, 9.0f / 15.0f},
    {15.0f / 15.0f, 7.0f / 15.0f, 13.0f / 15.0f, 5.0f / 15.0f},
};

// All samples of a pixel have one threshold; a row repeats its thresholds after `period` pixels.
template <int period> struct RowThresholds {
    alignas(64) float of[4 * period]; // of up to four samples a pixel

    template <class Pixel> void fill(int pixels, int channels, Pixel thresholdOf)
    {
        float* next = of;
        for (int x = 0; x < pixels; ++x) {
            const float threshold = thresholdOf(x);
            for (int c = 0; c < channels; ++c) *next++ = threshold;
        }
    }
};

} // namespace
} // namespace zorcc::ZORCC_TIER
