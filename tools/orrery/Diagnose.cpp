#include "orrery/Diagnose.h"

#include "orrery/FillRecord.h"
#include "orrery/Output.h"
#include "orrery/Suggest.h"

#include "explain/Places.h"
#include "explain/Wanted.h"
#include "frame/json/TextWriter.h"

#include <algorithm>
#include <cstring>

namespace orrery::tool {

using json::Type;
using json::Value;

namespace {

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xc0) == 0x80;
}
std::size_t CharacterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) { return !IsContinuation(c); }));
}

// A short text of a value, for messages.
std::string Shown(const Value& value) {
    constexpr std::size_t kMost = 160;
    std::string text(kMost, '\0');
    json::TextWriter out(text.data(), text.size());
    StackArena<4096> arena;
    if (!out.Write(value, arena)) return TypeName(value);
    if (out.fits()) return Printable(std::string_view(text).substr(0, out.length()));
    return std::string(TypeName(value));
}

std::string KeysOf(const Value& object) {
    constexpr std::size_t kMost = 8;
    std::string keys;
    std::size_t count = 0;
    for (const json::Member& member : object.members()) {
        if (count++ == kMost) return keys + ", ...";
        keys += (keys.empty() ? "" : ", ") + Printable(Quoted(member.key()));
    }
    return keys.empty() ? "no members" : keys;
}

std::string ResultWanted(const Command& command) {
    return explain::ResultWanted(command.parse == Command::Frame::Family ? command.parseFrame.result
                                                                         : ResultTest::MustBeTrue);
}

std::string ExplainRefusal(const Command& command, const Value& root) {
    const Value& result = root["result"];
    std::string text;
    if (root.type() != Type::Object)
        text = std::string("the reply is ") + TypeName(root) + ", not an object with \"result\"";
    else if (result.isNull())
        text = "the reply has no \"result\" (it has " + KeysOf(root) + ")";
    else
        text = "the device refused the call: \"result\" is " + Shown(result);
    text += "; this command wants " + ResultWanted(command);
    if (!root["error"].isNull()) text += "\nthe device's \"error\": " + Shown(root["error"]);
    return text;
}

std::string ExplainNoValue(const Reply& reply, const Value& root) {
    const std::size_t dot = reply.path.find('.');
    if (reply.value->type() == Type::Array || reply.value->type() == Type::Object)
        return "\"" + reply.path + "\" is empty: no record in the reply";
    if (dot == std::string::npos) return "no \"" + reply.path + "\" in the reply (it has " + KeysOf(root) + ")";
    const Value& params = root["params"];
    if (params.isNull()) return "no \"" + reply.path + "\" in the reply: it has no \"params\", only " + KeysOf(root);
    return "no \"" + reply.path + "\" in the reply (\"params\" has " + KeysOf(params) + ")";
}

} // namespace

Document::Document(std::string_view itsText) : text(itsText.substr(0, itsText.find('\0'))) {
    ok = explain::ParseDocument(text, arena, root, end, error);
}

std::string ExplainSyntax(const Document& document) {
    if (document.arena.failed()) return "out of memory while reading the text";
    constexpr std::size_t kAround = 60; // bytes of a long line that are shown on either side
    const std::string_view text = document.text;
    if (text.find_first_not_of(" \t\r\n") == std::string_view::npos)
        return "the text is empty: "
               + explain::Expected(document.error.message != nullptr ? document.error.message : "");
    const std::size_t at = std::min(document.error.offset, text.size());
    const std::string_view before = text.substr(0, at);
    const auto line = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n')) + 1;
    const std::size_t start = before.rfind('\n') == std::string_view::npos ? 0 : before.rfind('\n') + 1;
    std::size_t end = std::min(text.find('\n', at), text.size());
    if (end > start && end > at && text[end - 1] == '\r') --end;

    std::size_t from = at - start > kAround ? at - kAround : start;
    while (from < at && IsContinuation(text[from]))
        ++from;
    std::size_t to = std::min(end, at + kAround);
    while (to < end && IsContinuation(text[to]))
        ++to;
    const std::string shownBefore = Printable(text.substr(from, at - from));
    std::string message = "line " + std::to_string(line) + ", column "
                          + std::to_string(CharacterCount(text.substr(start, at - start)) + 1) + ": "
                          + explain::Expected(document.error.message != nullptr ? document.error.message : "");
    if (at == text.size()) message += " (the text ends here)";
    const std::string lead = from > start ? "..." : "";
    message += "\n  " + lead + shownBefore + Printable(text.substr(at, to - at)) + (to < end ? "..." : "");
    message += "\n  " + std::string(lead.size() + CharacterCount(shownBefore), ' ') + "^";
    return message;
}

