// SPDX-License-Identifier: MIT
#pragma once

#include <stddef.h>
#include <stdint.h>
#include <type_traits>

namespace zorcc {

// First sample of row y; the step is in bytes, and step times row need not fit an int. Always
// inline, so that row files may use it: no copy of one tier is left for the linker to keep for all.
template <class Sample> [[gnu::always_inline]] inline Sample* rowAt(Sample* firstRow, int step, int y)
{
    using Byte = std::conditional_t<std::is_const_v<Sample>, const uint8_t, uint8_t>;
    return reinterpret_cast<Sample*>(reinterpret_cast<Byte*>(firstRow) + static_cast<ptrdiff_t>(step) * y);
}

} // namespace zorcc
