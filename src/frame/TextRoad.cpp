#include "frame/TextRoad.h"

#include "frame/ReplyWalk.h"

#include <algorithm>
#include <limits>

namespace orrery {

using record::ReadCall;
using record::TextCall;

namespace {

// ---- Which commands ------------------------------------------------------------------------------------------------

// A record that the caller gets back as it was when the road ends is copied first: beyond this size that takes longer
// than the document of a reply that fills it.
constexpr std::uint32_t kMostKept = 8 << 10;
// Of all records of a call, and of what their pointers lead to.
constexpr std::size_t MostKept(std::size_t textSize) {
    return (std::size_t{64} << 10) + 16 * textSize;
}
// Of each two bytes of text, where texts fill a part of their fields.
constexpr std::size_t kUsuallyKept = 2;

// `movesRecords`: records are touched otherwise than by reading them.
const char* WhyByDocument(const record::Table& table, bool isCleared, bool movesRecords) noexcept {
    if (!record::IsInText(table) && !record::HasAsides(table)) return "the table asks for its object as a whole";
    if (table.partsAskRoot) return "a part of the record has keys that start at the document";
    if (table.size > kMostKept && !isCleared && (movesRecords || !record::IsKeptByRow(table)))
        return "the caller's record is too large to keep a copy of";
    return nullptr;
}

// Whether everything that reading touches was cleared by the frame.
bool IsCleared(const ParseFrame& frame) noexcept {
    return frame.clearing == Clearing::Buffer
           || (frame.clearing == Clearing::Record && frame.take == Take::One && frame.takesBy == nullptr);
}

bool HasPath(const ParseFrame& frame) noexcept {
    return frame.source != Source::CapsOrParams && frame.source != Source::Result;
}
ValuePath PathOf(const ParseFrame& frame) noexcept {
    switch (frame.source) {
    case Source::Caps:
        return {"caps", true};
    case Source::Params:
        return {frame.name, true};
    case Source::Top:
        return {frame.name, false};
    default:
        return {"table", true};
    }
}

// ---- The record as it was ------------------------------------------------------------------------------------------

// Puts records back that were read before the road ended, and what their pointers lead to. Pointers of records that
// were cleared lead nowhere.
class Undo {
  public:
    Undo(const record::Table& table, const ParseRequest& request, std::uint32_t stride, bool isCleared, ReadCall& call,
         std::size_t textSize) noexcept
        : first_(static_cast<std::byte*>(request.buffer)), stride_(stride), isCleared_(isCleared),
          isByRow_(!isCleared && table.size > kMostKept), keeper_(call.parser.text().arena(), MostKept(textSize)) {
        if (isCleared) return;
        call.keeper = &keeper_;
        call.parser.text().arena().Expect(kUsuallyKept * textSize);
    }
    Undo(const Undo&) = delete;
    Undo& operator=(const Undo&) = delete;

    // Before the record at `at`, the next one, is touched. False when it cannot be kept. Reading keeps the rows of
    // large ones.
    bool Keep(std::byte* at) noexcept {
        const auto end = static_cast<std::size_t>(at - first_) + stride_;
        if (end <= touched_) return true;
        if (!isCleared_ && !isByRow_ && !keeper_.Keep(at, stride_)) return false;
        touched_ = end;
        return true;
    }
    void PutBack() noexcept {
        if (isCleared_)
            std::memset(first_, 0, touched_);
        else
            keeper_.PutBack();
    }
    // Whether reading has to keep the rows that it touches.
    bool isByRow() const noexcept { return isByRow_; }
    // Whether something could not be kept, and the call has to end.
    bool failed() const noexcept { return keeper_.failed(); }

  private:
    std::byte* const first_;
    const std::uint32_t stride_;
    const bool isCleared_;
    const bool isByRow_;
    record::Keeper keeper_;
    std::size_t touched_ = 0;
};

// ---- Records -------------------------------------------------------------------------------------------------------

// Whether a key behind the value is one that the table would have looked up in front of it.
bool AsksRootFor(const record::Table& table, std::string_view key) noexcept {
    const record::Node* node = table.nodes + table.fromRoot.first;
    std::size_t count = table.fromRoot.count;
    for (std::size_t i = 0; i < count; ++i) {
        if (table.keyOf(node[i]) == key) return true;
        if (node[i].childCount > 0)
            count = std::max<std::size_t>(count,
                                          node[i].firstChild + node[i].childCount - std::size_t{table.fromRoot.first});
    }
    return false;
}

// Element after element of the array at `p`; `read` takes one that has a record, `skip` tells whether the others may
// be passed over. The byte behind it, or null.
class Elements {
  public:
    Elements(const char* end, Arena& arena) noexcept : end_(end), arena_(arena) {}

