// SPDX-License-Identifier: MIT
// A call of any function on random pixels that can be made again, and what it gave the first time.
#pragma once

#include "tests/harness/contents.h"
#include "tests/harness/test_image.h"

namespace zorcc::test {

class PreparedCall {
public:
    // Bit-depth reduction with noise, by `method`.
    PreparedCall(const interface::Function& calledFunction, ZorSize callSize,
                 ZorDitherMethod method = zorDitherMethodStucki)
        : function(calledFunction), size(callSize), images(function, size),
          extra(function.withScratch({.noise = 30, .method = method}, size))
    {
        fill(images.source, Contents::random, 1);
    }

    // Into a destination that always holds the same before.
    ZorStatus operator()()
    {
        prepare();
        return function.bound({images.source.image(), images.destination.image(), size, extra});
    }

    void prepare()
    {
        images.destination.fillPattern(2);
        if (function.signature.inPlace) fill(images.destination, Contents::random, 1);
    }

    void expectThisAgain() { images.destination.copyToShadow(); }
    bool isAsExpected() const { return !images.destination.difference(); }
    bool givesTheSameAgain() { return (*this)() >= 0 && isAsExpected(); }

    const interface::Function& function;

private:
    const ZorSize size;
    Images images;
    const interface::Extra extra; // its scratch memory is that of the thread which made the call
};

} // namespace zorcc::test
