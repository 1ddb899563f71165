// SPDX-License-Identifier: MIT
#include "bench/ranking.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace zorcc::bench {

double Ranking::geomean() const
{
    double logarithms = 0;
    for (const Entry& entry : entries) logarithms += std::log(entry.figure);
    return std::exp(logarithms / static_cast<double>(entries.size()));
}

int Ranking::below(double limit) const
{
    return static_cast<int>(std::ranges::count_if(entries, [=](const Entry& e) { return e.figure < limit; }));
}

void Ranking::print(const std::string& title, double limit, std::size_t count)
{
    if (entries.empty()) return;
    std::ranges::sort(entries, {}, &Entry::figure);
    std::printf("%s: geomean %.2f of %zu, %d below %.2g\n", title.c_str(), geomean(), entries.size(), below(limit),
                limit);
    for (std::size_t i = 0; i < std::min(count, entries.size()); ++i)
        std::printf("  %-54s %6.3g\n", entries[i].name.c_str(), entries[i].figure);
    std::printf("\n");
}

} // namespace zorcc::bench
