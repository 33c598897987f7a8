#include "explain/Explain.h"

#include "explain/Places.h"
#include "explain/Tries.h"
#include "explain/Wanted.h"

#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"
#include "events/EventMap.h"
#include "frame/PackedItems.h"
#include "frame/ReplySteps.h"
#include "frame/json/Scan.h"
#include "media/Overlay.h"

#include "orrery/analyse_rules.h"

#include <algorithm>
#include <array>
#include <functional>
#include <new>
#include <span>

namespace orrery::explain {

using json::Type;
using json::Value;

namespace {

// What stands around the value of any reply.
constexpr auto kEnvelope =
    std::to_array<std::string_view>({"SID", "error", "id", "method", "object", "params", "result", "seq", "session"});
// What stands around an event, and what functions of any look at beside its rows.
constexpr auto kAroundEvents = std::to_array<std::string_view>({"Event", "EventList"});
constexpr auto kAroundEvent = std::to_array<std::string_view>({"Action", "Code", "Data", "Index"});
constexpr auto kInEvents = std::to_array<std::string_view>({"GroupID", "CountInGroup", "IndexInGroup"});
constexpr auto kInRules = std::to_array<std::string_view>({"Type", "Id", "Class"});

constexpr record::Name kActionRows[] = {{0, "Pulse"}, {1, "Start"}, {2, "Stop"}};
constexpr record::NameTable kActions = record::FoldedNames(kActionRows).UnknownLeaves();

class Text {
  public:
    Text(const Command* command, std::string_view text, std::uint32_t records, bool tries)
        : command_(command), whole_(text), text_(text.substr(0, text.find('\0'))), room_(records), tries_(tries),
          walk_(document_, explanation_.findings) {}

    Explanation Explain();

  private:
    bool Parse(bool isFatal);
    void Finish();
    void Reply();
    void Value_(const ParseFrame& frame, Holds holds, const Value& value, const Path& path);
    void Pictures(const Value& value, const Path& path);
    void TooMany(const ParseFrame& frame, std::uint32_t count, const Value& value, const Path& path);
    void Rules();
    void Events();
    void Error();
    bool Refuses(int kind, const Value& at, const Path& path, std::string message);
    const Path& PathOf(Source source, const char* name);
    void Around(Source source, const char* name);