    template <class Read>
    const char* ForEach(const char* p, Read read) noexcept {
        json::Step step = json::FirstEntry(p, end_, ']');
        if (!step.more) return nullptr; // an empty list is a matter of the frame's words
        while (step.more) {
            p = read(step.at);
            if (p == nullptr) return nullptr;
            step = json::NextEntry(p, end_, ']');
        }
        return step.at;
    }
    const char* Skip(const char* p) noexcept { return json::SkipValue(p, end_, arena_); }

  private:
    const char* const end_;
    Arena& arena_;
};

// One reply of a command of the family frame.
class FamilyReply {
  public:
    FamilyReply(const record::Table& table, const ParseFrame& frame, const ParseRequest& request, std::uint32_t stride,
                std::string_view source) noexcept
        : table_(table), frame_(frame), request_(request),
          undo_(table, request, stride, IsCleared(frame), call_, source.size()),
          records_(table, frame, request, stride, call_), text_{call_, source.data() + source.size()}, source_(source) {
        records_.ReadFieldsInPlace();
        text_.keepsRows = undo_.isByRow();
    }

    std::optional<Outcome> Read() noexcept {
        ReplyWalk walk(source_, PathOf(frame_), document_);
        const bool walked = walk.Run([this](const char* p) { return ReadValue(p); },
                                     [this](std::string_view key) { return AsksRootFor(table_, key); });
        bool isGood = walked && !document_.arena.failed() && !undo_.failed() && !call_.overflowed
                      && ResultPasses(frame_.result, document_.root["result"])
                      && (frame_.result != ResultTest::Verdict
                          || ResultPasses(ResultTest::FalseRefuses, document_.root["result"]));
        if (isGood && text_.waiting != nullptr) {
            record::FinishAsides(text_);
            isGood = !document_.arena.failed() && !call_.overflowed;
        }
        if (!isGood) {
            undo_.PutBack();
            return std::nullopt;
        }
        TellLength(frame_, holds_, records_, request_);
        return call_.refused ? Outcome::RowRefused : Outcome::Done;
    }

  private:
    const char* ReadValue(const char* p) noexcept {
        if (!undo_.Keep(records_.next())) return nullptr;
        auto* const buffer = static_cast<std::byte*>(request_.buffer);
        if (frame_.parsed != nullptr) frame_.parsed(buffer);
        if (frame_.rootKeysFirst) record::ReadRootFields(table_, buffer, call_);
        const Take take = frame_.takesBy != nullptr ? frame_.takesBy(document_.root) : frame_.take;
        const bool isArray = *p == '[';
        const bool isObject = *p == '{';
        switch (take) {
        case Take::One:
            return ReadOne(p);
        case Take::OneOrMany:
            return isArray ? ReadMany(p) : isObject ? ReadOne(p) : nullptr;
        case Take::AnyOrMany:
            return isArray ? ReadMany(p) : ReadOne(p);
        case Take::Many:
        case Take::ManyOrNone:
            return isArray ? ReadMany(p) : nullptr;
        case Take::ByMember:
        case Take::ByMemberOrNone:
            return isObject ? ReadByName(p) : nullptr;
        default:
            return nullptr;
        }
    }
    const char* ReadOne(const char* p) noexcept {
        if (*p == 'n') return nullptr;
        holds_ = Holds::OneRecord;
        return records_.ReadText(p, text_, {});
    }
    const char* ReadMany(const char* p) noexcept {
        holds_ = Holds::Elements;
        Elements elements(text_.end, document_.arena);
        return elements.ForEach(p, [&](const char* at) -> const char* {
            if (records_.isFull()) return frame_.allMustFit ? nullptr : elements.Skip(at);
            if (*at == 'n' && !frame_.readsNulls) {
                records_.Skip();
                return elements.Skip(at);
            }
            return undo_.Keep(records_.next()) ? records_.ReadText(at, text_, {}) : nullptr;
        });
    }
    // Names have to come in order, and each once, as a document has them.
    const char* ReadByName(const char* p) noexcept {
        holds_ = Holds::Members;
        std::string_view before;
        json::Step step = json::FirstEntry(p, text_.end, '}');
        for (bool isFirst = true; step.more; isFirst = false) {
            if (*step.at != '"') return nullptr;
            json::Value key;
            p = json::ReadScalar(step.at, text_.end, document_.arena, &key);
            if (p == nullptr) return nullptr;
            p = json::ValueBehindKey(p, text_.end);
            if (p == nullptr) return nullptr;
            const std::string_view name = key.asString();
            if (!isFirst && json::CompareKeys(before, name) >= 0) return nullptr;
            before = name;
            if (records_.isFull() || *p == 'n')
                p = json::SkipValue(p, text_.end, document_.arena);
            else
                p = undo_.Keep(records_.next()) ? records_.ReadText(p, text_, name) : nullptr;
            if (p == nullptr) return nullptr;
            step = json::NextEntry(p, text_.end, '}');
        }
        return step.at;
    }

