// SPDX-License-Identifier: MIT
// A reference to something callable, for parameters of functions that call it before they return. It owns nothing, and
// making one emits no symbol: row files, which are compiled for several instruction sets, may do so.
#pragma once

namespace zorcc {

template <class Signature> class FunctionRef;

template <class Result, class... Arguments> class FunctionRef<Result(Arguments...)> {
public:
    template <class Callable>
    [[gnu::always_inline]] FunctionRef(const Callable& callable)
        : object(&callable), call([](const void* callee, Arguments... arguments) -> Result {
              return (*static_cast<const Callable*>(callee))(arguments...);
          })
    {
    }

    [[gnu::always_inline]] Result operator()(Arguments... arguments) const { return call(object, arguments...); }

private:
    const void* object;
    Result (*call)(const void*, Arguments...);
};

} // namespace zorcc
