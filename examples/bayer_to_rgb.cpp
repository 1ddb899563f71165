// SPDX-License-Identifier: MIT
// A raw photograph to RGB, in C++: views carry sizes and layouts, and errors say what is wrong.
#include <cstdio>
#include <vector>
#include <zorcc.hpp>

int main()
{
    const ZorSize size = {640, 480};
    std::vector<uint8_t> raw, rgb(640 * 480 * 3);
    for (int i = 0; i < 640 * 480; ++i) // one even colour, through red, green, green and blue filters
        raw.push_back(i / 640 % 2 + i % 2 == 1 ? 120 : i % 2 ? 40 : 200);

    const auto mosaic = zorcc::viewOfSamples<zorcc::Interleaved<const uint8_t, 1>>(raw, size);
    const auto picture = zorcc::viewOfSamples<zorcc::Interleaved<uint8_t, 3>>(rgb, size);
    zorcc::demosaicAHD(mosaic, picture, zorBayerRGGB);
    const uint8_t* pixel = picture.row(240) + 3 * 320;
    std::printf("R %d G %d B %d\n", pixel[0], pixel[1], pixel[2]);
    try {
        zorcc::demosaicAHD(mosaic, picture.region({0, 0, 639, 480}), zorBayerRGGB);
    } catch (const zorcc::Error& error) {
        std::puts(error.what());
        return 0;
    }
    return 1;
}
