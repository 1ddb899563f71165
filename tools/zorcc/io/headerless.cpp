// SPDX-License-Identifier: MIT
#include "planes.h"
#include "reader.h"

namespace zorcc::tool {

namespace {

class HeaderlessReader : public FileReader {
public:
    HeaderlessReader(InputFile input, const Headerless& layout)
        : FileReader(std::move(input)), kind(layout.kind), visible(layout.size),
          size(layout.oddSizes == OddSizes::roundUp ? wholeBlocks(visible, *kind.format) : visible)
    {
    }

    bool mayHoldSeveral() const override { return true; }

private:
    std::optional<Pending> read() override
    {
        if (file.atEnd()) return {};
        return Pending(readPlanes(file, *kind.format, size, visible).takenFor(kind.colour));
    }

    const PictureKind kind;
    ZorSize visible, size;
};

} // namespace

std::unique_ptr<Reader> headerlessReader(InputFile file, const Headerless& layout)
{
    return std::make_unique<HeaderlessReader>(std::move(file), layout);
}

} // namespace zorcc::tool