    const Command* command_;
    std::string_view whole_;
    std::string_view text_; // as the library sees it
    std::size_t end_ = 0;   // of its document
    std::uint32_t room_;
    bool tries_;
    std::uint32_t records_ = 1;
    Document document_;
    Explanation explanation_;
    Walk walk_;
    Path root_, params_, value_;
    const Value* paramsValue_ = &json::kNull;
};

bool Text::Parse(bool isFatal) {
    json::SyntaxError error;
    if (ParseDocument(text_, document_.arena, document_.root, end_, error)) return true;
    if (document_.arena.failed()) throw std::bad_alloc();
    const bool isEmpty = text_.find_first_not_of(" \t\r\n") == std::string_view::npos;
    Finding& finding =
        walk_.Add(ORRERY_FINDING_NOT_JSON, isFatal ? ORRERY_FINDING_FATAL : ORRERY_FINDING_LOST, document_.root, root_,
                  isEmpty ? "the text is empty" : Expected(error.message == nullptr ? "" : error.message));
    finding.at = nullptr;
    finding.offset = std::min(error.offset, text_.size());
    if (finding.offset == text_.size() && !isEmpty) finding.message += "; the text ends here";
    explanation_.isRefused = isFatal;
    return false;
}

bool Text::Refuses(int kind, const Value& at, const Path& path, std::string message) {
    // A value that is not there has no place: its object has.
    walk_.Add(kind, ORRERY_FINDING_FATAL, at.isNull() ? document_.root : at, path, std::move(message));
    explanation_.isRefused = true;
    return false;
}

const Path& Text::PathOf(Source source, const char* name) {
    params_ = root_.Member("params");
    paramsValue_ = &document_.root["params"];
    switch (source) {
    case Source::Table:
        value_ = params_.Member("table");
        break;
    case Source::CapsOrParams:
        if ((*paramsValue_)["caps"].isNull()) return params_;
        [[fallthrough]];
    case Source::Caps:
        value_ = params_.Member("caps");
        break;
    case Source::Params:
        value_ = params_.Member(name);
        break;
    case Source::Top:
        value_ = root_.Member(name);
        break;
    case Source::Result:
        value_ = root_.Member("result");
        break;
    default:
        value_ = params_;
        break;
    }
    return value_;
}

// Keys beside the value, whose path was asked for.
void Text::Around(Source source, const char* name) {
    std::array<std::string_view, kEnvelope.size() + 1> known;
    std::ranges::copy(kEnvelope, known.begin());
    if (source == Source::Top) known.back() = name;
    const record::Table* const table = command_ == nullptr ? nullptr : command_->table;
    walk_.Around(document_.root, std::span(known).first(kEnvelope.size() + (source == Source::Top)), table, "", root_);
    std::string_view inner;
    switch (source) {
    case Source::Table:
        inner = "table";
        break;
    case Source::CapsOrParams:
        if ((*paramsValue_)["caps"].isNull()) return;
        [[fallthrough]];
    case Source::Caps:
        inner = "caps";
        break;
    case Source::Params:
        inner = name;
        break;
    default:
        break;
    }
    walk_.Around(*paramsValue_, std::span(&inner, inner.empty() ? 0 : 1), table, "params/", params_);
}

// What the device itself says.
void Text::Error() {
    const Value& error = document_.root["error"];
    if (error.isNull()) return;
    const Value& code = error["code"];
    const Value& message = error["message"];
    std::string said;
    if (!code.isNull()) said += "code " + Shown(code);
    if (message.isString()) said += (said.empty() ? "" : ", ") + Quoted(message.asString());
    if (said.empty()) said = Shown(error);
    walk_.Add(ORRERY_FINDING_DEVICE_ERROR, ORRERY_FINDING_NOTE, error, root_.Member("error"),
              "the device says: " + said);
}

void Text::TooMany(const ParseFrame& frame, std::uint32_t count, const Value& value, const Path& path) {
    if (room_ == 0 || count <= room_) return;
    Finding& finding = walk_.Add(
        ORRERY_FINDING_ELEMENTS_DROPPED, frame.allMustFit ? ORRERY_FINDING_FATAL : ORRERY_FINDING_LOST, value, path,
        std::to_string(count) + " records, and room for " + std::to_string(room_)
            + (frame.allMustFit ? ": the call takes all or none" : ": the others are dropped"));
    finding.lost = count - room_;
    explanation_.isRefused = explanation_.isRefused || frame.allMustFit;
}

// A record of which one member lists further records. These list none.
void Text::Pictures(const Value& value, const Path& path) {
    static constexpr std::array kBeside{kFurtherPictures};
    walk_.AlsoReads(kBeside);
    walk_.Top(kPicInPic, value, path);
    const Value& list = value[kFurtherPictures];
    const Path listPath = path.Member(kFurtherPictures);
    if (!list.isNull() && list.type() != Type::Array)
        walk_.Add(ORRERY_FINDING_WRONG_TYPE, ORRERY_FINDING_LOST, list, listPath,
                  Shown(list) + " where a list of records is read: nothing of it is read");
    const auto further = list.elements();
    records_ = 1 + static_cast<std::uint32_t>(further.size());
    TooMany(command_->parseFrame, records_, list, listPath);
    for (std::uint32_t i = 0; i < further.size() && (room_ == 0 || i + 1 < room_); ++i) {
        const Path inner = listPath.Element(i);
        walk_.record = i + 1;
        if (further[i].isNull()) {
            walk_.Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, further[i], inner, "null: a record without keys");
            continue;
        }
        walk_.Top(kPicInPic, further[i], inner, {}, false);
        if (const Value& unread = further[i][kFurtherPictures]; !unread.isNull())
            walk_.Add(ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, unread, inner.Member(kFurtherPictures),
                      "records inside a further record: nothing of them is read");
    }
}

void Text::Value_(const ParseFrame& frame, Holds holds, const Value& value, const Path& path) {
    const record::Table& table = *command_->table;
    walk_.SetAlways(command_->parse == Command::Frame::Own);
    switch (holds) {
    case Holds::OneRecord:
        if (command_->ownParse == ParsePicInPic)
            Pictures(value, path);
        else
            walk_.Top(table, value, path);
        break;
    case Holds::Elements: {
        const auto elements = value.elements();
        records_ = std::max<std::uint32_t>(1, value.size());
        TooMany(frame, value.size(), value, path);
        for (std::uint32_t i = 0; i < elements.size() && (room_ == 0 || i < room_); ++i) {
            const Path inner = path.Element(i);
            walk_.record = i;
            if (elements[i].isNull()) {
                walk_.Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, elements[i], inner,
                          frame.readsNulls ? "null: a record without keys" : "null: its record stays as it is");
                continue;
            }
            walk_.Top(table, elements[i], inner, {}, false);
        }
        break;
    }
    case Holds::Members: {
        std::uint32_t count = 0;
        for (const json::Member& member : value.members()) {
            const Path inner = path.Member(member.key());
            if (member.value.isNull()) {
                walk_.Add(ORRERY_FINDING_NULL, ORRERY_FINDING_NOTE, member.value, inner,
                          "null: no record of that name");
                continue;
            }
            walk_.record = count++;
            if (room_ != 0 && count > room_) continue;
            walk_.Top(table, member.value, inner, member.key(), false);
        }
        records_ = std::max<std::uint32_t>(1, count);
        TooMany(frame, count, value, path);
        break;
    }
    case Holds::BlankRecord:
    case Holds::NoList:
    case Holds::Nothing:
        if (!value.isNull() && (value.type() != Type::Array || value.size() > 0))
            walk_.Add(ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST, value, path,
                      Shown(value) + " where " + Wanted(frame.take) + " is read: nothing of it is read");
        break;
    default:
        break;
    }
    walk_.record = 0;
    walk_.FromRoot(table, document_.root, root_);
}

