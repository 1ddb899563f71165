/* SPDX-License-Identifier: MIT */
/* Valid C99 and C++17: converts one blue pixel and looks at both libraries. */
#include <stdio.h>
#include <string.h>

#include <zorcc.h>
#include <zorcore.h>

int main(void)
{
    const uint8_t blue[3] = {0, 0, 255}, expected[3] = {29, 239, 102};
    const ZorSize size = {1, 1};
    const ZorVersion* version = zorccGetLibVersion();
    uint8_t* yuv = (uint8_t*)zorMalloc(3);
    if (!yuv || zoriRGBToYUV_8u_C3R(blue, 3, yuv, 3, size) != zorStatusOk || memcmp(yuv, expected, 3) != 0) {
        printf("wrong pixel\n");
        return 1;
    }
    zorFree(yuv);
    printf("%s, %d threads\n", version->libraryName, ownGetNumThreads());
    return version->major == 6 && version->minor == 1 ? 0 : 1;
}
