// SPDX-License-Identifier: MIT
// The methods of bit-depth reduction under short names.
#pragma once

#include "zorcc.h"

namespace zorcc::test {

inline constexpr auto plain = zorDitherMethodNone, floydSteinberg = zorDitherMethodFloydSteinberg,
                      jarvis = zorDitherMethodJarvisJudiceNinke, stucki = zorDitherMethodStucki,
                      ordered = zorDitherMethodOrdered;

inline constexpr ZorDitherMethod methods[] = {plain, floydSteinberg, jarvis, stucki, ordered},
                                 diffusions[] = {floydSteinberg, jarvis, stucki};

} // namespace zorcc::test
