// SPDX-License-Identifier: MIT
#include "command_line.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <limits>

#include "error.h"
#include "messages.h"
#include "names.h"
#include "options.h"
#include "pipeline.h"
#include "simd/tier.h"

namespace zorcc::tool {

namespace {

// The package's version, and which code of the library runs here.
std::string versionText()
{
    const ZorVersion& version = *zorccGetLibVersion();
    const std::string code(version.cpuCode, strnlen(version.cpuCode, sizeof version.cpuCode));
    return std::string("zorcc ") + ZORCC_VERSION + " (" + version.libraryName + ", " + version.versionText + ", " +
           code + ", " + nameOf(bestTier()) + ")\n";
}

// The parser, with what its commands read into.
struct Parser {
    CLI::App app{"Colour conversion of picture and video files with libzorccn8"};
    bool quiet = false, version = false;
    Commands commands{app};

    Parser()
    {
        app.name("zorcc");
        app.add_flag("--version", version, "print the version and what runs on this processor");
        app.add_flag("-q,--quiet", quiet, "no warnings");
        app.add_option_function<int>("--threads", setThreads, "threads to use; one a processor if not given")
            ->type_name("N")
            ->check(CLI::Range(1, INT_MAX));
        app.add_option("--max-pixels", maxPixels, "refuse files with larger pictures")
            ->type_name("N")
            ->check(CLI::Range(std::int64_t{1}, std::numeric_limits<std::int64_t>::max()))
            ->capture_default_str();
        app.require_subcommand(0, 1); // a missing one is reported below
        app.fallthrough();
        app.footer(R"(zorcc help COMMAND says more.
Example:
  zorcc chart chart.png && zorcc convert chart.png chart.y4m && zorcc convert chart.y4m back.png
  zorcc compare chart.png back.png)");
        commands.addAll();
    }

    // The first word that is no option.
    std::string unknownCommand(const std::vector<std::string>& arguments) const
    {
        for (const std::string& word : arguments)
            if (!word.starts_with('-')) return word;
        return "";
    }

    Request parse(std::vector<std::string> arguments)
    {
        const auto first = std::find_if(arguments.begin(), arguments.end(), [](auto& word) { return word[0] != '-'; });
        if (first != arguments.end() && *first == "help") { // zorcc help X is zorcc X --help
            arguments.erase(first);
            arguments.push_back("--help");
        }
        try {
            app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend())); // which takes them from the back
        } catch (const CLI::CallForHelp&) {
            const auto chosen = app.get_subcommands();
            if (chosen.empty() && !unknownCommand(arguments).empty()) fail(unknownCommand(arguments));
            return {{}, chosen.empty() ? app.help() : chosen[0]->help()};
        } catch (const CLI::ParseError& error) {
            const std::string word = unknownCommand(arguments);
            if (app.get_subcommands().empty() && !word.empty() &&
                error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError))
                fail(word);
            throw UsageError(error.what());
        }
        if (version) return {{}, versionText()};
        if (!commands.chosen()) throw UsageError("which command? zorcc --help shows them");
        if (quiet) beQuiet();
        return {commands.chosen(), ""};
    }

    [[noreturn]] void fail(const std::string& word) const
    {
        throw UsageError("no command " + quoted(word) + nearest(word, commands.names()) + " (zorcc --help shows all)");
    }
};

} // namespace

Request parse(const std::vector<std::string>& arguments)
{
    const auto parser = std::make_shared<Parser>();
    Request request = parser->parse(arguments);
    if (request.command) request.command = [parser, run = request.command] { run(); };
    return request;
}

} // namespace zorcc::tool
