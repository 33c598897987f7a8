// Why the library answered 0: the outcome of a call, put into words with a look of the companion's own at the text.
#pragma once

#include "Commands.h"
#include "frame/Arena.h"
#include "frame/json/Reader.h"

#include <string>
#include <string_view>

namespace orrery::tool {

// A text as the library sees it: up to its first NUL.
struct Document {
    explicit Document(std::string_view itsText);

    std::string_view text;
    StackArena<std::size_t{64} << 10> arena;
    json::Value root;
    json::SyntaxError error;
    bool ok = false;
    std::size_t end = 0; // of the document, where it is one: nobody reads what stands behind
};

// Line, column and what was expected there, with the line itself and a caret under the place. No newline at the end.
std::string ExplainSyntax(const Document& document);

// What a reply holds for a command.
struct Reply {
    const json::Value* value = nullptr; // null value when there is none
    std::string path;                   // "params.table"
    bool isList = false;                // records in an array or an object
    std::uint32_t records = 0;          // how many
};
Reply LookAt(const Command& command, const json::Value& root);

// A reply around a bare value, as the command looks for it; `before`: the bytes in front of the value.
std::string WrapValue(const Command& command, std::string_view value, std::size_t& before);

std::string UnknownCommand(std::string_view name);
std::string ExplainParse(const Command& command, Outcome outcome, const Document& document, std::uint32_t bufferSize);
// `needed`: the capacity that the text would have taken.
std::string ExplainPack(const Command& command, Outcome outcome, std::uint32_t recordSize, std::size_t capacity,
                        std::size_t needed);

} // namespace orrery::tool
