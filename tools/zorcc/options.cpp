// SPDX-License-Identifier: MIT
#include "options.h"

#include <charconv>
#include <climits>

#include "error.h"
#include "formats.h"
#include "names.h"
#include "values.h"

namespace zorcc::tool {

namespace {

ZorSize parseSize(const std::string& text)
{
    ZorSize size{};
    const char* const end = text.data() + text.size();
    const auto width = std::from_chars(text.data(), end, size.width);
    if (width.ec == std::errc() && width.ptr != end && *width.ptr == 'x') {
        const auto height = std::from_chars(width.ptr + 1, end, size.height);
        if (height.ec == std::errc() && height.ptr == end && size.width > 0 && size.height > 0) return size;
    }
    throw UsageError("--size: " + quoted(text) + " is no size such as 640x480");
}

// An option whose text `set` reads, throwing UsageError.
template <class Set>
CLI::Option* addText(CLI::App* command, const char* name, const char* help, const char* type, Set set)
{
    return command->add_option_function<std::string>(name, set, help)->type_name(type);
}

// One of several words, in small or capital letters.
template <class T>
void addChoice(CLI::App* command, const char* name, T& value, const char* help, const Choices& choices)
{
    std::string words;
    for (const auto& choice : choices) words += (words.empty() ? "" : "|") + choice.first;
    addText(command, name, help, words.c_str(), [name, &value, choices](const std::string& text) {
        value = static_cast<T>(choiceOf(name, text, choices));
    });
}

template <class Size> void addSize(CLI::App* command, Size& size, const char* help)
{
    addText(command, "--size", help, "WxH", [&size](const std::string& text) { size = parseSize(text); });
}

void addHeaderless(CLI::App* command, Input& input, const std::string& usualFormat)
{
    addSize(command, input.size, "IN is headerless, with pictures of this size");
    command->add_option("--format", input.format, "pixel format of a headerless IN" + usualFormat)->type_name("NAME");
}

void addInput(CLI::App* command, Input& input, const std::string& usualFormat)
{
    command->add_option("IN", input.path, "PNG, JPEG, PPM, PGM, PFM, Y4M or headerless file, frame_%03d.png, -")
        ->required();
    addHeaderless(command, input, usualFormat);
}

void addKind(CLI::App* command, std::string& as)
{
    command->add_option("--as", as, std::string("kind of OUT, whatever its name: ") + kindsToWrite)->type_name("KIND");
}

void addOutput(CLI::App* command, OutputPath& out, const char* help)
{
    command->add_option("OUT", out.path, help)->required();
    addKind(command, out.as);
}

void addTiming(CLI::App* command, Timing& timing)
{
    command->add_option("--repeat", timing.repeat, "run the library N times on each picture and take the best time")
        ->type_name("N")
        ->check(CLI::Range(1, INT_MAX));
    command->add_flag("-v,--verbose,--stats", timing.stats,
                      "print the function, and megapixels/s of the library alone");
}

// IN, OUT and measuring, of commands that run one function.
template <class Options> void addFiles(CLI::App* command, Options& options, const char* in)
{
    command->add_option("IN", options.in, in)->required();
    addOutput(command, options.out, "result");
    addTiming(command, options.timing);
}

constexpr const char* pictureFile = "PNG, JPEG, PPM, PGM or PFM file";

} // namespace

void Commands::addAll()
{
    addConvert();
    addCall();
    addReduce();
    addColours();
    addDemosaic();
    addPictures();
    addList();
}

std::vector<std::string> Commands::names() const
{
    std::vector<std::string> all;
    for (const CLI::App* command : parser.get_subcommands({})) all.push_back(command->get_name());
    return all;
}

void Commands::addList()
{
    CLI::App* const command =
        add("list", "List functions: name, source format, destination format, family", listing, list);
    command->add_option("PATTERN", listing.pattern,
                        "text in the name of a function, format or family, or a pattern with * ? []");
    command->add_flag("--formats", listing.formats, "list pixel formats instead");
    command->footer("Examples:\n  zorcc list\n  zorcc list nv12\n  zorcc list 'zori*_P3R'\n  zorcc list --formats 422");
}

void Commands::addCall()
{
    CLI::App* const command = add("call", "Run one function of the library on a file", calling, call);
    command->add_option("FUNCTION", calling.function, "name of an exported function")->required();
    addInput(command, calling.in, " (otherwise what FUNCTION takes)");
    command->add_option("OUT", calling.out, "result: one file, or one for each plane")->required();
    addKind(command, calling.as);
    constexpr const char* arguments[][3] = {{"alpha", "N", "alpha of all pixels of the result"},
                                            {"slice", "N", "rows of a deinterlaced slice"},
                                            {"noise", "P", "random noise in dithering, in percent of a level"},
                                            {"levels", "N", "from black to white"},
                                            {"method", "METHOD", "none, ordered, fs, jjn, stucki"},
                                            {"grid", "GRID", "rggb, bggr, gbrg, grbg"},
                                            {"interpolation", "N", "of a Bayer mosaic"},
                                            {"region", "X,Y,W,H", "of the source, to demosaic"},
                                            {"twist", "MATRIX", "as for zorcc twist, constants in samples"},
                                            {"weights", "A,B,C", "of the channels in a grey"},
                                            {"vMin", "X", "least value of a range of floats"},
                                            {"vMax", "X", "greatest value of it"}};
    for (const auto& [name, type, help] : arguments)
        addText(command, (std::string("--") + name).c_str(), help, type,
                [this, key = std::string(name)](const std::string& text) { calling.arguments[key] = text; })
            ->group("Arguments of FUNCTION");
    addTiming(command, calling.timing);
    command->footer(
        R"(IN is rearranged (order of channels, planes, alpha, depth) into what FUNCTION takes, never converted. Sizes
are given to FUNCTION as they are; what it leaves alone is 0, and alpha 255. RGB results go to .png .jpg .ppm
.pfm, YUV results to .y4m, planes to .pgm, anything to headerless .yuv .rgb .raw (native byte order; half of an
odd size is rounded down).
Arguments beside images and size are options of their names; zorcc list shows functions.
Examples:
  zorcc call zoriRGBToYUV420_8u_C3P3R photo.png photo.y4m
  zorcc call zoriRGBToYUV_8u_C3P3R photo.png y.pgm u.pgm v.pgm
  zorcc call zoriYUV422ToRGB_8u_C2C3R --size 640x480 frame.yuv frame.png
  zorcc call zoriReduceBits_16u8u_C3R deep.png few.png --levels 4 --method stucki --noise 5
  zorcc call zoriDemosaicAHD_8u_C1C3R raw.pgm part.png --grid bggr --region 100,50,640,480)");
}

void Commands::addConvert()
{
    CLI::App* const command =
        add("convert", "Convert a file from any pixel format to any other, by the shortest chain of functions",
            converting, convert);
    addInput(command, converting.in, "");
    addOutput(command, converting.out, "result; for several pictures .y4m, .yuv, or frame_%03d.png");
    command
        ->add_option("--to", converting.to,
                     "pixel format of OUT, such as yuv420p, nv12, yuyv, rgb24, or a model: "
                     "xyz, luv, lab, photoycc, hls, hsv")
        ->type_name("NAME");
    constexpr const char* matrices = "yuv|bt601|bt709|bt709full";
    addText(command, "--matrix", "of luma and chroma in OUT, or in IN where OUT has none", matrices,
            [this](const std::string& text) { checkMatrix(converting.matrix = inSmallLetters(text)); });
    addText(command, "--from-matrix", "of luma and chroma in IN", matrices,
            [this](const std::string& text) { checkMatrix(converting.fromMatrix = inSmallLetters(text)); });
    command->add_flag("--deinterlace", converting.deinterlace,
                      "smooth each 4:2:0 picture vertically, so that its two fields no longer show as combs");
    command->add_flag("--dither", converting.dither,
                      "into 16-bit pixels by ordered dithering, in place of cutting down");
    command->add_flag("--linear", converting.linear,
                      "RGB in files is sRGB: make it linear before it is converted, and encode RGB results");
    addTiming(command, converting.timing);
    command->footer(
        R"(Without --to, RGB into .y4m or .yuv becomes yuv420p and YUV into a picture file rgb24. All pictures of IN are
converted. An odd size in a format of shared chroma loses nothing: the last column and row are repeated to
complete the last blocks, and cut off on the way back; half of an odd size is rounded up in files. A .y4m file
keeps frame rate, aspect and interlacing of a .y4m IN, otherwise it says 25 pictures a second.

The matrix is bt709 for pictures of 720 rows and more, and bt601 below; bt709full where a .y4m IN of 720 rows says full
range. Names of formats such as yuv420p_bt709 say theirs. From YUV to YUV --matrix is the one to convert to, and
--from-matrix that of IN; a .y4m OUT says the range of its matrix. Samples of a matrix without functions, such as bt2020,
can be moved to another layout: --from-matrix bt2020. --stats shows the chain; losses are always reported.

A name with %03d is a sequence of files, for IN and OUT. - is standard input and output, with --as for the kind:
  ffmpeg -v error -i clip.mp4 -f yuv4mpegpipe - | zorcc convert - clip.rgb --to bgr24
  zorcc convert clip.y4m - --as y4m --deinterlace | ffplay -
Examples:
  zorcc convert photo.png photo.y4m
  zorcc convert clip.y4m frame_%03d.png
  zorcc convert photo.jpg photo.yuv --to yuyv --repeat 20 --stats
  zorcc convert --size 640x480 --format yuyv frame.yuv frame.png
Layouts of video by their usual names, also ffmpeg's and fourccs (zorcc list --formats): i420 yv12 nv12 nv21, i422 nv16
yuy2 uyvy yvyu, i444 nv24, i411 nv11, i410:
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
}

void Commands::addReduce()
{
    CLI::App* const command =
        add("reduce", "Reduce a picture to a few levels of each channel, with or without dithering", reducing, reduce);
    addFiles(command, reducing, pictureFile);
    command->add_option("--levels", reducing.levels, "from black to white; up to 256, of 16-bit files 65536")
        ->type_name("N")
        ->check(CLI::Range(2, 65536))
        ->capture_default_str();
    addChoice(command, "--depth", reducing.depth, "bits of the result; as the file has, if not given",
              {{"8", 8}, {"16", 16}});
    addChoice(command, "--dither", reducing.dither,
              "Floyd-Steinberg (if not given), Jarvis-Judice-Ninke, Stucki, ordered or none", ditherMethods);
    command->add_option("--noise", reducing.noise, "random noise in dithering, in percent of a level")
        ->type_name("P")
        ->check(CLI::Range(0, 100))
        ->capture_default_str();
    command->footer(R"(8-bit files stay 8-bit, others become 16-bit without --depth 8; alpha stays as it is.
Examples:
  zorcc reduce photo.png poster.png --levels 4
  zorcc reduce deep.png photo.png --depth 8 --levels 256 --dither ordered --noise 20)");
}

void Commands::addDemosaic()
{
    CLI::App* const command = add("demosaic", "Make a colour picture of a Bayer mosaic", demosaicing, demosaic);
    command->add_option("IN", demosaicing.in, "grey PGM or PNG file with one colour sample a pixel, 8 or 16 bits")
        ->required();
    addOutput(command, demosaicing.out, "PNG, PPM, JPEG or PFM file");
    addChoice(command, "--grid", demosaicing.grid, "colours of the first 2x2 pixels, row by row; rggb if not given",
              bayerGrids);
    addChoice(command, "--method", demosaicing.gradient,
              "interpolation along the smaller gradient, or the slower "
              "adaptive homogeneity-directed one; ahd if not given",
              {{"gradient", true}, {"ahd", false}});
    addTiming(command, demosaicing.timing);
    command->footer("Example:\n  zorcc demosaic raw.pgm picture.png --grid rggb --method ahd");
}

void Commands::addColours()
{
    CLI::App* command = add("twist", "Multiply every pixel by a matrix", twisting, twist);
    addFiles(command, twisting, pictureFile);
    command
        ->add_option("--matrix", twisting.matrix,
                     "sepia, swap (red and blue), saturation=S, identity; or three rows of four numbers")
        ->type_name("MATRIX")
        ->required();
    command->footer(
        R"(Each row makes one of R, G and B of R, G, B and a constant, of which 1 is white. The depth of the file and its alpha
stay as they are. Saturation 0 is grey, 1 the picture as it is.
Examples:
  zorcc twist photo.png sepia.png --matrix sepia
  zorcc twist photo.png negative.png --matrix '-1 0 0 1; 0 -1 0 1; 0 0 -1 1')");

    command = add("gamma", "Gamma correction by the curve of ITU-R BT.709, of linear light", correcting, gamma);
    addFiles(command, correcting, pictureFile);
    command->add_flag("--inverse", correcting.inverse, "from a corrected picture back to linear light");
    command->footer("Examples:\n  zorcc gamma linear.pfm photo.pfm\n  zorcc gamma photo.png linear.png --inverse");

    command = add("grey", "Grey of a colour picture", greying, grey);
    addFiles(command, greying, pictureFile);
    command->add_option("--weights", greying.weights, "of red, green and blue, with a sum of 1; luma if not given")
        ->type_name("R,G,B")
        ->delimiter(',')
        ->expected(3);
    command->footer("Examples:\n  zorcc grey photo.png grey.png\n  zorcc grey photo.png red.pgm --weights 1,0,0");

    command = add("tonemap", "Scale a grey picture of floats to 8 bits", mapping, tonemap);
    addFiles(command, mapping, "grey PFM file");
    command->add_flag("--mean", mapping.mean, "twice the mean becomes white, and what is brighter; not the maximum");
    command->footer("Example:\n  zorcc tonemap deep.pfm photo.png");
}

void Commands::addPictures()
{
    CLI::App* command = add("chart", "Draw the test picture", drawing, chart);
    addOutput(command, drawing.out, "PNG, JPEG, PPM or PFM file");
    addSize(command, drawing.size, "its size; 1280x720 if not given");
    command->footer("Examples:\n  zorcc chart chart.png\n  zorcc chart small.ppm --size 641x481");

    command = add("compare", "PSNR, largest difference and SSIM of two files, by channel", comparing, compare);
    command->add_option("A", comparing.a.path, "PNG, JPEG, PPM, PGM, PFM, Y4M or headerless file")->required();
    command->add_option("B", comparing.b, "the file to compare with, of the same size and colour model")->required();
    addHeaderless(command, comparing.a, " or B");
    command->add_option("--min-psnr", comparing.minPsnr, "fail if all channels together are below")->type_name("DB");
    command->footer(
        R"(Files of many pictures are compared over all of them. Samples of more than 8 bits are compared as 0..1. Alpha counts
where both files have it. SSIM is the mean over windows of 8x8 samples.
Examples:
  zorcc compare photo.png back.png --min-psnr 40
  zorcc compare --size 640x480 --format nv12 a.yuv b.yuv)");

    command = add("sheet", "Put pictures side by side", laying, sheet);
    addOutput(command, laying.out, "PNG, JPEG or PPM file");
    command->add_option("IN", laying.in, "pictures; of a file of many the first")->required();
    command->footer("Example:\n  zorcc sheet sheet.png photo.png back.png");
}

} // namespace zorcc::tool