void Text::Reply() {
    ParseFrame frame = command_->parseFrame;
    const bool isTable = command_->parse == Command::Frame::Generic;
    if (isTable) frame = ParseFrame{};
    if (!Parse(!frame.takesNoJson)) return;
    const Value& root = document_.root;
    Error();
    if (root.type() != Type::Object) {
        Refuses(ORRERY_FINDING_WRONG_SHAPE, root, root_,
                std::string("the reply is ") + TypeName(root) + ", not an object");
        return;
    }
    if (const Value& result = root["result"]; !ResultPasses(frame.result, result)) {
        Refuses(ORRERY_FINDING_REFUSED, result, root_.Member("result"),
                (result.isNull() ? std::string("there is no \"result\"") : "\"result\" is " + Shown(result))
                    + "; the command wants " + ResultWanted(frame.result));
        return;
    }
    const Path& path = PathOf(frame.source, frame.name);
    const Value& value = FindValue(frame.source, frame.name, root);
    Around(frame.source, frame.name);
    if (frame.needsText && text_.empty()) return;
    Holds holds;
    if (isTable) {
        constexpr unsigned kSampleShift = 4;
        const GenericFrame& words = command_->genericFrame;
        holds = words.arrayForm && json::ArrayDepth(value, kSampleShift, document_.arena) == words.dimension + 1
                    ? Holds::Elements
                    : Holds::OneRecord;
    } else {
        if (frame.takesBy != nullptr) frame.take = frame.takesBy(root);
        holds = ShapeOf(frame.take, value);
    }
    const bool isEmptyList = !isTable && holds == Holds::Elements && value.size() == 0 && !frame.takesEmptyLists;
    if (value.isNull() || isEmptyList) {
        const bool isFatal = !isTable && frame.nullValue == NullValue::Fails;
        const bool isInParams = frame.source != Source::Top && !paramsValue_->isNull();
        const Value& nearest = !value.isNull() ? value : isInParams ? *paramsValue_ : root;
        walk_.Add(ORRERY_FINDING_NO_VALUE, isFatal ? ORRERY_FINDING_FATAL : ORRERY_FINDING_LOST, nearest, path,
                  isEmptyList ? "the list is empty: no record" : "there is nothing here: no record is read");
        explanation_.isRefused = isFatal;
        walk_.FromRoot(*command_->table, root, root_);
        return;
    }
    if (holds == Holds::WrongShape) {
        Refuses(ORRERY_FINDING_WRONG_SHAPE, value, path,
                Shown(value) + " where the command takes " + Wanted(frame.take));
        return;
    }
    Value_(frame, holds, value, path);
}

