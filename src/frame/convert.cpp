// SPDX-License-Identifier: MIT
#include "frame/convert.h"

namespace zorcc {

namespace {

bool hasAllPlanes(const Image& image)
{
    for (int p = 0; p < image.planes; ++p)
        if (!image.plane[p]) return false;
    return true;
}

bool hasPositiveSteps(const Image& image)
{
    for (int p = 0; p < image.planes; ++p)
        if (image.step[p] < 1) return false;
    return true;
}

bool isSame(ZorSize a, ZorSize b) { return a.width == b.width && a.height == b.height; }

} // namespace

ZorStatus check(const Checks& checks, const Image& from, const Image& to, ZorSize& size)
{
    using OddSize = Checks::OddSize;
    if (!from.given || !to.given) return zorStatusNullPointer;
    const bool hasPlanes = hasAllPlanes(from) && hasAllPlanes(to);
    if (checks.planes == Checks::Planes::beforeSize && !hasPlanes) return zorStatusNullPointer;
    if (checks.steps == Checks::Steps::positiveBeforeSize && !(hasPositiveSteps(from) && hasPositiveSteps(to)))
        return zorStatusBadStep;
    if (size.width < checks.minimum.width || size.height < checks.minimum.height) return zorStatusBadSize;
    if (!hasPlanes) return zorStatusNullPointer;

    const ZorSize asked = size;
    size = {size.width & -checks.block.width, size.height & -checks.block.height};
    if (isSame(size, asked) || checks.oddSize == OddSize::cutOff) return zorStatusOk;
    return checks.oddSize == OddSize::warned ? zorStatusOddSize : zorStatusBadSize;
}

} // namespace zorcc
