// SPDX-License-Identifier: MIT
// Row drivers of the adaptive homogeneity-directed demosaicing; declared once in the namespace of every tier
// (simd/each_tier.h), hence no include guard and no includes. The region is not empty.

void myDemosaicAHD_8u_C1C3R(const uint8_t* src, ptrdiff_t srcStep, ZorSize size, Region region, uint8_t* dst,
                            ptrdiff_t dstStep, ZorBayerGrid grid, void* scratch, ptrdiff_t scratchStep);
void myDemosaicAHD_16u_C1C3R(const uint16_t* src, ptrdiff_t srcStep, ZorSize size, Region region, uint16_t* dst,
                             ptrdiff_t dstStep, ZorBayerGrid grid, void* scratch, ptrdiff_t scratchStep);
