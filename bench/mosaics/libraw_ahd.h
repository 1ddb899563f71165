// SPDX-License-Identifier: MIT
// LibRaw's adaptive homogeneity-directed demosaicing of an RGGB mosaic: no white balance, no curve, no colour matrix.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <vector>

#include <libraw/libraw.h>

#include "zorcc/types.h"

namespace zorcc::bench {

class LibRawAhd : private LibRaw {
public:
    // at(x, y) gives the 16-bit sample of a pixel.
    template <class At> LibRawAhd(ZorSize imageSize, At at)
    {
        size = imageSize;
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x) samples.push_back(at(x, y));
        libraw_output_params_t& p = imgdata.params;
        p.user_qual = 3; // adaptive homogeneity-directed
        p.output_bps = 16;
        p.output_color = 0;
        p.gamm[0] = p.gamm[1] = 1;
        p.no_auto_bright = p.no_auto_scale = 1;
        p.user_black = 0;
        p.user_sat = 65535;
        for (float& factor : p.user_mul) factor = 1;
        auto* const bytes = reinterpret_cast<unsigned char*>(samples.data());
        check(open_bayer(bytes, static_cast<unsigned>(2 * samples.size()), static_cast<ushort>(size.width),
                         static_cast<ushort>(size.height), 0, 0, 0, 0, 0, LIBRAW_OPENBAYER_RGGB, 0, 0, 0));
        check(unpack());
    }

    // The whole of its processing; then at(x, y, c) gives the result.
    void process() { check(dcraw_process()); }
    std::uint16_t at(int x, int y, int c) const { return imgdata.image[y * imgdata.sizes.iwidth + x][c]; }

    // The method alone, any number of times.
    void interpolate()
    {
        if (!imgdata.image) {
            check(raw2image());
            pre_interpolate(); // both greens become one colour
        }
        ahd_interpolate();
    }

private:
    ZorSize size;
    std::vector<std::uint16_t> samples;

    static void check(int status)
    {
        if (status != LIBRAW_SUCCESS) throw std::runtime_error(std::string("LibRaw: ") + libraw_strerror(status));
    }
};

} // namespace zorcc::bench
