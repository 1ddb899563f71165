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

using namespace interface::formats;

constexpr std::size_t longestLine = 4096;

const Format& formatOfTag(const std::string& tag)
{
    // The 4:2:0 kinds differ in where chroma samples lie, which makes no difference to conversions that repeat chroma.
    for (const char* name : {"420", "420jpeg", "420mpeg2", "420paldv"})
        if (tag == name) return yuv420p;
    if (tag == "422") return yuv422p;
    if (tag == "444") return yuv444p;
    if (tag == "411") return i411;
    throw Cause("colour space " + quoted(tag) + " is not supported (420, 411, 422 and 444 with 8 bits are)");
}

// The range that a matrix implies.
std::optional<std::string> rangeOf(const Format& format)
{
    using interface::Model;
    if (format.model == Model::bt709full) return "FULL";
    if (format.model == Model::bt601 || format.model == Model::bt709) return "LIMITED";
    return {};
}

int side(const std::string& digits)
{
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || *end != 0 || value < 1) throw Cause(quoted(digits) + " is no width or height");
    return value;
}

std::string checkedRate(const std::string& rate)
{
    if (rate.empty() || rate.find_first_not_of("0123456789:") != rate.npos)
        throw Cause(quoted(rate) + " is no frame rate");
    return rate;
}

class Y4mReader : public Reader {
public:
    Y4mReader(const std::string& path, InputFile input, Matrix matrix) : Reader(path, std::move(input))
    {
        std::istringstream words(file.readLine(longestLine));
        std::string word;
        words >> word;
        if (word != "YUV4MPEG2") throw Cause("not a Y4M file");
        videoTags.range.clear();
        while (words >> word) {
            const std::string value = word.substr(1);
            if (word[0] == 'W')
                visible.width = side(value);
            else if (word[0] == 'H')
                visible.height = side(value);
            else if (word[0] == 'C')
                readSampling(value);
            else if (word[0] == 'F')
                videoTags.frameRate = checkedRate(value);
            else if (word == "XCOLORRANGE=FULL" || word == "XCOLORRANGE=LIMITED")
                videoTags.range = word.substr(12);
        }
        if (visible.width == 0 || visible.height == 0) throw Cause("the header lacks width and height");
        // The header has no field for the matrix; it may give the range, and limited range is usual with BT.601.
        const bool limited = videoTags.range == "LIMITED";
        format = &byMatrix(*format, matrix.value_or(limited ? interface::Model::bt601 : interface::Model::yuv));
        size = wholeBlocks(visible, *format);
    }

private:
    void readSampling(const std::string& value)
    {
        format = &formatOfTag(value);
        if (format == &yuv420p) videoTags.sampling420 = value;
    }

    std::optional<Picture> read() override
    {
        if (file.atEnd()) return {};
        const std::string line = file.readLine(longestLine); // parameters may follow the word
        if (line.substr(0, line.find(' ')) != "FRAME")
            throw Cause("no FRAME line before picture " + std::to_string(count() + 1));
        return readPlanes(file, *format, size, visible);
    }

    const Format* format = &yuv420p;
    ZorSize visible{}, size{};
};

} // namespace

std::unique_ptr<Reader> y4mReader(const std::string& path, InputFile file, Matrix matrix)
{
    return std::make_unique<Y4mReader>(path, std::move(file), matrix);
}

void writeY4mHeader(AtomicFile& file, const Picture& picture, const VideoTags& tags)
{
    const Format& format = picture.format();
    const std::string sampling = format.log2Y() > 0   ? tags.sampling420
                                 : format.log2X() > 1 ? "411"
                                 : format.log2X() > 0 ? "422"
                                                      : "444";
    const std::string range = rangeOf(format).value_or(tags.range);
    file.print("YUV4MPEG2 W" + std::to_string(picture.visible().width) + " H" +
               std::to_string(picture.visible().height) + " F" + tags.frameRate + " Ip A1:1 C" + sampling +
               (range.empty() ? "" : " XCOLORRANGE=" + range) + "\n");
}

void writeY4mFrame(AtomicFile& file, const Picture& picture)
{
    file.print("FRAME\n");
    writePlanes(file, picture);
}

} // namespace zorcc::tool
