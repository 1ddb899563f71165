// SPDX-License-Identifier: MIT
#include "tests/harness/picture.h"

#include <png.h>

#include <stdexcept>

#include "tests/reference/lumachroma.h"
#include "tests/reference/mosaic.h"

namespace zorcc::test {

using namespace interface;
using reference::Pixels;

Picture readPng(const std::string& path)
{
    png_image png = {};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path.c_str())) throw std::runtime_error(path + ": " + png.message);
    png.format = PNG_FORMAT_RGBA;
    Picture picture{{static_cast<int>(png.width), static_cast<int>(png.height)}, {}};
    picture.rgba.resize(PNG_IMAGE_SIZE(png));
    if (!png_image_finish_read(&png, nullptr, picture.rgba.data(), 0, nullptr))
        throw std::runtime_error(path + ": " + png.message);
    return picture;
}

void fill(TestImage& image, const Picture& picture)
{
    std::vector<std::uint8_t> bytes = picture.rgba;
    Image pixels;
    pixels.plane[0] = bytes.data();
    setContiguousSteps(formats::rgba, picture.size.width, pixels);
    const bool yuv = image.format().model == Model::yuv;
    if (yuv) {
        Pixels converted(formats::yuva, pixels, picture.size);
        reference::rgbToYuv(Pixels(formats::rgba, pixels, picture.size), converted);
    }
    const Pixels from(yuv ? formats::yuva : formats::rgba, pixels, picture.size);
    Pixels to(image.format(), image.image(), image.size());
    const bool isMosaic = image.format().model == Model::mosaic;
    const reference::Mosaic mosaic{picture.size, zorBayerRGGB, 255};
    reference::eachPixel(image.usedSize(), [&](int x, int y) {
        for (int c = 0; c < reference::channels; ++c)
            if (to.has(c, x, y))
                to.putLevel(c, x, y, from.get(isMosaic ? mosaic.colour(x, y) : c, x, y) * double{to.white()} / 255);
    });
}

} // namespace zorcc::test
