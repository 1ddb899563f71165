// SPDX-License-Identifier: MIT
#include <cmath>

#include "bench/peers/peer.h"

namespace zorcc::bench {

namespace {

// The curve by its definition, as one would write it down. `unit` is what stands for 1.
double forward(double v, double unit)
{
    const double x = v / unit;
    return x < 0.018 ? 4.5 * v : (1.099 * std::pow(x, 0.45) - 0.099) * unit;
}

double inverse(double v, double unit)
{
    const double x = v / unit;
    return x < 0.0812 ? v / 4.5 : std::pow((x + 0.099) / 1.099, 1 / 0.45) * unit;
}

template <class Sample, double curve(double, double)> Work prepare(const Job& job)
{
    const auto* const from = static_cast<const Sample*>(job.source.plane[0]);
    auto* const to = static_cast<Sample*>(job.destination.plane[0]);
    const int count = 3 * job.size.width * job.size.height;
    constexpr bool isFloat = std::is_floating_point_v<Sample>;
    return [=] {
        for (int i = 0; i < count; ++i)
            to[i] = static_cast<Sample>(curve(from[i], isFloat ? 1 : 65535) + (isFloat ? 0 : 0.5));
    };
}

} // namespace

Library libM()
{
    return {"",
            {{"zoriGammaFwd_32f_C3R", "C library pow", prepare<float, forward>},
             {"zoriGammaInv_32f_C3R", "C library pow", prepare<float, inverse>},
             {"zoriGammaFwd_16u_C3R", "C library pow", prepare<std::uint16_t, forward>},
             {"zoriGammaInv_16u_C3R", "C library pow", prepare<std::uint16_t, inverse>}}};
}

} // namespace zorcc::bench
