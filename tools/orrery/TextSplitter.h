// The texts of a stream, each as soon as it is complete: one a line, one behind the other, or over many lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orrery::tool {

class TextSplitter {
  public:
    struct Piece {
        std::string_view text;  // until more is fed
        std::uint64_t line = 1; // of the stream, at which it begins
        std::uint64_t offset = 0;
    };

    void Feed(std::string_view bytes);
    // The next text that is complete. A text that was cut off is given up where another one begins on a line of its
    // own.
    std::optional<Piece> Next() { return Take(false); }
    // A whole line that begins and ends as texts do, and behind which another one begins: nobody has looked into it, so
    // that it may hold several texts. Nothing where that is not so; then Next() tells.
    std::optional<Piece> NextLine();
    // At the end of the stream: what is left, text after text, then nothing.
    std::optional<Piece> Rest() { return Take(true); }

  private:
    std::optional<Piece> Take(bool isEnd);
    bool Begin(bool isEnd);
    void SkipPlain(std::string_view left);
    Piece Cut(std::size_t end);
    void Restart();

    std::string buffer_;
    std::size_t begin_ = 0; // of what is left of it
    std::uint64_t line_ = 1;
    std::uint64_t fed_ = 0; // bytes before the buffer
    // Of the text at the buffer's beginning: how far it was looked at, and what was open there.
    std::size_t at_ = 0;
    std::size_t byBytes_ = 0; // up to here byte after byte
    std::size_t depth_ = 0;
    bool begun_ = false;  // with a bracket
    bool isLine_ = false; // with anything else: it ends with its line
    bool inText_ = false; // between quotes
    bool escaped_ = false;
};

} // namespace orrery::tool
