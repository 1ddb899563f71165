// SPDX-License-Identifier: MIT
// Metadata that the tool ignores, with a warning.
#pragma once

#include <cstdint>
#include <span>

#include "input_file.h"

namespace zorcc::tool {

// There is a colour profile in the file.
void warnOfProfile(const InputFile& file);

// The EXIF block of a file, from its byte order mark on: does it turn or mirror the picture?
void warnOfOrientation(const InputFile& file, std::span<const std::uint8_t> exif);

} // namespace zorcc::tool
