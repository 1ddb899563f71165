// SPDX-License-Identifier: MIT
// From a reader to a writer, several pictures at a time.
#pragma once

#include <functional>

#include "io/reader.h"
#include "io/writer.h"

namespace zorcc::tool {

// The number of threads that the tool may use; if not set, one a processor.
void setThreads(int count);

// Converts each picture of the input by `make` and writes the result, with a line of progress on a terminal. Where
// there may be several pictures, each thread reads the next one, converts it, and writes it when the pictures before it
// have been written, so that reading, converting and writing overlap; a call of the library then uses one thread. With
// `oneAtATime`, for measuring, pictures follow each other and calls use all threads. `make` is called on several
// threads at once.
void writeAll(Reader& reader, Writer& writer, const std::function<Picture(Picture)>& make, bool oneAtATime = false);

} // namespace zorcc::tool
