// SPDX-License-Identifier: MIT
// Files as sequences of pictures to read. Failures throw Error with the file's name.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "../picture.h"
#include "input_file.h"

namespace zorcc::tool {

// A picture that has been read, or a file of one that is still to be decoded, on any thread.
class Pending {
public:
    explicit Pending(Picture read) : picture(std::move(read)) {}
    explicit Pending(std::string file) : path(std::move(file)) {}

    Picture get() &&;

private:
    std::optional<Picture> picture;
    std::string path;
};

class Reader {
public:
    explicit Reader(const std::string& path) : name(path) {}
    virtual ~Reader() = default;

    // Nothing after the last picture. There is at least one.
    std::optional<Pending> start();
    std::optional<Picture> next();

    const std::string& path() const { return name; }
    const VideoTags& tags() const { return videoTags; }
    int count() const { return pictures; } // pictures started so far

    virtual bool mayHoldSeveral() const = 0;
    virtual std::optional<double> progress() const = 0; // share of the input read so far

protected:
    virtual std::optional<Pending> read() = 0; // throws Cause

    VideoTags videoTags;

private:
    std::string name;
    int pictures = 0;
};

// A reader of one file.
class FileReader : public Reader {
public:
    explicit FileReader(InputFile input) : Reader(input.name()), file(std::move(input)) {}

    std::optional<double> progress() const override;

protected:
    InputFile file;
};

// How a headerless file lays out the chroma of an odd size.
enum class OddSizes {
    roundUp, // half a width of 5 is 3 samples
    cutOff   // half a width of 5 is 2 samples, as the library's functions lay out images
};

struct Headerless {
    PictureKind kind;
    ZorSize size;
    OddSizes oddSizes;
};

// PNG, JPEG, PNM, PFM or Y4M, whatever the file is named; headerless where `layout` says how. "-" is standard input; a
// name with %d or %03d, where there is no such file, all files of its numbers, from the first of 0 to 4 on.
std::unique_ptr<Reader> openReader(const std::string& path, const std::optional<Headerless>& layout = {});

// The kinds of openReader() that are defined in files of their own.
std::unique_ptr<Reader> headerlessReader(InputFile file, const Headerless& layout);
std::unique_ptr<Reader> y4mReader(InputFile file);

} // namespace zorcc::tool
