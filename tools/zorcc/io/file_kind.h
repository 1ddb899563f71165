// SPDX-License-Identifier: MIT
// Kinds of files by their names.
#pragma once

#include <optional>
#include <string>

namespace zorcc::tool {

enum class FileKind { png, jpeg, pgm, ppm, pfm, y4m, yuv, rgb, raw };

// Standard input or output.
inline bool isStandardStream(const std::string& path) { return path == "-"; }

inline std::string outputName(const std::string& path) { return isStandardStream(path) ? "standard output" : path; }

// A file to write, and its kind as the user gives it: png, y4m, ...; empty: by the name.
struct OutputPath {
    std::string path, as;
};

// Values of --as.
inline constexpr const char* kindsToWrite = "png jpg ppm pgm pfm y4m yuv rgb raw";

// .png .jpg .jpeg .pgm .ppm .pnm .pfm .y4m .yuv .rgb .raw, in small or capital letters.
std::optional<FileKind> fileKind(const std::string& path);

// Throws UsageError for other extensions.
FileKind fileKindToWrite(const OutputPath& out);

inline bool isHeaderless(FileKind kind)
{
    return kind == FileKind::yuv || kind == FileKind::rgb || kind == FileKind::raw;
}

} // namespace zorcc::tool
