// "PicInPic": a device's pictures in pictures, by the way in which its screen is divided.
#include "media/Overlay.h"

#include "frame/Deliver.h"
#include "frame/Document.h"
#include "frame/ReplySteps.h"
#include "frame/record/Engine.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace orrery {

using namespace record;
using json::Value;

namespace {

PART(kSmall, CFG_PICINPIC_SMALL,
     {
         FIELD(szDeviceId, "DeviceID", Text).Always(),
         FIELD(nChannel, "Channel", Int).Always(),
         FIELD(bAudio, "Audio", Bool).Always().TrueAtOne(),
         FIELD(nPosition, "Position", Int).Exactly(),
     });

PART(kTop, CFG_PICINPIC_TOP,
     {
         FIELD(bEnable, "Enable", Bool).Always().TrueAtOne(),
         FIELD(szDeviceId, "DeviceID", Text).Always(),
         FIELD(nChannel, "Channel", Int),
         FIELD(nMaxSmall),
         FIELD(nReturnSmall),
         FIELD(pstuSmall, "SmallPic", Record(kSmall))
             .Count(AT(nReturnSmall))
             .Capacity(AT(nMaxSmall))
             .AnyShape()
             .Always(),
     });

PART(kSplit, CFG_PICINPIC_SPLIT,
     {
         FIELD(emSplitMode),
         FIELD(nMaxTop),
         FIELD(nReturnTop),
         FIELD(pstuTop, "", Record(kTop)).Count(AT(nReturnTop)).Capacity(AT(nMaxTop)).AnyShape().Always(),
     });

constexpr std::uint32_t kRecord = sizeof(CFG_PICINPIC_INFO);

template <class R>
std::byte* At(R* first, std::uint32_t index) {
    return reinterpret_cast<std::byte*>(first) + std::size_t{index} * sizeof(R);
}

// Each member is a way of dividing the picture, a null one without windows; "Extend" only costs its turn.
void ReadSplits(const Value& value, std::byte* record, ReadCall& call) noexcept {
    const auto info = Load<CFG_PICINPIC_INFO>(record);
    std::uint32_t visited = 0;
    std::uint32_t used = 0;
    for (const json::Member& member : value.members()) {
        if (info.pstuSplits == nullptr || visited++ == info.nMaxSplit) break;
        if (member.key() == kFurtherPictures) continue;
        std::byte* const split = At(info.pstuSplits, used++);
        SET_MEMBER(split, CFG_PICINPIC_SPLIT, emSplitMode, JsonParser::GetOverlaySplit(member.key()));
        ReadFields(kSplit, member.value, split, call);
    }
    SET_MEMBER(record, CFG_PICINPIC_INFO, nReturnSplit, used);
}

// ---- Writing ----

struct Way {
    std::array<char, 32> room;
    std::uint32_t nameSize;
    std::uint32_t index;
    std::string_view name() const { return {room.data(), nameSize}; }
};

// What the caller's arrays must have for the text to say what the record holds.
bool IsWhole(const std::byte* at) noexcept {
    const auto split = Load<CFG_PICINPIC_SPLIT>(at);
    if (split.nMaxTop == 0 || split.nReturnTop == 0 || split.pstuTop == nullptr) return false;
    for (std::uint32_t i = 0; i < std::min(split.nReturnTop, split.nMaxTop); ++i) {
        const auto top = Load<CFG_PICINPIC_TOP>(At(split.pstuTop, i));
        if (top.nMaxSmall == 0 || top.pstuSmall == nullptr) return false;
    }
    return true;
}

// The ways in the order of their names, of equal ones the last; null when one is not whole or memory ran out.
const Way* SortedWays(const CFG_PICINPIC_INFO& info, std::uint32_t& count, WriteCall& call) noexcept {
    count = std::min(info.nReturnSplit, info.nMaxSplit);
    Way* const ways = call.parser.text().arena().Array<Way>(std::max(count, 1u));
    if (ways == nullptr) return nullptr;
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::byte* const at = At(info.pstuSplits, i);
        if (!IsWhole(at)) return nullptr;
        std::array<char, 32> room;
        const std::string_view name = JsonParser::OverlaySplitText(MEMBER(at, CFG_PICINPIC_SPLIT, emSplitMode), room);
        std::memcpy(ways[i].room.data(), name.data(), name.size());
        ways[i].nameSize = static_cast<std::uint32_t>(name.size());
        ways[i].index = i;
    }
    std::sort(ways, ways + count, [](const Way& left, const Way& right) {
        return left.name() != right.name() ? left.name() < right.name() : left.index > right.index;
    });
    count = static_cast<std::uint32_t>(
        std::unique(ways, ways + count, [](const Way& left, const Way& right) { return left.name() == right.name(); })
        - ways);
    return ways;
}

