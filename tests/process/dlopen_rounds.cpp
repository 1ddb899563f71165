// SPDX-License-Identifier: MIT
// A process that opens the library, calls it on several threads and closes it, again and again: dlopen_rounds LIBRARY
// ROUNDS. It links neither the library nor an OpenMP runtime, so that closing the library may unmap both.
#include <dlfcn.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "zorcc/types.h"

int main(int, char** arguments)
{
    constexpr ZorSize size{200, 200}; // enough pixels for threads
    constexpr int step = 3 * size.width;
    const std::vector<std::uint8_t> grey(static_cast<std::size_t>(step) * size.height, 77);
    using Convert = ZorStatus(const std::uint8_t*, int, std::uint8_t*, int, ZorSize);
    for (int round = 0; round < std::atoi(arguments[2]); ++round) {
        void* const library = dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL);
        if (!library) return std::fprintf(stderr, "%s\n", dlerror()), 1;
        auto* const convert = reinterpret_cast<Convert*>(dlsym(library, "zoriHLSToRGB_8u_C3R"));
        // Lightness 77 without saturation is grey of that level.
        std::vector<std::uint8_t> hls = grey, rgb(grey.size());
        for (std::size_t i = 2; i < hls.size(); i += 3) hls[i] = 0;
        if (!convert || convert(hls.data(), step, rgb.data(), step, size) != zorStatusOk || rgb != grey)
            return std::fprintf(stderr, "round %d: wrong result\n", round), 1;
        dlclose(library);
    }
    return 0;
}