    const record::Table& table_;
    const ParseFrame& frame_;
    const ParseRequest& request_;
    Document document_;
    ReadCall call_{document_.parser, document_.root};
    Undo undo_;
    ReplyRecords records_;
    TextCall text_;
    const std::string_view source_;
    Holds holds_ = Holds::Nothing;
};

// The text, where a call may be read from it; null data where it may not.
std::string_view SourceOf(const ParseRequest& request) noexcept {
    if (request.road != nullptr && request.road->documentOnly) return {};
    const std::string_view source(request.text);
    return source.size() > std::numeric_limits<std::uint32_t>::max() ? std::string_view() : source;
}

void Tell(const ParseRequest& request) noexcept {
    if (request.road != nullptr) request.road->tookText = true;
}

} // namespace

const char* WhyByDocument(const record::Table& table, const ParseFrame& frame) noexcept {
    if (!HasPath(frame)) return "the value may stand in one of two places";
    if (frame.takesBy != nullptr && !frame.looksBeside) return "its shape is settled by what is in it";
    if (frame.take > Take::ManyOrNone && frame.take != Take::ByMember && frame.take != Take::ByMemberOrNone)
        return "the record is a list or a text";
    const bool movesRecords =
        frame.parsed != nullptr || frame.stride != Stride::Record || frame.clearing == Clearing::Read;
    return WhyByDocument(table, IsCleared(frame), movesRecords);
}

const char* WhyByDocument(const record::Table& table, const GenericFrame& frame) noexcept {
    if (frame.dimension != 0) return "a record is a list itself";
    return WhyByDocument(table, frame.zeroBuffer, false);
}

std::optional<Outcome> ParseFamilyText(const record::Table& table, const ParseFrame& frame, const ParseRequest& request,
                                       std::uint32_t stride) noexcept {
    if (request.bufferSize < stride || WhyByDocument(table, frame) != nullptr) return std::nullopt;
    const std::string_view source = SourceOf(request);
    if (source.data() == nullptr) return std::nullopt;
    const auto outcome = FamilyReply(table, frame, request, stride, source).Read();
    if (outcome) Tell(request);
    return outcome;
}

bool ParseGenericText(const record::Table& table, const GenericFrame& frame, const ParseRequest& request) noexcept {
    if (WhyByDocument(table, frame) != nullptr) return false;
    const std::string_view source = SourceOf(request);
    if (source.data() == nullptr) return false;

    Document document;
    ReadCall call{document.parser, document.root};
    TextCall text{call, source.data() + source.size()};
    Undo undo(table, request, table.size, frame.zeroBuffer, call, source.size());
    text.keepsRows = undo.isByRow();
    auto* next = static_cast<std::byte*>(request.buffer);
    const std::byte* const end = next + request.bufferSize / table.size * std::size_t{table.size};
    const auto readOne = [&](const char* p) -> const char* {
        if (*p == 'n' || !undo.Keep(next)) return nullptr;
        p = record::ReadRecordText(table, p, next, text);
        next += table.size;
        ++call.index;
        return p;
    };
    ReplyWalk walk(source, {"table", true}, document);
    const bool walked = walk.Run(
        [&](const char* p) -> const char* {
            if (*p != '[' || !frame.arrayForm) return readOne(p);
            Elements elements(text.end, document.arena);
            return elements.ForEach(p, [&](const char* at) -> const char* {
                if (*at != '{') return nullptr; // the array's depth, which settles what it is, is not that of a list
                return next == end ? elements.Skip(at) : readOne(at);
            });
        },
        [&](std::string_view key) { return AsksRootFor(table, key); });
    bool isGood = walked && !document.arena.failed() && !undo.failed()
                  && ResultPasses(ResultTest::MustBeTrue, document.root["result"]);
    if (isGood && text.waiting != nullptr) {
        record::FinishAsides(text);
        isGood = !document.arena.failed();
    }
    if (!isGood) {
        undo.PutBack();
        return false;
    }
    if (request.returnedLength != nullptr)
        *request.returnedLength += static_cast<std::uint32_t>(next - static_cast<std::byte*>(request.buffer));
    Tell(request);
    return true;
}

} // namespace orrery
