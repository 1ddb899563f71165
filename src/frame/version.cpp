// SPDX-License-Identifier: MIT
#include "zorcc/version.h"

namespace {

constexpr ZorVersion version = {
    6, 1, 137, 754, {'n', '8', 0, 0}, "libzorccn8.so.6.1", "6.1 build 137.56", "Mar 17 2010"};

} // namespace

const ZorVersion* zorccGetLibVersion(void) { return &version; }
