// SPDX-License-Identifier: MIT
// Faulty arguments of functions that take one image and a second pointer: pointers are checked before sizes.
#pragma once

#include <climits>

#include "zorcc/types.h"

namespace zorcc::test {

inline constexpr struct {
    bool first, second; // whether the pointer is given
    ZorSize size;
    ZorStatus status;
} imageStatuses[] = {
    {false, true, {2, 2}, zorStatusNullPointer}, {true, false, {2, 2}, zorStatusNullPointer},
    {false, true, {0, 2}, zorStatusNullPointer}, {true, false, {2, 0}, zorStatusNullPointer},
    {true, true, {0, 2}, zorStatusBadSize},      {true, true, {2, 0}, zorStatusBadSize},
    {true, true, {-1, 2}, zorStatusBadSize},     {true, true, {2, INT_MIN}, zorStatusBadSize},
};

} // namespace zorcc::test
