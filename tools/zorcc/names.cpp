// SPDX-License-Identifier: MIT
#include "names.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

namespace zorcc::tool {

namespace {

// Letters to insert, to remove or to replace (Levenshtein's distance).
std::size_t distance(const std::string& a, const std::string& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i] != b[j]);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

} // namespace

std::string inSmallLetters(std::string text)
{
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

std::string joined(const std::vector<std::string>& names, const std::string& separator)
{
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : separator) + name;
    return text;
}

std::string nearest(const std::string& name, const std::vector<std::string>& known)
{
    constexpr std::size_t most = 3, longest = 200; // no name is that long
    const std::string wanted = inSmallLetters(name.substr(0, longest));
    const std::size_t limit = 1 + wanted.size() / 3; // letters that may be wrong
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const std::string& candidate : known) {
        const std::string small = inSmallLetters(candidate);
        const std::size_t letters = small.find(wanted) != small.npos ? 1 : distance(wanted, small);
        if (letters <= limit && !wanted.empty()) near.emplace_back(letters, candidate);
    }
    std::sort(near.begin(), near.end());
    if (near.empty()) return "";
    near.resize(std::min(near.size(), most));
    std::string text;
    for (std::size_t i = 0; i < near.size(); ++i)
        text += (i == 0 ? "" : i + 1 < near.size() ? ", " : " or ") + near[i].second;
    return "; did you mean " + text + "?";
}

} // namespace zorcc::tool
