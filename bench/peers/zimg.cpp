// SPDX-License-Identifier: MIT
#include <memory>

#include <zimg.h>

#include "bench/peers/peer.h"
#include "bench/picture.h"

namespace zorcc::bench {

namespace {

using interface::Image;
using interface::Model;

// Planes to planes at 4:4:4 are what it converts by a matrix alone.
const std::string_view functions[] = {"zoriRGBToYCbCr_8u_P3R", "zoriYCbCrToRGB_8u_P3R"};

zimg_image_format describe(const interface::Format& format, ZorSize size)
{
    zimg_image_format f;
    zimg_image_format_default(&f, ZIMG_API_VERSION);
    const bool rgb = format.model == Model::rgb;
    f.width = static_cast<unsigned>(size.width);
    f.height = static_cast<unsigned>(size.height);
    f.pixel_type = ZIMG_PIXEL_BYTE;
    f.color_family = rgb ? ZIMG_COLOR_RGB : ZIMG_COLOR_YUV;
    f.matrix_coefficients = rgb ? ZIMG_MATRIX_RGB : ZIMG_MATRIX_BT470_BG;
    f.pixel_range = rgb ? ZIMG_RANGE_FULL : ZIMG_RANGE_LIMITED;
    f.depth = 8;
    return f;
}

template <class Buffer, class Plane> Buffer describe(const Image& image)
{
    Buffer buffer{ZIMG_API_VERSION, {}};
    for (int p = 0; p < 3; ++p) {
        buffer.plane[p].data = static_cast<Plane*>(image.plane[p]);
        buffer.plane[p].stride = image.step[p];
        buffer.plane[p].mask = ZIMG_BUFFER_MAX;
    }
    return buffer;
}

struct Graph {
    std::unique_ptr<zimg_filter_graph, void (*)(zimg_filter_graph*)> graph{nullptr, zimg_filter_graph_free};
    Buffer scratch{64};
};

Work prepare(const zimg_image_format& from, const zimg_image_format& to, zimg_dither_type_e dither, const Image& read,
             const Image& written)
{
    zimg_graph_builder_params params;
    zimg_graph_builder_params_default(&params, ZIMG_API_VERSION);
    // 64-byte vectors, where there are any.
    params.cpu_type = highestTier == Tier::avx512 ? ZIMG_CPU_AUTO_64B : ZIMG_CPU_X86_AVX2;
    params.dither_type = dither;
    auto work = std::make_shared<Graph>();
    work->graph.reset(zimg_filter_graph_build(&from, &to, &params));
    std::size_t bytes = 0;
    zimg_filter_graph_get_tmp_size(work->graph.get(), &bytes);
    work->scratch = Buffer(bytes);
    const auto source = describe<zimg_image_buffer_const, const void>(read);
    const auto destination = describe<zimg_image_buffer, void>(written);
    return [=] {
        zimg_filter_graph_process(work->graph.get(), &source, &destination, work->scratch.data(), nullptr, nullptr,
                                  nullptr, nullptr);
    };
}

Work prepareMatrix(const Job& job)
{
    return prepare(describe(*job.function.source, job.size), describe(*job.function.destination, job.size),
                   ZIMG_DITHER_NONE, job.source, job.destination);
}

// Planes of as many channels as ours, in the memory of our interleaved image.
Image planesIn(const Image& image, int channels, ZorSize size)
{
    Image planes;
    for (int c = 0; c < channels; ++c) {
        planes.plane[c] =
            static_cast<std::uint8_t*>(image.plane[0]) + static_cast<std::ptrdiff_t>(size.width) * size.height * c;
        planes.step[c] = size.width;
    }
    return planes;
}

template <zimg_dither_type_e dither> Work prepareDepth(const Job& job)
{
    const int channels = static_cast<int>(job.function.source->channels.size());
    zimg_image_format from = describe(interface::formats::rgb444p, job.size);
    if (channels == 1) {
        from.color_family = ZIMG_COLOR_GREY;
        from.matrix_coefficients = ZIMG_MATRIX_UNSPECIFIED;
    }
    zimg_image_format to = from;
    for (to.depth = 0; 1 << to.depth < job.arguments.levels;) ++to.depth;
    return prepare(from, to, dither, planesIn(job.source, channels, job.size),
                   planesIn(job.destination, channels, job.size));
}

} // namespace

Library zimg()
{
    unsigned major, minor, micro;
    zimg_get_version_info(&major, &minor, &micro);
    Library library{"zimg " + std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(micro), {}};
    for (const std::string_view function : functions) library.peers.push_back({function, "zimg 601", prepareMatrix});
    library.peers.insert(
        library.peers.end(),
        {{"zoriReduceBits_8u_C1R none", "zimg none", prepareDepth<ZIMG_DITHER_NONE>},
         {"zoriReduceBits_8u_C3R none", "zimg none", prepareDepth<ZIMG_DITHER_NONE>},
         {"zoriReduceBits_8u_C1R ordered", "zimg ordered", prepareDepth<ZIMG_DITHER_ORDERED>},
         {"zoriReduceBits_8u_C3R ordered", "zimg ordered", prepareDepth<ZIMG_DITHER_ORDERED>},
         {"zoriReduceBits_8u_C1R fs", "zimg error diffusion", prepareDepth<ZIMG_DITHER_ERROR_DIFFUSION>},
         {"zoriReduceBits_8u_C3R fs", "zimg error diffusion", prepareDepth<ZIMG_DITHER_ERROR_DIFFUSION>}});
    return library;
}

} // namespace zorcc::bench
