// SPDX-License-Identifier: MIT
#include "frame/fill_copy.h"

#include <emmintrin.h>
#include <string.h>

#include "frame/checks.h"
#include "frame/row_at.h"
#include "zorcore.h"

namespace zorcc {
namespace {

constexpr size_t vectorBytes = sizeof(__m128i);
constexpr size_t blockBytes = 4 * vectorBytes;
constexpr size_t alwaysCachedBytes = 524288; // images up to this size are not worth asking for the size of the cache

__m128i* vectorAt(uint8_t* p) { return reinterpret_cast<__m128i*>(p); }
const __m128i* vectorAt(const uint8_t* p) { return reinterpret_cast<const __m128i*>(p); }

// Writes at least a block of bytes with non-temporal stores; bytesFrom(i) gives the bytes for dst[i] to dst[i + 15].
// The first and the last vector are unaligned and may overlap the aligned blocks between them.
template <class BytesFrom> void stream(uint8_t* dst, size_t length, BytesFrom bytesFrom)
{
    _mm_storeu_si128(vectorAt(dst), bytesFrom(0));
    size_t i = vectorBytes - reinterpret_cast<uintptr_t>(dst) % vectorBytes;
    for (; i + blockBytes <= length; i += blockBytes) {
        for (size_t v = i; v < i + blockBytes; v += vectorBytes) _mm_stream_si128(vectorAt(dst + v), bytesFrom(v));
    }
    for (; i + vectorBytes <= length; i += vectorBytes) _mm_store_si128(vectorAt(dst + i), bytesFrom(i));
    if (i < length) _mm_storeu_si128(vectorAt(dst + length - vectorBytes), bytesFrom(length - vectorBytes));
    _mm_sfence();
}

Stores storesForFill(size_t bytes)
{
    int cacheBytes;
    const bool bypass = bytes > alwaysCachedBytes && zorGetMaxCacheSizeB(&cacheBytes) == zorStatusOk &&
                        bytes >= static_cast<size_t>(cacheBytes);
    return bypass ? Stores::nonTemporal : Stores::ordinary;
}

} // namespace

void ownccCopy_8u_C1_M7(const uint8_t* src, uint8_t* dst, size_t length, Stores stores)
{
    if (stores == Stores::ordinary || length < blockBytes)
        memcpy(dst, src, length);
    else
        stream(dst, length, [=](size_t i) { return _mm_loadu_si128(vectorAt(src + i)); });
}

void copyRows(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, size_t width, int height,
              Stores stores)
{
    const ptrdiff_t rowBytes = static_cast<ptrdiff_t>(width);
    if (srcStep == rowBytes && dstStep == rowBytes)
        return ownccCopy_8u_C1_M7(src, dst, width * static_cast<size_t>(height), stores);
    for (ptrdiff_t y = 0; y < height; ++y) ownccCopy_8u_C1_M7(src + y * srcStep, dst + y * dstStep, width, stores);
}

void owniSet_8u_C1_M7(uint8_t value, uint8_t* dst, size_t length, Stores stores)
{
    if (stores == Stores::ordinary || length < blockBytes)
        memset(dst, value, length);
    else
        stream(dst, length, [pattern = _mm_set1_epi8(static_cast<char>(value))](size_t) { return pattern; });
}

ZorStatus zoriCopy_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ZorSize roiSize)
{
    if (const ZorStatus s = checkImages(interleaved(src), interleaved(dst), roiSize); s != zorStatusOk) return s;
    copyRows(src, srcStep, dst, dstStep, static_cast<size_t>(roiSize.width), roiSize.height, Stores::ordinary);
    return zorStatusOk;
}

ZorStatus zoriSet_8u_C1R(uint8_t value, uint8_t* dst, int dstStep, ZorSize roiSize)
{
    if (!dst) return zorStatusNullPointer;
    if (const ZorStatus s = checkSize(roiSize); s != zorStatusOk) return s;

    const size_t width = static_cast<size_t>(roiSize.width), bytes = width * static_cast<size_t>(roiSize.height);
    const Stores stores = storesForFill(bytes);
    if (dstStep == roiSize.width) {
        owniSet_8u_C1_M7(value, dst, bytes, stores);
    } else {
        for (int y = 0; y < roiSize.height; ++y) owniSet_8u_C1_M7(value, rowAt(dst, dstStep, y), width, stores);
    }
    return zorStatusOk;
}

} // namespace zorcc
