// SPDX-License-Identifier: MIT
// Statuses as errors of C++. Calls that are given a std::error_code& set it and do not throw; without one they throw
// zorcc::Error. Warnings are no errors: both forms return the status, which is then positive.
#ifndef ZORCC_ERRORS_HPP
#define ZORCC_ERRORS_HPP

#include <cstdlib>
#include <string>
#include <system_error>
#include <type_traits>

#include "zorcc/statuses.hpp"
#include "zorcc/types.h"

namespace zorcc {

// Visible, so that errors of several shared libraries in one process have the same category.
class ZOR_VISIBLE StatusCategory final : public std::error_category {
public:
    const char* name() const noexcept override { return "zorcc"; }
    std::string message(int status) const override { return statusText(status); }
    std::error_condition default_error_condition(int status) const noexcept override
    {
        if (status == zorStatusNoMemory) return std::errc::not_enough_memory;
        return std::error_condition(status, *this);
    }
};

ZOR_VISIBLE inline const std::error_category& statusCategory() noexcept
{
    static const StatusCategory category;
    return category;
}

inline std::error_code makeErrorCode(ZorStatus status) noexcept { return {status, statusCategory()}; }

class ZOR_VISIBLE Error : public std::system_error {
public:
    Error(ZorStatus status, const std::string& what) : std::system_error(makeErrorCode(status), what) {}
    ZorStatus status() const noexcept { return code().value(); }
};

// The last parameter of a call where none is given: errors are thrown.
struct Throw {};

namespace detail {

template <class E> inline constexpr bool quiet = std::is_same_v<E, std::error_code&>;

// What a call returns, whose last parameter is an E&&.
template <class E, class Value = ZorStatus>
using Result = std::enable_if_t<quiet<E> || std::is_same_v<E, Throw>, Value>;

// `why`, in an exception, where it is not the function that refuses its arguments.
inline ZorStatus finish(ZorStatus status, const char*, std::error_code& errors, const char* = "") noexcept
{
    errors = makeErrorCode(status < 0 ? status : zorStatusOk);
    return status;
}

inline ZorStatus finish(ZorStatus status, const char* what, const Throw&, const char* why = "")
{
#if defined(__cpp_exceptions)
    if (status < 0) throw Error(status, std::string(what) + why);
#else
    static_cast<void>(what), static_cast<void>(why);
    if (status < 0) std::abort();
#endif
    return status;
}

} // namespace detail

} // namespace zorcc

#endif
