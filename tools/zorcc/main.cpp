// SPDX-License-Identifier: MIT
// zorcc: the library's functions on files.
#include <charconv>
#include <cstring>
#include <iostream>
#include <map>

#include <CLI/CLI.hpp>

#include "commands.h"
#include "error.h"
#include "io/atomic_file.h"

namespace {

using namespace zorcc;
using namespace tool;

constexpr int failed = 1, badUsage = 2;

std::string versionText()
{
    const ZorVersion& version = *zorccGetLibVersion();
    const std::string code(version.cpuCode, strnlen(version.cpuCode, sizeof version.cpuCode));
    return std::string("zorcc ") + version.versionText + " (" + version.libraryName + ", " + code + ", " +
           version.buildDate + ")";
}

ZorSize parseSize(const std::string& text)
{
    ZorSize size{};
    const char* const end = text.data() + text.size();
    const auto width = std::from_chars(text.data(), end, size.width);
    if (width.ec == std::errc() && width.ptr != end && *width.ptr == 'x') {
        const auto height = std::from_chars(width.ptr + 1, end, size.height);
        if (height.ec == std::errc() && height.ptr == end && size.width > 0 && size.height > 0) return size;
    }
    throw CLI::ValidationError("--size", "'" + text + "' is no size such as 640x480");
}

std::map<std::string, interface::Model> namedMatrices()
{
    std::map<std::string, interface::Model> named;
    for (const interface::ModelProperties& row : interface::models)
        if (interface::isYcc(row.model) && row.model != interface::Model::anyYcc) named.emplace(row.matrix, row.model);
    return named;
}

template <class Size> void addSize(CLI::App* command, Size& size, const std::string& help)
{
    command
        ->add_option_function<std::string>(
            "--size", [&size](const std::string& text) { size = parseSize(text); }, help)
        ->type_name("WxH");
}

void addInput(CLI::App* command, Input& input, const std::string& usualFormat)
{
    command->add_option("IN", input.path, "PNG, JPEG, PPM, PGM, PFM, Y4M or headerless file")->required();
    addSize(command, input.size, "IN is headerless, with pictures of this size");
    command->add_option("--format", input.format, "pixel format of a headerless IN" + usualFormat)->type_name("NAME");
}

void addTiming(CLI::App* command, Timing& timing)
{
    command->add_option("--repeat", timing.repeat, "run the library N times on each picture and take the best time")
        ->type_name("N")
        ->check(CLI::PositiveNumber);
    command->add_flag("-v,--verbose,--stats", timing.stats,
                      "print the function, and megapixels/s of the library alone");
}

struct Options {
    std::string pattern;
    CallOptions call;
    ConvertOptions convert;
    ReduceOptions reduce;
    DemosaicOptions demosaic;
    TwistOptions twist;
    GammaOptions gamma;
    GreyOptions grey;
    TonemapOptions tonemap;
    std::string chartOut, sheetOut, compareA, compareB;
    ZorSize chartSize = {1280, 720};
    std::vector<std::string> sheetIn;
};

void addCommands(CLI::App& app, Options& o)
{
    CLI::App* command = app.add_subcommand("list", "List functions: name, source format, destination format, family");
    command->add_option("PATTERN", o.pattern, "text in a function or family name, or a pattern with * ? []");
    command->footer("Examples:\n  zorcc list\n  zorcc list YUV420\n  zorcc list 'zori*_P3R'");
    command->callback([&o] { list(o.pattern); });

    command = app.add_subcommand("call", "Run one function of the library on a file");
    command->add_option("FUNCTION", o.call.function, "name of an exported function")->required();
    addInput(command, o.call.in, " (otherwise what FUNCTION takes)");
    command->add_option("OUT", o.call.out, "result: one file, or one for each plane")->required();
    addTiming(command, o.call.timing);
    command->footer(
        R"(IN is rearranged (order of channels, planes, alpha, depth) into what FUNCTION takes, never converted. Sizes
are given to FUNCTION as they are; what it leaves alone is 0, and alpha 255. RGB results go to .png .jpg .ppm
.pfm, YUV results to .y4m, planes to .pgm, anything to headerless .yuv .rgb .raw (native byte order; half of an
odd size is rounded down).
Examples:
  zorcc call zoriRGBToYUV420_8u_C3P3R photo.png photo.y4m
  zorcc call zoriRGBToYUV_8u_C3P3R photo.png y.pgm u.pgm v.pgm
  zorcc call zoriYUV422ToRGB_8u_C2C3R --size 640x480 frame.yuv frame.png)");
    command->callback([&o] { call(o.call); });

    command = app.add_subcommand("convert", "Convert a file, with the function that suits the two formats");
    addInput(command, o.convert.in, "");
    command->add_option("OUT", o.convert.out, "result; for several pictures .y4m, .yuv, or frame_%03d.png")->required();
    command
        ->add_option("--to", o.convert.to,
                     "pixel format of OUT, such as yuv420p, yuv422p, yuv444p, yuyv, rgb24, or a model: "
                     "xyz, luv, lab, photoycc, hls, hsv")
        ->type_name("NAME");
    command
        ->add_option("--matrix", o.convert.in.matrix,
                     "matrix of .y4m files, and of formats whose names give none: yuv, bt601, bt709, bt709full")
        ->type_name("NAME")
        ->transform(CLI::Transformer(namedMatrices()));
    command->add_flag("--deinterlace", o.convert.deinterlace,
                      "smooth each 4:2:0 picture vertically, so that its two fields no longer show as combs");
    command->add_flag("--dither", o.convert.dither,
                      "into 16-bit pixels by ordered dithering, in place of cutting down");
    command->add_flag("--linear", o.convert.linear,
                      "RGB in files is sRGB: make it linear before it is converted, and encode RGB results");
    addTiming(command, o.convert.timing);
    command->footer(
        R"(Without --to, RGB into .y4m or .yuv becomes yuv420p and YUV into a picture file rgb24. All pictures of IN are
converted. An odd size in a format of shared chroma loses nothing: the last column and row are repeated to
complete the last blocks, and cut off on the way back; half of an odd size is rounded up in files. A .y4m file
keeps the frame rate of a .y4m IN, otherwise it says 25 pictures a second. Without --matrix a .y4m IN of limited
range is taken for bt601, any other for yuv; OUT says the range of its matrix.
Examples:
  zorcc convert photo.png photo.y4m
  zorcc convert clip.y4m frame_%03d.png
  zorcc convert photo.jpg photo.yuv --to yuyv --repeat 20 --stats
  zorcc convert --size 640x480 --format yuyv frame.yuv frame.png
Layouts of video, of any matrix, by their usual names: i420 yv12 nv12, i422 yv16 yuy2 uyvy yvyu, i411 nv11, i410:
  zorcc convert clip.y4m clip.yuv --to nv12
  zorcc convert --size 720x576 --format nv12 clip.yuv clip.y4m --deinterlace
Models: --to xyz, luv, lab, photoycc, hls or hsv makes a headerless file with samples like those of IN: of 8 bits xyz24,
of 16 xyz48, of a PFM file xyzf32, and so on; Lab has lab24 and lab48 alone. RGB counts as linear, as files mostly are
not: --linear makes sRGB files so.
  zorcc convert photo.png photo.raw --to lab --linear
  zorcc convert --size 640x480 --format lab24 photo.raw photo.png --linear
Pixels of 16 bits: rgb565 bgr565 rgb555 bgr555 rgb444 bgr444. The channel named first is in the LOW bits, so that what
others call rgb565le is bgr565 here; their names with le are understood, too:
  zorcc convert clip.y4m clip.raw --to rgb565le --dither
  zorcc convert --size 320x240 --format bgr565 frame.raw frame.png
YCoCg: ycocg444p in bytes; ycocg444p16s from 8-bit or 16-bit RGB and ycocg444p32s from 16-bit RGB, signed; the same with
ycocgr, which is exactly reversible. Say --to rgb48 on the way back where 16-bit planes hold 16-bit RGB:
  zorcc convert deep.png deep.raw --to ycocgr444p16s
  zorcc convert --size 640x480 --format ycocgr444p16s deep.raw same.png --to rgb48)");
    command->callback([&o] { convert(o.convert); });

    command =
        app.add_subcommand("reduce", "Reduce a picture to a few levels of each channel, with or without dithering");
    command->add_option("IN", o.reduce.in, "PNG, JPEG, PPM, PGM or PFM file")->required();
    command->add_option("OUT", o.reduce.out, "result")->required();
    command->add_option("--levels", o.reduce.levels, "from black to white; up to 256, of 16-bit files 65536")
        ->type_name("N")
        ->check(CLI::Range(2, 65536))
        ->capture_default_str();
    const std::map<std::string, ZorDitherMethod> dithers = {{"none", zorDitherMethodNone},
                                                            {"ordered", zorDitherMethodOrdered},
                                                            {"fs", zorDitherMethodFloydSteinberg},
                                                            {"jjn", zorDitherMethodJarvisJudiceNinke},
                                                            {"stucki", zorDitherMethodStucki}};
    command
        ->add_option("--dither", o.reduce.dither,
                     "none, ordered, fs (Floyd-Steinberg), jjn (Jarvis-Judice-Ninke), stucki")
        ->type_name("METHOD")
        ->default_str("fs")
        ->transform(CLI::CheckedTransformer(dithers));
    command->add_option("--noise", o.reduce.noise, "random noise in dithering, in percent of a level")
        ->type_name("P")
        ->check(CLI::Range(0, 100))
        ->capture_default_str();
    addTiming(command, o.reduce.timing);
    command->footer(R"(8-bit files stay 8-bit, others become 16-bit; alpha stays as it is.
Examples:
  zorcc reduce photo.png poster.png --levels 4
  zorcc reduce deep.png photo.png --levels 256 --dither ordered --noise 20)");
    command->callback([&o] { reduce(o.reduce); });

    command = app.add_subcommand("demosaic", "Make a colour picture of a Bayer mosaic");
    command->add_option("IN", o.demosaic.in, "grey PGM or PNG file with one colour sample a pixel, 8 or 16 bits")
        ->required();
    command->add_option("OUT", o.demosaic.out, "PNG, PPM, JPEG or PFM file")->required();
    const std::map<std::string, ZorBayerGrid> grids = {
        {"bggr", zorBayerBGGR}, {"rggb", zorBayerRGGB}, {"gbrg", zorBayerGBRG}, {"grbg", zorBayerGRBG}};
    command->add_option("--grid", o.demosaic.grid, "colours of the first 2x2 pixels, row by row; rggb if not given")
        ->transform(CLI::CheckedTransformer(grids, CLI::ignore_case).description("rggb|bggr|gbrg|grbg"));
    const std::map<std::string, bool> methods = {{"gradient", true}, {"ahd", false}};
    command
        ->add_option("--method", o.demosaic.gradient,
                     "interpolation along the smaller gradient, or the slower "
                     "adaptive homogeneity-directed one; ahd if not given")
        ->transform(CLI::CheckedTransformer(methods, CLI::ignore_case).description("gradient|ahd"));
    addTiming(command, o.demosaic.timing);
    command->footer("Example:\n  zorcc demosaic raw.pgm picture.png --grid rggb --method ahd");
    command->callback([&o] { demosaic(o.demosaic); });

    const auto addFiles = [&command](auto& options, const std::string& in) {
        command->add_option("IN", options.in, in)->required();
        command->add_option("OUT", options.out, "result")->required();
        addTiming(command, options.timing);
    };
    const std::string pictureFile = "PNG, JPEG, PPM, PGM or PFM file";

    command = app.add_subcommand("twist", "Multiply every pixel by a matrix");
    addFiles(o.twist, pictureFile);
    command
        ->add_option("--matrix", o.twist.matrix,
                     "sepia, swap (red and blue), saturation=S, identity; or three rows of four numbers")
        ->type_name("MATRIX")
        ->required();
    command->footer(
        R"(Each row makes one of R, G and B of R, G, B and a constant, of which 1 is white. The depth of the file and its alpha
stay as they are. Saturation 0 is grey, 1 the picture as it is.
Examples:
  zorcc twist photo.png sepia.png --matrix sepia
  zorcc twist photo.png negative.png --matrix '-1 0 0 1; 0 -1 0 1; 0 0 -1 1')");
    command->callback([&o] { twist(o.twist); });

    command = app.add_subcommand("gamma", "Gamma correction by the curve of ITU-R BT.709, of linear light");
    addFiles(o.gamma, pictureFile);
    command->add_flag("--inverse", o.gamma.inverse, "from a corrected picture back to linear light");
    command->footer("Examples:\n  zorcc gamma linear.pfm photo.pfm\n  zorcc gamma photo.png linear.png --inverse");
    command->callback([&o] { gamma(o.gamma); });

    command = app.add_subcommand("grey", "Grey of a colour picture");
    addFiles(o.grey, pictureFile);
    command->add_option("--weights", o.grey.weights, "of red, green and blue, with a sum of 1; luma if not given")
        ->type_name("R,G,B")
        ->delimiter(',')
        ->expected(3);
    command->footer("Examples:\n  zorcc grey photo.png grey.png\n  zorcc grey photo.png red.pgm --weights 1,0,0");
    command->callback([&o] { grey(o.grey); });

    command = app.add_subcommand("tonemap", "Scale a grey picture of floats to 8 bits");
    addFiles(o.tonemap, "grey PFM file");
    command->add_flag("--mean", o.tonemap.mean, "twice the mean becomes white, and what is brighter; not the maximum");
    command->footer("Example:\n  zorcc tonemap deep.pfm photo.png");
    command->callback([&o] { tonemap(o.tonemap); });

    command = app.add_subcommand("chart", "Draw the test picture");
    command->add_option("OUT", o.chartOut, "PNG, JPEG, PPM or PFM file")->required();
    addSize(command, o.chartSize, "its size; 1280x720 if not given");
    command->footer("Examples:\n  zorcc chart chart.png\n  zorcc chart small.ppm --size 641x481");
    command->callback([&o] { chart(o.chartOut, o.chartSize); });

    command = app.add_subcommand("compare", "PSNR and largest difference of two files, by channel");
    command->add_option("A", o.compareA, "PNG, JPEG, PPM, PGM, PFM or Y4M file")->required();
    command->add_option("B", o.compareB, "the file to compare with, of the same size and colour model")->required();
    command->footer("Y4M files are compared over all pictures. Samples of more than 8 bits are compared as 0..1.\n"
                    "Example:\n  zorcc compare photo.png back.png");
    command->callback([&o] { compare(o.compareA, o.compareB); });

    command = app.add_subcommand("sheet", "Put pictures side by side");
    command->add_option("OUT", o.sheetOut, "PNG, JPEG or PPM file")->required();
    command->add_option("IN", o.sheetIn, "pictures; of a file of many the first")->required();
    command->footer("Example:\n  zorcc sheet sheet.png photo.png back.png");
    command->callback([&o] { sheet(o.sheetOut, o.sheetIn); });
}

// One line, whatever the cause.
int complain(std::string message, int code)
{
    if (const std::size_t end = message.find('\n'); end != message.npos) message.resize(end);
    std::cerr << "zorcc: " << message << '\n';
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    removeUnfinishedFilesOnSignals();
    Options options;
    CLI::App app("Colour conversion of picture and video files with libzorccn8");
    app.name("zorcc");
    app.set_version_flag("--version", versionText());
    app.add_option_function<int>(
           "--threads", [](int count) { zorSetNumThreads(count); }, "threads that one call may use")
        ->type_name("N")
        ->check(CLI::PositiveNumber)
        ->trigger_on_parse();
    app.require_subcommand(0, 1); // a missing one is reported below
    app.fallthrough();
    app.footer(R"(zorcc COMMAND --help says more.
Example:
  zorcc chart chart.png && zorcc convert chart.png chart.y4m && zorcc convert chart.y4m back.png
  zorcc compare chart.png back.png)");
    addCommands(app, options);
    try {
        app.parse(argc, argv);
        if (app.get_subcommands().empty()) throw UsageError("which command? zorcc --help shows them");
        if (!std::cout.flush()) return complain("standard output: cannot write", failed);
        return 0;
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() == 0) return app.exit(error); // --help, --version
        return complain(error.what(), badUsage);
    } catch (const UsageError& error) {
        return complain(error.what(), badUsage);
    } catch (const std::exception& error) {
        return complain(error.what(), failed);
    }
}
