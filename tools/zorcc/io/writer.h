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

// By the kind of file that the name tells. One picture a file wants, for more than one, a name with a %d or %03d in it.
std::unique_ptr<Writer> openWriter(const std::string& path, const VideoTags& tags = {});

} // namespace zorcc::tool
