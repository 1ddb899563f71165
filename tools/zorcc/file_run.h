// SPDX-License-Identifier: MIT
// One function of the library on all pictures of a file.
#pragma once

#include <functional>
#include <string>

#include "commands.h"
#include "formats.h"
#include "function_run.h"

namespace zorcc::tool {

struct Work {
    const Function& function;
    interface::Extra arguments = opaque;
};

// `choose` says what to do with pictures of a format, on any thread; they are rearranged to what the function takes.
// Alpha that it leaves alone is that of the source. Prints the time if that is asked for.
void runOnFile(const std::string& in, const OutputPath& out, const Timing& timing,
               const std::function<Work(const Format& format)>& choose);

// The sample type of pictures as files hold them, in names of functions: "32f" for floats, "16u" for words, "8u" for
// bytes.
std::string sampleType(const Format& format);

// The function zori<operation>_<sample type>_<layout>R for pictures as files hold them, of three channels, or of four
// where they have alpha. Throws Cause unless they are RGB.
const Function& colourFunction(const std::string& operation, const Format& format, const std::string& result = "");

} // namespace zorcc::tool
