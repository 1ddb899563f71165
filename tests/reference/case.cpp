// SPDX-License-Identifier: MIT
#include "tests/reference/case.h"

namespace zorcc::reference {

using interface::Alpha;

void convert(const Case& c, const interface::Function& function, const interface::Image& source,
             const interface::Image& destination, ZorSize size, const interface::Extra& extra)
{
    const ZorSize used = usedSize(c, size);
    if (used.width == 0 || used.height == 0) return;
    if (c.imageReference) return c.imageReference(function, source, destination, used, extra);
    const Pixels from(*function.source, source, used);
    Pixels to(*function.destination, destination, used);
    c.reference(from, to);
    if (function.alpha == Alpha::none || function.alpha == Alpha::keep) return;
    for (int y = 0; y < used.height; ++y)
        for (int x = 0; x < used.width; ++x)
            to.put(alpha, x, y,
                   function.alpha == Alpha::copy       ? from.get(alpha, x, y)
                   : function.alpha == Alpha::argument ? extra.alpha
                                                       : 0);
}

} // namespace zorcc::reference
