// Replies as devices send them, made up from a seed, so that every run measures the same texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::bench {

// A small generator of numbers that look random.
class Dice {
  public:
    explicit Dice(std::uint64_t seed) : state_(seed) {}
    std::uint64_t Next() {
        std::uint64_t z = state_ += 0x9E3779B97F4A7C15u;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
        return z ^ (z >> 31);
    }
    int Below(int limit) { return static_cast<int>(Next() % static_cast<std::uint64_t>(limit)); }
    int Between(int least, int most) { return least + Below(most - least + 1); }
    bool Chance(int percent) { return Below(100) < percent; }

  private:
    std::uint64_t state_;
};

// How a text is laid out.
enum class Layout {
    Device,   // { "Enable" : true, "Level" : 3 }
    Compact,  // {"Enable":true,"Level":3}
    Indented, // a line a member, three blanks a level
};

// Puts a text together, member by member.
class TextBuilder {
  public:
    explicit TextBuilder(Layout layout) : layout_(layout) {}

    TextBuilder& Key(std::string_view key);
    TextBuilder& Text(std::string_view text); // escapes as devices do
    TextBuilder& Number(std::int64_t number);
    TextBuilder& Raw(std::string_view token);
    TextBuilder& Bool(bool flag) { return Raw(flag ? "true" : "false"); }
    // `flat` keeps a short list on one line where others are indented.
    TextBuilder& Open(char bracket, bool flat = false);
    TextBuilder& Close(char bracket);

    std::string Take() { return std::move(text_); }
    std::size_t size() const { return text_.size(); }

  private:
    void Separate();
    void NewLine();
    bool isFlat() const { return layout_ != Layout::Indented || flatDepth_ > 0; }

    Layout layout_;
    std::string text_;
    int depth_ = 0;
    int flatDepth_ = 0;
    bool first_ = true;
    bool afterKey_ = false;
};

using Texts = std::vector<std::string>;

// Texts of nearly `size` bytes each: small answers, a configuration, tables of many channels.
Texts TextsOfSize(std::size_t size, int variants);

// Replies to commands, with all keys that the command knows.
Texts AlarmReplies(int variants);
Texts MotionDetectReplies(int variants);
Texts SwitchReplies(int variants);
Texts AlarmCapsReplies(int variants);
Texts EncodeReplies(int variants); // all of 16 channels, about 50 KB

// "Alarm" replies of one record whose lists (titles, tours, links) are filled until the text has nearly `size` bytes.
Texts LongAlarmReplies(std::size_t size, int variants);

} // namespace orrery::bench
