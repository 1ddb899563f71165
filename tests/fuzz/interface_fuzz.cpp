// SPDX-License-Identifier: MIT
// A libFuzzer target: calls of any function of the library. Feedback is which kinds of calls were made rather than
// which code ran, so that nothing needs to be built for it.
#include <cstdlib>

#include "tests/fuzz/interface_calls.h"

[[gnu::section("__libfuzzer_extra_counters"), gnu::used]] static std::uint8_t visited[zorcc::test::Calls::interests];

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static zorcc::test::Calls calls;
    if (!calls.run({data, size}, visited)) std::abort();
    return 0;
}
