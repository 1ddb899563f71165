// SPDX-License-Identifier: MIT
// The commands of zorcc and their options. Each writes its answer to stdout and throws what went wrong.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "io/reader.h"

namespace zorcc::tool {

struct Input {
    std::string path;
    std::optional<ZorSize> size; // given: the file is headerless
    std::string format;
    Matrix matrix;
};

struct Timing {
    int repeat = 1;
    bool stats = false;
};

struct CallOptions {
    std::string function;
    Input in;
    std::vector<std::string> out;
    Timing timing;
};

struct ConvertOptions {
    Input in;
    std::string out, to;
    bool deinterlace = false, dither = false;
    bool linear = false; // RGB is sRGB in files, and linear for the functions
    Timing timing;
};

struct ReduceOptions {
    std::string in, out;
    int levels = 2, noise = 0;
    ZorDitherMethod dither = zorDitherMethodFloydSteinberg;
    Timing timing;
};

struct DemosaicOptions {
    std::string in, out;
    ZorBayerGrid grid = zorBayerRGGB;
    bool gradient = false; // instead of the adaptive method
    Timing timing;
};

struct TwistOptions {
    std::string in, out, matrix;
    Timing timing;
};

struct GammaOptions {
    std::string in, out;
    bool inverse = false;
    Timing timing;
};

struct GreyOptions {
    std::string in, out;
    std::vector<float> weights; // of red, green and blue; none: those of luma
    Timing timing;
};

struct TonemapOptions {
    std::string in, out;
    bool mean = false; // white is twice the mean, not the maximum
    Timing timing;
};

void list(const std::string& pattern);
void call(const CallOptions& options);
void convert(const ConvertOptions& options);
void reduce(const ReduceOptions& options);
void chart(const std::string& out, ZorSize size);
void compare(const std::string& a, const std::string& b);
void demosaic(const DemosaicOptions& options);
void twist(const TwistOptions& options);
void gamma(const GammaOptions& options);
void grey(const GreyOptions& options);
void tonemap(const TonemapOptions& options);
void sheet(const std::string& out, const std::vector<std::string>& in);

// The input of call and convert; a headerless one is of the format `usual` if the user names none.
std::unique_ptr<Reader> openInput(const Input& input, const Format* usual, OddSizes oddSizes);

} // namespace zorcc::tool
