// SPDX-License-Identifier: MIT
// All picture formats: those that the functions of the table take and give, each layout once whatever its matrix, and
// further layouts of the outside world that samples can be moved to.
#pragma once

#include <optional>
#include <string_view>

#include "convert/colours.h"
#include "convert/text.h"
#include "interface/functions.h"

namespace zorcc::conversion {

using interface::Format;
using interface::Function;
using interface::Layout;
using interface::Sample;

// Where the samples of a channel lie in a row.
struct Place {
    int plane;
    int offset, stride; // bytes
    int log2X, log2Y;   // (1 << log2X) columns and (1 << log2Y) rows share a sample
};

// Not for packed bits.
Place placeOf(const Format& format, char letter);

inline bool hasChannel(const Format& format, char letter)
{
    return format.channels.find(letter) != std::string_view::npos;
}
inline bool hasAlpha(const Format& format) { return hasChannel(format, 'A'); }
inline bool isPackedBits(const Format& format) { return format.layout == Layout::packedBits; }
inline bool isYcc(const Format& format) { return format.model == Model::anyYcc; }

// Of a sample; of packed bits the fewest of a field.
int bitsOf(const Format& format);

// Bytes of a row of plane p and its rows, with the samples that columns and rows beyond whole groups have.
std::size_t bytesOfRow(const Format& format, int p, int width);
int rowsOf(const Format& format, int p, int height);

// A name of a picture's format, which may also say its matrix and range.
struct NamedFormat {
    int index = -1; // -1: unknown
    NamedMatrix matrix = {};
    ZorRange range = zorRangeDefault;
};

class Catalogue {
public:
    static constexpr int maxFormats = 192;

    Catalogue();

    int count() const { return formatCount; }
    const Format& operator[](int index) const { return formats[index]; }
    // As C text.
    const char* name(int index) const { return names[index].chars(); }

    NamedFormat find(std::string_view name) const;
    // The name, of a format or an alias, that is most like this one.
    std::string_view nearest(std::string_view name) const;

    // Of the function's images, by its index in the table.
    int source(std::size_t function) const { return ofFunction[function][0]; }
    int destination(std::size_t function) const { return ofFunction[function][1]; }

private:
    static constexpr int maxFunctions = 1024;

    Format formats[maxFormats] = {};
    TextOf<24> names[maxFormats];
    int formatCount = 0;
    short ofFunction[maxFunctions][2] = {};

    int indexOf(const Format& format);
    int named(std::string_view name) const;
};

extern const Catalogue catalogue;

} // namespace zorcc::conversion
