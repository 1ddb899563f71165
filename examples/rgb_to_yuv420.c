/* SPDX-License-Identifier: MIT */
#include <stdio.h>
#include <zorcc.h>

int main(void)
{
    const uint8_t rgb[2][2][3] = {{{255, 0, 0}, {255, 0, 0}}, {{255, 0, 0}, {255, 0, 0}}};
    uint8_t y[2][2], u[1], v[1], *const yuv[3] = {y[0], u, v};
    const int steps[3] = {2, 1, 1}; /* bytes from row to row of each plane */
    const ZorStatus status = zoriRGBToYUV420_8u_C3P3R(rgb[0][0], 6, yuv, steps, (ZorSize){2, 2});
    printf("Y %d U %d V %d\n", y[0][0], u[0], v[0]);
    return status;
}
