// SPDX-License-Identifier: MIT
// Row drivers between packed 4:2:2 and images of separate planes, compiled once for every tier.
#include "lumachroma/sampled_rows.h"

namespace zorcc::ZORCC_TIER {

#include "lumachroma/packed422_rows.h"

namespace {

constexpr PackedOrder YUY2 = PackedOrder::lumaFirst, UYVY = PackedOrder::chromaFirst;
constexpr Chroma planes = Chroma::planes, pairs = Chroma::pairs;

} // namespace

void myYUY2To422_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<YUY2, planes>(from, to, size);
}

void myUYVYTo422_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<UYVY, planes>(from, to, size);
}

void my422ToYUY2_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    pack<YUY2, planes>(from, to, size);
}

void myYUY2To411_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<YUY2, planes, 1, 2>(from, to, size);
}

void myUYVYTo411_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<UYVY, planes, 1, 2>(from, to, size);
}

void myYUY2To411_8u_C2P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<YUY2, pairs, 1, 2>(from, to, size);
}

void my411ToYUY2_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    pack<YUY2, planes, 1, 2>(from, to, size);
}

void my411ToYUY2_8u_P2C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    pack<YUY2, pairs, 1, 2>(from, to, size);
}

void myYUY2ToYV12422_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<YUY2, planes, 2>(from, to, size);
}

void myUYVYToYV12422_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<UYVY, planes, 2>(from, to, size);
}

void myYUY2ToNV12_8u_C2P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<YUY2, pairs, 2>(from, to, size);
}

void myUYVYToNV12_8u_C2P2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    unpack<UYVY, pairs, 2>(from, to, size);
}

void myYV12ToYUY2420_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    pack<YUY2, planes, 2>(from, to, size);
}

void myYV12ToUYVY420_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    pack<UYVY, planes, 2>(from, to, size);
}

void myNV12ToYUY2_8u_P2C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    pack<YUY2, pairs, 2>(from, to, size);
}

void myNV12ToUYVY_8u_P2C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    pack<UYVY, pairs, 2>(from, to, size);
}

void myYUY2ToUYVY422_8u_C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    repack<SwapLumaAndChroma>(from, to, size);
}

void myUYVYToYUY2422_8u_C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    repack<SwapLumaAndChroma>(from, to, size);
}

void myYUY2ToYVYU_8u_C2R(const SampledSource& from, const SampledDestination& to, ZorSize size)
{
    repack<SwapChroma>(from, to, size);
}

} // namespace zorcc::ZORCC_TIER
