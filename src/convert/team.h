// SPDX-License-Identifier: MIT
// Strips on several threads. With frame/parallel the only file with OpenMP in it.
#pragma once

#include "frame/function_ref.h"
#include "zorcc/types.h"

namespace zorcc::conversion {

// Calls work(i, member) for i = 0 .. count - 1 on at most `threads` threads, each of which is one member; the first
// status that is not Ok ends it soon. On one thread, functions of the library do not divide their work either, unless
// `mayFork`.
ZorStatus forEachStrip(int threads, int count, bool mayFork, FunctionRef<ZorStatus(int strip, int member)> work);

} // namespace zorcc::conversion
