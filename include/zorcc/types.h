/* SPDX-License-Identifier: MIT */
/* What all headers share: statuses, types, and how functions are declared. */
#ifndef ZORCC_TYPES_H
#define ZORCC_TYPES_H

#include <stdint.h>

/* Result of every call: 0 is success, negative an error (nothing was written), positive a warning. */
typedef int32_t ZorStatus;

enum {
    zorStatusOk = 0,
    zorStatusNothingDone = 1,       /* warning: there was nothing to do; the destination is as it was */
    zorStatusOddSize = 35,          /* warning: columns or rows after the last whole block were left out */
    zorStatusBadArgument = -5,      /* an enumerated argument or a count is outside its set */
    zorStatusBadSize = -6,          /* width or height is below the function's minimum (1 unless stated) */
    zorStatusNullPointer = -8,      /* a pointer, an array of plane pointers or a plane pointer is null */
    zorStatusNoMemory = -9,         /* a temporary buffer could not be allocated */
    zorStatusBadStep = -14,         /* a step is below 1, in the families that check steps */
    zorStatusContextMismatch = -17, /* a state record is not of the kind that the function expects */
    zorStatusBadRange = -49,        /* the upper bound minus the lower bound of a range is not greater than 0 */
    zorStatusDitherLevels = -54,    /* the number of output levels is outside the function's range */
    zorStatusNoiseRange = -55       /* the noise amount is outside 0..100 */
};

/* Size of the region to convert, in pixels. */
typedef struct {
    int32_t width, height;
} ZorSize;

/* A rectangle inside an image, in pixels; (x, y) is its top left pixel. */
typedef struct {
    int32_t x, y, width, height;
} ZorRect;

/*
 * Enumerations whose values are arguments. In C++, too, they may be given any int: one that names nothing has the
 * status that the function says.
 */
#if defined(__cplusplus)
    #define ZOR_ENUM enum : int
#else
    #define ZOR_ENUM enum
#endif

/* Colours of the 2 x 2 cell at pixel (0, 0) of a Bayer mosaic, read row by row. */
typedef ZOR_ENUM{zorBayerBGGR = 0, zorBayerRGGB = 1, zorBayerGBRG = 2, zorBayerGRBG = 3} ZorBayerGrid;

/* How bit-depth reduction chooses a level: see zorcc/reduce.h. */
typedef ZOR_ENUM{zorDitherMethodNone = 0, zorDitherMethodFloydSteinberg = 1, zorDitherMethodJarvisJudiceNinke = 2,
                 zorDitherMethodStucki = 3, zorDitherMethodOrdered = 4} ZorDitherMethod;

/* Begins the declaration of an exported function: C linkage, visible outside the library. */
#if defined(__GNUC__)
    #define ZOR_VISIBLE __attribute__((visibility("default")))
#else
    #define ZOR_VISIBLE
#endif
#if defined(__cplusplus)
    #define ZOR_API extern "C" ZOR_VISIBLE
#else
    #define ZOR_API ZOR_VISIBLE
#endif

#endif
