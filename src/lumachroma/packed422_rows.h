// SPDX-License-Identifier: MIT
// Row drivers between packed 4:2:2 (C2) and images of separate planes, compiled once for every tier. Sizes are those of
// the luma plane, in whole blocks of pixels that share chroma. Where Cr comes first in an image, its planes 1 and 2
// stand for each other.

// Y Cb Y Cr is YUY2, Cb Y Cr Y is UYVY.
void myYUY2To422_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myUYVYTo422_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my422ToYUY2_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);

// Even columns of chroma are kept, or each goes to two.
void myYUY2To411_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myUYVYTo411_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYUY2To411_8u_C2P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my411ToYUY2_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my411ToYUY2_8u_P2C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);

// 4:2:0 (NV12: a plane of CbCr pairs, YV12: planes): even rows of chroma are kept, or each goes to two.
void myYUY2ToYV12422_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myUYVYToYV12422_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYUY2ToNV12_8u_C2P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myUYVYToNV12_8u_C2P2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYV12ToYUY2420_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYV12ToUYVY420_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myNV12ToYUY2_8u_P2C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myNV12ToUYVY_8u_P2C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);

// Packed to packed: the order within pairs of bytes, and that of the chroma bytes. Both images may be the same.
void myYUY2ToUYVY422_8u_C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myUYVYToYUY2422_8u_C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYUY2ToYVYU_8u_C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
