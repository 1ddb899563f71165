// SPDX-License-Identifier: MIT
#include "reader.h"

#include <cctype>

#include "../error.h"
#include "codecs.h"
#include "file_kind.h"

namespace zorcc::tool {

namespace {

// A file of one picture, or, in the PNM formats, of several in a row.
class PictureReader : public Reader {
public:
    using Decoder = Picture (*)(InputFile&);

    PictureReader(const std::string& path, InputFile input, Decoder decoder, bool joined)
        : Reader(path, std::move(input)), decode(decoder), several(joined)
    {
    }

private:
    std::optional<Picture> read() override
    {
        if (count() > 0 && !(several && another())) return {};
        return decode(file);
    }

    bool another()
    {
        while (std::isspace(file.peek())) file.get();
        return !file.atEnd();
    }

    Decoder decode;
    bool several;
};

} // namespace

std::optional<Picture> Reader::next()
{
    return naming(name, [&] {
        std::optional<Picture> picture = read();
        if (picture)
            ++pictures;
        else if (pictures == 0)
            throw Cause("there is no picture in the file");
        return picture;
    });
}

std::optional<double> Reader::progress() const
{
    const auto left = file.left();
    if (!left || *file.size() == 0) return {};
    return 1 - static_cast<double>(*left) / static_cast<double>(*file.size());
}

std::unique_ptr<Reader> openReader(const std::string& path, const std::optional<Headerless>& layout, Matrix matrix)
{
    if (const auto kind = fileKind(path); kind && isHeaderless(*kind) && !layout)
        throw UsageError(path + ": a headerless file needs --size WxH");
    return naming(path, [&]() -> std::unique_ptr<Reader> {
        InputFile file(path);
        if (layout) return headerlessReader(path, std::move(file), *layout);
        switch (file.peek()) { // decoders look at the rest
        case 0x89:
            return std::make_unique<PictureReader>(path, std::move(file), decodePng, false);
        case 0xff:
            return std::make_unique<PictureReader>(path, std::move(file), decodeJpeg, false);
        case 'P':
            return std::make_unique<PictureReader>(path, std::move(file), decodePnm, true);
        case 'Y':
            return y4mReader(path, std::move(file), matrix);
        case EOF:
            throw Cause("the file is empty");
        default:
            throw Cause("not a PNG, JPEG, PNM, PFM or Y4M file (a headerless one needs --size WxH)");
        }
    });
}

} // namespace zorcc::tool
