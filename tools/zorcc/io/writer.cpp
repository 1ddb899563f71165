// SPDX-License-Identifier: MIT
#include "writer.h"

#include <cctype>
#include <optional>
#include <utility>
#include <vector>

#include "../error.h"
#include "../formats.h"
#include "codecs.h"
#include "file_kind.h"
#include "planes.h"
#include "y4m.h"

namespace zorcc::tool {

namespace {

// The place of a number in a file name: "%d", or padded with zeros "%03d".
struct NumberPlace {
    std::size_t start, length;
    std::size_t digits;
};

std::optional<NumberPlace> numberPlace(const std::string& path)
{
    for (std::size_t start = path.find('%'); start != path.npos; start = path.find('%', start + 1)) {
        std::size_t end = start + 1;
        while (end < path.size() && std::isdigit(static_cast<unsigned char>(path[end]))) ++end;
        const std::string width = path.substr(start + 1, end - start - 1);
        if (end < path.size() && path[end] == 'd' && width.size() <= 2 && (width.empty() || width[0] == '0'))
            return NumberPlace{start, end + 1 - start, width.empty() ? 0 : static_cast<std::size_t>(std::stoi(width))};
    }
    return {};
}

std::string numbered(std::string path, const NumberPlace& place, int number)
{
    std::string digits = std::to_string(number);
    if (digits.size() < place.digits) digits.insert(0, place.digits - digits.size(), '0');
    return path.replace(place.start, place.length, digits);
}

// A file for each picture.
class PictureWriter : public Writer {
public:
    using Encoder = void (*)(AtomicFile&, Picture);

    PictureWriter(const std::string& path, Encoder encoder) : name(path), place(numberPlace(path)), encode(encoder) {}

    void write(Picture picture) override
    {
        const int number = static_cast<int>(files.size()) + 1;
        const std::string path = place ? numbered(name, *place, number) : name;
        naming(path, [&] {
            if (!place && number > 1)
                throw Cause("there is more than one picture: give a name with a number, such as frame_%03d.png");
            if (picture.format().fieldBits != 0)
                picture = rearranged(std::move(picture), interface::formats::rgb24, picture.visible());
            const Format& format = picture.format();
            if (!isRgb(format))
                throw Cause("this kind of file holds RGB or grey, and the picture is " + std::string(format.name) +
                            (isYuv(format) ? ": use .y4m or .yuv" : ": use .raw"));
            files.push_back({path, std::make_unique<AtomicFile>(path)});
            encode(*files.back().file, std::move(picture));
            files.back().file->close();
        });
    }

    void commit() override
    {
        for (const File& file : files) naming(file.path, [&] { file.file->commit(); });
    }

private:
    struct File {
        std::string path;
        std::unique_ptr<AtomicFile> file;
    };

    std::string name;
    std::optional<NumberPlace> place;
    Encoder encode;
    std::vector<File> files;
};

// All pictures in one file: Y4M, or headerless.
class StreamWriter : public Writer {
public:
    StreamWriter(const std::string& path, bool isY4m, const VideoTags& tags)
        : name(path), y4m(isY4m), videoTags(tags),
          file(naming(path, [&] { return std::make_unique<AtomicFile>(path); }))
    {
    }

    void write(Picture picture) override
    {
        naming(name, [&] {
            if (!y4m) return writePlanes(*file, picture);
            if (isRgb(picture.format())) throw Cause("Y4M holds YUV, and the picture is RGB: use .png or .ppm");
            if (!isYuv(picture.format()))
                throw Cause("Y4M holds YUV, and the picture is " + std::string(picture.format().name) + ": use .raw");
            const Format& format = planarYuv(picture.format());
            if (!rearrangementCost(picture.format(), format))
                throw Cause("Y4M holds no chroma of " + std::string(picture.format().name) + ": use .yuv");
            picture = rearranged(std::move(picture), format, wholeBlocks(picture.visible(), format));
            if (!first) {
                first = picture.visible();
                writeY4mHeader(*file, picture, videoTags);
            }
            if (!(*first == picture.visible())) throw Cause("all pictures of a Y4M file must have one size");
            writeY4mFrame(*file, picture);
        });
    }

    void commit() override
    {
        naming(name, [&] { file->commit(); });
    }

private:
    std::string name;
    bool y4m;
    VideoTags videoTags;
    std::unique_ptr<AtomicFile> file;
    std::optional<ZorSize> first;
};

} // namespace

std::unique_ptr<Writer> openWriter(const std::string& path, const VideoTags& tags)
{
    static constexpr std::pair<FileKind, PictureWriter::Encoder> encoders[] = {{FileKind::png, encodePng},
                                                                               {FileKind::jpeg, encodeJpeg},
                                                                               {FileKind::pgm, encodePgm},
                                                                               {FileKind::ppm, encodePpm},
                                                                               {FileKind::pfm, encodePfm}};
    const FileKind kind = fileKindToWrite(path);
    for (const auto& [pictureKind, encode] : encoders)
        if (kind == pictureKind) return std::make_unique<PictureWriter>(path, encode);
    return std::make_unique<StreamWriter>(path, kind == FileKind::y4m, tags);
}

} // namespace zorcc::tool
