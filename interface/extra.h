// SPDX-License-Identifier: MIT
// Arguments beside images and size, and which of them a function takes.
#pragma once

#include <cstdint>
#include <optional>
#include <tuple>
#include <type_traits>

#include "zorcc.h"

namespace zorcc::interface {

struct Extra {
    std::uint8_t alpha = 0;
    int slice = 21; // of a deinterlacing conversion: the whole frame
    int noise = 0;  // of a bit-depth reduction
    int levels = 16;
    ZorDitherMethod method = zorDitherMethodNone;
    int grid = zorBayerRGGB; // as a number, which may be one that the type does not name
    int interpolation = 0;
    std::optional<ZorRect> region = std::nullopt; // of the source; all of it if there is none
    void* scratch = nullptr;
    int scratchStep = 0;
};

template <class... T> struct Types {
};
template <auto... members> struct Extras {
};

// The parameters behind images and size, told by their types: each list of types that there is, in one line.
Extras<> extrasOf(Types<>);
Extras<&Extra::alpha> extrasOf(Types<std::uint8_t>);
Extras<&Extra::slice> extrasOf(Types<int>);
Extras<&Extra::noise, &Extra::method, &Extra::levels> extrasOf(Types<int, ZorDitherMethod, int>);
Extras<&Extra::grid, &Extra::interpolation> extrasOf(Types<ZorBayerGrid, int>);
template <class T> Extras<&Extra::grid, &Extra::scratch, &Extra::scratchStep> extrasOf(Types<ZorBayerGrid, T*, int>);

template <auto member, auto... members> constexpr bool holds(Extras<members...>)
{
    return (std::is_same_v<Extras<member>, Extras<members>> || ...);
}

template <auto... members> constexpr auto membersOf(Extras<members...>) { return std::tuple{members...}; }

} // namespace zorcc::interface
