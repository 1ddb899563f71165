// SPDX-License-Identifier: MIT
// The options of all commands, and how they are added to a parser.
#pragma once

#include <functional>

#include <CLI/CLI.hpp>

#include "commands.h"

namespace zorcc::tool {

class Commands {
public:
    explicit Commands(CLI::App& app) : parser(app) {}
    void addAll(); // they take on how the parser is set then

    const std::function<void()>& chosen() const { return chosenCommand; }
    std::vector<std::string> names() const;

private:
    void addConvert();
    void addCall();
    void addReduce();
    void addColours(); // twist, gamma, grey, tonemap
    void addDemosaic();
    void addPictures(); // chart, compare, sheet
    void addList();

    // A command, which does `run` with its options.
    template <class Options>
    CLI::App* add(const char* name, const char* help, Options& options, void (*run)(const Options&))
    {
        CLI::App* const added = parser.add_subcommand(name, help);
        added->callback([this, &options, run] { chosenCommand = [&options, run] { run(options); }; });
        return added;
    }

    CLI::App& parser;
    std::function<void()> chosenCommand;

    ListOptions listing;
    CallOptions calling;
    ConvertOptions converting;
    ReduceOptions reducing;
    DemosaicOptions demosaicing;
    TwistOptions twisting;
    GammaOptions correcting;
    GreyOptions greying;
    TonemapOptions mapping;
    ChartOptions drawing;
    CompareOptions comparing;
    SheetOptions laying;
};

} // namespace zorcc::tool
