#include "device/JsonText.h"

#include "frame/json/Reader.h"
#include "frame/record/Engine.h"

namespace orrery {

using namespace record;

namespace {

void ReadObject(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    if (value.type() != json::Type::Object) return;
    auto* const text = reinterpret_cast<char*>(record + field.offset);
    std::memset(text, 0, field.size);
    json::TextWriter out(text, field.size - 1);
    if (!out.Write(value, call.parser.text().arena()) || !out.fits()) std::memset(text, 0, field.size);
}

void WriteObject(const Field& field, const std::byte* record, WriteCall& call) {
    Arena& arena = call.parser.text().arena();
    json::Value value;
    if (!json::Parse(TextAt(record + field.offset, field.size), arena, value)) return;
    if (value.type() != json::Type::Object) return;
    call.Key();
    call.out.Write(value, arena);
}

} // namespace

constexpr CustomCodec kJsonText{ReadObject, WriteObject, R"({"Baud":9600,"Line":"A"})"};

} // namespace orrery
