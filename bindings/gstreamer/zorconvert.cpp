// SPDX-License-Identifier: MIT
// The element zorconvert: frames of one format become those of another by a plan of the conversion layer.
#include <gst/video/gstvideofilter.h>

#include <utility>

#include "negotiation.h"
#include "plans.h"

using namespace zorcc::gstreamer;

GST_DEBUG_CATEGORY_STATIC(zorconvert_debug);
#define GST_CAT_DEFAULT zorconvert_debug

namespace {

struct ZorConvert {
    GstVideoFilter base;
    Settings settings; // under the object's lock
    bool hasWarned;    // likewise
    Plans* plans;      // of the streaming thread; null while frames pass as they are
};

struct ZorConvertClass {
    GstVideoFilterClass base;
};

enum Property { propertyThreads = 1, propertyDither, propertyAlpha };

G_DEFINE_TYPE(ZorConvert, zorconvert, GST_TYPE_VIDEO_FILTER)

ZorConvert* self(gpointer object) { return static_cast<ZorConvert*>(object); }

Settings settingsOf(ZorConvert* element)
{
    GST_OBJECT_LOCK(element);
    const Settings settings = element->settings;
    GST_OBJECT_UNLOCK(element);
    return settings;
}

bool keepsAlpha(GstBaseTransform* base) { return settingsOf(self(base)).alpha == zorAlphaRefuse; }

// As GST_PTR_FORMAT wants it in standard C++.
void* printed(GstCaps* caps) { return caps; }

// ---- negotiation ----------------------------------------------------------------------------------------------------

// Whoever finds nothing in common only learns that it failed; here is why, once.
void warn(GstBaseTransform* base, const GstCaps* from, const GstCaps* to)
{
    const std::string words = refusalOf(from, to);
    if (words.empty()) return;
    GST_OBJECT_LOCK(base);
    const bool isNews = !std::exchange(self(base)->hasWarned, true);
    GST_OBJECT_UNLOCK(base);
    if (isNews) GST_ELEMENT_WARNING(base, STREAM, FORMAT, ("%s", words.c_str()), (nullptr));
}

GstCaps* transformCaps(GstBaseTransform* base, GstPadDirection direction, GstCaps* caps, GstCaps* filter)
{
    GstCaps* others = otherCaps(direction, caps, keepsAlpha(base));
    if (filter) {
        GstCaps* const permitted = gst_caps_intersect_full(filter, others, GST_CAPS_INTERSECT_FIRST);
        gst_caps_unref(others);
        others = permitted;
        if (gst_caps_is_empty(others)) direction == GST_PAD_SINK ? warn(base, caps, filter) : warn(base, filter, caps);
    }
    GST_DEBUG_OBJECT(base, "beside %" GST_PTR_FORMAT " may be %" GST_PTR_FORMAT, printed(caps), printed(others));
    return others;
}

GstCaps* fixateCaps(GstBaseTransform* base, GstPadDirection direction, GstCaps* caps, GstCaps* others)
{
    if (gst_caps_is_subset(caps, others)) { // frames pass as they are
        gst_caps_unref(others);
        return gst_caps_ref(caps);
    }
    GstVideoInfo input;
    if (direction != GST_PAD_SINK || !gst_video_info_from_caps(&input, caps)) return gst_caps_fixate(others);
    GstCaps* const best = bestCaps(input, others, keepsAlpha(base));
    GST_DEBUG_OBJECT(base, "for %" GST_PTR_FORMAT " is chosen %" GST_PTR_FORMAT, printed(caps), printed(best));
    return best;
}

bool makePlans(ZorConvert* element, const GstVideoInfo& input, const GstVideoInfo& output)
{
    delete std::exchange(element->plans, nullptr);
    element->plans = new Plans(input, output, settingsOf(element));
    const char* const words = element->plans->description().c_str();
    GST_INFO_OBJECT(element, "%s", words);
    if (!element->plans->areMade()) GST_ELEMENT_ERROR(element, STREAM, FORMAT, ("%s", words), (nullptr));
    return element->plans->areMade();
}

gboolean setInfo(GstVideoFilter* filter, GstCaps*, GstVideoInfo* input, GstCaps*, GstVideoInfo* output)
{
    if (!gst_video_info_is_equal(input, output)) return makePlans(self(filter), *input, *output);
    gst_base_transform_set_passthrough(GST_BASE_TRANSFORM(filter), TRUE);
    return TRUE;
}

gboolean sinkEvent(GstBaseTransform* base, GstEvent* event)
{
    GstCaps* caps = nullptr;
    if (GST_EVENT_TYPE(event) == GST_EVENT_CAPS) gst_event_parse_caps(event, &caps);
    if (caps) gst_caps_ref(caps);
    const gboolean isDone = GST_BASE_TRANSFORM_CLASS(zorconvert_parent_class)->sink_event(base, event);
    if (caps && !isDone) {
        GstCaps* const wanted = gst_pad_peer_query_caps(GST_BASE_TRANSFORM_SRC_PAD(base), nullptr);
        warn(base, caps, wanted);
        gst_caps_unref(wanted);
    }
    if (caps) gst_caps_unref(caps);
    return isDone;
}

// ---- frames ---------------------------------------------------------------------------------------------------------

GstFlowReturn transformFrame(GstVideoFilter* filter, GstVideoFrame* input, GstVideoFrame* output)
{
    ZorConvert* const element = self(filter);
    if (!element->plans->areBy(settingsOf(element)) && !makePlans(element, input->info, output->info))
        return GST_FLOW_NOT_NEGOTIATED;
    const ZorStatus status = element->plans->run(*input, *output);
    if (status == zorStatusOk) return GST_FLOW_OK;
    GST_ELEMENT_ERROR(element, STREAM, FAILED, ("a frame could not be converted: status %d", status), (nullptr));
    return GST_FLOW_ERROR;
}

// The base class keeps metas that are about no property of video; those about the picture's geometry stay true, too.
gboolean transformMeta(GstBaseTransform* base, GstBuffer* output, GstMeta* meta, GstBuffer* input)
{
    const gchar* const geometry[] = {GST_META_TAG_VIDEO_STR, GST_META_TAG_VIDEO_SIZE_STR,
                                     GST_META_TAG_VIDEO_ORIENTATION_STR, nullptr};
    const gchar* const* tag = gst_meta_api_type_get_tags(meta->info->api);
    while (tag && *tag && g_strv_contains(geometry, *tag)) ++tag;
    return (tag && !*tag) ||
           GST_BASE_TRANSFORM_CLASS(zorconvert_parent_class)->transform_meta(base, output, meta, input);
}

gboolean stop(GstBaseTransform* base)
{
    delete std::exchange(self(base)->plans, nullptr);
    self(base)->hasWarned = false;
    return TRUE;
}

// ---- the object -----------------------------------------------------------------------------------------------------

GType ditherType()
{
    static const GEnumValue values[] = {
        {zorDepthNearest, "To the nearest value", "none"},
        {zorDepthFloydSteinberg, "Error diffusion by Floyd and Steinberg", "floyd-steinberg"},
        {zorDepthJarvisJudiceNinke, "Error diffusion by Jarvis, Judice and Ninke", "jarvis-judice-ninke"},
        {zorDepthStucki, "Error diffusion by Stucki", "stucki"},
        {zorDepthOrdered, "By a 4 x 4 matrix of thresholds; fields of 5 and 6 bits, too", "ordered"},
        {zorDepthTruncate, "The upper bits", "truncate"},
        {0, nullptr, nullptr}};
    static const GType type = g_enum_register_static("ZorConvertDither", values);
    return type;
}

GType alphaType()
{
    static const GEnumValue values[] = {{zorAlphaDrop, "Alpha is dropped by formats without it", "drop"},
                                        {zorAlphaRefuse, "Formats that would drop alpha are refused", "refuse"},
                                        {zorAlphaOpaque, "All pixels become opaque", "opaque"},
                                        {0, nullptr, nullptr}};
    static const GType type = g_enum_register_static("ZorConvertAlpha", values);
    return type;
}

void setProperty(GObject* object, guint property, const GValue* value, GParamSpec* parameter)
{
    ZorConvert* const element = self(object);
    GST_OBJECT_LOCK(element);
    Settings& settings = element->settings;
    switch (property) {
    case propertyThreads:
        settings.threads = g_value_get_int(value);
        break;
    case propertyDither:
        settings.dither = static_cast<ZorDepth>(g_value_get_enum(value));
        break;
    case propertyAlpha:
        settings.alpha = static_cast<ZorAlpha>(g_value_get_enum(value));
        break;
    default:
        G_OBJECT_WARN_INVALID_PROPERTY_ID(object, property, parameter);
    }
    GST_OBJECT_UNLOCK(element);
    if (property == propertyAlpha) gst_base_transform_reconfigure_src(GST_BASE_TRANSFORM(element));
}

void getProperty(GObject* object, guint property, GValue* value, GParamSpec* parameter)
{
    const Settings settings = settingsOf(self(object));
    switch (property) {
    case propertyThreads:
        g_value_set_int(value, settings.threads);
        break;
    case propertyDither:
        g_value_set_enum(value, settings.dither);
        break;
    case propertyAlpha:
        g_value_set_enum(value, settings.alpha);
        break;
    default:
        G_OBJECT_WARN_INVALID_PROPERTY_ID(object, property, parameter);
    }
}

void zorconvert_init(ZorConvert* element)
{
    element->settings = {};
    element->plans = nullptr;
}

void zorconvert_class_init(ZorConvertClass* type)
{
    GObjectClass* const object = G_OBJECT_CLASS(type);
    GstElementClass* const element = GST_ELEMENT_CLASS(type);
    GstBaseTransformClass* const transform = GST_BASE_TRANSFORM_CLASS(type);
    GstVideoFilterClass* const filter = GST_VIDEO_FILTER_CLASS(type);
    constexpr auto flags =
        static_cast<GParamFlags>(G_PARAM_READWRITE | G_PARAM_STATIC_STRINGS | GST_PARAM_MUTABLE_PLAYING);

    object->set_property = setProperty;
    object->get_property = getProperty;
    g_object_class_install_property(object, propertyThreads,
                                    g_param_spec_int("n-threads", "Threads", "The most threads of a frame; 0: all", 0,
                                                     G_MAXINT, Settings{}.threads, flags));
    g_object_class_install_property(object, propertyDither,
                                    g_param_spec_enum("dither", "Dither", "How samples become those of fewer bits",
                                                      ditherType(), Settings{}.dither, flags));
    g_object_class_install_property(
        object, propertyAlpha,
        g_param_spec_enum("alpha", "Alpha", "What becomes of alpha", alphaType(), Settings{}.alpha, flags));
    gst_type_mark_as_plugin_api(ditherType(), static_cast<GstPluginAPIFlags>(0));
    gst_type_mark_as_plugin_api(alphaType(), static_cast<GstPluginAPIFlags>(0));

    gst_element_class_set_static_metadata(
        element, "Exact conversion of colours and layouts", "Filter/Converter/Video/Colorspace",
        "Converts video from one format to another by the exact functions of zorcc", "The zorcc authors");
    GstCaps* const caps = templateCaps();
    gst_element_class_add_pad_template(element, gst_pad_template_new("sink", GST_PAD_SINK, GST_PAD_ALWAYS, caps));
    gst_element_class_add_pad_template(element, gst_pad_template_new("src", GST_PAD_SRC, GST_PAD_ALWAYS, caps));
    gst_caps_unref(caps);

    transform->transform_caps = transformCaps;
    transform->fixate_caps = fixateCaps;
    transform->sink_event = sinkEvent;
    transform->transform_meta = transformMeta;
    transform->stop = stop;
    transform->passthrough_on_same_caps = TRUE;
    filter->set_info = setInfo;
    filter->transform_frame = transformFrame;
    GST_DEBUG_CATEGORY_INIT(zorconvert_debug, "zorconvert", 0, "exact conversion of video");
}

gboolean initPlugin(GstPlugin* plugin)
{
    return gst_element_register(plugin, "zorconvert", GST_RANK_NONE, zorconvert_get_type());
}

} // namespace

#define PACKAGE "zorcc"
GST_PLUGIN_DEFINE(GST_VERSION_MAJOR, GST_VERSION_MINOR, zorconvert, "Exact conversion of video formats", initPlugin,
                  ZORCC_VERSION, "MIT/X11", PACKAGE, "Unknown package origin")
