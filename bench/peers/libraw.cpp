// SPDX-License-Identifier: MIT
#include <memory>
#include <stdexcept>

#include <libraw/libraw.h>
#include <omp.h>

#include "bench/mosaics/libraw_ahd.h"
#include "bench/peers/peer.h"

namespace zorcc::bench {

namespace {

Work prepare(const Job& job)
{
    const interface::Image& source = job.source;
    const bool wide = job.function.source->sample == interface::Sample::u16;
    const auto at = [&](int x, int y) {
        const auto* const row = static_cast<const std::uint8_t*>(source.plane[0]) + std::ptrdiff_t{source.step[0]} * y;
        return static_cast<std::uint16_t>(wide ? reinterpret_cast<const std::uint16_t*>(row)[x] : row[x] * 257);
    };
    auto work = std::make_shared<LibRawAhd>(job.size, at);
    return [=] { work->interpolate(); };
}

} // namespace

// The interpolation alone, on 16-bit samples in its own memory.
Library libRaw()
{
    Library library{std::string("LibRaw ") + LibRaw::version(), {}};
    for (const char* function : {"zoriDemosaicAHD_8u_C1C3R", "zoriDemosaicAHD_16u_C1C3R"})
        library.peers.push_back({function, "LibRaw AHD", prepare, [] { omp_set_num_threads(1); }});
    return library;
}

} // namespace zorcc::bench
