// SPDX-License-Identifier: MIT
#include "commands.h"
#include "file_run.h"
#include "values.h"

namespace zorcc::tool {

void twist(const TwistOptions& options)
{
    const TwistMatrix matrix = parseTwist("--matrix", options.matrix);
    TwistMatrix scaled[3];
    constexpr float whites[] = {1, 255, 65535};
    for (std::size_t i = 0; i < 3; ++i) {
        scaled[i] = matrix;
        for (auto& row : scaled[i].rows) row[3] *= whites[i];
    }
    runOnFile(options.in, options.out, options.timing, [&](const Format& format) {
        const bool isFloat = format.sample == Sample::f32;
        const TwistMatrix& used = scaled[isFloat ? 0 : format.sample == Sample::u16 ? 2 : 1];
        return Work{colourFunction(isFloat ? "ColorTwist" : "ColorTwist32f", format),
                    {.alpha = 255, .twist = used.rows}};
    });
}

} // namespace zorcc::tool
