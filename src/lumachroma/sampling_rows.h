// SPDX-License-Identifier: MIT
// Row drivers of the changes of chroma sampling between planar (P3: Y, Cb, Cr) and semi-planar (P2: Y and CbCr pairs)
// images. Sizes are those of the luma plane, in whole blocks of pixels that share chroma.

// Even rows of chroma are kept, or each goes to two.
void my422To420_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my422To420_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my420To422_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my420To422_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);

// Odd rows of chroma by a filter over four.
void my420To422_Filter_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my420To422_Filter_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);

// Even columns of chroma are kept, or each goes to two.
void my422To411_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my422To411_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my411To422_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my411To422_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);

// Two rows of chroma in 4:1:1 are the even and the odd columns of one in 4:2:0.
void my411To420_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my411To420_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my411To420_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my420To411_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my420To411_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);

// All chroma is kept.
void my411_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my411_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myNV12ToYV12_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYV12ToNV12_8u_P3P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
