// SPDX-License-Identifier: MIT
// Row drivers of the conversions between 4:2:2 and 4:2:0 that keep the two fields of an interlaced image apart,
// compiled once for every tier. Widths are even, heights multiples of 4.
void myUYVYTo420_Interlace_8u_C2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my422To420_Interlace_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my420To422_Interlace_8u_P3R(const SampledSource& from, const SampledDestination& to, ZorSize size);
void my420ToUYVY_Interlace_8u_P3C2R(const SampledSource& from, const SampledDestination& to, ZorSize size);
