// SPDX-License-Identifier: MIT
#include "reader.h"

#include <unistd.h>

#include <cctype>

#include "../error.h"
#include "codecs.h"
#include "file_kind.h"
#include "sequence.h"

namespace zorcc::tool {

namespace {

// A file of one picture, or, in the PNM formats, of several in a row.
class PictureReader : public FileReader {
public:
    using Decoder = Picture (*)(InputFile&);

    PictureReader(InputFile input, Decoder decoder, bool joined)
        : FileReader(std::move(input)), decode(decoder), several(joined)
    {
    }

    bool mayHoldSeveral() const override { return false; } // not worth other threads

private:
    std::optional<Pending> read() override
    {
        if (count() > 0 && !(several && another())) return {};
        return Pending(decode(file));
    }

    bool another()
    {
        while (std::isspace(file.peek())) file.get();
        return !file.atEnd();
    }

    Decoder decode;
    bool several;
};

// Numbered files of one picture each.
class SequenceReader : public Reader {
public:
    SequenceReader(const std::string& path, const SequenceName& files, int first)
        : Reader(path), names(files), firstNumber(first)
    {
    }

    bool mayHoldSeveral() const override { return true; }
    std::optional<double> progress() const override { return {}; }

private:
    std::optional<Pending> read() override
    {
        std::string file = names.at(firstNumber + count());
        if (access(file.c_str(), F_OK) != 0) return {};
        return Pending(std::move(file));
    }

    SequenceName names;
    int firstNumber;
};

std::unique_ptr<Reader> openSequence(const std::string& path)
{
    const auto names = SequenceName::in(path);
    if (!names || access(path.c_str(), F_OK) == 0) return nullptr;
    for (int first = 0; first < 5; ++first)
        if (access(names->at(first).c_str(), F_OK) == 0) return std::make_unique<SequenceReader>(path, *names, first);
    return nullptr;
}

} // namespace

Picture Pending::get() &&
{
    if (picture) return *std::move(picture);
    return *openReader(path)->next();
}

std::optional<Pending> Reader::start()
{
    return naming(name, [&] {
        std::optional<Pending> picture = read();
        if (picture)
            ++pictures;
        else if (pictures == 0)
            throw Cause("there is no picture in the file");
        return picture;
    });
}

std::optional<Picture> Reader::next()
{
    auto pending = start();
    if (!pending) return {};
    return std::move(*pending).get();
}

std::optional<double> FileReader::progress() const
{
    const auto left = file.left();
    if (!left || *file.size() == 0) return {};
    return 1 - static_cast<double>(*left) / static_cast<double>(*file.size());
}

std::unique_ptr<Reader> openReader(const std::string& path, const std::optional<Headerless>& layout)
{
    if (const auto kind = fileKind(path); kind && isHeaderless(*kind) && !layout)
        throw UsageError(path + ": a headerless file needs --size WxH");
    if (!layout)
        if (auto sequence = openSequence(path)) return sequence;
    return naming(path, [&]() -> std::unique_ptr<Reader> {
        InputFile file(path);
        if (layout) return headerlessReader(std::move(file), *layout);
        switch (file.peek()) { // decoders look at the rest
        case 0x89:
            return std::make_unique<PictureReader>(std::move(file), decodePng, false);
        case 0xff:
            return std::make_unique<PictureReader>(std::move(file), decodeJpeg, false);
        case 'P':
            return std::make_unique<PictureReader>(std::move(file), decodePnm, true);
        case 'Y':
            return y4mReader(std::move(file));
        case EOF:
            throw Cause("the file is empty");
        default:
            throw Cause("not a PNG, JPEG, PNM, PFM or Y4M file (a headerless one needs --size WxH)");
        }
    });
}

} // namespace zorcc::tool
