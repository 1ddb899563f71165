// SPDX-License-Identifier: MIT
// The shortest chain of functions and moves from one picture to another.
#pragma once

#include "convert/catalogue.h"

namespace zorcc::conversion {

// A picture without its size. The colour counts for formats with luma and chroma alone.
struct Picture {
    int format = -1; // in the catalogue
    Colour colour = {};

    const Format& layout() const { return catalogue[format]; }
};

// What the options leave to functions.
struct Choice {
    bool truncates = false;     // to 8 bits
    bool dithersFields = false; // of packed bits
    bool weighsGrey = false;
};

struct Step {
    const Function* function = nullptr; // null: samples change places
    Picture result;
};

struct Route {
    static constexpr int maxSteps = 12;

    bool exists = false;
    int count = 0;
    Step steps[maxSteps];
    Picture nearest; // where there is no way: the picture most like the one that is wanted, to which there is one
};

Route findRoute(const Picture& from, const Picture& to, const Choice& choice);

// Whether a picture has fewer bits or less chroma than both ends have.
bool isPoorer(const Format& format, const Format& from, const Format& to);

// Whether the rows of the function's result depend on rows further than four from each other.
bool mixesRows(const Function& function);

// Whether it brings samples of more than 8 bits to 8 bits.
bool reducesDepth(const Function& function);

} // namespace zorcc::conversion
