#include "orrery/Arguments.h"

#include "orrery/Diagnose.h"
#include "orrery/Diff.h"
#include "orrery/Input.h"
#include "orrery/Output.h"
#include "orrery/Suggest.h"
#include "orrery/System.h"
#include "orrery/Terminal.h"

#include <cstdio>
#include <stdexcept>

namespace orrery::tool {

namespace {

// A text for one call. False when there is none.
bool Read(const std::string& name, std::string& text) {
    std::string note;
    const bool isThere = ReadText(name, text, note);
    std::fputs(note.c_str(), stderr);
    return isThere;
}

} // namespace

Arguments::Arguments()
    : app_("Shows the replies of network-video devices as records, and turns records into their text.\n"
           "Exit status: 0 done, 1 refused (standard error tells why), 2 wrong arguments, 3 not all of a text went "
           "through ('check', --strict).",
           "orrery"),
      warns_(IsTerminal(kErrors)) {
    app_.allow_windows_style_options(false); // a name that begins with a slash is a file's
    app_.set_version_flag("--version", "orrery " ORRERY_VERSION);
    app_.add_option("--color", colour_, "always, never, or auto: on terminals, unless NO_COLOR is set")
        ->check(CLI::IsMember({"auto", "always", "never"}));
    app_.require_subcommand(1);
    app_.fallthrough();
    AddParse();
    AddPack();
    AddCheck();
    AddEvents();
    AddDiff();
    AddTemplate();
    AddCommands();
    AddDescribe();
    AddDocuments();
    AddHidden();
}

int Arguments::Exit(const CLI::ParseError& error) {
    const std::vector<std::string> left = app_.remaining();
    const bool isMisspelt = error.get_name() == "RequiredError" && app_.get_subcommands().empty() && !left.empty()
                            && !left.front().starts_with('-');
    if (!isMisspelt) return app_.exit(error) == 0 ? kDone : kUsage;
    std::vector<std::string_view> names;
    for (const CLI::App* const each :
         app_.get_subcommands([](CLI::App* command) { return !command->get_group().empty(); }))
        names.push_back(each->get_name());
    const std::string& word = left.front();
    app_.exit(CLI::RequiredError("A subcommand is required, and " + Printable(Quoted(word)) + " is none"
                                     + DidYouMean(word, names),
                                 CLI::ExitCodes::RequiredError));
    return kUsage;
}

int Arguments::Run() {
    try {
        return run_();
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "orrery: %s\n", error.what());
        return kUsage;
    }
}

void Arguments::AddShape(CLI::App& command, std::vector<std::string>& fields, const Shape& shape) {
    const std::string where = std::string(" (") + shape.commands + ")";
    command
        .add_option("--format", format_,
                    "jsonl: an object a line; pretty: " + std::string(shape.pretty) + "; csv, table: a row " + shape.row
                        + where)
        ->check(CLI::IsMember({"jsonl", "pretty", "csv", "table"}));
    command.add_option("--fields", fields, "Print these " + std::string(shape.fields) + where)
        ->delimiter(',')
        ->allow_extra_args(false);
    command
        .add_option("--filter", filters_,
                    "Print what passes only: " + std::string(shape.filters) + "; all of several" + where)
        ->allow_extra_args(false);
    command
        .add_option("--jobs", jobs_,
                    "Work on so many texts at a time; their order is kept ('parse', 'check', 'events')")
        ->check(CLI::Range(1, 64));
}

Format Arguments::FormatOf(Format usual) const {
    return isPretty_ || format_ == "pretty" ? Format::Pretty
           : format_ == "csv"               ? Format::Csv
           : format_ == "table"             ? Format::Table
           : format_ == "jsonl"             ? Format::Lines
                                            : usual;
}

std::vector<Filter> Arguments::FiltersGiven() const {
    return {filters_.begin(), filters_.end()};
}

