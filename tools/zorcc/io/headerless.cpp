// SPDX-License-Identifier: MIT
#include "planes.h"
#include "reader.h"

namespace zorcc::tool {

namespace {

class HeaderlessReader : public Reader {
public:
    HeaderlessReader(const std::string& path, InputFile input, const Headerless& layout)
        : Reader(path, std::move(input)), format(*layout.format), visible(layout.size),
          size(layout.oddSizes == OddSizes::roundUp ? wholeBlocks(visible, format) : visible)
    {
    }

private:
    std::optional<Picture> read() override
    {
        if (file.atEnd()) return {};
        return readPlanes(file, format, size, visible);
    }

    const Format& format;
    ZorSize visible, size;
};

} // namespace

std::unique_ptr<Reader> headerlessReader(const std::string& path, InputFile file, const Headerless& layout)
{
    return std::make_unique<HeaderlessReader>(path, std::move(file), layout);
}

} // namespace zorcc::tool
