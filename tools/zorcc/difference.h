// SPDX-License-Identifier: MIT
// Measures of the difference between two channels.
#pragma once

#include "picture.h"

namespace zorcc::tool {

class Difference {
public:
    // Channels of the same size, and of bytes or floats.
    void add(const Channel& a, const Channel& b, Sample sample);
    void add(const Difference& other);

    double largest() const { return most; }
    double psnr() const; // peak signal-to-noise ratio in dB; infinite where nothing differs
    double ssim() const; // mean structural similarity, at most 1

private:
    double peak = 1; // of the samples
    double squares = 0, samples = 0, most = 0;
    double similarity = 0, windows = 0;
};

} // namespace zorcc::tool