void Arguments::AddParse() {
    ParseOptions& options = parse_.parse;
    CLI::App* const parse = app_.add_subcommand("parse", "Print devices' replies as records, in JSON by field names");
    parse->add_option("COMMAND", name_, "Name of a configuration or a method ('orrery commands')")->required();
    parse->add_option("FILES", files_, "The replies, one a file; standard input by default");
    auto* const records =
        parse->add_option("--records", options.records, "Room for so many records (as many as the reply holds)");
    parse->add_option("--bytes", options.bytes, "A buffer of exactly so many bytes")->excludes(records);
    parse->add_flag("--table", isTable_, "The text is the bare value, without the reply around it");
    parse->add_flag("--all", options.all, "Print lists whole, also what is not in use");
    parse->add_flag("--brief", options.brief, "Print what the reply told, and not the zeros around it");
    AddShape(*parse, options.fields, {"a record, which wants --fields"});
    parse->add_flag("--pack", options.pack, "Print also the text that packing the record gives");
    parse->add_option("--start", startFile_, "Record that the buffer holds before, for commands that look at it");
    parse->add_flag("--warn,!--no-warn", warns_, "Tell what of the reply is passed over (on by default on a terminal)");
    parse->add_flag("--strict", isStrict_, "The same, and exit with 3 when there is anything to tell");
    parse->callback([this] { run_ = [this] { return RunParse(); }; });
}

int Arguments::RunParse() {
    if (files_.empty()) files_.emplace_back("-");
    ParseOptions& options = parse_.parse;
    std::string start;
    if (!startFile_.empty() && !Read(startFile_, start)) return kUsage;
    options.start = start;
    options.table = isTable_;
    options.width = TerminalWidth(kOutput);
    options.format = FormatOf(Format::Pretty);
    options.filters = FiltersGiven();
    const bool isPlain = options.format == Format::Pretty && options.fields.empty() && options.filters.empty();
    if (IsRows(options.format) && options.fields.empty())
        throw std::invalid_argument("--format " + format_ + ": --fields tells which members are columns");
    if (options.pack && !isPlain)
        throw std::invalid_argument("--pack prints records whole: no --format, --fields or --filter goes with it");
    parse_.jobs = jobs_;
    parse_.check.records = options.records;
    parse_.check.table = isTable_;
    parse_.warn = warns_;
    parse_.strict = isStrict_;
    parse_.colour = UsesColour(colour_, kOutput);
    parse_.findingColour = UsesColour(colour_, kErrors);
    return ParseFiles(name_, files_, parse_);
}

void Arguments::AddPack() {
    CLI::App* const pack = app_.add_subcommand("pack", "Turn what 'parse' prints into the device's text");
    pack->add_option("COMMAND", name_, "Name of a configuration ('orrery commands')")->required();
    pack->add_option("FILE", file_, "The record or a list of records, in JSON; standard input by default");
    pack->add_option("--capacity", pack_.capacity, "A text buffer of so many bytes (as much as it takes)");
    pack->add_flag("--request", isRequest_, "Print the whole request that sets it, not its \"table\" alone");
    pack->add_option("--id", request_, "The id of the request (1)");
    pack->add_flag(
        "--warn,!--no-warn", warns_,
        "Tell what of the records writes nothing, and pass over fields that no record has, which are refused "
        "otherwise (on by default on a terminal)");
    pack->add_flag("--strict", isStrict_, "The same, and exit with 3 when there is anything to tell");
    pack->add_flag("--json", pack_.json, "Tell it as an object a line, for programs");
    pack->callback([this] { run_ = [this] { return RunPack(); }; });
}

int Arguments::RunPack() {
    std::string text;
    if (!Read(file_, text)) return kUsage;
    pack_.warn = warns_;
    if (isRequest_) pack_.request = request_;
    pack_.file = file_.empty() ? "-" : file_;
    pack_.strict = isStrict_;
    Result result = PackText(name_, text, pack_);
    if (!pack_.json && UsesColour(colour_, kErrors)) result.err = ColouredFindings(result.err);
    return PrintResult(result);
}

