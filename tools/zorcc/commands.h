// SPDX-License-Identifier: MIT
// The commands of zorcc and their options. Each writes its answer to stdout and throws what went wrong.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "io/reader.h"
#include "io/writer.h"

namespace zorcc::tool {

struct Input {
    std::string path;
    std::optional<ZorSize> size; // given: the file is headerless
    std::string format;
};

struct Timing {
    int repeat = 1;
    bool stats = false;

    bool isWanted() const { return stats || repeat > 1; }
};

struct ListOptions {
    std::string pattern;
    bool formats = false; // in place of functions
};

struct CallOptions {
    std::string function;
    Input in;
    std::vector<std::string> out;
    std::string as;
    std::map<std::string, std::string> arguments; // those that were given, by their names
    Timing timing;
};

struct ConvertOptions {
    Input in;
    OutputPath out;
    std::string to;
    std::string matrix, fromMatrix; // empty: not given
    bool deinterlace = false, dither = false;
    bool linear = false; // RGB is sRGB in files, and linear for the functions
    Timing timing;
};

struct ReduceOptions {
    std::string in;
    OutputPath out;
    int levels = 2, noise = 0;
    int depth = 0; // bits of the result; 0: as the file has
    ZorDitherMethod dither = zorDitherMethodFloydSteinberg;
    Timing timing;
};

struct DemosaicOptions {
    std::string in;
    OutputPath out;
    ZorBayerGrid grid = zorBayerRGGB;
    bool gradient = false; // instead of the adaptive method
    Timing timing;
};

struct TwistOptions {
    std::string in;
    OutputPath out;
    std::string matrix;
    Timing timing;
};

struct GammaOptions {
    std::string in;
    OutputPath out;
    bool inverse = false;
    Timing timing;
};

struct GreyOptions {
    std::string in;
    OutputPath out;
    std::vector<float> weights; // of red, green and blue; none: those of luma
    Timing timing;
};

struct TonemapOptions {
    std::string in;
    OutputPath out;
    bool mean = false; // white is twice the mean, not the maximum
    Timing timing;
};

struct ChartOptions {
    OutputPath out;
    ZorSize size = {1280, 720};
};

struct CompareOptions {
    Input a;
    std::string b;
    std::optional<double> minPsnr; // of all channels together, in dB
};

struct SheetOptions {
    OutputPath out;
    std::vector<std::string> in;
};

void list(const ListOptions& options);
void call(const CallOptions& options);
void convert(const ConvertOptions& options);
void reduce(const ReduceOptions& options);
void chart(const ChartOptions& options);
void compare(const CompareOptions& options);
void demosaic(const DemosaicOptions& options);
void twist(const TwistOptions& options);
void gamma(const GammaOptions& options);
void grey(const GreyOptions& options);
void tonemap(const TonemapOptions& options);
void sheet(const SheetOptions& options);

// The input of call, convert and compare; a headerless one is of the format `usual` if the user names none.
std::unique_ptr<Reader> openInput(const Input& input, const Format* usual, OddSizes oddSizes);

} // namespace zorcc::tool
