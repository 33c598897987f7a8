// JSON for people: indented, but with what belongs together on one line. (What devices read, the library writes.)
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orrery::tool {

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
    // The member or the element at a path such as "stuObject.nObjectID" or "stuTours[0].szName"; null when there is
    // none.
    const Node* Find(std::string_view path) const;

    // Ends in a newline.
    std::string Print() const;
    // The same without a line break inside.
    std::string PrintLine() const;

  private:
    enum class Kind : std::uint8_t { Scalar, Array, Object, Inline, InlineArray };

    explicit Node(Kind kind) : kind_(kind) {}

    bool IsSimple() const { return kind_ != Kind::Array && kind_ != Kind::Object; }
    bool IsNumber() const;
    bool StandsOnOneLine() const;
    std::size_t Width() const;
    void AppendOneLine(std::string& out) const;
    void Append(std::string& out, std::size_t indent) const;

    Kind kind_;
    std::string token_;
    std::vector<std::pair<std::string, Node>> children_; // keys are quoted already; those of elements are empty
};

std::string Quoted(std::string_view text);
bool IsUtf8(std::string_view text);
// Text of a device for a terminal: control characters and broken UTF-8 become '?'.
std::string Printable(std::string_view text);

} // namespace orrery::tool