void Arguments::AddCheck() {
    CLI::App* const check = app_.add_subcommand(
        "check", "Tell what of a device's replies is passed over or refused, a line a finding\n"
                 "orrery check [COMMAND | events] FILE...: without a name, as the command that fits each text best");
    check->add_option("FILES", files_, "The name, if any, and the replies; standard input by default");
    check->add_flag("--json", isJson_, "The same as --format jsonl: an object a line, for programs");
    AddShape(*check, check_.fields,
             {"a finding", "a line for people", "members of a finding only: file,line,path,kind,message",
              "gravity=lost, kind=unknown-key, path~Port", "'check'"});
    check->add_flag("--table", isTable_, "The texts are bare values, without the reply around them");
    check->add_option("--records", check_.records, "Room for so many records (as many as the reply holds)");
    check->callback([this] { run_ = [this] { return RunCheck(); }; });
}

int Arguments::RunCheck() {
    if (!files_.empty() && IsChecked(files_.front())) {
        name_ = files_.front();
        files_.erase(files_.begin());
    }
    if (name_.empty() && !files_.empty()) RefuseMisspelt(files_.front());
    if (files_.empty()) files_.emplace_back("-");
    check_.table = isTable_;
    if (isTable_ && (name_.empty() || name_ == "events")) {
        std::fputs("orrery: --table: a bare value tells no command; name the one that it is of\n", stderr);
        return kUsage;
    }
    check_.format = isJson_ ? Format::Lines : FormatOf(Format::Pretty);
    check_.filters = FiltersGiven();
    check_.width = TerminalWidth(kOutput);
    if (check_.format == Format::Pretty && !check_.fields.empty())
        throw std::invalid_argument("--fields: a line for people tells all; name a --format");
    RefuseUnknownMembers(check_);
    const bool isColoured = check_.format == Format::Pretty && UsesColour(colour_, kOutput);
    return CheckFiles(name_, files_, check_, jobs_, isColoured);
}

void Arguments::AddEvents() {
    EventOptions& options = stream_.events;
    CLI::App* const events = app_.add_subcommand(
        "events", "Print the analyzer events of a text, and what else its keys tell, as records, in JSON, a line each");
    events->add_option("FILES", files_, "Texts, one a line or one behind the other; standard input by default");
    AddShape(*events, options.fields, {"an event"});
    events->add_flag("--pretty", isPretty_, "The same as --format pretty");
    events->add_flag("--all", options.all, "Print lists whole, also what is not in use");
    events->add_flag("--brief", options.brief, "Print what the text told, and not the zeros around it");
    events->add_flag("--follow", stream_.follow, "Go on when a file grows, until the program is ended");
    events->callback([this] { run_ = [this] { return RunEvents(); }; });
}

int Arguments::RunEvents() {
    if (files_.empty()) files_.emplace_back("-");
    EventOptions& options = stream_.events;
    options.filters = FiltersGiven();
    options.format = FormatOf(Format::Lines);
    options.colour = UsesColour(colour_, kOutput);
    options.width = TerminalWidth(kOutput);
    stream_.jobs = jobs_;
    stream_.progress = !IsTerminal(kOutput);
    return StreamEvents(files_, stream_);
}

void Arguments::AddDiff() {
    CLI::App* const diff = app_.add_subcommand(
        "diff", "Tell in which members the records of two replies differ, and which of these no device would notice");
    diff->add_option("COMMAND", name_, "Name of a configuration or a method")->required();
    diff->add_option("A", file_, "The one reply")->required();
    diff->add_option("B", startFile_, "The other")->required();
    diff->callback([this] {
        run_ = [this]() -> int {
            std::string left;
            std::string right;
            if (!Read(file_, left) || !Read(startFile_, right)) return kUsage;
            return PrintResult(DiffTexts(name_, left, right));
        };
    });
}

