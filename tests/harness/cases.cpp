// SPDX-License-Identifier: MIT
#include "tests/harness/cases.h"

#include <fnmatch.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace zorcc::test {

using reference::Case;

namespace {

std::vector<Case> casesOf(const Family& family)
{
    std::vector<Case> cases;
    std::vector<bool> used(family.rules.size());
    for (const interface::Function& function : interface::functions()) {
        if (function.family != family.title) continue;
        const auto fits = [&](const Case& rule) {
            return fnmatch(std::string(rule.name).c_str(), std::string(function.name).c_str(), 0) == 0;
        };
        const auto rule = std::find_if(family.rules.begin(), family.rules.end(), fits);
        if (rule == family.rules.end()) throw std::logic_error("no rule for " + std::string(function.name));
        used[static_cast<std::size_t>(rule - family.rules.begin())] = true;
        cases.push_back(*rule);
        cases.back().name = function.name;
    }
    for (std::size_t i = 0; i < used.size(); ++i)
        if (!used[i]) throw std::logic_error("no function for the rule " + std::string(family.rules[i].name));
    return cases;
}

} // namespace

std::span<const Case> familyCases()
{
    static const std::vector<Case> cases = casesOf(family());
    return cases;
}

const interface::Function& functionOf(const Case& c) { return *interface::findFunction(c.name); }

} // namespace zorcc::test
