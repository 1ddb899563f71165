// SPDX-License-Identifier: MIT
#pragma once

namespace zorcc {

// Weights of R, G and B (or of any three channels) in a sum, in units of 1/65536 unless stated.
struct Weights {
    int r, g, b;
};

} // namespace zorcc
