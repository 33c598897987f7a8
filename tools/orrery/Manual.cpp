#include "orrery/Arguments.h"

#include "orrery/Tables.h"
#include "orrery/Words.h"

#include "Commands.h"
#include "analyse/EventTypeRegistry.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"
#include "explain/headers/HeaderWords.h"
#include "frame/JsonParser.h"

#include <algorithm>
#include <map>

namespace orrery::tool {

namespace {

std::vector<CLI::App*> Subcommands(CLI::App& app) {
    auto all = app.get_subcommands([](CLI::App* each) { return !each->get_group().empty(); });
    return all;
}

bool IsNamed(const CLI::Option& option) {
    return !option.get_lnames().empty();
}
bool TakesValue(const CLI::Option& option) {
    return option.get_items_expected_max() > 0 && option.get_type_size() != 0;
}

// The words that a value is one of: of "TEXT:{jsonl,pretty}".
std::vector<std::string> Choices(const CLI::Option& option) {
    const std::string type = option.get_type_name();
    const std::size_t open = type.find('{');
    const std::size_t close = type.rfind('}');
    std::vector<std::string> choices;
    if (open == std::string::npos || close == std::string::npos) return choices;
    std::string_view rest = std::string_view(type).substr(open + 1, close - open - 1);
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(','), rest.size());
        choices.emplace_back(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return choices;
}

// ---- The manual page ----

// For troff: a hyphen that can be typed, and nothing that it takes for a request of its own.
std::string Troff(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '\\')
            out += "\\e";
        else if (c == '-')
            out += "\\-";
        else if ((c == '.' || c == '\'') && (out.empty() || out.back() == '\n'))
            out += std::string("\\&") + c;
        else
            out += c;
    }
    return out;
}

std::string Lines(std::string_view text) {
    std::string out;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        if (!out.empty()) out += ".br\n";
        out += Troff(text.substr(at, end - at)) + "\n";
        at = end + 1;
    }
    return out;
}

std::string OptionParagraph(const CLI::Option& option) {
    std::string names;
    for (const std::string& name : option.get_snames())
        names += (names.empty() ? "" : ", ") + ("-" + name);
    for (const std::string& name : option.get_lnames())
        names += (names.empty() ? "" : ", ") + ("--" + name);
    std::string out = ".TP\n.B " + Troff(names);
    if (TakesValue(option)) {
        const auto choices = Choices(option);
        std::string value;
        for (const std::string& choice : choices)
            value += (value.empty() ? "" : "|") + choice;
        if (value.empty()) value = option.get_type_name().starts_with("TEXT") ? "TEXT" : "NUMBER";
        out += " " + Troff(value);
    }
    return out + "\n" + Lines(option.get_description());
}

std::string Synopsis(const CLI::App& command) {
    std::string out = ".B orrery " + Troff(command.get_name()) + "\n";
    const auto options = command.get_options();
    if (std::any_of(options.begin(), options.end(), [](const CLI::Option* each) { return IsNamed(*each); }))
        out += "[OPTION]...\n";
    for (const CLI::Option* option : options) {
        if (!option->get_positional()) continue;
        const std::string name = option->get_name(true);
        const std::string more = option->get_items_expected_max() > 1 ? "..." : "";
        out += Troff(option->get_required() ? name + more : "[" + name + more + "]") + "\n";
    }
    return out;
}

} // namespace

