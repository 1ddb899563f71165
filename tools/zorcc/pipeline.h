// SPDX-License-Identifier: MIT
// From a reader to a writer, several pictures at a time.
#pragma once

#include <functional>

#include "io/reader.h"
#include "io/writer.h"

namespace zorcc::tool {

// Threads that the tool may use: what --threads says, otherwise one a processor.
void setThreads(int count);

// Writes what `make` makes of each picture of the input, and says on a terminal how far it is. Where there may be
// several pictures, each thread takes one in its turn, makes the new one and writes it in its turn, so that reading,
// making and writing overlap; then a call of the library uses one thread. With `oneAtATime` the pictures follow each
// other, and calls use all threads: for measuring. `make` is called on several threads at once.
void writeAll(Reader& reader, Writer& writer, const std::function<Picture(Picture)>& make, bool oneAtATime = false);

} // namespace zorcc::tool
