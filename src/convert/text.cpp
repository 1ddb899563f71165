// SPDX-License-Identifier: MIT
#include "convert/text.h"

#include <algorithm>

namespace zorcc::conversion {

int distance(std::string_view a, std::string_view b)
{
    constexpr std::size_t longest = 64;
    a = {a.data(), std::min(a.size(), longest)};
    b = {b.data(), std::min(b.size(), longest)};
    int row[longest + 1]; // from what was read of a to each beginning of b
    for (std::size_t j = 0; j <= b.size(); ++j) row[j] = static_cast<int>(j);
    for (std::size_t i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = static_cast<int>(i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const int exchanged = diagonal + (a[i - 1] != b[j - 1]);
            diagonal = row[j];
            row[j] = std::min({exchanged, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row[b.size()];
}

Name lowerCase(std::string_view text)
{
    Name name;
    for (char c : text) {
        const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        name.add(std::string_view(&lower, 1));
    }
    return name;
}

} // namespace zorcc::conversion
