// SPDX-License-Identifier: MIT
// What is chosen where there is a choice, and what is refused.
#include "tests/bindings/gstreamer/frames.h"

namespace zorcc::gstreamer {

TEST(GstNegotiation, NearestFormatAndColourAreChosen)
{
    const struct {
        const char *from, *permitted;
        std::vector<const char*> fields; // that the output has
    } cases[] = {
        // The same wherever that is possible; then what loses least.
        {"format=NV12", "format={RGB,NV12,I420}", {"format=(string)NV12"}},
        {"format=NV12", "format={GRAY8,RGB,I420}", {"format=(string)I420"}},
        {"format=NV12", "format={GRAY8,BGRA,RGB16}", {"format=(string)BGRA"}},
        {"format=YUY2", "format={I420,RGB}", {"format=(string)RGB"}},
        {"format=RGB", "format={GRAY8,RGB15,NV12}", {"format=(string)NV12"}},
        {"format=BGRA", "format={RGB,NV12,ARGB,GRAY8}", {"format=(string)ARGB"}},
        {"format=RGBx", "format={ARGB,BGRx}", {"format=(string)BGRx"}},
        {"format=GRAY8", "format={RGB15,I420,GRAY16_LE}", {"format=(string)GRAY16_LE"}},
        {"format=RGBA64_LE", "format={RGBA,BGRA64_LE,RGB}", {"format=(string)BGRA64_LE"}},
        // Luma and chroma keep their matrix, their range and where chroma lies.
        {"format=I420,colorimetry=bt709,chroma-site=jpeg",
         "format={NV12,RGB}",
         {"format=(string)NV12", "colorimetry=(string)bt709", "chroma-site=(string)jpeg"}},
        {"format=I420,colorimetry=1:3:5:1", "format=YUY2", {"colorimetry=(string)1:3:5:1"}},
        {"format=I420,colorimetry=bt2020", "format={RGB,NV12}", {"format=(string)NV12", "colorimetry=(string)bt2020"}},
        {"format=I420,colorimetry=1:4:7:1", "format={RGB,NV12}", {"format=(string)NV12"}},
        // Curve and primaries are handed on.
        {"format=I420,colorimetry=bt709", "format=RGB", {"colorimetry=(string)1:1:5:1"}},
        {"format=RGB,colorimetry=sRGB", "format=NV12", {"colorimetry=(string)2:4:7:1", "chroma-site=(string)jpeg"}},
        // What is asked for, and of several what there is a way to.
        {"format=I420,colorimetry=bt601", "format=I420,colorimetry=bt709", {"colorimetry=(string)bt709"}},
        {"format=RGB", "format=NV12,colorimetry={bt2020,bt709}", {"colorimetry=(string)bt709"}},
        {"format=RGB", "format=NV12,colorimetry={bt709,1:4:7:1}", {"colorimetry=(string)bt709"}},
        {"format=RGB,height=720", "format=Y444", {"colorimetry=(string)2:4:7:1"}},
    };
    for (const auto& [from, permitted, fields] : cases) {
        const std::string what = std::string(from) + " to " + permitted;
        const std::string height = std::string(from).find("height") == std::string::npos ? ",height=32" : "";
        Harness harness("zorconvert");
        harness.setCaps(rawCaps(std::string(from) + ",width=32" + height), "video/x-raw," + std::string(permitted));
        const std::string output = harness.outputCaps();
        EXPECT_EQ(harness.words(), "") << what;
        for (const char* const field : fields)
            EXPECT_NE(output.find(field), std::string::npos) << what << ": " << output;
        EXPECT_NE(output.find("framerate=(fraction)25/1"), std::string::npos) << what;
        EXPECT_NE(output.find("width=(int)32"), std::string::npos) << what;
    }
}

TEST(GstNegotiation, WhatHasNoExactFunctionIsRefusedInWords)
{
    const struct {
        const char *from, *to, *words;
    } cases[] = {
        {"format=I420,colorimetry=bt2020", "format=RGB", "no conversion comes from bt2020 of limited range"},
        {"format=I420,colorimetry=1:4:7:1", "format=RGB", "no conversion comes from bt601 of full range"},
        {"format=RGB", "format=NV12,colorimetry=bt2020", "no conversion leads to bt2020 of limited range"},
        {"format=I420,colorimetry=bt601", "format=I420,colorimetry=1:4:7:1", "leads to bt601 of full range"},
        {"format=RGB", "format=Y444,colorimetry=bt709", "no conversion leads from rgb24 to yuv444p (bt709"},
        {"format=RGB,colorimetry=2:1:7:1", "format=NV12", "no conversion comes from RGB of colorimetry 2:1:7:1"},
    };
    for (const auto& [from, to, words] : cases) {
        Harness harness("zorconvert");
        const std::string input = rawCaps(std::string(from) + ",width=32,height=32");
        harness.setCaps(input, rawCaps(std::string(to) + ",width=32,height=32"));
        EXPECT_FALSE(harness.convert(randomBuffer(infoOf(input)))) << from << " to " << to;
        const std::string found = harness.words();
        EXPECT_NE(found.find(words), std::string::npos) << from << " to " << to << ": " << found;
    }
}

TEST(GstNegotiation, AlphaIsNotDroppedWhereThatIsRefused)
{
    const struct {
        const char *from, *permitted, *chosen; // null: refused
    } cases[] = {{"RGBA", "{RGB,A420}", "A420"},
                 {"RGBA", "{RGB,BGRx}", nullptr},
                 {"RGBx", "RGB", "RGB"},
                 {"RGB", "BGRA", "BGRA"}};
    for (const auto& [from, permitted, chosen] : cases) {
        Harness harness("zorconvert alpha=refuse");
        harness.setCaps(sized(from, 32, 32), rawCaps(std::string("format=") + permitted));
        const Buffer output = harness.convert(randomBuffer(infoOf(sized(from, 32, 32))));
        ASSERT_EQ(output != nullptr, chosen != nullptr) << from << " to " << permitted;
        const std::string field = std::string("format=(string)") + (chosen ? chosen : "");
        EXPECT_EQ(harness.outputCaps().find(field) != std::string::npos, chosen != nullptr) << harness.outputCaps();
    }
}

// Whatever else the pads are asked.
TEST(GstNegotiation, PadsOfferEveryFormatOfTheTemplate)
{
    Harness harness("zorconvert");
    const auto padCaps = [&](const char* name) {
        GstPad* const pad = gst_element_get_static_pad(harness.element(), name);
        const Caps all(gst_pad_get_pad_template_caps(pad));
        Caps found(gst_pad_query_caps(pad, nullptr));
        gst_object_unref(pad);
        EXPECT_TRUE(gst_caps_is_subset(all.get(), found.get())) << name;
    };
    padCaps("sink");
    padCaps("src");
}

} // namespace zorcc::gstreamer
