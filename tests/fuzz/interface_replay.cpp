// SPDX-License-Identifier: MIT
// Calls from files of the fuzzer, or random ones: interface_replay FILE... | --random CALLS-PER-FUNCTION [MOST-PIXELS]
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string_view>
#include <vector>

#include "tests/fuzz/interface_calls.h"
#include "tests/harness/arrangements.h"

using namespace zorcc::test;

namespace {

Calls calls;
std::uint8_t visited[Calls::interests];

int wrongFiles(std::span<char*> files)
{
    int wrong = 0;
    for (const char* const path : files) {
        std::ifstream file(path, std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        const bool isRight =
            file && calls.run({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, visited);
        if (!isRight) std::printf("%s: wrong\n", path);
        wrong += !isRight;
    }
    return wrong;
}

int wrongRandomCalls(int callsPerFunction, int mostPixels)
{
    int wrong = 0;
    Random random(baseSeed());
    std::printf("ZORCC_TEST_SEED=%u\n", baseSeed());
    for (int function = 0; function < Calls::functionCount(); ++function)
        for (int i = 0; i < callsPerFunction; ++i) {
            CallInput input;
            auto* const bytes = reinterpret_cast<std::uint8_t*>(&input);
            for (std::size_t k = 0; k < sizeof input; ++k) bytes[k] = static_cast<std::uint8_t>(random());
            input.function = static_cast<std::uint16_t>(function);
            input.width = static_cast<std::uint16_t>(input.width % (i % 8 == 0 ? 4096 : 256));
            if (mostPixels > 0) {
                input.width = static_cast<std::uint16_t>(input.width % 256);
                input.height = static_cast<std::uint8_t>(input.height % (mostPixels / (input.width + 1) + 1));
            }
            wrong += !calls.run({bytes, sizeof input}, visited);
        }
    return wrong;
}

} // namespace

int main(int count, char** arguments)
{
    const std::span all(arguments, static_cast<std::size_t>(count));
    const bool isRandom = count > 2 && std::string_view(arguments[1]) == "--random";
    const int perFunction = isRandom ? std::atoi(arguments[2]) : 0;
    const int wrong =
        isRandom ? wrongRandomCalls(perFunction, count > 3 ? std::atoi(arguments[3]) : 0) : wrongFiles(all.subspan(1));
    std::printf("%d calls, %d wrong\n", isRandom ? perFunction * Calls::functionCount() : count - 1, wrong);
    return wrong > 0;
}