std::string ManualPage(CLI::App& app) {
    const std::string about = app.get_description();
    const std::size_t line = std::min(about.find('\n'), about.size());
    std::string sentence = about.substr(0, line);
    if (sentence.ends_with('.')) sentence.pop_back();
    std::string out = ".\\\" Made by the program from what --help says.\n.TH ORRERY 1 \"\" \"orrery " ORRERY_VERSION
                      "\" \"User Commands\"\n.SH NAME\norrery \\- "
                      + Troff(sentence) + "\n.SH SYNOPSIS\n";
    bool isFirst = true;
    for (const CLI::App* command : Subcommands(app)) {
        if (!isFirst) out += ".br\n";
        isFirst = false;
        out += Synopsis(*command);
    }
    out += ".SH DESCRIPTION\n" + Lines(about) + ".SH OPTIONS\n";
    for (const CLI::Option* option : std::as_const(app).get_options())
        if (IsNamed(*option)) out += OptionParagraph(*option);
    out += ".SH COMMANDS\n";
    for (const CLI::App* command : Subcommands(app)) {
        out += ".SS " + Troff(command->get_name()) + "\n" + Lines(command->get_description());
        for (const CLI::Option* option : command->get_options()) {
            if (option->get_positional())
                out += ".TP\n.I " + Troff(option->get_name(true)) + "\n" + Lines(option->get_description());
            else if (!option->check_lname("help"))
                out += OptionParagraph(*option);
        }
    }
    return out
           + ".SH ENVIRONMENT\n.TP\n.B NO_COLOR\nSet to anything: no colours without \\-\\-color always\n"
             ".TP\n.B COLUMNS\nThe width of the terminal, instead of what it says itself\n";
}

// ---- Completion ----

std::string CompletionScript(std::string_view shell) {
    if (shell == "bash") {
        return R"sh(# Completion of orrery for bash. The program itself tells what fits.
_orrery() {
    local IFS=$'\n'
    COMPREPLY=($("${COMP_WORDS[0]}" complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null | cut -f 1))
    # Behind a comma or a dot more follows.
    [[ ${#COMPREPLY[@]} -eq 1 && ${COMPREPLY[0]} == *[.=] ]] && compopt -o nospace
}
complete -o default -F _orrery orrery
)sh";
    }
    if (shell == "zsh") {
        return R"sh(#compdef orrery
# Completion of orrery for zsh. The program itself tells what fits.
_orrery() {
    local -a found
    found=("${(@f)$("${words[1]}" complete "${(@)words[2,CURRENT]}" 2>/dev/null)}")
    if [[ -z "${found[1]}" ]]; then
        _files
        return
    fi
    found=("${found[@]//:/\\:}")
    found=("${found[@]/$'\t'/:}")
    _describe -V orrery found
}
# Loaded by compinit when it is wanted, or read by a user's own file.
if [[ "${zsh_eval_context[-1]}" == loadautofunc ]]; then
    _orrery "$@"
else
    compdef _orrery orrery
fi
)sh";
    }
    if (shell == "fish") {
        return R"sh(# Completion of orrery for fish. The program itself tells what fits.
function __orrery_complete
    set -l words (commandline -opc) (commandline -ct)
    $words[1] complete $words[2..-1] 2>/dev/null
end
complete -c orrery -a '(__orrery_complete)'
)sh";
    }
    return {};
}

