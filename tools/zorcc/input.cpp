// SPDX-License-Identifier: MIT
#include "commands.h"
#include "error.h"
#include "formats.h"

namespace zorcc::tool {

std::unique_ptr<Reader> openInput(const Input& input, const Format* usual, OddSizes oddSizes)
{
    if (!input.size) {
        if (!input.format.empty()) throw UsageError("--format is for headerless files, with --size WxH");
        return openReader(input.path, {}, input.matrix);
    }
    const Format* format = input.format.empty() ? usual : &formatNamed(input.format);
    if (!format) throw UsageError(input.path + ": a headerless file needs --format NAME");
    if (input.matrix) format = &byMatrix(*format, *input.matrix);
    return openReader(input.path, Headerless{format, *input.size, oddSizes});
}

} // namespace zorcc::tool
