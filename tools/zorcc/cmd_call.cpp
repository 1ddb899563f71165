// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iostream>

#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "io/writer.h"
#include "progress.h"

namespace zorcc::tool {

namespace {

// One plane as a grey picture: its samples side by side, however many a pixel has.
Picture planeOf(const Picture& picture, int plane)
{
    const Format& format = picture.format();
    const int samples = static_cast<int>(interface::rowBytes(format, plane, picture.size().width)) /
                        interface::sampleBytes(format.sample);
    const ZorSize size = {samples, interface::rows(format, plane, picture.size().height)};
    if (size.width == 0 || size.height == 0)
        throw Cause("plane " + std::to_string(plane + 1) + " of a picture of this size is empty");
    Picture result(pictureFormat(true, false, format.sample), size);
    for (int y = 0; y < size.height; ++y)
        std::copy_n(picture.row(plane, y), picture.visibleRowBytes(plane), result.row(0, y));
    return result;
}

// One file for the result, or one for each of its planes.
class Output {
public:
    Output(const std::vector<std::string>& names, const VideoTags& tags) : paths(names)
    {
        for (const std::string& path : paths) writers.push_back(openWriter(path, tags));
    }

    void write(Picture picture)
    {
        if (writers.size() == 1) return writers[0]->write(std::move(picture));
        for (std::size_t p = 0; p < writers.size(); ++p)
            writers[p]->write(naming(paths[p], [&] { return planeOf(picture, static_cast<int>(p)); }));
    }

    void commit()
    {
        for (const auto& writer : writers) writer->commit();
    }

private:
    std::vector<std::string> paths;
    std::vector<std::unique_ptr<Writer>> writers;
};

} // namespace

void call(const CallOptions& options)
{
    const Function* const function = interface::findFunction(options.function);
    if (!function) throw UsageError("no function " + options.function + " (zorcc list shows all)");
    const Format &source = *function->source, &destination = *function->destination;
    if (options.out.size() != 1 && options.out.size() != static_cast<std::size_t>(destination.planes))
        throw UsageError(options.function + " gives " + std::string(destination.name) + ": name one file, or " +
                         std::to_string(destination.planes) + " for its planes");

    const auto reader = openInput(options.in, &source, OddSizes::cutOff);
    Output output(options.out, reader->tags());
    Stats stats{options.timing.repeat};
    bool warned = false;
    writeAll(*reader, output, [&](Picture picture) {
        if (!rearrangementCost(picture.format(), source))
            throw Cause("the file holds " + std::string(picture.format().name) + ", but " + options.function +
                        " takes " + std::string(source.name) +
                        (isRgb(source)   ? ": give a PNG, JPEG or PPM file, or a headerless one with --size WxH"
                         : isYuv(source) ? ": give a Y4M file, or a headerless one with --size WxH"
                                         : ": give a headerless file with --size WxH"));
        const ZorSize size = picture.visible();
        Picture result = run(*function, rearranged(std::move(picture), source, size), stats);
        if (stats.status != zorStatusOk && !warned)
            std::cerr << "zorcc: warning: " << reader->path() << ": "
                      << (stats.status == zorStatusOddSize
                              ? "odd size " + sizeName(size) + ": only whole 2x2 blocks are converted"
                              : "the function returned " + std::to_string(stats.status))
                      << '\n';
        warned |= stats.status != zorStatusOk;
        return result;
    });
    if (options.timing.stats) std::cout << stats.line();
}

} // namespace zorcc::tool
