/* SPDX-License-Identifier: MIT */
/* Valid C99 and C++17: converts one blue pixel, by a function and by a plan, and looks at all libraries. */
#include <stdio.h>
#include <string.h>

#include <zorcc.h>
#include <zorconvert.h>
#include <zorcore.h>

static int planIsRight(const uint8_t* blue, const uint8_t* expected)
{
    const ZorPicture from = {"rgb24", NULL, zorRangeDefault, {1, 1}}, to = {"yuv444p", "yuv", zorRangeFull, {1, 1}};
    uint8_t yuv[3];
    const void* source[1] = {blue};
    void* const planes[3] = {yuv, yuv + 1, yuv + 2};
    const int sourceSteps[1] = {3}, steps[3] = {1, 1, 1};
    ZorPlan* plan = zorPlanCreate(&from, &to, NULL);
    const ZorStatus status = zorPlanRun(plan, source, sourceSteps, planes, steps);
    printf("%s\n", zorPlanDescribe(plan));
    zorPlanFree(plan);
    return status == zorStatusOk && memcmp(yuv, expected, 3) == 0;
}

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
    if (!planIsRight(blue, expected)) {
        printf("wrong pixel of a plan\n");
        return 1;
    }
    printf("%s, %d threads\n", version->libraryName, ownGetNumThreads());
    return version->major == 6 && version->minor == 1 ? 0 : 1;
}
