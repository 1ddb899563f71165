// SPDX-License-Identifier: MIT
// Kinds of files by their names.
#pragma once

#include <optional>
#include <string>

namespace zorcc::tool {

enum class FileKind { png, jpeg, pgm, ppm, pfm, y4m, yuv, rgb, raw };

// .png .jpg .jpeg .pgm .ppm .pnm .pfm .y4m .yuv .rgb .raw, in small or capital letters.
std::optional<FileKind> fileKind(const std::string& path);

// Throws UsageError for other extensions.
FileKind fileKindToWrite(const std::string& path);

inline bool isHeaderless(FileKind kind)
{
    return kind == FileKind::yuv || kind == FileKind::rgb || kind == FileKind::raw;
}

} // namespace zorcc::tool
