// SPDX-License-Identifier: MIT
#include <algorithm>
#include <climits>

#include "commands.h"
#include "conversion.h"
#include "error.h"
#include "formats.h"

namespace zorcc::tool {

void sheet(const SheetOptions& options)
{
    constexpr int gap = 8;
    constexpr std::uint8_t ground = 32;

    const Format& rgb = pictureFormat(false, false, Sample::u8);
    std::vector<Picture> pictures;
    std::int64_t width = 0;
    int height = 0;
    for (const std::string& path : options.in) { // the first picture of each file
        const auto reader = openReader(path);
        Picture picture = *reader->next();
        pictures.push_back(naming(path, [&] {
            const Conversion conversion(picture.kind(), {&rgb}, picture.visible());
            return conversion(std::move(picture));
        }));
        width += pictures.back().size().width + (pictures.size() > 1 ? gap : 0);
        height = std::max(height, pictures.back().size().height);
    }

    writeOnly(options.out, naming(options.out.path, [&] {
                  if (width > INT_MAX) throw Cause("the pictures side by side are too wide");
                  Picture all(rgb, {static_cast<int>(width), height});
                  std::fill_n(all.row(0, 0), all.visibleRowBytes(0) * height, ground);
                  std::size_t x = 0;
                  for (const Picture& picture : pictures) {
                      const std::size_t rowBytes = picture.visibleRowBytes(0);
                      for (int y = 0; y < picture.size().height; ++y)
                          std::copy_n(picture.row(0, y), rowBytes, all.row(0, y) + x);
                      x += rowBytes + 3 * gap;
                  }
                  return all;
              }));
}

} // namespace zorcc::tool