void Text::Rules() {
    if (!Parse(true)) return;
    const Value& root = document_.root;
    Error();
    const ParseFrame& frame = command_->parseFrame;
    const Path& path = PathOf(frame.source, frame.name);
    const Value& rules = FindValue(frame.source, frame.name, root);
    Around(frame.source, frame.name);
    if (rules.type() != Type::Array) {
        walk_.Add(rules.isNull() ? ORRERY_FINDING_NO_VALUE : ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST,
                  rules.isNull() ? root : rules, path,
                  rules.isNull() ? "there is nothing here: no rule is read"
                                 : Shown(rules) + " where a list of rules is read: no rule is read");
        return;
    }
    walk_.AlsoReads(kInRules);
    std::uint32_t at = 0;
    for (const Value& rule : rules.elements()) {
        const Path inner = path.Element(at);
        if (at == ORRERY_MOST_RULES) {
            Finding& finding = walk_.Add(ORRERY_FINDING_ELEMENTS_DROPPED, ORRERY_FINDING_LOST, rules, path,
                                         std::to_string(rules.size()) + " rules, and room for "
                                             + std::to_string(ORRERY_MOST_RULES) + ": the others are dropped");
            finding.lost = rules.size() - ORRERY_MOST_RULES;
            break;
        }
        ++at;
        const Value& type = rule["Type"];
        const auto code = static_cast<std::uint32_t>(RuleCodeFromName(type.asString()));
        const RuleBody* const body = FindRuleBody(code);
        if (type.isNull() || body == nullptr || !body->isRead) {
            std::string message =
                type.isNull() ? "the rule names no \"Type\"" : "no rule is of the type " + Shown(type);
            const std::string_view near = type.isString() ? NearestRule(type.asString()) : std::string_view();
            if (!near.empty()) message += "; the nearest is " + Quoted(near);
            Refuses(ORRERY_FINDING_UNKNOWN_ITEM, type.isNull() ? rule : type, inner.Member("Type"),
                    message + ": all rules are refused");
            explanation_.findings.back().nearest = near;
            continue;
        }
        walk_.Top(*body->table, rule, inner, {}, false);
    }
}

void Text::Events() {
    if (!Parse(false)) return;
    const Value& root = document_.root;
    constexpr std::uint32_t kMostEvents = 128;
    const bool isSingle = !root["Event"].isNull();
    const char* const key = isSingle ? "Event" : "EventList";
    const Value& list = root[key];
    const Path path = root_.Member(key);
    walk_.Around(root, kAroundEvents, nullptr, "", root_);
    if (list.type() != Type::Array) {
        walk_.Add(list.isNull() ? ORRERY_FINDING_NO_VALUE : ORRERY_FINDING_WRONG_SHAPE, ORRERY_FINDING_LOST,
                  list.isNull() ? root : list, list.isNull() ? root_ : path,
                  list.isNull() ? "there is neither \"Event\" nor \"EventList\": no event is read"
                                : Shown(list) + " where a list of events is read: no event is read");
        return;
    }
    std::vector<std::string_view> names;
    std::uint32_t at = 0;
    for (const Value& event : list.elements()) {
        if (at == kMostEvents) {
            Finding& finding = walk_.Add(ORRERY_FINDING_ELEMENTS_DROPPED, ORRERY_FINDING_LOST, list, path,
                                         std::to_string(list.size()) + " events, of which "
                                             + std::to_string(kMostEvents) + " are read: the others are dropped");
            finding.lost = list.size() - kMostEvents;
            break;
        }
        const Path inner = path.Element(at++);
        const Value& name = event["Code"];
        const Value& data = event["Data"];
        const auto code = static_cast<std::uint32_t>(RuleCodeFromName(name.asString().substr(0, 127)));
        const events::EventRow* row = events::FindEvent(code);
        const auto passedOver = [&](const Value& where, const Path& place, std::string message,
                                    const std::string& nearest = {}) {
            walk_
                .Add(ORRERY_FINDING_UNKNOWN_ITEM, ORRERY_FINDING_LOST, where, place,
                     std::move(message) + ": the event is passed over")
                .nearest = nearest;
        };
        if (row == nullptr) {
            if (name.isNull()) {
                passedOver(event, inner, "the event has no \"Code\"");
                continue;
            }
            if (names.empty())
                for (const events::EventRow& known : events::Events())
                    names.push_back(known.name);
            const auto near = name.isString() ? Nearest(name.asString(), names) : std::vector<std::string_view>{};
            passedOver(name, inner.Member("Code"),
                       "no event is named " + Shown(name)
                           + (near.empty() ? "" : "; the nearest is " + Quoted(near.front())),
                       near.empty() ? std::string() : std::string(near.front()));
            continue;
        }
        if (data.isNull() && !row->needsNoData) {
            passedOver(event, inner, "the event has no \"Data\"");
            continue;
        }
        const Value& action = event["Action"];
        if (!action.isNull() && kActions.Find(action.asString()) == nullptr) {
            walk_
                .Add(ORRERY_FINDING_UNKNOWN_TEXT, ORRERY_FINDING_LOST, action, inner.Member("Action"),
                     Shown(action) + " is no action: the event acts as the one before; known are Pulse, Start, Stop")
                .nearest = "Pulse, Start, Stop";
        }
        if (row->rename != nullptr) row = events::FindEvent(row->rename(data));
        if (row == nullptr) {
            passedOver(event, inner, "no event goes by what its \"Data\" names");
            continue;
        }
        walk_.AlsoReads(kInEvents);
        walk_.Around(event, kAroundEvent, row->table, "", inner);
        // Functions of an event look at all of it, from whatever row.
        walk_.SetAlways(true);
        walk_.Top(*row->table, data, inner.Member("Data"), {}, false);
        walk_.FromRoot(*row->table, event, inner);
    }
}

