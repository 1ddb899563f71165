// SPDX-License-Identifier: MIT
// The headers for C++ as installed: one blue pixel by a function and by a plan, and an error.
#include <cstdio>
#include <vector>

#include <zorcc.hpp>
#include <zorconvert.hpp>

int main()
{
    const ZorSize size = {1, 1};
    const std::vector<uint8_t> blue = {0, 0, 255}, expected = {29, 239, 102};
    std::vector<uint8_t> pixel(3), planes(3);
    const auto src = zorcc::viewOfSamples<zorcc::Interleaved<const uint8_t, 3>>(blue, size);
    zorcc::rgbToYUV(src, zorcc::viewOfSamples<zorcc::Interleaved<uint8_t, 3>>(pixel, size));
    zorcc::Plan plan({"rgb24", nullptr, zorRangeDefault, size}, {"yuv444p", "yuv", zorRangeFull, size});
    plan.run(src, zorcc::viewOfSamples<zorcc::Planar<uint8_t, 3>>(planes, size));
    std::error_code error;
    zorcc::rgbToYUV(src, zorcc::Interleaved<uint8_t, 3>(nullptr, 3, size), error);
    std::puts(error.message().c_str());
    return pixel == expected && planes == expected && error == zorcc::makeErrorCode(zorStatusNullPointer) ? 0 : 1;
}
