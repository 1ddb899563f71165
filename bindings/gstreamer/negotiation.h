// SPDX-License-Identifier: MIT
// What the element says on its pads: which caps it can make of others, and which of them it chooses.
#pragma once

#include <gst/video/video.h>

#include <string>

namespace zorcc::gstreamer {

// All known formats in system memory; in any other memory, for pictures that pass as they are.
GstCaps* templateCaps();

// What the other pad may have beside caps on the pad of the direction. New caps.
GstCaps* otherCaps(GstPadDirection direction, GstCaps* caps, bool keepsAlpha);

// Why the first of some caps does not become the first of others; empty where it does.
std::string refusalOf(const GstCaps* from, const GstCaps* to);

// Of caps for the source pad, whose only reference is taken, the fixed ones that lose least of the input.
GstCaps* bestCaps(const GstVideoInfo& input, GstCaps* caps, bool keepsAlpha);

// Whether it is only dropped by this format.
bool dropsAlpha(const GstVideoFormatInfo& from, const GstVideoFormatInfo& to);

} // namespace zorcc::gstreamer
