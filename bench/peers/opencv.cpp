// SPDX-License-Identifier: MIT
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "bench/peers/peer.h"

namespace zorcc::bench {

namespace {

using interface::Format;
using interface::Image;
using interface::Layout;

struct Row {
    std::string_view function;
    const char* name;
    cv::ColorConversionCodes code;
};

// To 4:2:0 it takes the chroma of one pixel in four, not the mean.
const Row rows[] = {
    {"zoriRGBToYUV_8u_C3R", "RGB2YUV", cv::COLOR_RGB2YUV},
    {"zoriYUVToRGB_8u_C3R", "YUV2RGB", cv::COLOR_YUV2RGB},
    {"zoriRGBToYUV420_8u_C3P3R", "RGB2YUV_I420", cv::COLOR_RGB2YUV_I420},
    {"zoriYUV420ToRGB_8u_P3C3R", "YUV2RGB_I420", cv::COLOR_YUV2RGB_I420},
    {"zoriYUV420ToBGR_8u_P3C3R", "YUV2BGR_I420", cv::COLOR_YUV2BGR_I420},
    {"zoriYUV420ToRGB_8u_P3AC4R", "YUV2RGBA_I420", cv::COLOR_YUV2RGBA_I420},
    {"zoriYUV422ToRGB_8u_C2C3R", "YUV2RGB_YUYV", cv::COLOR_YUV2RGB_YUYV},
    {"zoriRGB565ToRGB_16u8u_C3R", "BGR5652BGR", cv::COLOR_BGR5652BGR},
    {"zoriRGBToRGB565_8u16u_C3R", "BGR2BGR565", cv::COLOR_BGR2BGR565},
    {"zoriRGBToHLS_8u_C3R", "RGB2HLS_FULL", cv::COLOR_RGB2HLS_FULL},
    {"zoriHLSToRGB_8u_C3R", "HLS2RGB_FULL", cv::COLOR_HLS2RGB_FULL},
    {"zoriRGBToHSV_8u_C3R", "RGB2HSV_FULL", cv::COLOR_RGB2HSV_FULL},
    {"zoriHSVToRGB_8u_C3R", "HSV2RGB_FULL", cv::COLOR_HSV2RGB_FULL},
    {"zoriRGBToHLS_32f_C3R", "RGB2HLS", cv::COLOR_RGB2HLS},
    {"zoriHLSToRGB_32f_C3R", "HLS2RGB", cv::COLOR_HLS2RGB},
    {"zoriRGBToXYZ_8u_C3R", "RGB2XYZ", cv::COLOR_RGB2XYZ},
    {"zoriXYZToRGB_8u_C3R", "XYZ2RGB", cv::COLOR_XYZ2RGB},
    {"zoriRGBToXYZ_16u_C3R", "RGB2XYZ", cv::COLOR_RGB2XYZ},
    {"zoriXYZToRGB_16u_C3R", "XYZ2RGB", cv::COLOR_XYZ2RGB},
    {"zoriRGBToXYZ_32f_C3R", "RGB2XYZ", cv::COLOR_RGB2XYZ},
    {"zoriXYZToRGB_32f_C3R", "XYZ2RGB", cv::COLOR_XYZ2RGB},
    {"zoriRGBToLUV_8u_C3R", "LRGB2Luv", cv::COLOR_LRGB2Luv},
    {"zoriLUVToRGB_8u_C3R", "Luv2LRGB", cv::COLOR_Luv2LRGB},
    {"zoriRGBToLUV_32f_C3R", "LRGB2Luv", cv::COLOR_LRGB2Luv},
    {"zoriLUVToRGB_32f_C3R", "Luv2LRGB", cv::COLOR_Luv2LRGB},
    {"zoriBGRToLab_8u_C3R", "LBGR2Lab", cv::COLOR_LBGR2Lab},
    {"zoriLabToBGR_8u_C3R", "Lab2LBGR", cv::COLOR_Lab2LBGR},
    {"zoriCFAToRGB_8u_C1C3R", "BayerRGGB2RGB_EA", cv::COLOR_BayerRGGB2RGB_EA},
    {"zoriCFAToRGB_16u_C1C3R", "BayerRGGB2RGB_EA", cv::COLOR_BayerRGGB2RGB_EA},
};

// A matrix over our memory. It takes planar 4:2:0 as one matrix half as high again, the planes one after another.
cv::Mat matrix(const Format& format, const Image& image, ZorSize size)
{
    if (format.layout == Layout::planar)
        return {size.height * 3 / 2, size.width, CV_8UC1, image.plane[0], static_cast<size_t>(image.step[0])};
    if (format.layout == Layout::packedBits)
        return {size.height, size.width, CV_8UC2, image.plane[0], static_cast<size_t>(image.step[0])};
    const int depth = format.sample == interface::Sample::f32   ? CV_32F
                      : format.sample == interface::Sample::u16 ? CV_16U
                                                                : CV_8U;
    return {size.height, size.width, CV_MAKETYPE(depth, format.plane[0].samples), image.plane[0],
            static_cast<size_t>(image.step[0])};
}

void useEverything() { cv::setUseOptimized(true); }
// Debian's build takes no more than SSE3 for granted.
void useSSE3Only() { cv::setUseOptimized(false); }

} // namespace

Library openCV()
{
    cv::setNumThreads(1);
    Library library{"OpenCV " CV_VERSION, {}};
    for (const Row& row : rows) {
        auto prepare = [code = row.code](const Job& job) -> Work {
            const cv::Mat from = matrix(*job.function.source, job.source, job.size);
            const cv::Mat to = matrix(*job.function.destination, job.destination, job.size);
            return [=] { cv::cvtColor(from, to, code); };
        };
        const std::string name = std::string("OpenCV ") + row.name;
        library.peers.push_back({row.function, name, prepare, useEverything, false});
        library.peers.push_back({row.function, name + ", SSE3 only", prepare, useSSE3Only, true});
    }
    return library;
}

} // namespace zorcc::bench
