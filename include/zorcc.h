/* SPDX-License-Identifier: MIT */
/*
 * zorcc: colour conversion of raster images (libzorccn8.so.6.1). Valid C99, C11 and C++17.
 *
 * This header includes everything; each family of functions also has a header of its own, listed below, which says what
 * its functions compute. What follows holds for all of them unless a family says otherwise.
 *
 * Names: zori<Operation>_<sample types>_<layouts>R. Sample types: 8u, 8s, 16u, 16s, 32f (two joined: source,
 * destination).
 * Layouts (two joined: source, destination):
 *   C1, C2, C3, C4  one to four samples a pixel, interleaved, channel 0 at the lowest address
 *   AC4             four samples a pixel; the fourth is alpha: ignored in a source, left as it is in a destination (its
 *                   value stays, but may be rewritten: no other thread may change it during the call)
 *   P2, P3, P4      planes; a P2 image is a luma plane and a plane of interleaved chroma pairs
 *   AP4             three colour planes and an alpha plane
 *   C3I, AC4I, IP3  one image that is source and destination
 *
 * Images: a pointer to the first pixel of the region and a step, the distance in bytes from one row to the next. A step
 * is never in pixels, may be larger than a row, and may be negative, which walks the image upwards from the pointer,
 * unless the family says that steps are checked. A planar image is an array of plane pointers; where its planes differ
 * in size there is an array of steps, too. Pointers and steps need no alignment beyond the sample type's. Names without
 * the final R take no steps: rows follow each other without gaps (a chroma plane that shares samples between two
 * columns has rows of width / 2 bytes, rounded down).
 *
 * No byte outside the rows of the images is read or written. Source and destination must not overlap, except where both
 * are the same image (same pointers, steps and sample layout).
 *
 * Statuses: the first failing check decides, and then nothing is written.
 *   zorStatusNullPointer  an image pointer or an array of plane pointers is null (source before destination)
 *   zorStatusBadSize      width or height is below 1
 *   zorStatusNullPointer  a plane pointer inside an array is null (source planes before destination planes)
 *   zorStatusOk
 *
 * Results of integer conversions are exact: the same bytes on every processor, alignment, step and thread count.
 * All functions may be called from any thread at any time, on distinct destinations.
 */
#ifndef ZORCC_H
#define ZORCC_H

#include "zorcc/version.h"
#include "zorcore.h" /* memory and threads */

/* Luma and chroma */
#include "zorcc/bt601.h"          /* RGB and YCbCr (ITU-R BT.601) */
#include "zorcc/bt709.h"          /* BGR and YCbCr (ITU-R BT.709) */
#include "zorcc/cbycr422.h"       /* RGB and packed CbYCr and YCrCb 4:2:2 */
#include "zorcc/chromasampling.h" /* chroma sampling and plane orders */
#include "zorcc/rgb565.h"         /* packed 16-bit RGB */
#include "zorcc/videolayouts.h"   /* video layouts and deinterlacing */
#include "zorcc/ycocg.h"          /* RGB and YCoCg */
#include "zorcc/yuv.h"            /* RGB and YUV */

/* Colour models */
#include "zorcc/gamma.h"    /* gamma correction (ITU-R BT.709) */
#include "zorcc/gray.h"     /* grey of colour */
#include "zorcc/hls.h"      /* RGB and HLS */
#include "zorcc/hlspl.h"    /* BGR and HLS, planar */
#include "zorcc/hsv.h"      /* RGB and HSV */
#include "zorcc/lab.h"      /* BGR and CIE L*a*b* */
#include "zorcc/luv.h"      /* RGB and CIE L*u*v* */
#include "zorcc/photoycc.h" /* RGB and PhotoYCC */
#include "zorcc/tonemap.h"  /* tone mapping of floats to 8 bits */
#include "zorcc/twist.h"    /* colour twist by a matrix */
#include "zorcc/xyz.h"      /* RGB and CIE XYZ */

/* Number of levels */
#include "zorcc/reduce.h" /* bit-depth reduction */

/* Bayer mosaics */
#include "zorcc/demosaic.h" /* along the smaller gradient, and adaptive homogeneity-directed */

#endif
