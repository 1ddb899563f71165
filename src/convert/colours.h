// SPDX-License-Identifier: MIT
// Matrices and ranges of luma and chroma, by the names of the outside world.
#pragma once

#include <optional>
#include <string_view>

#include "interface/formats.h"
#include "zorconvert.h"

namespace zorcc::conversion {

using interface::Model;

// A matrix with the models of the functions that have it, in each range; anyYcc where there is none.
struct Matrix {
    std::string_view name;
    Model limited, full;
};

inline constexpr Matrix matrices[] = {
    {"bt601", Model::bt601, Model::anyYcc},      {"bt709", Model::bt709, Model::bt709full},
    {"yuv", Model::anyYcc, Model::yuv},          {"bt2020", Model::anyYcc, Model::anyYcc},
    {"smpte240m", Model::anyYcc, Model::anyYcc}, {"fcc", Model::anyYcc, Model::anyYcc},
};

// Of samples with luma and chroma.
struct Colour {
    const Matrix* matrix;
    ZorRange range; // limited or full

    // anyYcc for samples that no function converts to other colours.
    Model model() const { return range == zorRangeFull ? matrix->full : matrix->limited; }
    std::string_view rangeName() const { return range == zorRangeFull ? "full" : "limited"; }

    bool operator==(const Colour&) const = default;
};

// A matrix by its name or another name of it, which may say the range, too.
struct NamedMatrix {
    const Matrix* matrix = nullptr; // null: unknown
    ZorRange range = zorRangeDefault;
};
NamedMatrix matrixNamed(std::string_view lowerCaseName);

// The known name that is most like this one.
std::string_view nearestMatrix(std::string_view lowerCaseName);

// That of pictures which do not say it.
const Matrix& usualMatrix(int height);

// That of samples which do not say it.
ZorRange usualRange(const Matrix& matrix);

} // namespace zorcc::conversion