void Text::Finish() {
    std::vector<Finding>& findings = explanation_.findings;
    const bool isJson = findings.empty() || findings.front().kind != ORRERY_FINDING_NOT_JSON;
    explanation_.read = walk_.read;
    explanation_.left = walk_.left;
    if (isJson) {
        const std::string_view read = text_.substr(0, end_);
        // Of members with one key the document keeps one.
        const bool hasDuplicates = CountKeys(read) != CountMembers(document_.root, document_.arena);
        const std::size_t behind = static_cast<std::size_t>(
            json::SkipBlanksAndComments(text_.data() + end_, text_.data() + text_.size()) - text_.data());
        for (Finding& finding : findings)
            if (finding.at == &json::kNull) finding.at = &document_.root;
        if (!findings.empty() || hasDuplicates) {
            FindPlaces(read, document_.root, document_.arena, hasDuplicates, findings);
            const bool isTried =
                std::any_of(findings.begin(), findings.end(), [](const Finding& each) { return each.isTried; });
            if (!tries_)
                std::erase_if(findings, [](const Finding& each) { return each.isTried; });
            else if (isTried && !explanation_.isRefused)
                DropWhatIsRead(command_, read, document_.root, records_, findings);
        }
        if (behind < text_.size()) {
            Finding& finding =
                walk_.Add(ORRERY_FINDING_TRAILING_TEXT, ORRERY_FINDING_NOTE, document_.root, root_,
                          "nobody reads what stands behind the document: " + Quoted(text_.substr(behind, 40)));
            finding.offset = behind;
            finding.length = text_.size() - behind;
        }
    }
    for (Finding& finding : findings)
        AddNearest(finding);
    const std::size_t nul = text_.size();
    if (whole_.find_first_not_of(std::string_view("\0 \t\r\n", 5), nul) != std::string_view::npos) {
        Finding& finding = walk_.Add(ORRERY_FINDING_TRAILING_TEXT, ORRERY_FINDING_NOTE, document_.root, root_,
                                     "the text ends at a NUL byte: nobody reads the "
                                         + std::to_string(whole_.size() - nul) + " bytes from there on");
        finding.offset = nul;
        finding.length = whole_.size() - nul;
    }
    if (document_.arena.failed()) throw std::bad_alloc();
    if (!std::ranges::is_sorted(findings, std::less{}, &Finding::offset)) // a look costs less than a sort
        std::ranges::stable_sort(findings, std::less{}, &Finding::offset);
}

Explanation Text::Explain() {
    if (command_ == nullptr)
        Events();
    else if (ItemsBehind(*command_->table) != nullptr)
        Rules();
    else
        Reply();
    Finish();
    return std::move(explanation_);
}

} // namespace

Explanation ExplainReply(const Command& command, std::string_view text, std::uint32_t records, bool tries) {
    return Text(&command, text, records, tries).Explain();
}

Explanation ExplainEvents(std::string_view text, bool tries) {
    return Text(nullptr, text, 0, tries).Explain();
}

} // namespace orrery::explain
