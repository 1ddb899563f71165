// SPDX-License-Identifier: MIT
#include "frame/reductions.h"

#include "frame/convert.h"
#include "frame/support_rows.h"

namespace zorcc {

namespace {

template <class Result> ZorStatus checkReduction(const float* src, const Result* result, ZorSize roiSize)
{
    return check(Checks{}, interleaved(src, 0), interleaved(result, 0), roiSize);
}

} // namespace

ZorStatus zoriMax_32f_C1R(const float* src, int srcStep, ZorSize roiSize, float* max)
{
    const ZorStatus status = checkReduction(src, max, roiSize);
    if (status == zorStatusOk) *max = supportRows().maximum(interleaved(src, srcStep), roiSize);
    return status;
}

ZorStatus zoriSum_32f_C1R(const float* src, int srcStep, ZorSize roiSize, double* sum)
{
    const ZorStatus status = checkReduction(src, sum, roiSize);
    if (status == zorStatusOk) *sum = supportRows().sum(interleaved(src, srcStep), roiSize);
    return status;
}

ZorStatus zoriMean_32f_C1R(const float* src, int srcStep, ZorSize roiSize, double* mean)
{
    const ZorStatus status = zoriSum_32f_C1R(src, srcStep, roiSize, mean);
    if (status == zorStatusOk) *mean /= static_cast<double>(roiSize.width) * roiSize.height;
    return status;
}

} // namespace zorcc
