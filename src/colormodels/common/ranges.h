// SPDX-License-Identifier: MIT
// The ranges of integer samples, which formulas on floats calculate in. Signed 16-bit samples are handled as the value
// plus 32768, so that their range is that of unsigned ones (pixels/float_pipeline.h). Constants have the digits they
// are defined with: none is more exact.
#pragma once

#include <stdint.h>

namespace zorcc {

template <class Sample> struct Range;

template <> struct Range<uint8_t> {
    static constexpr float max = 255;
    static constexpr float toUnit = 0.003921569f;    // 1 / 255
    static constexpr float fromDegrees = 0.7083333f; // 255 / 360
    static constexpr float toDegrees = 1.4117647f;
    static constexpr float sextant = 42.5f; // 255 / 6
};

template <> struct Range<uint16_t> {
    static constexpr float max = 65535;
    static constexpr float toUnit = 1.5259022e-5f;
    static constexpr float fromDegrees = 182.04167f;
    static constexpr float toDegrees = 0.005493248f;
    static constexpr float sextant = 10922.5f;
};

} // namespace zorcc
