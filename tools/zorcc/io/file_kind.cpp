// SPDX-License-Identifier: MIT
#include "file_kind.h"

#include <strings.h>

#include <utility>

#include "../error.h"

namespace zorcc::tool {

std::optional<FileKind> fileKind(const std::string& path)
{
    static constexpr std::pair<const char*, FileKind> kinds[] = {
        {".png", FileKind::png}, {".jpg", FileKind::jpeg}, {".jpeg", FileKind::jpeg}, {".pgm", FileKind::pgm},
        {".ppm", FileKind::ppm}, {".pnm", FileKind::ppm},  {".pfm", FileKind::pfm},   {".y4m", FileKind::y4m},
        {".yuv", FileKind::yuv}, {".rgb", FileKind::rgb},  {".raw", FileKind::raw}};
    const std::size_t dot = path.rfind('.');
    if (dot == std::string::npos) return {};
    for (const auto& [extension, kind] : kinds)
        if (strcasecmp(path.c_str() + dot, extension) == 0) return kind;
    return {};
}

FileKind fileKindToWrite(const OutputPath& out)
{
    const auto kind = fileKind(out.as.empty() ? out.path : "." + out.as);
    if (!kind && !out.as.empty()) throw UsageError("--as: '" + out.as + "' is none of " + kindsToWrite);
    if (!kind && isStandardStream(out.path))
        throw UsageError(std::string("standard output: write which kind of file? Say --as one of ") + kindsToWrite);
    if (!kind) throw UsageError(out.path + ": write which kind of file? Name it, or say --as, one of " + kindsToWrite);
    return *kind;
}

} // namespace zorcc::tool
