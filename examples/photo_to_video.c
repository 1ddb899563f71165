/* SPDX-License-Identifier: MIT */
/* A photograph to a frame of video that players show: photo_to_video < photo.ppm > photo.y4m */
#include <stdio.h>
#include <stdlib.h>
#include <zorcc.h>

int main(void)
{
    int width, height;
    if (scanf("P6 %d %d 255", &width, &height) != 2 || width < 2 || height < 2 || getchar() == EOF) return 1;

    /* Two by two pixels share a sample of Cb and of Cr: an odd column or row is left out. */
    const ZorSize size = {width & ~1, height & ~1};
    const size_t rows = (size_t)height, pixels = (size_t)size.width * (size_t)size.height;
    uint8_t *rgb = malloc(3 * rows * (size_t)width), *ycc = malloc(pixels * 3 / 2);
    if (!rgb || !ycc || fread(rgb, 3 * (size_t)width, rows, stdin) != rows) return 1;

    uint8_t* const planes[3] = {ycc, ycc + pixels, ycc + pixels * 5 / 4};
    const int steps[3] = {size.width, size.width / 2, size.width / 2}; /* bytes from row to row */
    const ZorStatus status = zoriRGBToYCbCr420_8u_C3P3R(rgb, 3 * width, planes, steps, size);
    if (status == zorStatusOk) {
        printf("YUV4MPEG2 W%d H%d F25:1 C420jpeg\nFRAME\n", size.width, size.height);
        fwrite(ycc, 1, pixels * 3 / 2, stdout);
    }
    free(rgb);
    free(ycc);
    return status;
}
