// The companion's arguments. `orrery --help` tells what it does.
#include "orrery/Check.h"
#include "orrery/Diff.h"
#include "orrery/Documents.h"
#include "orrery/Output.h"
#include "orrery/Run.h"
#include "orrery/ShowEvents.h"
#include "orrery/ShowTemplate.h"
#include "orrery/Stream.h"
#include "orrery/Suggest.h"
#include "orrery/Tables.h"

#include "Commands.h"
#include "events/EventMap.h"
#include "events/TypedText.h"

#include <CLI/CLI.hpp>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <iostream>
#include <memory>
#include <unistd.h>

namespace {

using namespace orrery::tool;

// A file or, without a name or with "-", standard input. False when it can't be read.
bool ReadAll(const std::string& name, std::string& text) {
    const auto close = [](std::FILE* file) {
        if (file != stdin) std::fclose(file);
    };
    const bool isInput = name.empty() || name == "-";
    const std::unique_ptr<std::FILE, decltype(close)> file(isInput ? stdin : std::fopen(name.c_str(), "rb"), close);
    char chunk[1 << 16];
    std::size_t got = 0;
    while (file != nullptr && (got = std::fread(chunk, 1, sizeof chunk, file.get())) > 0)
        text.append(chunk, got);
    if (file != nullptr && std::ferror(file.get()) == 0) return true;
    std::fprintf(stderr, "orrery: can't read %s: %s\n", isInput ? "standard input" : name.c_str(),
                 std::strerror(errno));
    return false;
}

int Show(const Result& result) {
    const bool written =
        std::fwrite(result.out.data(), 1, result.out.size(), stdout) == result.out.size() && std::fflush(stdout) == 0;
    std::fputs(result.err.c_str(), stderr);
    if (written) return result.exit;
    std::fprintf(stderr, "orrery: can't write: %s\n", std::strerror(errno));
    return kRefused;
}

Result DescribeOrSuggest(const std::string& name) {
    if (const auto text = Describe(name)) return {kDone, *text, {}};
    const Tables tables;
    std::vector<std::string_view> names = tables.Records();
    for (const orrery::Command& command : orrery::Commands())
        names.push_back(command.name);
    for (const orrery::events::EventRow& event : orrery::events::Events())
        names.push_back(event.name);
    for (const orrery::events::TypedRow& typed : orrery::events::TypedRows())
        names.push_back(typed.name);
    return {kRefused,
            {},
            "orrery: no command, event or record " + Printable(Quoted(name)) + DidYouMean(name, names) + "\n"};
}

} // namespace

