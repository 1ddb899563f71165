// SPDX-License-Identifier: MIT
// Real pictures as sources.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/harness/test_image.h"

namespace zorcc::test {

struct Picture {
    ZorSize size{};
    std::vector<std::uint8_t> rgba;
};

// Throws when the file cannot be read.
Picture readPng(const std::string& path);

// The colours of the picture, converted and subsampled as the image's format wants them; of a mosaic, whose first row
// begins with red and green, one at every pixel.
void fill(TestImage& image, const Picture& picture);

} // namespace zorcc::test
