// SPDX-License-Identifier: MIT
// Files as sequences of pictures to write. Nothing is there before commit(). Failures throw Error with the file's name.
#pragma once

#include <memory>
#include <string>

#include "../picture.h"
#include "file_kind.h"

namespace zorcc::tool {

class Writer {
public:
    virtual ~Writer() = default;

    // Picture number 1, 2, ... of the input. Where pictures must not come in order, write() may run on several threads.
    virtual void write(Picture picture, int number) = 0;
    virtual bool mustBeInOrder() const = 0;
    virtual void commit() = 0;
};

// The extension, or the user, gives the kind of file; "-" is standard output. Where a file holds one picture only,
// several need a name with %d or %03d in it.
std::unique_ptr<Writer> openWriter(const OutputPath& out, const VideoTags& tags = {});

// Writes the only picture.
void writeOnly(const OutputPath& out, Picture picture);

} // namespace zorcc::tool
