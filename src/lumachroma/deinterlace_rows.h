// SPDX-License-Identifier: MIT
// Row drivers of the deinterlacing conversions of semi-planar 4:2:0, compiled once for every tier. Widths and heights
// are even. Rows are low-passed vertically, so the rows beyond an edge of the frame repeat it, and at a slice's other
// edges what depends on rows beyond is left to the next slice: the slice's first row and last row of luma, the last row
// of chroma. The first two rows of a slice that does not hold the frame's first row are the last two of the one before.
void my420To422_Deinterlace_8u_P2C2R(const SampledSource& from, const SampledDestination& to, ZorSize size,
                                     FrameEdges edges);
void my420To420_Deinterlace_8u_P2P3R(const SampledSource& from, const SampledDestination& to, ZorSize size,
                                     FrameEdges edges);
