// The steps of a reply on its way into records, for frames of a command's own as for those that many share: whether the
// device accepted the call, where the value stands, what it holds, and one record after the other.
#pragma once

#include "frame/Document.h"
#include "frame/Frames.h"
#include "frame/Platform/Versioned.h"
#include "frame/record/Engine.h"
#include "frame/record/ReadText.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <utility>

namespace orrery {

bool ResultPasses(ResultTest test, const json::Value& result) noexcept;

// `name` is that of the member, for Params and Top.
const json::Value& FindValue(Source source, const char* name, const json::Value& root) noexcept;

// What a value of the right shape holds.
enum class Holds : std::uint8_t { Nothing, OneRecord, BlankRecord, Elements, Members, NoList, WrongShape };
Holds ShapeOf(Take take, const json::Value& value) noexcept;

// The caller's records, one behind the other.
class ReplyRecords {
  public:
    ReplyRecords(const record::Table& table, const ParseFrame& frame, const ParseRequest& request, std::uint32_t stride,
                 record::ReadCall& call) noexcept
        : table_(table), frame_(frame), first_(static_cast<std::byte*>(request.buffer)), stride_(stride),
          room_(request.bufferSize / stride), clears_(frame.clearing == Clearing::Read),
          isInPlace_(VersionedRecords::AreReadInPlace(table, frame.stride, stride)),
          isVersioned_(frame.stride != Stride::Record && !isInPlace_), versioned_(table, frame.stride, stride),
          call_(call) {
        staying_.end = stride;
        if (isVersioned_) local_ = call.parser.text().arena().Array<std::byte>(table.size);
    }

    // Also records that move field by field are read where they stand, if they can be.
    void ReadFieldsInPlace() noexcept {
        if (!isVersioned_) return;
        const auto staying = VersionedRecords::ReadInPlaceByField(table_, frame_.stride, stride_);
        if (!staying) return;
        staying_ = *staying;
        isInPlace_ = true;
        isVersioned_ = false;
    }

    bool isFull() const noexcept { return used_ == room_; }
    // Records walked, whether something was read into them or not.
    std::uint32_t used() const noexcept { return used_; }
    // Those that something was read into.
    std::uint32_t filled() const noexcept { return filled_; }
    std::uint32_t stride() const noexcept { return stride_; }

    // Nothing is written for a null: its record stays as the buffer was cleared.
    void Skip() noexcept { ++used_; }

    void Read(const json::Value& value, std::string_view memberName) noexcept {
        std::byte* const at = Next();
        if (isVersioned_) return ReadVersioned(value, at, memberName);
        if (isInPlace_) return ReadInPlace(at, [&] { record::ReadRecord(table_, value, at, call_, memberName); });
        if (clears_) std::memset(at, 0, stride_);
        record::ReadRecord(table_, value, at, call_, memberName);
    }
    // The same from the text, in front of the value's end; the byte behind it, or null as ReadRecordText has it.
    const char* ReadText(const char* p, record::TextCall& text, std::string_view memberName) noexcept {
        std::byte* const at = Next();
        if (isVersioned_) {
            ReadVersioned(at, [&] { p = record::ReadRecordText(table_, p, local_, text, memberName); });
            return local_ == nullptr ? nullptr : p;
        }
        if (isInPlace_) {
            ReadInPlace(at, [&] { p = record::ReadRecordText(table_, p, at, text, memberName); });
            return p;
        }
        if (clears_) std::memset(at, 0, stride_);
        return record::ReadRecordText(table_, p, at, text, memberName);
    }
    // Where the next record goes.
    std::byte* next() const noexcept { return first_ + std::size_t{used_} * stride_; }

  private:
    std::byte* Next() noexcept {
        std::byte* const at = next();
        call_.index = used_++;
        ++filled_;
        return at;
    }
    void ReadVersioned(const json::Value& value, std::byte* at, std::string_view memberName) noexcept {
        ReadVersioned(at, [&] { record::ReadRecord(table_, value, local_, call_, memberName); });
    }
    // The same as through a local record, for those that VersionedRecords tells of. The caller's own word stays.
    template <class Read>
    void ReadInPlace(std::byte* at, Read read) noexcept {
        const auto word = record::Load<std::uint32_t>(at);
        std::byte kept[StayingBytes::kMostRuns][StayingBytes::kMostBytes];
        for (std::uint32_t i = 0; i < staying_.count; ++i)
            std::memcpy(kept[i], at + staying_.runs[i].at, staying_.runs[i].size);
        std::memset(at, 0, staying_.end);
        for (std::uint32_t i = 0; i < staying_.count; ++i)
            std::memcpy(at + staying_.runs[i].at, kept[i], staying_.runs[i].size);
        read(); // which sets the size words among the defaults
        record::Store(at, word);
    }
    // A record that ends the call stays as the caller had it.
    template <class Read>
    void ReadVersioned(std::byte* at, Read read) noexcept {
        if (local_ == nullptr) return;
        const bool wasRefused = std::exchange(call_.refused, false);
        versioned_.Start(at, local_);
        read();
        if (!call_.refused) versioned_.Return(local_, at);
        call_.refused = call_.refused || wasRefused;
    }

    const record::Table& table_;
    const ParseFrame& frame_;
    std::byte* first_;
    std::uint32_t stride_;
    std::uint32_t room_;
    std::uint32_t used_ = 0;
    std::uint32_t filled_ = 0;
    bool clears_;
    bool isInPlace_;
    bool isVersioned_; // through the local record
    StayingBytes staying_;
    VersionedRecords versioned_;
    std::byte* local_ = nullptr;
    record::ReadCall& call_;
};

// Tells the caller how much of the buffer the reply has filled.
void TellLength(const ParseFrame& frame, Holds holds, const ReplyRecords& records,
                const ParseRequest& request) noexcept;

void ReadAll(Holds holds, const json::Value& value, bool readsNulls, ReplyRecords& records) noexcept;

} // namespace orrery
