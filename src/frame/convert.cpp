// SPDX-License-Identifier: MIT
#include "frame/convert.h"

#include <initializer_list>

namespace zorcc {

namespace {

// Whether something holds for all planes of both images.
template <class Holds> bool everywhere(const Image& from, const Image& to, Holds holds)
{
    for (const Image* image : {&from, &to})
        for (int p = 0; p < image->planes; ++p)
            if (!holds(*image, p)) return false;
    return true;
}

} // namespace

ZorStatus check(const Checks& checks, const Image& from, const Image& to, ZorSize& size)
{
    if (!from.given || !to.given) return zorStatusNullPointer;
    const bool hasPlanes = everywhere(from, to, [](const Image& image, int p) { return image.plane[p] != nullptr; });
    if (checks.planes == Checks::Planes::beforeSize && !hasPlanes) return zorStatusNullPointer;
    const bool hasSteps = everywhere(from, to, [](const Image& image, int p) { return image.step[p] >= 1; });
    if (checks.steps == Checks::Steps::positiveBeforeSize && !hasSteps) return zorStatusBadStep;
    if (checks.anySize && (size.width < 1 || size.height < 1)) {
        size = {0, 0};
        return zorStatusOk;
    }
    if (size.width < checks.minimum.width || size.height < checks.minimum.height) return zorStatusBadSize;
    if (!hasPlanes) return zorStatusNullPointer;
    if (checks.steps == Checks::Steps::positiveAfterSize && !hasSteps) return zorStatusBadStep;

    const ZorSize whole = {size.width & -checks.block.width, size.height & -checks.block.height};
    const bool isWhole = size.width == whole.width && size.height == whole.height;
    if (checks.oddSize != Checks::OddSize::convertedAndWarned) size = whole;
    if (isWhole || checks.oddSize == Checks::OddSize::cutOff) return zorStatusOk;
    return checks.oddSize == Checks::OddSize::refused ? zorStatusBadSize : zorStatusOddSize;
}

} // namespace zorcc
