/* SPDX-License-Identifier: MIT */
/*
 * Every frame of a video, decoded by FFmpeg's libraries, as a PPM file:
 *
 *     cc frames_to_ppm.c -o frames_to_ppm $(pkg-config --cflags --libs zorconvert libavformat libavcodec libavutil)
 *     ./frames_to_ppm clip.mp4 frame_%03d.ppm     (from 1; without a pattern frames are converted and counted)
 */
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/pixdesc.h>
#include <stdio.h>
#include <stdlib.h>
#include <zorconvert.h>

/* A plan, and the kind of frames that it is for. */
typedef struct {
    ZorPlan* plan;
    int format, width, height;
    enum AVColorSpace matrix;
    enum AVColorRange range;
} Converter;

static int fail(const char* what, const char* why)
{
    fprintf(stderr, "%s: %s\n", what, why);
    return -1;
}

/* Frames may change in the middle of a stream. 0, or -1 where there is no exact conversion. */
static int prepare(Converter* c, const AVFrame* frame)
{
    const AVPixFmtDescriptor* const description = av_pix_fmt_desc_get(frame->format);
    const int isRgb = (description->flags & AV_PIX_FMT_FLAG_RGB) != 0,
              hasChroma = !isRgb && description->nb_components > 2;
    const ZorSize size = {frame->width, frame->height};
    ZorPicture from = {description->name, NULL, zorRangeDefault, size}; /* FFmpeg's names of formats are known, */
    const ZorPicture to = {"rgb24", NULL, zorRangeDefault, size};

    if (c->plan && c->format == frame->format && c->width == frame->width && c->height == frame->height &&
        c->matrix == frame->colorspace && c->range == frame->color_range)
        return 0;
    if (hasChroma && frame->colorspace != AVCOL_SPC_UNSPECIFIED) /* and of matrices; by the size if nobody says it */
        from.matrix = av_color_space_name(frame->colorspace);
    if (!isRgb && frame->color_range != AVCOL_RANGE_UNSPECIFIED)
        from.range = frame->color_range == AVCOL_RANGE_JPEG ? zorRangeFull : zorRangeLimited;
    zorPlanFree(c->plan);
    c->plan = zorPlanCreate(&from, &to, NULL);
    c->format = frame->format, c->width = frame->width, c->height = frame->height;
    c->matrix = frame->colorspace, c->range = frame->color_range;
    return zorPlanStatus(c->plan) == zorStatusOk ? 0 : fail(description->name, zorPlanDescribe(c->plan));
}

/* The decoder's own planes are read: rows may be padded, and linesize negative where a picture stands upside down. */
static int convert(Converter* c, const AVFrame* frame, const char* pattern, int number)
{
    const size_t bytes = (size_t)frame->width * 3 * (size_t)frame->height;
    const int step = 3 * frame->width;
    char name[1024];
    FILE* file;
    int status = prepare(c, frame);
    void* const rgb = status == 0 ? malloc(bytes) : NULL;

    if (status == 0 && !rgb) status = fail("frame", "not enough memory");
    if (status == 0 &&
        zorPlanRun(c->plan, (const void* const*)frame->data, frame->linesize, &rgb, &step) != zorStatusOk)
        status = fail("frame", "not converted");
    if (status == 0 && pattern) {
        if (av_get_frame_filename(name, sizeof name, pattern, number) < 0) snprintf(name, sizeof name, "%s", pattern);
        file = fopen(name, "wb");
        if (!file || fprintf(file, "P6\n%d %d\n255\n", frame->width, frame->height) < 0 ||
            fwrite(rgb, 1, bytes, file) != bytes)
            status = fail(name, "cannot be written");
        if (file && fclose(file) != 0) status = fail(name, "cannot be written");
    }
    free(rgb);
    return status;
}

/* All frames that the decoder has by now; a null packet takes the last ones out of it. */
static int decode(AVCodecContext* decoder, const AVPacket* packet, AVFrame* frame, Converter* c, const char* pattern,
                  int* count)
{
    if (avcodec_send_packet(decoder, packet) < 0) return fail("video", "cannot be decoded");
    while (avcodec_receive_frame(decoder, frame) == 0)
        if (convert(c, frame, pattern, ++*count) != 0) return -1;
    return 0;
}

int main(int argc, char** argv)
{
    const char* const pattern = argc > 2 ? argv[2] : NULL;
    AVFormatContext* file = NULL;
    const AVCodec* codec = NULL;
    AVPacket* packet = av_packet_alloc();
    AVFrame* frame = av_frame_alloc();
    Converter converter = {NULL, 0, 0, 0, AVCOL_SPC_UNSPECIFIED, AVCOL_RANGE_UNSPECIFIED};
    int count = 0, stream, status = 0;

    if (argc < 2) return fail(argv[0], "VIDEO [PATTERN]") != 0;
    if (avformat_open_input(&file, argv[1], NULL, NULL) < 0 || avformat_find_stream_info(file, NULL) < 0)
        return fail(argv[1], "cannot be read") != 0;
    stream = av_find_best_stream(file, AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    if (stream < 0) return fail(argv[1], "has no video that can be decoded") != 0;
    AVCodecContext* decoder = avcodec_alloc_context3(codec);
    avcodec_parameters_to_context(decoder, file->streams[stream]->codecpar);
    decoder->thread_count = 0; /* one for each processor */
    if (avcodec_open2(decoder, codec, NULL) < 0) return fail(argv[1], "cannot be decoded") != 0;

    while (status == 0 && av_read_frame(file, packet) == 0) {
        if (packet->stream_index == stream) status = decode(decoder, packet, frame, &converter, pattern, &count);
        av_packet_unref(packet);
    }
    if (status == 0) status = decode(decoder, NULL, frame, &converter, pattern, &count);
    if (status == 0) printf("%d frames\n", count);

    zorPlanFree(converter.plan);
    avcodec_free_context(&decoder);
    avformat_close_input(&file);
    av_frame_free(&frame);
    av_packet_free(&packet);
    return status != 0;
}
