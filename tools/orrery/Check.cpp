#include "orrery/Check.h"

#include "orrery/Diagnose.h"
#include "orrery/Output.h"
#include "orrery/Suggest.h"
#include "orrery/System.h"
#include "orrery/Terminal.h"
#include "orrery/TextSplitter.h"

#include "frame/JsonParser.h"

#include "orrery/explain.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <stdexcept>
#include <vector>

namespace orrery::tool {

namespace {

constexpr std::string_view kEvents = "events";

// What a callback of the library's cannot throw through.
struct Told {
    std::string_view file;
    const CheckOptions& options;
    std::size_t before; // bytes that were put in front of the text, on its first line
    std::string out{};
    std::exception_ptr failure{};
    // Where the text begins, of many in a file.
    std::uint32_t lines = 0, columns = 0;
    std::uint64_t offset = 0;
};

constexpr const char* kGravity[] = {"", "note", "lost", "refused"};
// What a finding tells, in this order; the last two where there is something to tell.
constexpr std::string_view kMembers[] = {"file",    "line", "column", "offset",  "length",  "kind",
                                         "gravity", "path", "field",  "message", "nearest", "lost"};

std::string FindingLine(const ORRERY_FINDING& finding, std::string_view file) {
    std::string line(file);
    line += ':' + std::to_string(finding.nLine) + ':' + std::to_string(finding.nColumn) + ": "
            + kGravity[finding.nGravity] + ": ";
    const std::string_view path = finding.szPath;
    const std::string_view field = finding.szField;
    if (!path.empty()) line += path;
    if (!field.empty()) line.append(path.empty() ? "(" : " (").append(field).append(")");
    if (!path.empty() || !field.empty()) line += ": ";
    line += std::string(finding.szMessage) + " [" + finding.szKind + "]";
    return Printable(line) + "\n";
}

// Text of a device in JSON has to be UTF-8.
Node Utf8(std::string_view text) {
    return Node::Text(IsUtf8(text) ? std::string(text) : Printable(text));
}

Node FindingNode(const ORRERY_FINDING& finding, std::string_view file) {
    Node node = Node::Object();
    node.Add("file", Utf8(file))
        .Add("line", Node::Unsigned(finding.nLine))
        .Add("column", Node::Unsigned(finding.nColumn))
        .Add("offset", Node::Unsigned(finding.nOffset))
        .Add("length", Node::Unsigned(finding.nLength))
        .Add("kind", Node::Text(finding.szKind))
        .Add("gravity", Node::Text(kGravity[finding.nGravity]))
        .Add("path", Utf8(finding.szPath))
        .Add("field", Utf8(finding.szField))
        .Add("message", Utf8(finding.szMessage));
    if (finding.szNearest[0] != '\0') node.Add("nearest", Utf8(finding.szNearest));
    if (finding.nLost != 0) node.Add("lost", Node::Unsigned(finding.nLost));
    return node;
}

// Empty for a finding that a filter keeps back.
std::string ShownFinding(const ORRERY_FINDING& finding, std::string_view file, const CheckOptions& options) {
    const bool isForPeople = options.format == Format::Pretty;
    if (isForPeople && options.filters.empty()) return FindingLine(finding, file);
    const Node node = FindingNode(finding, file);
    const auto takes = [&](const Filter& filter) { return filter.Takes(node.Find(filter.path())); };
    if (!std::ranges::all_of(options.filters, takes)) return {};
    if (isForPeople) return FindingLine(finding, file);
    const auto member = [&](const std::string& name) {
        const Node* const found = node.Find(name);
        return found == nullptr ? std::nullopt : std::optional(*found);
    };
    if (IsRows(options.format))
        return Row(options.format, options.width, ColumnsOf(options),
                   [&](const std::string& column) { return CellOf(member(column)); });
    if (options.fields.empty()) return node.PrintLine();
    Node some = Node::Object();
    for (const std::string& field : options.fields)
        some.Add(field, member(field).value_or(Node::Null()));
    return some.PrintLine();
}

std::int32_t Tell(const ORRERY_FINDING* finding, void* user) noexcept {
    auto& told = *static_cast<Told*>(user);
    try {
        ORRERY_FINDING own = *finding;
        own.nOffset -= std::min<std::uint64_t>(own.nOffset, told.before);
        if (own.nLine == 1) own.nColumn -= std::min(own.nColumn - 1, static_cast<std::uint32_t>(told.before));
        if (own.nLine == 1) own.nColumn += told.columns;
        own.nLine += told.lines;
        own.nOffset += told.offset;
        told.out += ShownFinding(own, told.file, told.options);
        return 1;
    } catch (...) {
        told.failure = std::current_exception();
        return 0;
    }
}

struct Fits {
    std::vector<std::pair<std::string, ORRERY_FIT>> best;
    std::exception_ptr failure{};
};

std::int32_t KeepFit(const ORRERY_FIT* fit, void* user) noexcept {
    constexpr std::size_t kMost = 3;
    auto& fits = *static_cast<Fits*>(user);
    try {
        fits.best.emplace_back(fit->szCommand[0] == '\0' ? kEvents : fit->szCommand, *fit);
        return fits.best.size() < kMost;
    } catch (...) {
        fits.failure = std::current_exception();
        return 0;
    }
}

// Texts of events come many to a file, each with a place of its own. Answers less than 0 when there is no memory.
std::int32_t ExplainAllEvents(std::string_view text, Told& told) {
    TextSplitter splitter;
    splitter.Feed(text);
    std::int32_t count = 0;
    const auto explain = [&](const TextSplitter::Piece& piece) {
        const std::string_view before = text.substr(0, static_cast<std::size_t>(piece.offset));
        told.lines = static_cast<std::uint32_t>(piece.line - 1);
        told.columns = static_cast<std::uint32_t>(Columns(before.substr(before.rfind('\n') + 1)));
        told.offset = piece.offset;
        count = ORRERY_ExplainEvents(piece.text.data(), piece.text.size(), Tell, &told);
        return count >= 0 && !told.failure;
    };
    bool isEmpty = true;
    for (auto piece = splitter.Next(); piece || (piece = splitter.Rest()); piece = splitter.Next()) {
        isEmpty = false;
        if (!explain(*piece)) return count;
    }
    return isEmpty ? ORRERY_ExplainEvents(text.data(), text.size(), Tell, &told) : count;
}

std::string Keys(std::uint32_t count, const char* what) {
    return std::to_string(count) + (count == 1 ? " key " : " keys ") + what;
}

} // namespace

std::string FindingLines(const std::vector<explain::Finding>& findings, std::string_view file, std::string_view text,
                         const CheckOptions& options) {
    std::string lines;
    for (const explain::Finding& found : findings) {
        ORRERY_FINDING finding{};
        finding.nKind = found.kind;
        finding.nGravity = found.gravity;
        if (found.valueEnd > 0) { // it has a place
            const std::string_view before = text.substr(0, found.offset);
            const std::size_t begin = before.rfind('\n') + 1;
            finding.nLine = static_cast<std::uint32_t>(std::count(before.begin(), before.end(), '\n')) + 1;
            finding.nColumn = static_cast<std::uint32_t>(Columns(before.substr(begin))) + 1;
        } else {
            finding.nLine = finding.nColumn = 1;
        }
        finding.nOffset = found.offset;
        finding.nLength = found.length;
        finding.nLost = found.lost;
        finding.szKind = explain::WordOf(found.kind);
        finding.szPath = found.path.c_str();
        finding.szField = found.field.c_str();
        finding.szMessage = found.message.c_str();
        finding.szNearest = found.nearest.c_str();
        lines += ShownFinding(finding, file, options);
    }
    return lines;
}

std::vector<std::string> ColumnsOf(const CheckOptions& options) {
    if (!options.fields.empty()) return options.fields;
    return {"file", "line", "column", "gravity", "kind", "path", "field", "message"};
}

void RefuseUnknownMembers(const CheckOptions& options) {
    std::vector<std::string> named = options.fields;
    for (const Filter& filter : options.filters)
        named.push_back(filter.path());
    for (const std::string& name : named) {
        if (std::ranges::find(kMembers, name) != std::end(kMembers)) continue;
        std::string known;
        for (const std::string_view member : kMembers)
            known.append(known.empty() ? "" : ", ").append(member);
        throw std::invalid_argument("no member " + Printable(Quoted(name)) + " of a finding; there are " + known);
    }
}

bool IsChecked(std::string_view command) {
    const Command* const found = FindCommand(command);
    return command == kEvents || (found != nullptr && found->parses());
}

void RefuseMisspelt(const std::string& word) {
    if (word.empty() || word == "-" || word.find_first_of("/\\") != std::string::npos || !IsMissing(word)) return;
    if (const Command* const known = FindCommand(word))
        throw std::invalid_argument(ExplainParse(*known, Outcome::UnknownCommand, Document({}), 0));
    std::vector<std::string_view> names{kEvents};
    for (const Command& each : Commands())
        if (each.parses()) names.push_back(each.name);
    throw std::invalid_argument(Printable(Quoted(word)) + " is neither a command nor a file" + DidYouMean(word, names));
}

Result CheckText(std::string_view command, std::string_view file, std::string_view text, const CheckOptions& options) {
    Result result;
    std::string name(command);
    if (name.empty()) {
        Fits fits;
        const std::int32_t count = ORRERY_FindFits(text.data(), text.size(), KeepFit, &fits);
        if (fits.failure) std::rethrow_exception(fits.failure);
        if (count < 0) return {kRefused, {}, "orrery: out of memory\n"};
        if (fits.best.empty()) {
            const Document document(text);
            return {kRefused,
                    {},
                    "orrery: " + Printable(std::string(file)) + ": "
                        + (document.ok ? "no command reads a key of this text" : ExplainSyntax(document)) + "\n"};
        }
        for (const auto& [fitting, fit] : fits.best) {
            result.err += "orrery: " + Printable(std::string(file)) + ": "
                          + (&fit == &fits.best.front().second ? "checked as " : "next would be ") + fitting + ": "
                          + Keys(fit.nRead, "read, ") + Keys(fit.nLeft, "left")
                          + (fit.nWrong > 0 ? ", " + std::to_string(fit.nWrong) + " values amiss" : "")
                          + (fit.bRefused != 0 ? ", refused" : "") + "\n";
        }
        name = fits.best.front().first;
    }
    Told told{file, options, 0};
    std::string whole;
    if (const Command* const known = FindCommand(name); options.table && known != nullptr) {
        const Document bare(text);
        if (!bare.ok)
            return {kRefused, {}, "orrery: " + Printable(std::string(file)) + ": " + ExplainSyntax(bare) + "\n"};
        whole = WrapValue(*known, bare.text, told.before);
        text = whole;
    }
    const std::int32_t count = name == kEvents ? ExplainAllEvents(text, told)
                                               : ORRERY_ExplainReply(name.c_str(), text.data(), text.size(),
                                                                     options.records.value_or(0), Tell, &told);
    if (told.failure) std::rethrow_exception(told.failure);
    if (count == ORRERY_EXPLAIN_UNKNOWN_COMMAND) {
        const Command* const known = FindCommand(name);
        return {kRefused,
                {},
                "orrery: "
                    + (known == nullptr ? UnknownCommand(name)
                                        : ExplainParse(*known, Outcome::UnknownCommand, Document({}), 0))
                    + "\n"};
    }
    if (count < 0) return {kRefused, {}, "orrery: out of memory\n"};
    result.out = std::move(told.out);
    result.exit = result.out.empty() ? kDone : kFound;
    return result;
}

} // namespace orrery::tool
