// Record tables run without a frame around them.
#pragma once

#include "frame/record/Engine.h"
#include "support/GuardedBuffer.h"
#include "support/JsonText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace orrery::test {

// Reads over what the record holds. `root` is the whole document, for keys that start there.
template <class R>
bool ReadInto(R& record, const record::Table& table, const std::string& text, const std::string& root = "null",
              std::string_view memberName = {}) {
    Document value(text);
    Document whole(root);
    LocalText local(value.arena);
    JsonParser parser(local);
    record::ReadCall call{parser, whole.root};
    record::ReadRecord(table, value.root, reinterpret_cast<std::byte*>(&record), call, memberName);
    return value.ok && whole.ok && !call.refused;
}

template <class R>
R Read(const record::TypedTable<R>& table, const std::string& text, const std::string& root = "null") {
    R record{};
    if (!ReadInto(record, table, text, root)) std::abort();
    return record;
}

// A record with blocks of its own, and the document whose memory they stand in.
template <class R>
class KeptRecord {
  public:
    KeptRecord(const record::TypedTable<R>& table, const std::string& text) : document_(text) {
        LocalText local(document_.arena);
        JsonParser parser(local);
        record::ReadCall call{parser, document_.root};
        record::ReadRecord(table, document_.root, reinterpret_cast<std::byte*>(&record_), call);
    }
    const R* operator->() const { return &record_; }

  private:
    Document document_;
    R record_{};
};

// The text of one record, without a newline.
inline std::string WriteBytes(const record::Table& table, const void* record) {
    StackArena<4096> arena;
    LocalText local(arena);
    JsonParser parser(local);
    std::string text;
    for (int pass = 0; pass < 2; ++pass) { // measured first
        json::TextWriter out(text.data(), text.size());
        record::WriteCall call{parser, out, nullptr, false, {}};
        record::WriteRecord(table, static_cast<const std::byte*>(record), call);
        text.resize(out.length());
    }
    return text;
}

template <class R>
std::string Write(const record::TypedTable<R>& table, const R& record) {
    return WriteBytes(table, &record);
}

// However little room there is: what fits is written, nothing behind it is touched, and the length is told.
inline void ExpectInEveryRoom(const record::Table& table, const void* record, const std::string& whole) {
    // Behind a long key and a long value there may be this much before the next is put without a look at each byte.
    constexpr std::size_t kLongest = 800;
    for (std::size_t capacity = 0; capacity <= whole.size() + kLongest; ++capacity) {
        const GuardedBuffer room(capacity);
        json::TextWriter out(room.data(), capacity);
        StackArena<64> arena;
        LocalText text(arena);
        JsonParser parser(text);
        record::WriteCall call{parser, out, nullptr, false, {}};
        record::WriteRecord(table, static_cast<const std::byte*>(record), call);
        ASSERT_EQ(out.length(), whole.size()) << capacity << " bytes of room: " << room.view();
        const std::size_t kept = std::min(capacity, whole.size());
        ASSERT_EQ(room.view().substr(0, kept), whole.substr(0, kept)) << capacity << " bytes of room";

        // The same into room that grows when it is used up.
        json::TextWriter growing(room.data(), capacity, arena, whole.size() + kLongest);
        record::WriteCall again{parser, growing, nullptr, false, {}};
        record::WriteRecord(table, static_cast<const std::byte*>(record), again);
        ASSERT_EQ(std::string_view(growing.text(), growing.length()), whole) << capacity << " bytes of room at first";
    }
}
template <class R>
void ExpectInEveryRoom(const record::TypedTable<R>& table, const R& record, const std::string& whole) {
    ExpectInEveryRoom(table, static_cast<const void*>(&record), whole);
}

} // namespace orrery::test