int main(int argc, char** argv) {
    CLI::App app{
        "Shows the replies of network-video devices as records, and turns records into their text.\n"
        "Exit status: 0 done, 1 refused (standard error tells why), 2 wrong arguments, 3 not all of a text went "
        "through ('check', --strict).",
        "orrery"};
    app.set_version_flag("--version", "orrery " ORRERY_VERSION);
    app.require_subcommand(1);

    std::string name;
    std::string file;
    std::string startFile;
    ParseOptions parseOptions;
    PackOptions packOptions;
    CheckOptions checkOptions;
    bool warns = isatty(STDERR_FILENO) == 1;
    bool strict = false;
    std::vector<std::string> files;
    TemplateOptions templateOptions;
    StreamOptions streamOptions;
    EventOptions& eventOptions = streamOptions.events;
    std::function<int()> run;

    CLI::App* const parse = app.add_subcommand("parse", "Print a device's reply as a record, in JSON by field names");
    parse->add_option("COMMAND", name, "Name of a configuration or a method ('orrery commands')")->required();
    parse->add_option("FILE", file, "The reply; standard input by default");
    auto* const records =
        parse->add_option("--records", parseOptions.records, "Room for so many records (as many as the reply holds)");
    parse->add_option("--bytes", parseOptions.bytes, "A buffer of exactly so many bytes")->excludes(records);
    parse->add_flag("--all", parseOptions.all, "Print lists whole, also what is not in use");
    parse->add_flag("--brief", parseOptions.brief, "Print what the reply told, and not the zeros around it");
    parse->add_flag("--pack", parseOptions.pack, "Print also the text that packing the record gives");
    parse->add_option("--start", startFile, "Record that the buffer holds before, for commands that look at it");
    parse->add_flag("--warn,!--no-warn", warns, "Tell what of the reply is passed over (on by default on a terminal)");
    parse->add_flag("--strict", strict, "The same, and exit with 3 when there is anything to tell");
    parse->callback([&] {
        run = [&]() -> int {
            std::string text;
            std::string start;
            if (!ReadAll(file, text) || (!startFile.empty() && !ReadAll(startFile, start))) return kUsage;
            parseOptions.start = start;
            Result result = ParseText(name, text, parseOptions);
            if ((warns || strict) && result.exit == kDone) {
                checkOptions.records = parseOptions.records;
                const Result found = CheckText(name, file.empty() || file == "-" ? "-" : file, text, checkOptions);
                result.err += found.out;
                if (strict && found.exit != kDone) result.exit = found.exit;
            }
            return Show(result);
        };
    });

    CLI::App* const pack = app.add_subcommand("pack", "Turn what 'parse' prints into the device's text");
    pack->add_option("COMMAND", name, "Name of a configuration ('orrery commands')")->required();
    pack->add_option("FILE", file, "The record or a list of records, in JSON; standard input by default");
    pack->add_option("--capacity", packOptions.capacity, "A text buffer of so many bytes (as much as it takes)");
    pack->add_flag("--warn,!--no-warn", warns, "Tell what of the records writes nothing (on by default on a terminal)");
    pack->add_flag("--strict", strict, "The same, and exit with 3 when there is anything to tell");
    pack->callback([&] {
        run = [&]() -> int {
            std::string text;
            if (!ReadAll(file, text)) return kUsage;
            packOptions.warn = warns;
            packOptions.strict = strict;
            return Show(PackText(name, text, packOptions));
        };
    });

    CLI::App* const check = app.add_subcommand(
        "check", "Tell what of a device's replies is passed over or refused, a line a finding\n"
                 "orrery check [COMMAND | events] FILE...: without a name, as the command that fits each text best");
    check->add_option("FILES", files, "The name, if any, and the replies; standard input by default");
    check->add_flag("--json", checkOptions.json, "An object a line, for programs");
    check->add_option("--records", checkOptions.records, "Room for so many records (as many as the reply holds)");
    check->callback([&] {
        run = [&]() -> int {
            if (!files.empty() && IsChecked(files.front())) {
                name = files.front();
                files.erase(files.begin());
            }
            if (files.empty()) files.emplace_back("-");
            int exit = kDone;
            for (const std::string& each : files) {
                std::string text;
                if (!ReadAll(each, text)) {
                    exit = kUsage;
                    continue;
                }
                const int shown = Show(CheckText(name, each, text, checkOptions));
                if (exit == kDone || (exit == kFound && shown != kDone)) exit = shown;
            }
            return exit;
        };
    });

    CLI::App* const events = app.add_subcommand(
        "events", "Print the analyzer events of a text, and what else its keys tell, as records, in JSON, a line each");
    events->add_option("FILES", files, "Texts, one a line or one behind the other; standard input by default");
    events->add_flag("--pretty", eventOptions.pretty, "Print each event over several lines");
    events->add_flag("--all", eventOptions.all, "Print lists whole, also what is not in use");
    events->add_flag("--brief", eventOptions.brief, "Print what the text told, and not the zeros around it");
    events
        ->add_option("--fields", eventOptions.fields,
                     "Print these members of the records only: nEventID,stuObject.nObjectID")
        ->delimiter(',')
        ->allow_extra_args(false);
    events->add_flag("--follow", streamOptions.follow, "Go on when a file grows, until the program is ended");
    events->callback([&] {
        run = [&]() -> int {
            if (files.empty()) files.emplace_back("-");
            return StreamEvents(files, streamOptions);
        };
    });

    CLI::App* const diff = app.add_subcommand(
        "diff", "Tell in which members the records of two replies differ, and which of these no device would notice");
    diff->add_option("COMMAND", name, "Name of a configuration or a method")->required();
    diff->add_option("A", file, "The one reply")->required();
    diff->add_option("B", startFile, "The other")->required();
    diff->callback([&] {
        run = [&]() -> int {
            std::string left;
            std::string right;
            if (!ReadAll(file, left) || !ReadAll(startFile, right)) return kUsage;
            return Show(DiffTexts(name, left, right));
        };
    });

    CLI::App* const templates =
        app.add_subcommand("template", "Print a reply with a template of analysis settings as a record, in JSON");
    templates->add_option("COMMAND", name, "VideoInAnalyse.getTemplateGlobal, ...Module or ...Rule")->required();
    templates->add_option("FILE", file, "The reply; standard input by default");
    templates->add_option("--class", templateOptions.ruleClass, "Class of the rules, such as Normal or Traffic");
    templates->add_flag("--all", templateOptions.all, "Print lists whole, also what is not in use");
    templates->callback([&] {
        run = [&]() -> int {
            std::string text;
            if (!ReadAll(file, text)) return kUsage;
            return Show(ShowTemplate(name, text, templateOptions));
        };
    });

    app.add_subcommand("commands", "List all commands")->callback([&] {
        run = [] { return Show({kDone, CommandList(), {}}); };
    });
    CLI::App* const describe = app.add_subcommand("describe", "Show the record of a command or an event, or a record");
    describe->add_option("NAME", name, "Name of a command, an event or a record")->required();
    describe->callback([&] { run = [&] { return Show(DescribeOrSuggest(name)); }; });
    CLI::App* const schema =
        app.add_subcommand("schema", "Print all commands, records, rules, events and codes as one JSON document");
    schema->add_option("--json-schema", name, "Print a JSON Schema of the text of this command instead");
    schema->callback([&] {
        run = [&] {
            if (name.empty()) return Show({kDone, Schema(), {}});
            if (const auto text = JsonSchema(name)) return Show({kDone, *text, {}});
            std::vector<std::string_view> names;
            for (const orrery::Command& command : orrery::Commands())
                names.push_back(command.name);
            return Show(
                {kRefused, {}, "orrery: no command " + Printable(Quoted(name)) + DidYouMean(name, names) + "\n"});
        };
    });
    app.add_subcommand("layout", "Print all record tables as plain text, a line a row")->callback([&] {
        run = [] { return Show({kDone, Layout(), {}}); };
    });

    try {
        app.parse(argc, argv);
        return run();
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? kDone : kUsage;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "orrery: %s\n", error.what());
        return kRefused;
    }
}
