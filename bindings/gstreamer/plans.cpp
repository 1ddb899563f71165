// SPDX-License-Identifier: MIT
#include "plans.h"

namespace zorcc::gstreamer {

namespace {

std::string nameOf(const GstVideoInfo& info)
{
    gchar* const colour = gst_video_colorimetry_to_string(&info.colorimetry);
    const std::string name = std::string(GST_VIDEO_INFO_NAME(&info)) + " of colorimetry " + (colour ? colour : "none");
    g_free(colour);
    return name;
}

ZorPlanOptions optionsOf(const GstVideoInfo& input, const GstVideoInfo& output, const Settings& settings)
{
    ZorPlanOptions options = {};
    options.structBytes = sizeof options;
    options.threads = settings.threads;
    options.depth = settings.dither;
    if (settings.dither == zorDepthOrdered && GST_VIDEO_INFO_IS_YUV(&input)) options.fields = zorFieldsDither;
    // The fourth byte of RGBx is no alpha.
    if (GST_VIDEO_INFO_HAS_ALPHA(&input))
        options.alpha = settings.alpha;
    else
        options.alpha = GST_VIDEO_INFO_HAS_ALPHA(&output) ? zorAlphaOpaque : zorAlphaDrop;
    gdouble red, blue;
    const GstVideoColorMatrix matrix = output.colorimetry.matrix;
    if (GST_VIDEO_INFO_IS_GRAY(&output) && !GST_VIDEO_INFO_IS_GRAY(&input) && matrix != GST_VIDEO_COLOR_MATRIX_BT601 &&
        gst_video_color_matrix_get_Kr_Kb(matrix, &red, &blue)) {
        const double weights[] = {red, 1 - red - blue, blue};
        options.grey = zorGreyWeights;
        for (int i = 0; i < 3; ++i) options.greyWeights[i] = static_cast<float>(weights[i]);
    }
    return options;
}

bool sharesRowsOfChroma(const GstVideoInfo& info) { return GST_VIDEO_FORMAT_INFO_H_SUB(info.finfo, 1) > 0; }

// Planes of a frame from a row on, every `step`th row.
struct Planes {
    void* plane[ZOR_MAX_PLANES] = {};
    int step[ZOR_MAX_PLANES] = {};

    Planes(const GstVideoFrame& frame, int first, int every)
    {
        for (guint p = 0; p < GST_VIDEO_FRAME_N_PLANES(&frame); ++p) {
            const int stride = GST_VIDEO_FRAME_PLANE_STRIDE(&frame, p);
            plane[p] = static_cast<guint8*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, p)) + std::ptrdiff_t{stride} * first;
            step[p] = stride * every;
        }
    }
};

ZorStatus runOn(ZorPlan* plan, const GstVideoFrame& input, const GstVideoFrame& output, int first, int every)
{
    const Planes source(input, first, every), destination(output, first, every);
    return zorPlanRun(plan, source.plane, source.step, destination.plane, destination.step);
}

// Whether the memory of a plane has a row, beyond those of the picture, too.
bool hasRow(const GstVideoFrame& frame, int p, int row, int rowBytes)
{
    const auto dataOf = [&](int plane) {
        return static_cast<const guint8*>(GST_VIDEO_FRAME_PLANE_DATA(&frame, plane));
    };
    const int stride = GST_VIDEO_FRAME_PLANE_STRIDE(&frame, p);
    const GstMapInfo& map = frame.map[frame.meta ? p : 0];
    const guint8* end = map.data + map.size;
    for (int other = 0; other < static_cast<int>(GST_VIDEO_FRAME_N_PLANES(&frame)); ++other)
        if (dataOf(other) > dataOf(p) && dataOf(other) < end) end = dataOf(other);
    return stride > 0 && std::ptrdiff_t{stride} * row + rowBytes <= end - dataOf(p);
}

} // namespace

Plans::Plans(const GstVideoInfo& input, const GstVideoInfo& output, const Settings& itsSettings)
    : settings(itsSettings), from(kindOf(input)), to(kindOf(output)),
      options(optionsOf(input, output, itsSettings)), size{input.width, input.height},
      sharesRows(sharesRowsOfChroma(input) || sharesRowsOfChroma(output))
{
    if (from && to) whole = make(size);
    words =
        whole ? zorPlanDescribe(whole.get()) : "no conversion leads from " + nameOf(input) + " to " + nameOf(output);
}

Plans::Plan Plans::make(ZorSize sizeOfIt) const
{
    const ZorPicture ends[2] = {from->picture(sizeOfIt), to->picture(sizeOfIt)};
    return Plan(zorPlanCreate(&ends[0], &ends[1], &options));
}

// Rows of one field share chroma with rows of the same field. Pictures whose fields together have more rows of chroma
// than there is memory for are converted as if they were progressive.
bool Plans::isByFields(const GstVideoFrame& input, const GstVideoFrame& output) const
{
    if (!sharesRows || size.height < 2 || !GST_VIDEO_FRAME_IS_INTERLACED(&input)) return false;
    for (const auto& [frame, kind] : {std::pair(&input, *from), std::pair(&output, *to)})
        for (int parity = 0; parity < 2; ++parity) {
            ZorLayout layout;
            const ZorPicture picture = kind.picture({size.width, (size.height + 1 - parity) / 2});
            if (zorPictureLayout(&picture, &layout) != zorStatusOk) return false;
            for (int p = 0; p < layout.planes; ++p)
                if (!hasRow(*frame, p, 2 * (layout.rows[p] - 1) + parity, layout.rowBytes[p])) return false;
        }
    return true;
}

ZorStatus Plans::run(const GstVideoFrame& input, const GstVideoFrame& output)
{
    if (!isByFields(input, output)) return runOn(whole.get(), input, output, 0, 1);
    for (int parity = 0; parity < 2; ++parity) {
        Plan& plan = field[size.height % 2 ? parity : 0];
        if (!plan) plan = make({size.width, (size.height + 1 - parity) / 2});
        if (const ZorStatus status = runOn(plan.get(), input, output, parity, 2); status != zorStatusOk) return status;
    }
    return zorStatusOk;
}

} // namespace zorcc::gstreamer