namespace {

using Found = std::map<std::string, std::string>; // by word: what it is

std::string FirstLine(std::string_view text) {
    constexpr std::size_t kMost = 76;
    std::string line(text.substr(0, text.find('\n')));
    if (line.size() > kMost) line = line.substr(0, line.rfind(' ', kMost)) + " ...";
    return line;
}

void AddFields(const record::Table& table, std::string_view path, const std::string& front, Found& found) {
    const std::size_t dot = path.find('.');
    const std::string_view name = path.substr(0, dot);
    for (const record::Field& field : table) {
        if (!IsStored(field)) continue;
        const std::string_view own = field.name;
        const bool isNested = field.table != nullptr && !PointsToNumbers(field);
        if (dot != std::string_view::npos) {
            const std::string_view bare = name.substr(0, name.find('['));
            if (own == bare && isNested)
                AddFields(*field.table, path.substr(dot + 1), front + std::string(name) + ".", found);
        } else if (own.starts_with(name)) {
            const headers::Member* const member = headers::FindMember(table.record, own);
            const bool isList = field.rank > 0 || (field.cell == record::Cell::Pointer && !PointsToOne(field));
            found[front + std::string(own) + (isNested && !isList ? "." : "")] =
                member == nullptr ? TypeOf(field) : FirstLine(member->doc);
        }
    }
}

// Members of a command's record, or of the events; of one alone when a filter names it.
Found FieldsOf(std::string_view last, const std::vector<std::string>& words) {
    std::string only;
    for (const std::string& word : words) {
        constexpr std::string_view kName = "name=";
        if (const std::size_t at = word.find(kName); at != std::string::npos) only = word.substr(at + kName.size());
    }
    const std::size_t comma = last.rfind(',');
    const std::string front(comma == std::string_view::npos ? "" : last.substr(0, comma + 1));
    const std::string_view path = last.substr(front.size());
    Found found;
    const bool isParse = words.size() > 2 && words.front() == "parse";
    const Command* const command = isParse ? FindCommand(words[1]) : nullptr;
    if (command != nullptr && command->table != nullptr) {
        AddFields(*command->table, path, front, found);
        return found;
    }
    for (const events::EventRow& event : events::Events())
        if (only.empty() || EqualsFolded(event.name, only)) AddFields(*event.table, path, front, found);
    return found;
}

void AddNames(std::string_view command, Found& found) {
    if (command == "template") {
        for (const TemplateRow& row : Templates())
            found.emplace(row.name, row.table->record);
        return;
    }
    for (const Command& each : Commands()) {
        const bool fits = command == "pack" ? each.packs() : command == "describe" || each.parses();
        if (fits) found.emplace(each.name, each.table != nullptr ? each.table->record : "");
    }
    if (command == "check") found.emplace("events", "a text of analyzer events");
    if (command != "describe") return;
    for (const std::string_view name : AllNames())
        found.emplace(name, "");
    for (const events::EventRow& event : events::Events())
        found[std::string(event.name)] = "event " + std::to_string(event.code);
}

bool StartsFolded(std::string_view text, std::string_view front) {
    return text.size() >= front.size() && EqualsFolded(text.substr(0, front.size()), front);
}

} // namespace

std::string Completions(CLI::App& app, const std::vector<std::string>& words) {
    const std::string last = words.empty() ? "" : words.back();
    const CLI::App* command = nullptr;
    std::size_t positionals = 0;
    const CLI::Option* awaited = nullptr; // whose value comes next
    const auto optionOf = [&](const std::string& word) -> const CLI::Option* {
        for (const CLI::App* each : {command, static_cast<const CLI::App*>(&app)}) {
            if (each == nullptr || !word.starts_with("--")) continue;
            for (const CLI::Option* option : each->get_options())
                if (option->check_lname(word.substr(2))) return option;
        }
        return nullptr;
    };
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
        if (awaited != nullptr) {
            awaited = nullptr;
        } else if (words[i].starts_with("-") && words[i] != "-") {
            const CLI::Option* const option = optionOf(words[i]);
            if (option != nullptr && TakesValue(*option)) awaited = option;
        } else if (command == nullptr) {
            for (const CLI::App* each : Subcommands(app))
                if (each->get_name() == words[i]) command = each;
            if (command == nullptr) return {};
        } else {
            ++positionals;
        }
    }
    Found found;
    if (awaited != nullptr) {
        if (awaited->check_lname("fields") || awaited->check_lname("filter")) found = FieldsOf(last, words);
        for (const std::string& choice : Choices(*awaited))
            found.emplace(choice, "");
    } else if (last.starts_with("-")) {
        for (const CLI::App* each : {command, static_cast<const CLI::App*>(&app)}) {
            if (each == nullptr) continue;
            for (const CLI::Option* option : each->get_options())
                for (const std::string& name : option->get_lnames())
                    found.emplace("--" + name, FirstLine(option->get_description()));
        }
    } else if (command == nullptr) {
        for (const CLI::App* each : Subcommands(app))
            found.emplace(each->get_name(), FirstLine(each->get_description()));
    } else if (positionals == 0) {
        const std::string name = command->get_name();
        if (name == "parse" || name == "pack" || name == "check" || name == "diff" || name == "template"
            || name == "describe")
            AddNames(name, found);
    }
    std::string out;
    for (const auto& [word, about] : found)
        if (!word.empty() && StartsFolded(word, last)) out += word + (about.empty() ? "" : "\t" + about) + "\n";
    return out;
}

} // namespace orrery::tool
