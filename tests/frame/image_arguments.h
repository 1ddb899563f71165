// SPDX-License-Identifier: MIT
// Arguments of functions on images of one channel: every way to lay out an image, and faulty ones.
#pragma once

#include <climits>
#include <vector>

#include "tests/harness/test_image.h"

namespace zorcc::test {

inline std::vector<Arrangement> everyArrangement()
{
    std::vector<Arrangement> all;
    for (const Steps steps : {Steps::tight, Steps::sample, Steps::wide, Steps::isolated})
        for (const bool upwards : {false, true})
            for (const Edge edge : edges) all.push_back({steps, upwards, edge});
    return all;
}

// Pointers are checked before sizes.
inline constexpr struct {
    bool first, second; // whether the image's pointer is given, and the other one
    ZorSize size;
    ZorStatus status;
} faultyArguments[] = {
    {false, true, {2, 2}, zorStatusNullPointer}, {true, false, {2, 2}, zorStatusNullPointer},
    {false, true, {0, 2}, zorStatusNullPointer}, {true, false, {2, 0}, zorStatusNullPointer},
    {true, true, {0, 2}, zorStatusBadSize},      {true, true, {2, 0}, zorStatusBadSize},
    {true, true, {-1, 2}, zorStatusBadSize},     {true, true, {2, INT_MIN}, zorStatusBadSize},
};

} // namespace zorcc::test
