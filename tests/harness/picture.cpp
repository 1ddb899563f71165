// SPDX-License-Identifier: MIT
#include "tests/harness/picture.h"

#include <png.h>

#include <cstring>
#include <fstream>
#include <sstream>
#include <stdexcept>

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
    for (int y = 0; y < image.usedSize().height; ++y)
        for (int x = 0; x < image.usedSize().width; ++x)
            for (int c = 0; c < reference::channels; ++c)
                if (to.has(c, x, y)) put(to, c, x, y, image.format(), from.get(c, x, y));
}

Clip readY4m(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string header, frame;
    std::getline(file, header);
    std::getline(file, frame);
    Clip clip;
    std::istringstream words(header);
    for (std::string word; words >> word;) {
        if (word[0] == 'W') clip.size.width = std::stoi(word.substr(1));
        if (word[0] == 'H') clip.size.height = std::stoi(word.substr(1));
    }
    if (!file || clip.size.width < 1 || clip.size.height < 1 || frame != "FRAME")
        throw std::runtime_error(path + ": not a clip");
    const std::size_t half = static_cast<std::size_t>(clip.size.width / 2) * (clip.size.height / 2);
    clip.planes.resize(static_cast<std::size_t>(clip.size.width) * clip.size.height + 2 * half);
    if (!file.read(reinterpret_cast<char*>(clip.planes.data()), static_cast<std::streamsize>(clip.planes.size())))
        throw std::runtime_error(path + ": a frame is missing");
    return clip;
}

void fill(TestImage& image, const Clip& clip)
{
    const std::uint8_t* from = clip.planes.data();
    image.eachRow([&](std::uint8_t* row, int samples, int, int) {
        std::memcpy(row, from, static_cast<std::size_t>(samples));
        from += samples;
    });
}

} // namespace zorcc::test
