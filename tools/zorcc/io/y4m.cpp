// SPDX-License-Identifier: MIT
#include "y4m.h"

#include <charconv>
#include <sstream>

#include "../error.h"
#include "../formats.h"
#include "planes.h"
#include "reader.h"

namespace zorcc::tool {

namespace {

constexpr std::size_t longestLine = 4096;

const Format& formatOfTag(const std::string& tag)
{
    // The 4:2:0 kinds differ in where chroma samples lie, which makes no difference to conversions that repeat chroma.
    for (const char* name : {"420", "420jpeg", "420mpeg2", "420paldv"})
        if (tag == name) return *formatNamed("yuv420p").format;
    if (tag == "422") return *formatNamed("yuv422p").format;
    if (tag == "444") return *formatNamed("yuv444p").format;
    if (tag == "411") return *formatNamed("yuv411p").format;
    throw Cause("colour space " + quoted(tag) + " is not supported (420, 411, 422 and 444 with 8 bits are)");
}

int side(const std::string& digits)
{
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || *end != 0 || value < 1) throw Cause(quoted(digits) + " is no width or height");
    return value;
}

// A rate of frames or the aspect of a pixel: the quotient of two numbers.
std::string quotient(const std::string& text, const char* what)
{
    if (text.empty() || text.find_first_not_of("0123456789:") != text.npos)
        throw Cause(quoted(text) + " is no " + what);
    return text;
}

// Interlacing that differs from frame to frame is left unsaid.
std::string interlacing(const std::string& text) { return text.find_first_not_of("ptb") == text.npos ? text : ""; }

class Y4mReader : public FileReader {
public:
    explicit Y4mReader(InputFile input) : FileReader(std::move(input))
    {
        std::istringstream words(file.readLine(longestLine));
        std::string word;
        words >> word;
        if (word != "YUV4MPEG2") throw Cause("not a Y4M file");
        videoTags.aspect.clear();
        videoTags.interlacing.clear();
        while (words >> word) {
            const std::string value = word.substr(1);
            if (word[0] == 'W')
                visible.width = side(value);
            else if (word[0] == 'H')
                visible.height = side(value);
            else if (word[0] == 'C')
                readSampling(value);
            else if (word[0] == 'F')
                videoTags.frameRate = quotient(value, "frame rate");
            else if (word[0] == 'A')
                videoTags.aspect = quotient(value, "aspect of a pixel");
            else if (word[0] == 'I')
                videoTags.interlacing = interlacing(value);
            else if (word == "XCOLORRANGE=FULL" || word == "XCOLORRANGE=LIMITED")
                colour.range = word.ends_with("FULL") ? zorRangeFull : zorRangeLimited;
        }
        if (visible.width == 0 || visible.height == 0) throw Cause("the header lacks width and height");
        size = wholeBlocks(visible, *format);
    }

    bool mayHoldSeveral() const override { return true; }

private:
    void readSampling(const std::string& value)
    {
        format = &formatOfTag(value);
        if (format->log2Y() > 0) videoTags.sampling420 = value;
    }

    std::optional<Pending> read() override
    {
        if (file.atEnd()) return {};
        const std::string line = file.readLine(longestLine); // parameters may follow the word
        if (line.substr(0, line.find(' ')) != "FRAME")
            throw Cause("no FRAME line before picture " + std::to_string(count() + 1));
        return Pending(readPlanes(file, *format, size, visible).takenFor(colour));
    }

    const Format* format = &formatOfTag("420");
    Colour colour; // its range, if the header says it
    ZorSize visible{}, size{};
};

} // namespace

std::unique_ptr<Reader> y4mReader(InputFile file) { return std::make_unique<Y4mReader>(std::move(file)); }

void writeY4mHeader(AtomicFile& file, const Picture& picture, const VideoTags& tags)
{
    const Format& format = picture.format();
    const std::string sampling = format.log2Y() > 0   ? tags.sampling420
                                 : format.log2X() > 1 ? "411"
                                 : format.log2X() > 0 ? "422"
                                                      : "444";
    const auto tag = [](const char* name, const std::string& value) { return value.empty() ? "" : name + value; };
    file.print("YUV4MPEG2 W" + std::to_string(picture.visible().width) + " H" +
               std::to_string(picture.visible().height) + " F" + tags.frameRate + tag(" I", tags.interlacing) +
               tag(" A", tags.aspect) + " C" + sampling + " XCOLORRANGE=" +
               (picture.colour().range == zorRangeFull ? "FULL" : "LIMITED") + "\n"); // limited as players take it
}

void writeY4mFrame(AtomicFile& file, const Picture& picture)
{
    file.print("FRAME\n");
    writePlanes(file, picture);
}

} // namespace zorcc::tool
