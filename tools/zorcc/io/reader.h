// SPDX-License-Identifier: MIT
// Files as sequences of pictures to read. Failures throw Error with the file's name.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "../picture.h"
#include "input_file.h"

namespace zorcc::tool {

class Reader {
public:
    Reader(const std::string& path, InputFile input) : name(path), file(std::move(input)) {}
    virtual ~Reader() = default;

    // Nothing after the last picture. There is at least one.
    std::optional<Picture> next();

    const std::string& path() const { return name; }
    const VideoTags& tags() const { return videoTags; }
    int count() const { return pictures; }  // pictures read so far
    std::optional<double> progress() const; // share of the file read so far

protected:
    virtual std::optional<Picture> read() = 0; // throws Cause

    std::string name;
    InputFile file;
    VideoTags videoTags;

private:
    int pictures = 0;
};

// How a headerless file lays out the chroma of an odd size.
enum class OddSizes {
    roundUp, // half a width of 5 is 3 samples
    cutOff   // half a width of 5 is 2 samples, as the library's functions lay out images
};

struct Headerless {
    const Format* format;
    ZorSize size;
    OddSizes oddSizes;
};

using Matrix = std::optional<interface::Model>; // of luma-chroma pictures, where the user says it

// PNG, JPEG, PNM, PFM or Y4M, whatever the file is named; headerless where `layout` says how. `matrix` is for Y4M.
std::unique_ptr<Reader> openReader(const std::string& path, const std::optional<Headerless>& layout = {},
                                   Matrix matrix = {});

// The two kinds of openReader() that are defined in files of their own.
std::unique_ptr<Reader> headerlessReader(const std::string& path, InputFile file, const Headerless& layout);
std::unique_ptr<Reader> y4mReader(const std::string& path, InputFile file, Matrix matrix);

} // namespace zorcc::tool
