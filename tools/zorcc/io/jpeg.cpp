// SPDX-License-Identifier: MIT
#include <csetjmp>
#include <cstdio>
#include <string>
#include <string_view>

#include <jpeglib.h>

#include <jerror.h>

#include "../error.h"
#include "../formats.h"
#include "codecs.h"
#include "metadata.h"

namespace zorcc::tool {

namespace {

// libjpeg leaves by longjmp. `body` of guarded() must therefore hold nothing with a destructor.
struct Errors {
    jpeg_error_mgr manager; // first, so that libjpeg's pointer to it is one to all of this
    std::jmp_buf back;
    char message[JMSG_LENGTH_MAX];
    bool inScans = false; // after the headers

    Errors()
    {
        jpeg_std_error(&manager);
        manager.error_exit = leave;
        manager.emit_message = [](j_common_ptr jpeg, int level) {
            if (level < 0 && of(jpeg).losesData(jpeg->err->msg_code)) leave(jpeg);
        };
        manager.output_message = [](j_common_ptr) {};
    }

    template <class Body> void guarded(Body body)
    {
        if (setjmp(back)) throw Cause(message);
        body();
    }

    // libjpeg fills in for missing data and warns; here that is an error. These warnings lose nothing: cameras pad
    // headers, but bytes that belong to no code between scans were something else.
    bool losesData(int warning) const
    {
        return warning == JWRN_EXTRANEOUS_DATA ? inScans : warning != JWRN_ADOBE_XFORM && warning != JWRN_JFIF_MAJOR;
    }

    static Errors& of(j_common_ptr jpeg) { return *reinterpret_cast<Errors*>(jpeg->err); }

    static void leave(j_common_ptr jpeg)
    {
        jpeg->err->format_message(jpeg, of(jpeg).message);
        std::longjmp(of(jpeg).back, 1);
    }

    static void leave(j_common_ptr jpeg, const char* text)
    {
        std::snprintf(of(jpeg).message, sizeof of(jpeg).message, "%s", text);
        std::longjmp(of(jpeg).back, 1);
    }
};

// Every scan of a progressive file costs as much as a picture, however small it is in the file.
void limitScans(j_common_ptr jpeg)
{
    constexpr int maxScans = 100; // encoders make about ten
    if (reinterpret_cast<j_decompress_ptr>(jpeg)->input_scan_number > maxScans)
        Errors::leave(jpeg, "more than 100 scans");
}

// A libjpeg object with its errors; jpeg_destroy suits both kinds.
template <class Struct> struct Jpeg {
    Errors errors;
    Struct state{};

    Jpeg() { state.err = &errors.manager; }
    ~Jpeg() { jpeg_destroy(reinterpret_cast<j_common_ptr>(&state)); }
    Jpeg(const Jpeg&) = delete;
    Jpeg& operator=(const Jpeg&) = delete;
};

constexpr int exifMarker = JPEG_APP0 + 1, profileMarker = JPEG_APP0 + 2;
constexpr unsigned longestMarker = 0xffff;

void warnOfMetadata(const InputFile& file, const jpeg_decompress_struct& state)
{
    using namespace std::string_view_literals;
    for (const jpeg_marker_struct* marker = state.marker_list; marker; marker = marker->next) {
        const std::string_view text(reinterpret_cast<const char*>(marker->data), marker->data_length);
        constexpr std::string_view exif = "Exif\0\0"sv;
        if (marker->marker == exifMarker && text.starts_with(exif))
            warnOfOrientation(file, {marker->data + exif.size(), text.size() - exif.size()});
        if (marker->marker == profileMarker && text.starts_with("ICC_PROFILE\0"sv)) warnOfProfile(file);
    }
}

} // namespace

Picture decodeJpeg(InputFile& file)
{
    jpeg_progress_mgr progress{};
    progress.progress_monitor = limitScans;
    jpeg_progress_mgr* const observer = &progress;
    Jpeg<jpeg_decompress_struct> jpeg;
    jpeg_decompress_struct* const state = &jpeg.state;
    std::FILE* const stream = file.stream();
    jpeg.errors.guarded([=] {
        jpeg_create_decompress(state);
        state->progress = observer;
        jpeg_stdio_src(state, stream);
        for (int marker : {exifMarker, profileMarker}) jpeg_save_markers(state, marker, longestMarker);
        jpeg_read_header(state, TRUE);
    });
    jpeg.errors.inScans = true;
    warnOfMetadata(file, *state);
    const ZorSize size = {static_cast<int>(state->image_width), static_cast<int>(state->image_height)};
    checkPixels(size);
    const bool grey = state->jpeg_color_space == JCS_GRAYSCALE;
    if (state->jpeg_color_space == JCS_CMYK || state->jpeg_color_space == JCS_YCCK)
        throw Cause("CMYK files are not supported");
    jpeg.errors.guarded([=] {
        state->out_color_space = grey ? JCS_GRAYSCALE : JCS_RGB;
        jpeg_start_decompress(state);
    });
    Picture picture(pictureFormat(grey, false, Sample::u8), size);
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
    const Picture picture = toEncode(file, std::move(given), pictureFormat(grey, false, Sample::u8));

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
