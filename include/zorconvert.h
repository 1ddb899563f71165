/* SPDX-License-Identifier: MIT */
/*
 * zorconvert: any picture format to any other (libzorconvert.so.6.1), by exact functions of zorcc. Valid C99, C11 and
 * C++17.
 *
 *     const ZorPicture from = {"nv12", "bt709", zorRangeLimited, {1920, 1080}};
 *     const ZorPicture to = {"rgb24", 0, zorRangeDefault, {1920, 1080}};
 *     ZorPlan* plan = zorPlanCreate(&from, &to, 0);
 *     if (zorPlanStatus(plan) == zorStatusOk) status = zorPlanRun(plan, planes, steps, &rgb, &rgbStep);
 *     else puts(zorPlanDescribe(plan));
 *     zorPlanFree(plan);
 *
 * A plan is the shortest chain of conversions that leads from one picture to the other: as few conversions of colours
 * as there can be, none of them through fewer bits or less chroma than the poorer of both ends has, then as little
 * moved as possible. Between functions samples may change places: channels are reordered, planes interleaved or
 * divided, grey repeated, alpha added or dropped, samples scaled to another type. zorPlanDescribe says every step, so
 * that nothing happens in secret. The chain is run over strips of rows that stay in the cache, on several threads. The
 * same plan gives the same bytes whatever the height of the strips and the number of threads: what depends on
 * neighbouring rows is not cut.
 */
#ifndef ZORCONVERT_H
#define ZORCONVERT_H

#include <stddef.h>

#include "zorcc/types.h"

enum {
    zorStatusUnknownFormat = -201, /* no picture format has this name */
    zorStatusNoConversion = -202,  /* no chain of functions leads from one picture to the other */
    zorStatusRefused = -203        /* an option refuses what the conversion would lose */
};

/* ---- pictures ---------------------------------------------------------------------------------------------------- */

/* Range of luma and chroma. RGB and grey are of full range. */
typedef ZOR_ENUM{
    zorRangeDefault = 0, /* that of the matrix: limited for bt601 and bt709, full for yuv; or as the name says */
    zorRangeLimited = 1, /* luma 16..235, chroma 16..240 */
    zorRangeFull = 2     /* 0..255 */
} ZorRange;

/*
 * A picture.
 *
 * format  a name of zorFormatAt, or one of the outside world, in any case: ffmpeg's pixel formats (yuv420p, yuvj420p,
 *         yuyv422, gray, rgb565le, ...) and fourccs (NV12, NV21, YV12, I420, YUY2, UYVY, YVYU). Names such as
 *         yuv420p_bt709 say the matrix, too.
 * matrix  of formats with luma and chroma:
 *             bt601  ITU-R BT.601, limited range
 *             bt709  ITU-R BT.709, limited or full range
 *             yuv    Y'UV of analogue television, full range, as in zorcc/yuv.h; only where it is asked for
 *         Samples of other matrices and ranges (bt601 of full range, bt2020, fcc, smpte170m, smpte240m) can be moved
 *         to other layouts and not be converted to other colours; smpte170m and bt470bg are other names of bt601.
 *         Null: what the name of the format says; otherwise bt709 for pictures of 720 rows and more, bt601 below. For
 *         formats that have no choice of a matrix null, or the name of their model.
 * size    in pixels, the same for both ends
 *
 * Chroma that is shared by several pixels has a sample of its own for those at the right and at the bottom that do not
 * fill a group: planes of 4:2:0 are (width + 1) / 2 by (height + 1) / 2, packed 4:2:2 has 4 bytes for each pair that
 * is begun. Such pictures are converted as if their last column and row were repeated.
 *
 * RGB is red, green and blue as they are; from and to HLS, HSV and PhotoYCC it is R'G'B', from and to XYZ, LUV and Lab
 * it counts as linear light, which the description of the plan says. YCoCg of 16 bits holds what it was made of, bytes
 * or words: it is taken for bytes where the other end has 8 bits, for words otherwise. In packed 16-bit formats without
 * "le" the channel named first is in the low bits, as in zorcc/rgb565.h; rgb565le is what it is elsewhere, red in the
 * high bits.
 */
typedef struct {
    const char* format;
    const char* matrix;
    ZorRange range;
    ZorSize size;
} ZorPicture;

#define ZOR_MAX_PLANES 4

typedef enum {
    zorSample8u = 0,
    zorSample8s = 1,
    zorSample16u = 2,
    zorSample16s = 3,
    zorSample32s = 4,
    zorSample32f = 5
} ZorSample;

/* What a picture looks like in memory. */
typedef struct {
    char name[24];                /* the name of the format in this library */
    char channels[8];             /* in the order of memory, one letter each: BGRA, YUV; packed 4:2:2 as YUYV */
    int planes;                   /* 1 .. 4 */
    int rowBytes[ZOR_MAX_PLANES]; /* of a plane, the least step */
    int rows[ZOR_MAX_PLANES];     /* of a plane */
    int sampleBytes;              /* pointers and steps must be multiples of it */
    ZorSample sample;
    int fieldBits[3];             /* of packed 16-bit formats, the lowest field first; otherwise 0 */
    int log2ChromaX, log2ChromaY; /* (1 << x) columns and (1 << y) rows share a sample of chroma */
} ZorLayout;

/* The layout of a picture; its matrix and range are not looked at. zorStatusNullPointer, zorStatusUnknownFormat,
   zorStatusBadSize for a side below 1 or rows above 2^31 - 1 bytes. */
ZOR_API ZorStatus zorPictureLayout(const ZorPicture* picture, ZorLayout* layout);

