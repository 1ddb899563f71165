// SPDX-License-Identifier: MIT
// The steps of a plan done one by one on whole pictures.
#pragma once

#include <memory>

#include "tests/convert/picture.h"

namespace zorcc::test {

struct HandOptions {
    ZorDepth depth = zorDepthNearest;
    bool opaque = false;
    const float* greyWeights = nullptr;
};

// What the plan must give.
std::unique_ptr<PictureInMemory> byHand(const ZorPlan* plan, const PictureInMemory& source, const std::string& target,
                                        const HandOptions& options);

// Whether the pixels of two pictures are the same, those between rows left out.
bool isSame(const PictureInMemory& a, const PictureInMemory& b);

} // namespace zorcc::test
