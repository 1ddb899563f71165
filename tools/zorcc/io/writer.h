// SPDX-License-Identifier: MIT
// Files as sequences of pictures to write. Nothing is there before commit(). Failures throw Error with the file's name.
#pragma once

#include <memory>
#include <string>

#include "../picture.h"

namespace zorcc::tool {

class Writer {
public:
    virtual ~Writer() = default;
    virtual void write(Picture picture) = 0;
    virtual void commit() = 0;
};

// The extension gives the kind of file. Where a file holds one picture only, several need a name with %d or %03d in it.
std::unique_ptr<Writer> openWriter(const std::string& path, const VideoTags& tags = {});

} // namespace zorcc::tool
