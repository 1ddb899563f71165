// SPDX-License-Identifier: MIT
// The same pictures through GStreamer's own converter.
#include <fstream>

#include "formats.h"
#include "pairs.h"
#include "tests/bindings/gstreamer/frames.h"

namespace zorcc::gstreamer {

namespace {

constexpr int width = 352, height = 288;

const std::string i420 = sized("I420", width, height, "colorimetry=bt601");

// A frame of the clip of a bird.
Buffer frameOfClip()
{
    std::ifstream file(ZORCC_PICTURES "/cockatoo_352x288_10f_420.y4m", std::ios::binary);
    std::string line;
    std::getline(file, line); // of the file
    std::getline(file, line); // of the frame
    std::vector<char> samples(infoOf(i420).size);
    if (!file.read(samples.data(), static_cast<std::streamsize>(samples.size()))) return {};
    return Buffer(gst_buffer_new_memdup(samples.data(), samples.size()));
}

Buffer drawnFrame(const std::string& caps)
{
    GstHarness* const source = gst_harness_new_parse("videotestsrc pattern=smpte num-buffers=1");
    gst_harness_set_sink_caps_str(source, caps.c_str());
    gst_harness_play(source);
    Buffer frame(gst_harness_pull(source));
    gst_harness_teardown(source);
    return frame;
}

Buffer converted(const char* element, const std::string& from, const std::string& to, const Buffer& input)
{
    Harness harness(element);
    harness.setCaps(from, to);
    return harness.convert(input);
}

// From all formats to all others. Where chroma is shared otherwise than before, videoconvert interpolates it; here it
// is repeated, or the mean: on photographs 39 dB, at the sharp edges of a drawn picture 25 dB. videoconvert is left the
// grey ones, whose range it leaves as it is where luma has the same matrix, and dithers fields of 16 bits.
void compare(const Buffer& picture, double leastPsnr, double leastPsnrOfSharedChroma)
{
    const char* const formats[] = {"I420", "NV12", "YUY2", "UYVY", "Y42B", "Y444", "Y41B", "RGB", "BGRx", "GBR"};
    for (const char* const colour : {"bt601", "bt709", "1:3:5:1"})
        for (const char* const one : formats)
            for (const char* const other : formats) {
                std::string caps[2];
                for (const bool isTarget : {false, true}) {
                    const char* const format = isTarget ? other : one;
                    const bool isYuv =
                        GST_VIDEO_FORMAT_INFO_IS_YUV(gst_video_format_get_info(gst_video_format_from_string(format)));
                    caps[isTarget] =
                        sized(format, width, height, isYuv ? std::string("colorimetry=") + colour : "colorimetry=sRGB");
                }
                const GstVideoInfo from = infoOf(caps[0]), to = infoOf(caps[1]);
                if (one == other || !connects(*kindOf(from), *kindOf(to))) continue;
                const Buffer input = converted("videoconvert", i420, caps[0], picture);
                const Buffer ours = converted("zorconvert", caps[0], caps[1], input);
                const Buffer theirs = converted("videoconvert", caps[0], caps[1], input);
                ASSERT_TRUE(ours && theirs) << caps[0] << " to " << caps[1];
                const bool sharesAlike =
                    from.finfo->w_sub[1] == to.finfo->w_sub[1] && from.finfo->h_sub[1] == to.finfo->h_sub[1];
                const char* const name = knownFormats[indexOf(GST_VIDEO_INFO_FORMAT(&to))].name;
                const double found = psnr(to, name, ours, theirs);
                EXPECT_GE(found, sharesAlike ? leastPsnr : leastPsnrOfSharedChroma) << caps[0] << " to " << caps[1];
            }
}

} // namespace

TEST(GstPeers, ClipIsNearlyThatOfVideoconvert)
{
    const Buffer frame = frameOfClip();
    if (!frame) GTEST_SKIP() << "the clip is not there";
    compare(frame, 40, 38);
}

TEST(GstPeers, DrawnPictureIsNearlyThatOfVideoconvert) { compare(drawnFrame(i420), 40, 24); }

} // namespace zorcc::gstreamer
