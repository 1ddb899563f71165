/* SPDX-License-Identifier: MIT */
/* A frame of video to RGB in one call, and what happens to it on the way. */
#include <stdio.h>
#include <zorconvert.h>

int main(void)
{
    static uint8_t luma[1080][1920], chroma[540][1920], rgb[1080][3 * 1920];
    const ZorPicture from = {"nv12", "bt709", zorRangeLimited, {1920, 1080}};
    const ZorPicture to = {"rgb24", NULL, zorRangeDefault, {1920, 1080}};
    const void* const source[] = {luma, chroma};
    void* const destination[] = {rgb};
    const int sourceSteps[] = {1920, 1920}, destinationSteps[] = {3 * 1920}; /* bytes from row to row */
    ZorPlan* plan;
    ZorStatus status;
    int i;

    for (i = 0; i < 1920 * 1080; ++i) luma[i / 1920][i % 1920] = 63; /* red, by BT.709 */
    for (i = 0; i < 1920 * 540; ++i) chroma[i / 1920][i % 1920] = i % 2 ? 240 : 102;
    plan = zorPlanCreate(&from, &to, NULL);
    puts(zorPlanDescribe(plan));
    status = zorPlanRun(plan, source, sourceSteps, destination, destinationSteps);
    printf("R %d G %d B %d\n", rgb[0][0], rgb[0][1], rgb[0][2]);
    zorPlanFree(plan);
    return status;
}
