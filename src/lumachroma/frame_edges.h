// SPDX-License-Identifier: MIT
#pragma once

namespace zorcc {

// Which edges of a frame a slice of its rows holds.
struct FrameEdges {
    bool top, bottom;
};

} // namespace zorcc
