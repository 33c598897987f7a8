// Record tables run without a frame around them.
#pragma once

#include "frame/record/Engine.h"
#include "support/JsonText.h"

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

} // namespace orrery::test
