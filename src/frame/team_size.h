// SPDX-License-Identifier: MIT
// How many threads a team may have.
#pragma once

#include <omp.h>

#include <algorithm>

namespace zorcc {

// The OpenMP runtime ends the process when it cannot start what it is asked for: no team is larger than the greater of
// both.
inline int teamSize(int wanted)
{
    constexpr int largest = 32, largestPerProcessor = 4;
    if (wanted <= largest) return wanted; // to count processors takes a system call
    return std::min(wanted, std::max(largest, largestPerProcessor * omp_get_num_procs()));
}

} // namespace zorcc
