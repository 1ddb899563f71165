// SPDX-License-Identifier: MIT
// Demosaicing as its descriptions say it, pixel by pixel.
#pragma once

#include <vector>

#include "tests/reference/pixels.h"

namespace zorcc::reference {

struct Mosaic {
    ZorSize size;
    ZorBayerGrid grid;
    int maximum; // 255 or 65535
    std::vector<int> samples = std::vector<int>(static_cast<std::size_t>(size.width) * size.height);

    Channel colour(int x, int y) const;

    bool operator!=(const Mosaic& other) const
    {
        return size.width != other.size.width || grid != other.grid || maximum != other.maximum ||
               samples != other.samples;
    }

    int& operator()(int x, int y) { return samples[static_cast<std::size_t>(y) * size.width + x]; }

    // Outside the image: of the pixel that it is mirrored to, at its first and last column and row.
    int operator()(int x, int y) const;
};

// Three samples a pixel.
struct Picture {
    ZorSize size;
    std::vector<int> samples = std::vector<int>(3 * static_cast<std::size_t>(size.width) * size.height);

    int& operator()(int x, int y, int c) { return samples[3 * (static_cast<std::size_t>(y) * size.width + x) + c]; }
    int operator()(int x, int y, int c) const
    {
        return samples[3 * (static_cast<std::size_t>(y) * size.width + x) + c];
    }
};

using Demosaic = Picture (*)(const Mosaic&);

Picture alongGradients(const Mosaic& mosaic);
Picture adaptive(const Mosaic& mosaic);

} // namespace zorcc::reference
