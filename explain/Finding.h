// Findings while they are collected, and the way through a document to where they are.
#pragma once

#include "frame/json/Value.h"
#include "frame/record/Table.h"

#include "orrery/explain.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::explain {

// One step of a path; the steps lie on the walker's own stack.
struct Path {
    const Path* up = nullptr;
    std::string_view key{};
    std::uint32_t index = 0;
    bool isElement = false;

    Path Member(std::string_view name) const { return {this, name, 0, false}; }
    Path Element(std::uint32_t at) const { return {this, {}, at, true}; }
};
// "params.table[2].Port".
std::string TextOf(const Path& path);

struct Finding {
    int kind = 0;
    int gravity = ORRERY_FINDING_LOST;
    // Where it is: a value of the document, whose place in the text is looked up later. The same of its key.
    const json::Value* at = nullptr;
    bool atKey = false;
    // Only functions could read it: to be tried before it is told.
    bool isTried = false;
    std::uint32_t lost = 0;
    std::uint32_t record = 0; // of the caller's buffer
    std::size_t offset = 0, length = 0;
    std::size_t valueOffset = 0, valueEnd = 0;
    std::string path, field, message, nearest;
    // Of an unknown key: the key, and the object among whose keys the nearest is looked for once it is told.
    std::string_view key{};
    const record::Table* table = nullptr;
    record::NodeRange range{};
};

// Parts of a sentence, in one block of memory.
std::string Joined(std::initializer_list<std::string_view> parts);

const char* WordOf(int kind);

// Names the field that a row stores to.
std::string FieldName(const record::Table& table, const record::Field& field);

// "a text", "the number 5": a value in a message.
std::string Shown(const json::Value& value);
const char* TypeName(const json::Value& value);
// A text of a device inside a message: in quotes, cut when it is long, control characters escaped.
std::string Quoted(std::string_view text);

// Names that are alike, the nearest first; at most three.
std::vector<std::string_view> Nearest(std::string_view wanted, const std::vector<std::string_view>& names);

} // namespace orrery::explain