/* What luma and chroma of a picture are by. */
typedef struct {
    char matrix[16]; /* empty for formats that have no choice of a matrix */
    ZorRange range;  /* limited or full */
    int isSaid;      /* 0: neither the picture nor its format's name says the matrix: it is that of its size */
} ZorColour;

/* The colour that a plan takes the picture for. Statuses as zorPictureLayout, and zorStatusBadArgument for a matrix or
   range that zorPlanCreate refuses. */
ZOR_API ZorStatus zorPictureColour(const ZorPicture* picture, ZorColour* colour);

/* The name of format `index`, counted from 0; null after the last. */
ZOR_API const char* zorFormatAt(int index);

/* ---- plans ------------------------------------------------------------------------------------------------------- */

/* Where only one picture has alpha. Where both have it, it is kept. */
typedef ZOR_ENUM{
    zorAlphaDrop = 0,   /* it is dropped, and opaque where only the destination has it */
    zorAlphaRefuse = 1, /* a plan that drops alpha is refused; opaque where only the destination has it */
    zorAlphaOpaque = 2  /* the destination is opaque, whatever the source has */
} ZorAlpha;

/* How red, green, blue and grey of more than 8 bits become 8 bits. */
typedef ZOR_ENUM{
    zorDepthNearest = 0,           /* to the nearest value */
    zorDepthFloydSteinberg = 1,    /* by error diffusion: the picture is not cut into strips */
    zorDepthJarvisJudiceNinke = 2, /* likewise */
    zorDepthStucki = 3,            /* likewise */
    zorDepthOrdered = 4,           /* by a 4 x 4 matrix of thresholds */
    zorDepthTruncate = 5           /* the upper 8 bits */
} ZorDepth;

/* How channels become the fields of packed 16-bit formats. */
typedef ZOR_ENUM{
    zorFieldsTruncate = 0, /* their top bits */
    zorFieldsDither = 1    /* by a 4 x 4 matrix of thresholds; from luma and chroma alone */
} ZorFields;

/* How colours become grey. */
typedef ZOR_ENUM{
    zorGreyLuma = 0,    /* 0.299 R + 0.587 G + 0.114 B */
    zorGreyWeights = 1, /* by greyWeights */
    zorGreyRefuse = 2   /* a plan that drops colours is refused */
} ZorGrey;

/* Zeros, but for the size, are the defaults: ZorPlanOptions options = {sizeof options}. */
typedef struct {
    size_t structBytes; /* of this structure as the caller knows it; members beyond have their defaults */
    int threads;        /* the most of a run, capped as in zorcore.h; 0: ownGetNumThreads() when the plan is made */
    int stripRows;      /* rows of a strip, rounded up to a multiple of 4; 0: as suits the cache */
    ZorAlpha alpha;
    ZorDepth depth;
    ZorFields fields;
    ZorGrey grey;
    float greyWeights[3]; /* of red, green and blue */
} ZorPlanOptions;

typedef struct ZorPlan ZorPlan;

/*
 * Makes a plan; null options are the defaults. Null where memory is out; any other plan has a status, which is Ok or
 * says why it cannot be run:
 *   zorStatusNullPointer    a picture or the name of its format is null
 *   zorStatusBadArgument    options: structBytes, a negative number or an enumerator that does not exist; a matrix
 *                           that is unknown, or that the format cannot have; a range that the matrix cannot have
 *   zorStatusBadSize        a side below 1, rows above 2^31 - 1 bytes, or two different sizes
 *   zorStatusUnknownFormat
 *   zorStatusNoConversion
 *   zorStatusRefused
 */
ZOR_API ZorPlan* zorPlanCreate(const ZorPicture* from, const ZorPicture* to, const ZorPlanOptions* options);

/* Releases a plan; null is ignored. */
ZOR_API void zorPlanFree(ZorPlan* plan);

/* The status of a plan; zorStatusNoMemory for null. */
ZOR_API ZorStatus zorPlanStatus(const ZorPlan* plan);

/*
 * The plan in words, a line for each picture, step, and thing that is lost or made up. Of a plan that cannot be run,
 * what is missing and the nearest that there is. Good as long as the plan.
 */
ZOR_API const char* zorPlanDescribe(const ZorPlan* plan);

/* Those of these lines that say what is lost; empty where nothing is, and for a plan that cannot be run. */
ZOR_API const char* zorPlanLosses(const ZorPlan* plan);

/* The steps, counted from 0: the name of the function, empty where samples change places; null after the last. */
ZOR_API const char* zorPlanStepFunction(const ZorPlan* plan, int step);

/* The format that the step gives; null after the last. */
ZOR_API const char* zorPlanStepFormat(const ZorPlan* plan, int step);

/*
 * Converts a picture: a pointer and a step in bytes for every plane, as zorPictureLayout says, the source's first. A
 * step may be negative, which walks a plane upwards. Source and destination must not overlap. The memory that is needed
 * between the steps belongs to the plan, so that one thread at a time may run it; different plans are independent.
 * No byte outside the rows is read or written. Functions of zorcc that divide their own rows among threads do so only
 * in a plan that cannot be cut into strips.
 *
 *   the plan's status      where it is not Ok
 *   zorStatusNullPointer   the plan, an array or a plane is null
 *   zorStatusBadStep       a step is shorter than a row, or no multiple of the size of a sample, as pointers must be
 *   zorStatusNoMemory      of error diffusion, for its errors; the destination may have been written
 *   zorStatusOk
 *
 * For errors but the last nothing is written.
 */
ZOR_API ZorStatus zorPlanRun(ZorPlan* plan, const void* const source[], const int sourceSteps[],
                             void* const destination[], const int destinationSteps[]);

#endif