class Pictures {
  public:
    Pictures(const std::byte* first, std::uint32_t count, WriteCall& call)
        : first_(first), count_(count), call_(call) {}

    // The record at `index` as an object, the first with all others inside it.
    bool Write(std::uint32_t index) noexcept {
        const auto info = Load<CFG_PICINPIC_INFO>(first_ + std::size_t{index} * kRecord);
        if (info.nMaxSplit == 0 || info.pstuSplits == nullptr) return false;
        std::uint32_t count = 0;
        const Way* const ways = SortedWays(info, count, call_);
        if (ways == nullptr) return false;
        bool extends = index == 0 && count_ > 1;
        if (count == 0 && !extends) {
            call_.out.Null(); // an object that nothing was put in
            return true;
        }
        call_.out.BeginObject();
        for (std::uint32_t i = 0; i < count; ++i) {
            if (extends && kFurtherPictures < ways[i].name()) {
                extends = false;
                if (!WriteExtend()) return false;
            }
            call_.out.Key(ways[i].name());
            WriteTops(At(info.pstuSplits, ways[i].index));
        }
        if (extends && !WriteExtend()) return false;
        call_.out.EndObject();
        return true;
    }

  private:
    bool WriteExtend() noexcept {
        call_.out.Key(kFurtherPictures);
        call_.out.BeginArray();
        for (std::uint32_t i = 1; i < count_; ++i) {
            if (!Write(i)) return false;
        }
        call_.out.EndArray();
        return true;
    }

    void WriteTops(const std::byte* at) noexcept {
        const auto split = Load<CFG_PICINPIC_SPLIT>(at);
        call_.out.BeginArray();
        for (std::uint32_t i = 0; i < std::min(split.nReturnTop, split.nMaxTop); ++i)
            WriteRecord(kTop, At(split.pstuTop, i), call_);
        call_.out.EndArray();
    }

    const std::byte* first_;
    std::uint32_t count_;
    WriteCall& call_;
};

} // namespace

// For those who lay the record out; the functions below read and write it.
TABLE(kPicInPic, CFG_PICINPIC_INFO,
      {
          FIELD(nMaxSplit),
          FIELD(nReturnSplit),
          FIELD(pstuSplits, "", Record(kSplit))
              .Count(AT(nReturnSplit))
              .Capacity(AT(nMaxSplit))
              .Keyed()
              .NullElement(Nulls::Named),
      });

Outcome ParsePicInPic(const ParseRequest& request) noexcept {
    if (request.bufferSize < kRecord) return Outcome::BufferTooSmall;
    Document document;
    if (const Outcome parsed = document.Parse(request.text); parsed != Outcome::Done) return parsed;
    if (!ResultPasses(ResultTest::MustBeTrue, document.root["result"])) return Outcome::Refused;
    const Value& table = FindValue(Source::Table, "", document.root);
    std::uint32_t used = 0;
    if (table.type() == json::Type::Object) {
        auto* const buffer = static_cast<std::byte*>(request.buffer);
        ReadCall call{document.parser, document.root};
        ReadSplits(table, buffer, call);
        used = 1;
        // An element that the caller gave no room for is left out.
        for (const Value& extend : table[kFurtherPictures].elements()) {
            if (used == request.bufferSize / kRecord) break;
            ReadSplits(extend, buffer + std::size_t{used++} * kRecord, call);
        }
        if (document.arena.failed()) return Outcome::OutOfMemory;
    }
    if (request.returnedLength != nullptr) *request.returnedLength = used * kRecord;
    return Outcome::Done;
}

Outcome PackPicInPic(const PackRequest& request) noexcept {
    if (request.recordSize < kRecord) return Outcome::RecordTooSmall;
    const auto write = [&](json::TextWriter& out) {
        WrittenText written(out);
        Pictures pictures(static_cast<const std::byte*>(request.record), request.recordSize / kRecord, written.call);
        const bool isWhole = pictures.Write(0);
        return isWhole || written.arena.failed() ? written.End() : Outcome::NotAccepted;
    };
    return DeliverText(write, Capacity::Strict, request);
}

} // namespace orrery
