// JSON for people: indented, but with what belongs together on one line. (What devices read, the library writes.)
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orrery::tool {

// How a value of several parts stands. Inline: an object that reads as one value, such as a code with its name.
enum class Brackets : std::uint8_t { Array, Object, Inline, InlineArray };

class Node {
  public:
    static Node Number(std::int64_t number);
    static Node Unsigned(std::uint64_t number);
    // A token that is JSON already.
    static Node Token(std::string token);
    // The text must be valid UTF-8.
    static Node Text(std::string_view text);
    static Node Bool(bool flag) { return Token(flag ? "true" : "false"); }
    static Node Null() { return Token("null"); }
    static Node Array() { return Node(Kind::Array); }
    static Node Object() { return Node(Kind::Object); }
    // An object that reads as one value, such as a code with its name: never broken, and no obstacle to its parent
    // standing on one line.
    static Node Inline() { return Node(Kind::Inline); }
    static Node InlineArray() { return Node(Kind::InlineArray); }

    Node& Add(Node element);
    Node& Add(std::string_view key, Node member);

    bool isArray() const { return kind_ == Kind::Array || kind_ == Kind::InlineArray; }
    std::size_t size() const { return children_.size(); }
    // Leaves the first `count` members or elements.
    void Truncate(std::size_t count) {
        children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(count), children_.end());
    }
    // A number as it is printed, a text without its quotes; of several parts one line of JSON.
    std::string Bare() const;
    // The member or the element at a path such as "stuObject.nObjectID" or "stuTours[0].szName"; null when there is
    // none.
    const Node* Find(std::string_view path) const;

    // Ends in a newline. Lists and records that are no wider, their indent not counted, stay on one line.
    std::string Print(std::size_t width = kWidest) const;
    static constexpr std::size_t kWidest = 120;
    // The same without a line break inside; without any.
    std::string PrintLine() const;
    std::string OneLine() const;

  private:
    enum class Kind : std::uint8_t { Scalar, Array, Object, Inline, InlineArray };

    explicit Node(Kind kind) : kind_(kind) {}

    bool IsSimple() const { return kind_ != Kind::Array && kind_ != Kind::Object; }
    bool IsNumber() const;
    bool StandsOnOneLine(std::size_t width) const;
    std::size_t Width() const;
    void AppendOneLine(std::string& out) const;
    void Append(std::string& out, std::size_t indent, std::size_t width) const;

    Kind kind_;
    std::string token_;
    std::vector<std::pair<std::string, Node>> children_; // keys are quoted already; those of elements are empty
};

// JSON on one line, written as it is told.
class LineWriter {
  public:
    struct Mark {
        std::size_t used;
        bool isFirst;
    };

    void Open(Brackets brackets) {
        Put(IsArray(brackets) ? '[' : '{');
        isFirst_ = true;
    }
    void Close(Brackets brackets) {
        if (IsArray(brackets))
            Put(']');
        else
            isFirst_ ? Put('}') : Append(" }");
        isFirst_ = false;
    }
    // The name of a member; it has nothing to escape.
    void Key(std::string_view key) {
        constexpr std::size_t kAround = 6; // `, "` and `": `
        char* at = Room(key.size() + kAround);
        if (!isFirst_) *at++ = ',';
        isFirst_ = false;
        *at++ = ' ';
        *at++ = '"';
        key.copy(at, key.size());
        at += key.size();
        *at++ = '"';
        *at++ = ':';
        *at++ = ' ';
        used_ = static_cast<std::size_t>(at - room_.data());
    }
    // Before each element.
    void Next() {
        if (!isFirst_) Append(", ");
        isFirst_ = false;
    }
    void Token(std::string_view token) { Append(token); }
    // So many bytes behind what is spliced may be read.
    static constexpr std::size_t kSlack = 64;
    // Members as they were written elsewhere, with what separates them.
    void Splice(std::string_view members) {
        char* const at = Room(members.size() + kSlack);
        isFirst_ = false;
        used_ += members.size();
        // Most are short: what is copied too much is written over.
        if (members.size() <= kSlack / 2)
            std::memcpy(at, members.data(), kSlack / 2);
        else if (members.size() <= kSlack)
            std::memcpy(at, members.data(), kSlack);
        else
            std::memcpy(at, members.data(), members.size());
    }
    // The same from behind its comma, which stands there only behind another member.
    void SpliceMember(std::string_view member) { Splice(isFirst_ ? member.substr(1) : member); }
    void Integer(std::int64_t number);
    // Elements that are 0: most of a record's reserved words are.
    void Zeros(std::size_t count);
    void Text(std::string_view text);
    // A text of plain ASCII with nothing to escape, in a room that is cleared behind it; false, and nothing is written,
    // when it is none or when this can't be told at a glance.
    bool PlainText(const std::byte* text, std::size_t room);
    // What was written behind a place is taken back.
    Mark Place() const { return {used_, isFirst_}; }
    void GoBack(const Mark& mark) {
        used_ = mark.used;
        isFirst_ = mark.isFirst;
    }
    void End() { Put('\n'); }

    void Append(std::string_view text) {
        text.copy(Room(text.size()), text.size());
        used_ += text.size();
    }
    std::size_t size() const { return used_; }
    // All that was written.
    std::string_view text() const { return std::string_view(room_).substr(0, used_); }
    std::string Take();
    // Begins anew, in the same memory.
    void Clear() { GoBack({0, true}); }

  private:
    static bool IsArray(Brackets brackets) { return brackets == Brackets::Array || brackets == Brackets::InlineArray; }
    void Put(char c) {
        *Room(1) = c;
        ++used_;
    }
    // Where so many bytes may be written.
    char* Room(std::size_t more) {
        if (room_.size() - used_ < more) Grow(more);
        return room_.data() + used_;
    }
    void Grow(std::size_t more);

    std::string room_;
    std::size_t used_ = 0;
    bool isFirst_ = true;
};

std::string Quoted(std::string_view text);
bool IsUtf8(std::string_view text);
// Text of a device for a terminal: control characters and broken UTF-8 become '?'.
std::string Printable(std::string_view text);

} // namespace orrery::tool
