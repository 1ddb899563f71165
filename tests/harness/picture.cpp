// SPDX-License-Identifier: MIT
#include "tests/harness/picture.h"

#include <png.h>

#include <stdexcept>

#include "tests/reference/mosaic.h"
#include "tests/reference/pixels.h"
#include "tests/reference/yuv.h"

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

namespace {

// A byte, in the range of the image's samples; packed bits take bytes.
void put(Pixels& to, int channel, int x, int y, const interface::Format& format, int byte)
{
    switch (format.sample) {
    case interface::Sample::u16:
        return to.put(channel, x, y, format.layout == interface::Layout::packedBits ? byte : 257 * byte);
    case interface::Sample::s16:
        return to.put(channel, x, y, 257 * byte - 32768);
    case interface::Sample::f32:
        return to.putFloat(channel, x, y, static_cast<float>(byte) / 255);
    default:
        return to.put(channel, x, y, byte);
    }
}

} // namespace

void fill(TestImage& image, const Picture& picture)
{
    Picture colours = picture;
    Image pixels;
    pixels.plane[0] = colours.rgba.data();
    setContiguousSteps(formats::rgba, picture.size.width, pixels);
    const bool yuv = image.format().model == Model::yuv;
    if (yuv) {
        Pixels converted(formats::yuva, pixels, picture.size);
        reference::rgbToYuv(Pixels(formats::rgba, pixels, picture.size), converted);
    }
    const Pixels from(yuv ? formats::yuva : formats::rgba, pixels, picture.size);
    Pixels to(image.format(), image.image(), image.size());
    const reference::Mosaic mosaic{picture.size, zorBayerRGGB, 255};
    for (int y = 0; y < image.usedSize().height; ++y)
        for (int x = 0; x < image.usedSize().width; ++x)
            if (image.format().model == Model::mosaic)
                put(to, 0, x, y, image.format(), from.get(mosaic.colour(x, y), x, y));
            else
                for (int c = 0; c < reference::channels; ++c)
                    if (to.has(c, x, y)) put(to, c, x, y, image.format(), from.get(c, x, y));
}

} // namespace zorcc::test
