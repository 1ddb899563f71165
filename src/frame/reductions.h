// SPDX-License-Identifier: MIT
// Reductions of one-channel float images. zorStatusNullPointer, zorStatusBadSize; then nothing is stored. Results
// depend on the samples alone, not on steps or alignment.
#pragma once

#include "zorcc/types.h"

namespace zorcc {

// NaN samples are passed over: the maximum is that of the others, minus infinity if there are none.
ZorStatus zoriMax_32f_C1R(const float* src, int srcStep, ZorSize roiSize, float* max);

// Added up in double precision; a NaN sample, or infinities of both signs, give NaN.
ZorStatus zoriSum_32f_C1R(const float* src, int srcStep, ZorSize roiSize, double* sum);
ZorStatus zoriMean_32f_C1R(const float* src, int srcStep, ZorSize roiSize, double* mean);

} // namespace zorcc
