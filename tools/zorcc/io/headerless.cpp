// SPDX-License-Identifier: MIT
#include "planes.h"
#include "reader.h"

namespace zorcc::tool {

namespace {

class HeaderlessReader : public FileReader {
public:
    HeaderlessReader(InputFile input, const Headerless& layout)
        : FileReader(std::move(input)), format(*layout.format), colour(layout.colour), visible(layout.size),
          size(layout.oddSizes == OddSizes::roundUp ? wholeBlocks(visible, format) : visible)
    {
    }

    bool mayHoldSeveral() const override { return true; }

private:
    std::optional<Pending> read() override
    {
        if (file.atEnd()) return {};
        return Pending(readPlanes(file, format, size, visible).takenFor(colour));
    }

    const Format& format;
    const Colour colour;
    ZorSize visible, size;
};

} // namespace

std::unique_ptr<Reader> headerlessReader(InputFile file, const Headerless& layout)
{
    return std::make_unique<HeaderlessReader>(std::move(file), layout);
}

} // namespace zorcc::tool
