// SPDX-License-Identifier: MIT
// Row drivers of the changes of chroma sampling that interpolate, compiled once for every tier. Sizes are those of the
// luma plane, in whole blocks of pixels that share chroma.
void myYCbCr420To1620_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYCbCr1620To420_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYCbCr411To420_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void myYCbCr420To411_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
