// SPDX-License-Identifier: MIT
#include "frame/fill_copy.h"

#include <string.h>

#include "frame/convert.h"
#include "frame/support_rows.h"
#include "zorcore.h"

namespace zorcc {

namespace {

constexpr size_t alwaysCachedBytes = 524288; // images up to this size are not worth asking for the size of the cache

Stores storesForFill(size_t bytes)
{
    int cacheBytes;
    const bool bypass = bytes > alwaysCachedBytes && zorGetMaxCacheSizeB(&cacheBytes) == zorStatusOk &&
                        bytes >= static_cast<size_t>(cacheBytes);
    return bypass ? Stores::nonTemporal : Stores::ordinary;
}

} // namespace

void copyBytes(const uint8_t* src, uint8_t* dst, size_t length, Stores stores)
{
    if (stores == Stores::ordinary || length < streamedBytes)
        memcpy(dst, src, length);
    else
        supportRows().streamCopy(src, dst, length);
}

void copyRows(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, size_t width, int height,
              Stores stores)
{
    const ptrdiff_t rowBytes = static_cast<ptrdiff_t>(width);
    if (srcStep == rowBytes && dstStep == rowBytes)
        return copyBytes(src, dst, width * static_cast<size_t>(height), stores);
    for (ptrdiff_t y = 0; y < height; ++y) copyBytes(src + y * srcStep, dst + y * dstStep, width, stores);
}

void fillBytes(uint8_t value, uint8_t* dst, size_t length, Stores stores)
{
    if (stores == Stores::ordinary || length < streamedBytes)
        memset(dst, value, length);
    else
        supportRows().streamFill(value, dst, length);
}

ZorStatus zoriCopy_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ZorSize roiSize)
{
    const ZorStatus status = check(Checks{}, interleaved(src, srcStep), interleaved(dst, dstStep), roiSize);
    if (status == zorStatusOk)
        copyRows(src, srcStep, dst, dstStep, static_cast<size_t>(roiSize.width), roiSize.height, Stores::ordinary);
    return status;
}

ZorStatus zoriSet_8u_C1R(uint8_t value, uint8_t* dst, int dstStep, ZorSize roiSize)
{
    const Image image = interleaved(dst, dstStep);
    if (const ZorStatus status = check(Checks{}, image, image, roiSize); status != zorStatusOk) return status;

    const size_t width = static_cast<size_t>(roiSize.width), bytes = width * static_cast<size_t>(roiSize.height);
    const Stores stores = storesForFill(bytes);
    if (dstStep == roiSize.width)
        fillBytes(value, dst, bytes, stores);
    else
        for (int y = 0; y < roiSize.height; ++y) fillBytes(value, image.row(0, y), width, stores);
    return zorStatusOk;
}

} // namespace zorcc
