// SPDX-License-Identifier: MIT
#include <algorithm>
#include <csetjmp>

#include <png.h>

#include "../error.h"
#include "../formats.h"
#include "codecs.h"
#include "metadata.h"

namespace zorcc::tool {

namespace {

// libpng leaves by longjmp. `body` must therefore hold nothing with a destructor; its owner lives in the caller.
struct Png {
    std::string message;
    png_structp png = nullptr;
    png_infop info = nullptr;

    template <class Body> void guarded(Body body)
    {
        if (setjmp(png_jmpbuf(png))) throw Cause(message);
        body();
    }

    static void onError(png_structp png, png_const_charp text)
    {
        static_cast<Png*>(png_get_error_ptr(png))->message = text;
        png_longjmp(png, 1);
    }
    static void onWarning(png_structp, png_const_charp) {}

    void created()
    {
        if (png) info = png_create_info_struct(png);
        if (!info) throw Cause("not enough memory");
    }
};

struct Decoder : Png {
    explicit Decoder(InputFile& file)
    {
        png = png_create_read_struct(PNG_LIBPNG_VER_STRING, static_cast<Png*>(this), onError, onWarning);
        created();
        png_set_read_fn(png, file.stream(), [](png_structp from, png_bytep data, std::size_t count) {
            const auto stream = static_cast<std::FILE*>(png_get_io_ptr(from));
            if (std::fread(data, 1, count, stream) != count) png_error(from, "the file ends early");
        });
    }
    ~Decoder() { png_destroy_read_struct(&png, &info, nullptr); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
};

struct Encoder : Png {
    explicit Encoder(AtomicFile& file)
    {
        png = png_create_write_struct(PNG_LIBPNG_VER_STRING, static_cast<Png*>(this), onError, onWarning);
        created();
        png_set_write_fn(
            png, file.stream(),
            [](png_structp to, png_bytep data, std::size_t count) {
                const auto stream = static_cast<std::FILE*>(png_get_io_ptr(to));
                if (std::fwrite(data, 1, count, stream) != count) png_error(to, "cannot write: no space left?");
            },
            [](png_structp) {});
    }
    ~Encoder() { png_destroy_write_struct(&png, &info); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;
};

// A profile or an orientation in the file would change what is to be seen.
void warnOfMetadata(const InputFile& file, png_structp png, png_infop info)
{
    if (png_get_valid(png, info, PNG_INFO_iCCP) != 0) warnOfProfile(file);
    png_uint_32 count = 0;
    png_bytep exif = nullptr;
    if (png_get_eXIf_1(png, info, &count, &exif) != 0) warnOfOrientation(file, {exif, count});
}

} // namespace

Picture decodePng(InputFile& file)
{
    Decoder decoder(file);
    const png_structp png = decoder.png;
    const png_infop info = decoder.info;
    decoder.guarded([=] { png_read_info(png, info); });

    const ZorSize size = {static_cast<int>(png_get_image_width(png, info)),
                          static_cast<int>(png_get_image_height(png, info))};
    // Deflate makes at most 1032 bytes of one, so a file that is too short is refused before memory is allocated.
    constexpr std::uint64_t maxExpansion = 1032;
    file.expect(static_cast<std::uint64_t>(png_get_rowbytes(png, info)) * size.height / maxExpansion);
    checkPixels(size);

    const int colour = png_get_color_type(png, info);
    const bool alpha = (colour & PNG_COLOR_MASK_ALPHA) != 0 || png_get_valid(png, info, PNG_INFO_tRNS) != 0;
    const bool grey = (colour & PNG_COLOR_MASK_COLOR) == 0 && !alpha;
    const bool deep = png_get_bit_depth(png, info) == 16;
    int passes = 1;
    int* const found = &passes;
    decoder.guarded([=] {
        png_set_expand(png); // palettes to RGB, 1, 2 and 4 bits to 8, a transparent colour to alpha
        if (!grey) png_set_gray_to_rgb(png);
        if (deep) png_set_swap(png); // least significant byte first, as in memory
        *found = png_set_interlace_handling(png);
        png_read_update_info(png, info);
    });
    Picture picture(pictureFormat(grey, alpha, deep ? Sample::u16 : Sample::u8), size);
    if (png_get_rowbytes(png, info) != picture.visibleRowBytes(0)) throw Cause("unknown kind of PNG");
    // Row by row, so that memory is touched only as the file gives rows.
    const Picture* const to = &picture;
    decoder.guarded([=] {
        for (int pass = 0; pass < passes; ++pass)
            for (int y = 0; y < size.height; ++y) png_read_row(png, to->row(0, y), nullptr);
        png_read_end(png, nullptr);
    });
    warnOfMetadata(file, png, info);
    return picture;
}

void encodePng(AtomicFile& file, Picture given)
{
    const Format& from = given.format();
    const bool grey = isGrey(from), deep = isDeep(from);
    const ZorSize size = given.visible();
    if (std::max(size.width, size.height) > PNG_USER_WIDTH_MAX)
        throw Cause(sizeName(size) + " pixels: sides of PNG files have at most " + std::to_string(PNG_USER_WIDTH_MAX));
    const Picture picture =
        toEncode(file, std::move(given), pictureFormat(grey, hasAlpha(from), deep ? Sample::u16 : Sample::u8));

    Encoder encoder(file);
    const png_structp png = encoder.png;
    const png_infop info = encoder.info;
    const int colour = grey                         ? PNG_COLOR_TYPE_GRAY
                       : hasAlpha(picture.format()) ? PNG_COLOR_TYPE_RGB_ALPHA
                                                    : PNG_COLOR_TYPE_RGB;
    const Picture* const rows = &picture;
    encoder.guarded([=] {
        png_set_IHDR(png, info, static_cast<png_uint_32>(size.width), static_cast<png_uint_32>(size.height),
                     deep ? 16 : 8, colour, PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
        // One filter for all rows and a moderate effort: half the time of libpng's defaults, for a few per cent of
        // size.
        png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_SUB);
        png_set_compression_level(png, 3);
        png_write_info(png, info);
        if (deep) png_set_swap(png);
        for (int y = 0; y < size.height; ++y) png_write_row(png, rows->row(0, y));
        png_write_end(png, nullptr);
    });
}

} // namespace zorcc::tool
