// SPDX-License-Identifier: MIT
// The first four bytes say the format, the size and how odd sizes are laid out.
#include "reader_input.h"
#include "tools/zorcc/formats.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace zorcc::tool;
    if (size < 4) return 0;
    static const std::vector<std::string> names = formatNames();
    const PictureKind kind = formatNamed(names[data[0] % names.size()]);
    const ZorSize extent = {data[1] + 1, data[2] + 1};
    const Headerless layout{kind, extent, data[3] % 2 ? OddSizes::cutOff : OddSizes::roundUp};
    return readBytes(data + 4, size - 4, [&](const std::string& path) { readAll(*openReader(path, layout)); });
}
