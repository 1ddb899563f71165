// SPDX-License-Identifier: MIT
// Figures by name, the worst of which are what one wants to see.
#pragma once

#include <string>
#include <vector>

namespace zorcc::bench {

class Ranking {
public:
    // Figures are ratios, the larger the better.
    void add(std::string name, double figure) { entries.push_back({std::move(name), figure}); }

    double geomean() const;
    int below(double limit) const;

    // A line with the geomean and how many are below the limit, and the worst `count` figures, worst first.
    // Nothing where there are no figures.
    void print(const std::string& title, double limit, std::size_t count);

private:
    struct Entry {
        std::string name;
        double figure;
    };
    std::vector<Entry> entries;
};

} // namespace zorcc::bench