void Arguments::AddTemplate() {
    CLI::App* const templates =
        app_.add_subcommand("template", "Print a reply with a template of analysis settings as a record, in JSON");
    templates->add_option("COMMAND", name_, "VideoInAnalyse.getTemplateGlobal, ...Module or ...Rule")->required();
    templates->add_option("FILE", file_, "The reply; standard input by default");
    templates->add_option("--class", template_.ruleClass, "Class of the rules, such as Normal or Traffic");
    templates->add_flag("--all", template_.all, "Print lists whole, also what is not in use");
    templates->callback([this] {
        run_ = [this]() -> int {
            std::string text;
            if (!Read(file_, text)) return kUsage;
            return PrintResult(tool::ShowTemplate(name_, text, template_));
        };
    });
}

void Arguments::AddCommands() {
    CLI::App* const commands =
        app_.add_subcommand("commands", "List all commands, or the events, rules or templates, with their records");
    auto* const events = commands->add_flag("--events", listsEvents_, "The analyzer events and their codes");
    auto* const rules = commands->add_flag("--rules", listsRules_, "The analysis rules and their codes");
    auto* const templates =
        commands->add_flag("--templates", listsTemplates_, "The commands that 'orrery template' takes");
    rules->excludes(events);
    templates->excludes(events)->excludes(rules);
    commands->add_flag("--json", isJson_, "A list of objects, for programs");
    commands->callback([this] {
        run_ = [this] {
            const Listing what = listsEvents_      ? Listing::Events
                                 : listsRules_     ? Listing::Rules
                                 : listsTemplates_ ? Listing::Templates
                                                   : Listing::Commands;
            return PrintResult({kDone, List(what, isJson_), {}});
        };
    });
}

void Arguments::AddDescribe() {
    CLI::App* const describe = app_.add_subcommand(
        "describe", "Show what stands under a name: a command, an event, a rule, a record, the code of an event or a "
                    "rule, or a key of a device's text");
    describe->add_option("NAME", name_, "Name of a command, an event, a rule or a record; a code; a key")->required();
    describe->callback([this] {
        run_ = [this] {
            const std::size_t width = TerminalWidth(kOutput);
            if (const auto text = Describe(name_, width)) return PrintResult({kDone, *text, {}});
            return PrintResult({kRefused,
                                {},
                                "orrery: no command, event, rule, record, code or key " + Printable(Quoted(name_))
                                    + DidYouMean(name_, AllNames()) + "\n"});
        };
    });
}

void Arguments::AddDocuments() {
    CLI::App* const schema =
        app_.add_subcommand("schema", "Print all commands, records, rules, events and codes as one JSON document");
    schema->add_option("--json-schema", name_, "Print a JSON Schema of the text of this command instead");
    schema->callback([this] {
        run_ = [this] {
            if (name_.empty()) return PrintResult({kDone, Schema(), {}});
            if (const auto text = JsonSchema(name_)) return PrintResult({kDone, *text, {}});
            return PrintResult({kRefused, {}, "orrery: " + UnknownCommand(name_) + "\n"});
        };
    });
    app_.add_subcommand("layout", "Print all record tables as plain text, a line a row")->callback([this] {
        run_ = [] { return PrintResult({kDone, Layout(), {}}); };
    });
}

// For packages and shells.
void Arguments::AddHidden() {
    app_.add_subcommand("manual", "Print the manual page")->group("")->callback([this] {
        run_ = [this] { return PrintResult({kDone, ManualPage(app_), {}}); };
    });
    CLI::App* const completion = app_.add_subcommand("completion", "Print the completion of a shell")->group("");
    completion->add_option("SHELL", name_, "bash, zsh or fish")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish"}));
    completion->callback([this] { run_ = [this] { return PrintResult({kDone, CompletionScript(name_), {}}); }; });
}

} // namespace orrery::tool
