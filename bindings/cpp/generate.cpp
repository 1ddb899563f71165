// SPDX-License-Identifier: MIT
// Writes what is generated of the C++ headers, from the table of functions. It calls none of them and links nothing:
//
//     generate overloads zorcc.hpp.in     zorcc.hpp
//     generate statuses HEADER...         zorcc/statuses.hpp, from the enumerations of these headers
//     generate names                      ZOR_NAMED(function, name in C++, arguments) for each function, for tests
#include <algorithm>
#include <cctype>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "interface/names.h"

namespace {

using namespace zorcc::interface;
using std::string;
using std::string_view;

struct Row {
    string_view text, arguments;
    bool isFamily;
};

constexpr Row rows[] = {
#define ZOR_FAMILY(title) {title, "", true},
#define ZOR_FUNCTION(function, ...) {#function, #__VA_ARGS__, false},
#include "interface/functions.def"
#undef ZOR_FAMILY
#undef ZOR_FUNCTION
};

// Of zoriRGBToYCbCr420_709CSC_8u_C3P3R, for one, rgbToYCbCr420_709CSC: without samples and layouts, the first word in
// small letters.
string nameInCpp(string_view function)
{
    constexpr string_view prefix = "zori";
    const std::size_t layouts = function.rfind('_'), samples = function.rfind('_', layouts - 1);
    string name(function.substr(prefix.size(), samples - prefix.size()));
    if (name.ends_with("32f")) name.resize(name.size() - 3); // of a colour twist: its matrix, which is always of floats
    const auto capitals = std::find_if_not(name.begin(), name.end(), [](unsigned char c) { return std::isupper(c); });
    const bool wordFollows = capitals != name.end() && std::islower(static_cast<unsigned char>(*capitals));
    const auto end = wordFollows && capitals - name.begin() > 1 ? capitals - 1 : capitals;
    std::transform(name.begin(), end, name.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return name;
}

string typeOf(Sample sample)
{
    constexpr string_view types[] = {"uint8_t", "int8_t", "uint16_t", "int16_t", "int32_t", "float"};
    return string(types[static_cast<int>(sample)]);
}

string viewOf(const Name& name, const Name::Side& side, bool isSource)
{
    const Shape s = shapeOf(name, side);
    const string type = (isSource ? "const " : "") + typeOf(s.sample);
    const string chroma = std::to_string(s.log2X) + ", " + std::to_string(s.log2Y);
    switch (s.layout) {
    case Layout::packedBits:
        return "Packed16<" + type + ">";
    case Layout::packed422:
        return "Packed422<" + type + ">";
    case Layout::semiPlanar:
        return "SemiPlanar<" + type + ", " + chroma + ">";
    case Layout::planar:
        return "Planar<" + type + ", " + std::to_string(s.channels) + (s.log2X ? ", " + chroma + ">" : ">");
    case Layout::interleaved:
        break;
    }
    if (side.layout == "AC4") return "InterleavedAlpha<" + type + ">";
    return "Interleaved<" + type + ", " + std::to_string(s.channels) + ">";
}

struct Argument {
    string_view word; // of the table
    string parameter, passed;
};

std::vector<Argument> argumentsOf(const Row& row, const Name& name)
{
    const string rowsOfTwist = name.source.layout == "C4" ? "4" : "3";
    const Argument known[] = {
        {"alpha", typeOf(sampleOf(name.destination)) + " alpha", "alpha"},
        {"slice", "int slice", "slice"},
        {"noise", "int noise", "noise"},
        {"method", "ZorDitherMethod method", "method"},
        {"levels", "int levels", "levels"},
        {"grid", "ZorBayerGrid grid", "grid"},
        {"interpolation", "", "0"}, // ignored
        {"scratch", "", ""},
        {"scratchStep", "", ""},
        {"twist", "Twist<" + rowsOfTwist + "> twist", "twist.rows"},
        {"weights", "Weights weights", "weights.values"},
        {"vMin", "float vMin", "vMin"},
        {"vMax", "float vMax", "vMax"},
    };
    std::vector<Argument> arguments;
    for (string_view rest = row.arguments; !rest.empty();) {
        const std::size_t end = std::min(rest.find(','), rest.size());
        const string_view word = rest.substr(0, end);
        const auto found = std::ranges::find(known, word, &Argument::word);
        if (found == std::end(known)) throw std::invalid_argument("unknown argument " + string(word));
        arguments.push_back(*found);
        rest.remove_prefix(std::min(end + 2, rest.size()));
    }
    return arguments;
}

// One overload: what it is given before the arguments, and what it calls with what.
void writeOverload(const Row& row, string parameters, const string& call, string passed,
                   const std::vector<Argument>& arguments)
{
    for (const Argument& a : arguments) {
        if (!a.parameter.empty()) parameters += ", " + a.parameter;
        if (!a.passed.empty()) passed += ", " + a.passed;
    }
    std::cout << "template <class E = Throw>\ndetail::Result<E> " << nameInCpp(row.text) << '(' << parameters
              << ",\n    E&& errors = {}) noexcept(detail::quiet<E>)\n{\n    return detail::" << call << '<' << row.text
              << ">(errors, \"" << row.text << "\", " << passed << ");\n}\n";
}

void writeOverloads(const Row& row)
{
    const Name name = parse(row.text);
    std::vector<Argument> arguments = argumentsOf(row, name);
    const string src = viewOf(name, name.source, true) + " src", dst = viewOf(name, name.destination, false) + " dst";
    if (isMosaic(name.source)) {
        const bool takesScratch = row.arguments.find("scratch") != string_view::npos;
        const string call = takesScratch ? "callMosaicIn" : "callMosaic";
        for (bool ofCaller : {false, true}) {
            if (ofCaller && !takesScratch) continue;
            if (ofCaller) arguments.push_back({"", "Scratch scratch", "scratch"});
            writeOverload(row, src + ", " + dst, call, "src, detail::wholeOf(src), dst", arguments);
            writeOverload(row, src + ", ZorRect region, " + dst, call, "src, region, dst", arguments);
        }
    } else if (name.inPlace) {
        writeOverload(row, viewOf(name, name.destination, false) + " image", "callInPlace", "image", arguments);
    } else {
        writeOverload(row, src + ", " + dst + (name.steps ? "" : ", WithoutSteps"),
                      name.steps ? "call" : "callWithoutSteps", "src, dst", arguments);
    }
}

void writeHeader(const string& frame)
{
    std::ifstream in(frame);
    for (string line; std::getline(in, line);) {
        if (line != "@OVERLOADS@") {
            std::cout << line << '\n';
            continue;
        }
        for (const Row& row : rows) {
            if (row.isFamily)
                std::cout << "\n// ---- " << row.text << " ----\n\n";
            else
                writeOverloads(row);
        }
    }
    if (!in.eof()) throw std::runtime_error("cannot read " + frame);
}

void writeStatuses(const std::vector<string>& headers)
{
    std::cout << "// SPDX-License-Identifier: MIT\n// Statuses in words, generated from their declarations.\n"
                 "#ifndef ZORCC_STATUSES_HPP\n#define ZORCC_STATUSES_HPP\n\n#include \"zorcc/types.h\"\n\n"
                 "namespace zorcc {\n\ninline const char* statusText(ZorStatus status) noexcept\n{\n"
                 "    switch (status) {\n";
    for (const string& header : headers) {
        std::ifstream in(header);
        int count = 0;
        for (string line; std::getline(in, line);) { //     zorStatusName = -1, /* text */
            const std::size_t name = line.find_first_not_of(' '), is = line.find(" = "), text = line.find(" /* ");
            if (name == string::npos || !line.substr(name).starts_with("zorStatus") || is == string::npos) continue;
            ++count;
            std::cout << "    case " << std::stoi(line.substr(is + 3)) << ": return \"" << line.substr(name, is - name);
            if (text != string::npos) std::cout << ": " << line.substr(text + 4, line.rfind(" */") - text - 4);
            std::cout << "\";\n";
        }
        if (count == 0) throw std::runtime_error("no statuses in " + header);
    }
    std::cout << "    default: return \"a status that zorcc does not have\";\n    }\n}\n\n} // namespace zorcc\n\n"
                 "#endif\n";
}

void writeNames()
{
    for (const Row& row : rows)
        if (!row.isFamily)
            std::cout << "ZOR_NAMED(" << row.text << ", " << nameInCpp(row.text) << (row.arguments.empty() ? "" : ", ")
                      << row.arguments << ")\n";
}

} // namespace

int main(int count, char** words)
try {
    const std::vector<string> files(words + std::min(count, 2), words + count);
    const string what = count > 1 ? words[1] : "";
    if (what == "overloads" && files.size() == 1)
        writeHeader(files[0]);
    else if (what == "statuses")
        writeStatuses(files);
    else if (what == "names")
        writeNames();
    else
        throw std::invalid_argument("generate overloads FILE | statuses FILE... | names");
    std::cout.flush();
    return std::cout ? 0 : 1;
} catch (const std::exception& error) {
    std::cerr << "generate: " << error.what() << '\n';
    return 1;
}
