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

FileKind fileKindToWrite(const std::string& path)
{
    const auto kind = fileKind(path);
    if (!kind)
        throw UsageError(path + ": write which kind of file? Known: .png .jpg .ppm .pgm .pfm .y4m .yuv .rgb .raw");
    return *kind;
}

} // namespace zorcc::tool