Reply LookAt(const Command& command, const Value& root) {
    Reply reply;
    const Value& params = root["params"];
    reply.value = &params["table"];
    reply.path = "params.table";
    Take take = command.genericFrame.arrayForm ? Take::AnyOrMany : Take::One;
    if (command.parse != Command::Frame::Generic) { // the words of a frame of a command's own tell too
        const ParseFrame& frame = command.parseFrame;
        take = frame.takesBy != nullptr ? frame.takesBy(root) : frame.take;
        switch (frame.source) {
        case Source::Table:
            break;
        case Source::Caps:
            reply = {&params["caps"], "params.caps"};
            break;
        case Source::CapsOrParams:
            reply = params["caps"].isNull() ? Reply{&params, "params"} : Reply{&params["caps"], "params.caps"};
            break;
        case Source::Params:
            reply = {&params[frame.name], std::string("params.") + frame.name};
            break;
        case Source::Top:
            reply = {&root[frame.name], frame.name};
            break;
        case Source::Result:
            reply = {&root["result"], "result"};
            break;
        }
    } else if (take == Take::AnyOrMany) {
        // An array of as many levels as one record has is that record itself.
        StackArena<4096> arena;
        if (json::ArrayDepth(*reply.value, 4, arena) != command.genericFrame.dimension + 1) take = Take::One;
    }
    const Value& value = *reply.value;
    const bool byMember = take == Take::ByMember || take == Take::ByMemberOrNone;
    const bool takesLists = take == Take::ListOrLists || take == Take::ListOrListsOrBlank;
    const bool isListOfLists = takesLists && value.size() > 0 && value[0].isArray();
    const bool byElement = isListOfLists || (!TakesOneRecord(take) && !byMember);
    if (byElement && value.type() == Type::Array) {
        reply.isList = true;
        reply.records = value.size();
    } else if (byMember || take == Take::Many || take == Take::ManyOrNone) {
        reply.isList = true;
        if (byMember) {
            const auto members = value.members();
            reply.records = static_cast<std::uint32_t>(std::count_if(
                members.begin(), members.end(), [](const json::Member& member) { return !member.value.isNull(); }));
        }
    } else {
        reply.records = 1;
    }
    return reply;
}

std::string WrapValue(const Command& command, std::string_view value, std::size_t& before) {
    std::string front = R"({"result":true,"params":{"table":)";
    std::string behind = "}}";
    if (command.parse != Command::Frame::Generic) {
        const ParseFrame& frame = command.parseFrame;
        switch (frame.source) {
        case Source::Table:
            break;
        case Source::Caps:
        case Source::CapsOrParams:
            front = R"({"result":true,"params":{"caps":)";
            break;
        case Source::Params:
            front = R"({"result":true,"params":{)" + Quoted(frame.name) + ":";
            break;
        case Source::Top:
            front = R"({"result":true,)" + Quoted(frame.name) + ":";
            behind = "}";
            break;
        case Source::Result:
            front = R"({"result":)";
            behind = "}";
            break;
        }
    }
    before = front.size();
    return front + std::string(value) + behind;
}

std::string UnknownCommand(std::string_view name) {
    std::vector<std::string_view> names;
    for (const Command& command : Commands())
        names.push_back(command.name);
    return "no command " + Printable(Quoted(name)) + DidYouMean(name, names) + " ('orrery commands' lists them)";
}

