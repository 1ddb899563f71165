// SPDX-License-Identifier: MIT
#include "writer.h"

#include <list>
#include <mutex>
#include <optional>
#include <utility>

#include "../conversion.h"
#include "../error.h"
#include "../formats.h"
#include "codecs.h"
#include "planes.h"
#include "sequence.h"
#include "y4m.h"

namespace zorcc::tool {

namespace {

// A file for each picture.
class PictureWriter : public Writer {
public:
    using Encoder = void (*)(AtomicFile&, Picture);

    PictureWriter(const std::string& path, Encoder encoder)
        : name(path), numbered(SequenceName::in(path)), encode(encoder)
    {
    }

    bool mustBeInOrder() const override { return false; }

    void write(Picture picture, int number) override
    {
        const std::string path = numbered ? numbered->at(number) : name;
        naming(outputName(path), [&] {
            if (!numbered && number > 1)
                throw Cause("there is more than one picture: give a name with a number, such as frame_%03d.png");
            if (picture.format().fieldBits != 0)
                picture = rearranged(std::move(picture), pictureFormat(false, false, Sample::u8));
            const Format& format = picture.format();
            if (!isRgb(format))
                throw Cause("this kind of file holds RGB or grey, and the picture is " + std::string(format.name) +
                            (isYuv(format) ? ": use .y4m or .yuv" : ": use .raw"));
            File& file = newFile(path);
            encode(file.file, std::move(picture));
            file.file.close();
        });
    }

    void commit() override
    {
        for (File& file : files) naming(outputName(file.path), [&] { file.file.commit(); });
    }

private:
    struct File {
        std::string path;
        AtomicFile file;
        explicit File(const std::string& name) : path(name), file(name) {}
    };

    File& newFile(const std::string& path)
    {
        const std::lock_guard lock(mutex);
        return files.emplace_back(path);
    }

    std::string name;
    std::optional<SequenceName> numbered;
    Encoder encode;
    std::mutex mutex;
    std::list<File> files;
};

// All pictures in one file: Y4M, or headerless.
class StreamWriter : public Writer {
public:
    StreamWriter(const std::string& path, bool isY4m, const VideoTags& tags)
        : name(outputName(path)), y4m(isY4m), videoTags(tags),
          file(naming(name, [&] { return std::make_unique<AtomicFile>(path); }))
    {
    }

    bool mustBeInOrder() const override { return true; }

    void write(Picture picture, int) override
    {
        naming(name, [&] {
            if (!y4m) return writePlanes(*file, picture);
            if (isRgb(picture.format())) throw Cause("Y4M holds YUV, and the picture is RGB: use .png or .ppm");
            if (!isYuv(picture.format()))
                throw Cause("Y4M holds YUV, and the picture is " + std::string(picture.format().name) + ": use .raw");
            const Format& format = y4mFormat(picture.format());
            if (!areSame(picture.format(), format) && !findRearrangement(picture.format(), format, picture.visible()))
                throw Cause("Y4M holds no chroma of " + std::string(picture.format().name) + ": use .yuv");
            picture = rearranged(std::move(picture), format, name);
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

Picture toEncode(const AtomicFile& file, Picture picture, const Format& format)
{
    return rearranged(std::move(picture), format, file.name());
}

std::unique_ptr<Writer> openWriter(const OutputPath& out, const VideoTags& tags)
{
    static constexpr std::pair<FileKind, PictureWriter::Encoder> encoders[] = {{FileKind::png, encodePng},
                                                                               {FileKind::jpeg, encodeJpeg},
                                                                               {FileKind::pgm, encodePgm},
                                                                               {FileKind::ppm, encodePpm},
                                                                               {FileKind::pfm, encodePfm}};
    const FileKind kind = fileKindToWrite(out);
    for (const auto& [pictureKind, encode] : encoders)
        if (kind == pictureKind) return std::make_unique<PictureWriter>(out.path, encode);
    return std::make_unique<StreamWriter>(out.path, kind == FileKind::y4m, tags);
}

void writeOnly(const OutputPath& out, Picture picture)
{
    const auto writer = openWriter(out);
    writer->write(std::move(picture), 1);
    writer->commit();
}

} // namespace zorcc::tool
