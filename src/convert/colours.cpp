// SPDX-License-Identifier: MIT
#include "convert/colours.h"

#include "convert/text.h"

namespace zorcc::conversion {

namespace {

struct Alias {
    std::string_view name;
    const Matrix& matrix;
    ZorRange range = zorRangeDefault;
};

constexpr const Matrix &bt601 = matrices[0], &bt709 = matrices[1], &bt2020 = matrices[3];

constexpr Alias aliases[] = {
    {"smpte170m", bt601}, {"bt470bg", bt601},     {"601", bt601},        {"709", bt709},
    {"bt2020nc", bt2020}, {"bt2020_ncl", bt2020}, {"bt2020ncl", bt2020}, {"bt709full", bt709, zorRangeFull},
};

} // namespace

NamedMatrix matrixNamed(std::string_view lowerCaseName)
{
    for (const Matrix& matrix : matrices)
        if (matrix.name == lowerCaseName) return {&matrix};
    for (const Alias& alias : aliases)
        if (alias.name == lowerCaseName) return {&alias.matrix, alias.range};
    return {};
}

std::string_view nearestMatrix(std::string_view lowerCaseName)
{
    std::string_view nearest = matrices[0].name;
    for (const Matrix& matrix : matrices)
        if (distance(matrix.name, lowerCaseName) < distance(nearest, lowerCaseName)) nearest = matrix.name;
    return nearest;
}

const Matrix& usualMatrix(int height)
{
    constexpr int leastHeightOfHd = 720;
    return height >= leastHeightOfHd ? bt709 : bt601;
}

ZorRange usualRange(const Matrix& matrix)
{
    return matrix.limited == Model::anyYcc && matrix.full != Model::anyYcc ? zorRangeFull : zorRangeLimited;
}

} // namespace zorcc::conversion
