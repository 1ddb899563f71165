// SPDX-License-Identifier: MIT
#include "reduce/methods.h"

#include <limits.h>
#include <string.h>

#include "frame/memory.h"
#include "frame/parallel.h"

namespace zorcc {

namespace {

constexpr int maxNoise = 100;

ZorStatus quantiseOrdered(const ReduceDrivers& drivers, const Image& from, const Image& to, ZorSize size,
                          const Reduction& reduction, int noise)
{
    if (noise == 0) {
        drivers.ordered(from, to, size, reduction, nullptr);
        return zorStatusOk;
    }
    const float most = static_cast<float>(noise) / 100.0f; // in quantisation steps
    Noise thresholds;
    if (const ZorStatus s = thresholds.create(-most, most); s != zorStatusOk) return s;
    drivers.ordered(from, to, size, reduction, &thresholds);
    return zorStatusOk;
}

// Rows of errors, all 0, that are freed with it.
class ErrorRows {
public:
    ErrorRows(int64_t count, int width)
    {
        const int64_t floats = count * width;
        if (floats > INT_MAX) return;
        errors = zorsMalloc_32f(static_cast<int>(floats));
        if (errors) memset(errors, 0, static_cast<size_t>(floats) * sizeof(float));
    }
    ~ErrorRows() { zorsFree(errors); }
    ErrorRows(const ErrorRows&) = delete;
    ErrorRows& operator=(const ErrorRows&) = delete;

    float* get() const { return errors; }

private:
    float* errors = nullptr;
};

ZorStatus diffuse(DriverWith<const Reduction&, const DiffusionNeeds&>& driver, int rowsAbove, float white,
                  const Image& from, const Image& to, ZorSize size, const Reduction& reduction, int noise)
{
    const int channels = colourChannels(reduction.layout), threads = threadsHere();
    const ErrorRows errors(int64_t{channels} * rowsAbove, size.width);
    if (!errors.get()) return zorStatusNoMemory;

    Noise thresholds;
    if (noise != 0) {
        // Half a step, give or take noise percent of a step.
        const float step = StepSize(white, reduction.intervals).step;
        const ZorStatus s = thresholds.create(static_cast<float>(50 - noise) * step / 100.0f,
                                              static_cast<float>(50 + noise) * step / 100.0f);
        if (s != zorStatusOk) return s;
    }
    driver(from, to, size, reduction,
           {noise != 0 ? &thresholds : nullptr, errors.get(), threads < channels ? threads : channels});
    return zorStatusOk;
}

} // namespace

ZorStatus reduceBits(const ReduceDrivers& drivers, ReduceLayout layout, const Image& from, const Image& to,
                     ZorSize size, const Method& method)
{
    const auto [dither, noise, levels] = method;
    if (const ZorStatus status = check(Checks{}, from, to, size); status < 0) return status;
    if (noise < 0 || noise > maxNoise) return zorStatusNoiseRange;
    if (levels < 2 || levels > drivers.maxLevels) return zorStatusDitherLevels;

    const Reduction reduction = {layout, levels - 1};
    const float white = drivers.whiteOfSource;
    switch (dither) {
    case zorDitherMethodNone:
        drivers.plain(from, to, size, reduction);
        return zorStatusOk;
    case zorDitherMethodFloydSteinberg:
        return diffuse(drivers.floydSteinberg, 1, white, from, to, size, reduction, noise);
    case zorDitherMethodJarvisJudiceNinke:
        return diffuse(drivers.jarvisJudiceNinke, 2, white, from, to, size, reduction, noise);
    case zorDitherMethodStucki:
        return diffuse(drivers.stucki, 2, white, from, to, size, reduction, noise);
    case zorDitherMethodOrdered:
        return quantiseOrdered(drivers, from, to, size, reduction, noise);
    }
    return zorStatusOk; // an unknown method does nothing
}

} // namespace zorcc
