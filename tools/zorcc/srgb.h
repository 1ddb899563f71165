// SPDX-License-Identifier: MIT
// The transfer function of sRGB (IEC 61966-2-1), by which picture files encode linear light.
#pragma once

#include "picture.h"

namespace zorcc::tool {

// The same picture, RGB or grey, with linear samples in place of encoded ones, and the other way round. Alpha stays.
Picture linearFromSrgb(Picture picture);
Picture srgbFromLinear(Picture picture);

} // namespace zorcc::tool
