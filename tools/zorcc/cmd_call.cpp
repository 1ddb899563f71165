// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <mutex>

#include "arguments.h"
#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "formats.h"
#include "messages.h"
#include "names.h"
#include "pipeline.h"

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

// A file for each plane of the result.
class PlaneWriter : public Writer {
public:
    PlaneWriter(const CallOptions& options, const VideoTags& tags) : paths(options.out)
    {
        for (const std::string& path : paths) writers.push_back(openWriter({path, options.as}, tags));
    }

    bool mustBeInOrder() const override { return true; }

    void write(Picture picture, int number) override
    {
        for (std::size_t p = 0; p < writers.size(); ++p)
            writers[p]->write(naming(paths[p], [&] { return planeOf(picture, static_cast<int>(p)); }), number);
    }

    void commit() override
    {
        for (const auto& writer : writers) writer->commit();
    }

private:
    std::vector<std::string> paths;
    std::vector<std::unique_ptr<Writer>> writers;
};

const Function& functionNamed(const std::string& name)
{
    if (const Function* const function = interface::findFunction(name)) return *function;
    std::vector<std::string> names;
    for (const Function& function : interface::functions()) names.emplace_back(function.name);
    throw UsageError("no function " + name + nearest(name, names) + " (zorcc list shows all)");
}

} // namespace

void call(const CallOptions& options)
{
    const Function& function = functionNamed(options.function);
    const Format &source = *function.source, &destination = *function.destination;
    if (options.out.size() != 1 && options.out.size() != static_cast<std::size_t>(destination.planes))
        throw UsageError(options.function + " gives " + std::string(destination.name) + ": name one file, or " +
                         std::to_string(destination.planes) + " for its planes");
    const Arguments arguments(function, options.arguments);

    const auto reader = openInput(options.in, &source, OddSizes::cutOff);
    const std::unique_ptr<Writer> writer = options.out.size() == 1
                                               ? openWriter({options.out[0], options.as}, reader->tags())
                                               : std::make_unique<PlaneWriter>(options, reader->tags());
    Stats stats(options.timing.repeat);
    writeAll(
        *reader, *writer,
        [&](Picture picture) {
            const std::string has = "the file holds " + std::string(picture.format().name);
            const ZorSize size = picture.visible();
            ZorStatus status = zorStatusOk;
            double seconds = 0;
            const Colour colour = picture.colour(), wanted = colourOf(source.model);
            if (!colour.matrix.empty() && !wanted.matrix.empty() && !(colour == wanted))
                throw Cause("the file is by another matrix than " + options.function + " takes");
            const std::optional<Picture> given = asSource(std::move(picture), source);
            if (!given)
                throw Cause(has + ", but " + options.function + " takes " + std::string(source.name) +
                            (isRgb(source)   ? ": give a PNG, JPEG or PPM file, or a headerless one with --size WxH"
                             : isYuv(source) ? ": give a Y4M file, or a headerless one with --size WxH"
                                             : ": give a headerless file with --size WxH"));
            Picture result = run(function, *given, options.timing.repeat, seconds, arguments.forPicture(size), &status);
            stats.add(options.function, size, seconds);
            if (status == zorStatusOddSize)
                warn(reader->path(), "odd size " + sizeName(size) + ": only whole 2x2 blocks are converted");
            else if (status != zorStatusOk)
                warn(reader->path(), "the function returned " + std::to_string(status));
            if (const auto& region = arguments.region())
                return resized(std::move(result), destination, {region->width, region->height});
            return result;
        },
        options.timing.isWanted());
    if (options.timing.stats) printStats(stats.line(), options.out);
}

} // namespace zorcc::tool
