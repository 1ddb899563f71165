// SPDX-License-Identifier: MIT
#include <csetjmp>
#include <cstdio>
#include <string>

#include <jpeglib.h>

#include <jerror.h>

#include "../error.h"
#include "../formats.h"
#include "codecs.h"

namespace zorcc::tool {

namespace {

// libjpeg leaves by longjmp. `body` of guarded() must therefore hold nothing with a destructor.
struct Errors {
    jpeg_error_mgr manager; // first, so that libjpeg's pointer to it is one to all of this
    std::jmp_buf back;
    char message[JMSG_LENGTH_MAX];

    Errors()
    {
        jpeg_std_error(&manager);
        manager.error_exit = leave;
        manager.emit_message = [](j_common_ptr jpeg, int level) {
            if (level < 0 && losesData(jpeg->err->msg_code)) leave(jpeg);
        };
        manager.output_message = [](j_common_ptr) {};
    }

    template <class Body> void guarded(Body body)
    {
        if (setjmp(back)) throw Cause(message);
        body();
    }

    // libjpeg fills in for missing data and warns; here that is an error. These warnings lose nothing.
    static bool losesData(int warning)
    {
        return warning != JWRN_EXTRANEOUS_DATA && warning != JWRN_ADOBE_XFORM && warning != JWRN_JFIF_MAJOR;
    }

    static void leave(j_common_ptr jpeg)
    {
        Errors& errors = *reinterpret_cast<Errors*>(jpeg->err);
        jpeg->err->format_message(jpeg, errors.message);
        std::longjmp(errors.back, 1);
    }
};

// A libjpeg object with its errors; jpeg_destroy suits both kinds.
template <class Struct> struct Jpeg {
    Errors errors;
    Struct state{};

    Jpeg() { state.err = &errors.manager; }
    ~Jpeg() { jpeg_destroy(reinterpret_cast<j_common_ptr>(&state)); }
    Jpeg(const Jpeg&) = delete;
    Jpeg& operator=(const Jpeg&) = delete;
};

} // namespace

Picture decodeJpeg(InputFile& file)
{
    Jpeg<jpeg_decompress_struct> jpeg;
    jpeg_decompress_struct* const state = &jpeg.state;
    std::FILE* const stream = file.stream();
    jpeg.errors.guarded([=] {
        jpeg_create_decompress(state);
        jpeg_stdio_src(state, stream);
        jpeg_read_header(state, TRUE);
    });
    const bool grey = state->jpeg_color_space == JCS_GRAYSCALE;
    if (state->jpeg_color_space == JCS_CMYK || state->jpeg_color_space == JCS_YCCK)
        throw Cause("CMYK files are not supported");
    jpeg.errors.guarded([=] {
        state->out_color_space = grey ? JCS_GRAYSCALE : JCS_RGB;
        jpeg_start_decompress(state);
    });
    Picture picture(pictureFormat(grey, false, Sample::u8),
                    {static_cast<int>(state->output_width), static_cast<int>(state->output_height)});
    const Picture* const to = &picture;
    jpeg.errors.guarded([=] {
        while (state->output_scanline < state->output_height) {
            JSAMPROW row = to->row(0, static_cast<int>(state->output_scanline));
            jpeg_read_scanlines(state, &row, 1);
        }
        jpeg_finish_decompress(state);
    });
    return picture;
}

void encodeJpeg(AtomicFile& file, Picture given)
{
    const bool grey = isGrey(given.format());
    const ZorSize size = given.visible();
    if (size.width > JPEG_MAX_DIMENSION || size.height > JPEG_MAX_DIMENSION)
        throw Cause(sizeName(size) + " pixels are too many for JPEG");
    const Picture picture = rearranged(std::move(given), pictureFormat(grey, false, Sample::u8), size);

    Jpeg<jpeg_compress_struct> jpeg;
    jpeg_compress_struct* const state = &jpeg.state;
    std::FILE* const stream = file.stream();
    const Picture* const from = &picture;
    jpeg.errors.guarded([=] {
        jpeg_create_compress(state);
        jpeg_stdio_dest(state, stream);
        state->image_width = static_cast<JDIMENSION>(size.width);
        state->image_height = static_cast<JDIMENSION>(size.height);
        state->input_components = grey ? 1 : 3;
        state->in_color_space = grey ? JCS_GRAYSCALE : JCS_RGB;
        jpeg_set_defaults(state);
        jpeg_set_quality(state, 95, TRUE);
        state->comp_info[0].h_samp_factor = state->comp_info[0].v_samp_factor = 1;
        jpeg_start_compress(state, TRUE);
        while (state->next_scanline < state->image_height) {
            JSAMPROW row = from->row(0, static_cast<int>(state->next_scanline));
            jpeg_write_scanlines(state, &row, 1);
        }
        jpeg_finish_compress(state);
    });
}

} // namespace zorcc::tool
