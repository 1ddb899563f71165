// SPDX-License-Identifier: MIT
#include "tests/reference/twist.h"

#include "tests/reference/rounding.h"

namespace zorcc::reference {

void twist(const interface::Function& function, const Pixels& from, Pixels& to, const interface::Extra& extra)
{
    const bool isFloat = from.sample() == interface::Sample::f32;
    const bool ofFour = function.alpha == interface::Alpha::converted;
    eachPixel(from.size(), [&](int x, int y) {
        float c[4] = {};
        for (int j = 0; j < (ofFour ? 4 : 3); ++j) c[j] = from.get<float>(j, x, y);
        for (int k = 0; k < (ofFour ? 4 : 3); ++k) {
            const float* const t = extra.twist[k];
            if (ofFour)
                to.put(k, x, y, t[0] * c[0] + t[1] * c[1] + t[2] * c[2] + t[3] * c[3]);
            else if (isFloat)
                to.put(k, x, y, t[3] + t[0] * c[0] + t[1] * c[1] + t[2] * c[2]);
            else
                putSaturated(to, k, x, y, (t[3] + t[0] * c[0]) + (t[2] * c[2] + t[1] * c[1]));
        }
    });
}

} // namespace zorcc::reference