std::string ExplainParse(const Command& command, Outcome outcome, const Document& document, std::uint32_t bufferSize) {
    const auto recordSize = std::to_string(command.table != nullptr ? command.table->size : 0);
    const std::string name(command.name);
    switch (outcome) {
    case Outcome::Done:
        return {};
    case Outcome::BadArguments:
        return "no buffer, or one of 0 bytes: " + name + " needs " + recordSize + " bytes";
    case Outcome::UnknownCommand:
        return name + " reads no reply: it can only be packed";
    case Outcome::BufferTooSmall:
        if (command.parse == Command::Frame::Family && command.parseFrame.exactSize) {
            return "the buffer of " + name + " must have exactly " + recordSize + " bytes, it has "
                   + std::to_string(bufferSize);
        }
        return "the buffer is too small: one record of " + name + " needs " + recordSize + " bytes, it has "
               + std::to_string(bufferSize);
    case Outcome::NotAccepted:
        return name + " refuses what its buffer holds before the call: it reads the caller's own settings from there";
    case Outcome::NoJson:
        return ExplainSyntax(document);
    case Outcome::Refused:
        return ExplainRefusal(command, document.root);
    case Outcome::NoValue:
        return ExplainNoValue(LookAt(command, document.root), document.root);
    case Outcome::WrongShape: {
        const Reply reply = LookAt(command, document.root);
        const ParseFrame& frame = command.parseFrame;
        const Take take = frame.takesBy != nullptr ? frame.takesBy(document.root) : frame.take;
        return "\"" + reply.path + "\" is " + TypeName(*reply.value) + "; " + name + " takes " + explain::Wanted(take);
    }
    case Outcome::TooManyRecords:
        for (const record::Field& field : *command.table) {
            if (!field.allOrNone) continue;
            return name + " takes all entries of the reply or none: it has "
                   + std::to_string(LookAt(command, document.root).value->size()) + ", more than there is room for";
        }
        return name + " takes all records of the reply or none: it has "
               + std::to_string(LookAt(command, document.root).records) + ", the buffer room for "
               + std::to_string(bufferSize / std::max(command.table->size, 1U));
    case Outcome::BadItem:
        return "the reply holds an item of a type that " + name + " does not take";
    case Outcome::RowRefused:
        return "a value of the reply cannot stand in the record of " + name;
    case Outcome::OutOfMemory:
        return "out of memory";
    case Outcome::RecordTooSmall:
    case Outcome::TextTooLong:
        break;
    }
    return name + " refused the reply";
}

std::string ExplainPack(const Command& command, Outcome outcome, std::uint32_t recordSize, std::size_t capacity,
                        std::size_t needed) {
    const std::string name(command.name);
    const auto one = std::to_string(command.table != nullptr ? command.table->size : 0);
    switch (outcome) {
    case Outcome::Done:
        return {};
    case Outcome::UnknownCommand:
        return name + " has no text of its own: it is a reply that can only be parsed";
    case Outcome::RecordTooSmall:
        if (command.pack == Command::Frame::Family && command.packFrame.exactSize) {
            return name + " takes exactly one record of " + one + " bytes, there are " + std::to_string(recordSize);
        }
        return "the record is too small: one record of " + name + " has " + one + " bytes, there are "
               + std::to_string(recordSize);
    case Outcome::NotAccepted:
        return name + " does not write this record: its own test refused it";
    case Outcome::TextTooLong:
        if (needed == 0) return "the text is longer than this program makes";
        return "the text is too long: it needs room for " + std::to_string(needed) + " bytes, there are "
               + std::to_string(capacity);
    case Outcome::BadItem:
        return "an item is of a type that " + name + " does not know";
    case Outcome::RowRefused:
        return "a field of the record has no text";
    case Outcome::OutOfMemory:
        return "out of memory";
    default:
        break;
    }
    return name + " refused the record";
}

} // namespace orrery::tool
