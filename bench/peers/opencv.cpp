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
    {"zoriCFAToRGB_8u_C1C3R", "BayerRGGB2RGB_EA", cv::COLOR_BayerRGGB2RGB_EA},
    {"zoriCFAToRGB_16u_C1C3R", "BayerRGGB2RGB_EA", cv::COLOR_BayerRGGB2RGB_EA},
    {"zoriRGBToGray_8u_C3C1R", "RGB2GRAY", cv::COLOR_RGB2GRAY},
    {"zoriRGBToGray_16u_C3C1R", "RGB2GRAY", cv::COLOR_RGB2GRAY},
    {"zoriRGBToGray_32f_C3C1R", "RGB2GRAY", cv::COLOR_RGB2GRAY},
};

// Operations with an argument, which is a matrix.
struct WithMatrix {
    std::string_view function;
    const char* name;
    cv::Mat (*argumentOf)(const Job& job);
    void (*run)(const cv::Mat& from, const cv::Mat& to, const cv::Mat& argument);
};

cv::Mat twistOf(const Job& job)
{
    const int channels = job.function.source->plane[0].samples;
    cv::Mat twist(channels, 4, CV_32F);
    for (int k = 0; k < channels; ++k)
        for (int j = 0; j < 4; ++j) twist.at<float>(k, j) = job.arguments.twist[k][j];
    return twist;
}

// What the function makes of all bytes.
cv::Mat curveOf(const Job& job)
{
    cv::Mat curve(1, 256, CV_8U), bytes(1, 3 * 256, CV_8U);
    for (int i = 0; i < 3 * 256; ++i) bytes.at<uint8_t>(i) = static_cast<uint8_t>(i / 3);
    const Image image{{bytes.data}, {3 * 256}};
    job.function(image, image, {256, 1});
    for (int i = 0; i < 256; ++i) curve.at<uint8_t>(i) = bytes.at<uint8_t>(3 * i);
    return curve;
}

void transform(const cv::Mat& from, const cv::Mat& to, const cv::Mat& twist) { cv::transform(from, to, twist); }
void lookUp(const cv::Mat& from, const cv::Mat& to, const cv::Mat& curve) { cv::LUT(from, curve, to); }

const WithMatrix withMatrices[] = {
    {"zoriColorTwist32f_8u_C3R", "transform", twistOf, transform},
    {"zoriColorTwist32f_16u_C3R", "transform", twistOf, transform},
    {"zoriColorTwist_32f_C3R", "transform", twistOf, transform},
    {"zoriColorTwist_32f_C4R", "transform", twistOf, transform},
    {"zoriGammaFwd_8u_C3R", "LUT", curveOf, lookUp},
    {"zoriGammaInv_8u_C3R", "LUT", curveOf, lookUp},
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
    const auto add = [&](std::string_view function, const char* operation, const auto& prepare) {
        const std::string name = std::string("OpenCV ") + operation;
        library.peers.push_back({function, name, prepare, useEverything, false});
        library.peers.push_back({function, name + ", SSE3 only", prepare, useSSE3Only, true});
    };
    const auto fromOf = [](const Job& job) { return matrix(*job.function.source, job.source, job.size); };
    const auto toOf = [](const Job& job) { return matrix(*job.function.destination, job.destination, job.size); };
    for (const Row& row : rows)
        add(row.function, row.name, [=, code = row.code](const Job& job) -> Work {
            return [=, from = fromOf(job), to = toOf(job)] { cv::cvtColor(from, to, code); };
        });
    for (const WithMatrix& row : withMatrices)
        add(row.function, row.name, [=, &row](const Job& job) -> Work {
            return [run = row.run, from = fromOf(job), to = toOf(job), argument = row.argumentOf(job)] {
                run(from, to, argument);
            };
        });
    return library;
}

} // namespace zorcc::bench
