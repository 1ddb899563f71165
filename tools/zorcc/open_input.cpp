// SPDX-License-Identifier: MIT
#include "commands.h"
#include "error.h"
#include "formats.h"

namespace zorcc::tool {

std::unique_ptr<Reader> openInput(const Input& input, const Format* usual, OddSizes oddSizes)
{
    if (!input.size) {
        if (!input.format.empty()) throw UsageError("--format is for headerless files, with --size WxH");
        return openReader(input.path);
    }
    if (input.format.empty() && !usual) throw UsageError(input.path + ": a headerless file needs --format NAME");
    const PictureKind kind = input.format.empty() ? PictureKind{usual} : formatNamed(input.format);
    return openReader(input.path, Headerless{kind, *input.size, oddSizes});
}

} // namespace zorcc::tool
