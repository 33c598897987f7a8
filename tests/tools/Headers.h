// The public headers as their readers see them: records, their members, and the comment of each.
#pragma once

#include <algorithm>
#include <cctype>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::test {

struct HeaderMember {
    std::string name;
    std::string behind; // the comment that begins on its line
    std::string above;  // those on lines of their own
};

struct HeaderRecord {
    std::string name;
    std::string comment; // those between it and the declaration before
    std::vector<HeaderMember> members;

    const HeaderMember* Find(std::string_view member) const {
        for (const HeaderMember& each : members) {
            if (each.name == member) return &each;
        }
        return nullptr;
    }
};

// Reads preprocessed headers that kept their comments, also those inside macros (-E -CC).
class HeaderScanner {
  public:
    explicit HeaderScanner(std::string_view text) : text_(text) {
        while (at_ < text_.size())
            Step();
    }

    std::vector<HeaderRecord> records;
    // Members that many records have, told once: " * dwCount   "Count": ...", at least two blanks behind the name.
    std::map<std::string, std::string> shared;

  private:
    void Step() {
        const char c = text_[at_];
        if (c == '\n') {
            ++at_;
            lineBegins_ = true;
            behindMember_ = false;
        } else if (std::isspace(static_cast<unsigned char>(c)) != 0) {
            ++at_;
        } else if (c == '#' && lineBegins_) { // where the preprocessor tells files and lines
            at_ = std::min(text_.find('\n', at_), text_.size());
        } else if (text_.substr(at_).starts_with("/*")) {
            const std::size_t end = std::min(text_.find("*/", at_), text_.size());
            const std::string_view comment = text_.substr(at_ + 2, end - at_ - 2);
            Comment(Plain(comment));
            Shared(comment);
            at_ = std::min(end + 2, text_.size());
        } else {
            lineBegins_ = false;
            Code(c);
            ++at_;
        }
    }

    void Comment(const std::string& comment) {
        if (!code_.empty()) {
            // Inside a declaration: of the member that a macro's last line declares, or of a constant of its.
            const bool inBrackets =
                std::count(code_.begin(), code_.end(), '[') > std::count(code_.begin(), code_.end(), ']');
            if (!inBrackets) inside_ = comment;
        } else if (behindMember_) {
            std::string& own = records.back().members.back().behind;
            own += (own.empty() ? "" : " ") + comment;
        } else {
            if (!above_.empty()) above_ += ' ';
            above_ += comment;
        }
    }

    void Code(char c) {
        if (c == '{') {
            if (IsRecord() && depth_ == 0) {
                records.push_back({LastWord(code_), above_, {}});
                inRecord_ = true;
                above_.clear();
            }
            if (!code_.starts_with("extern")) ++depth_;
            code_.clear();
        } else if (c == '}') {
            if (depth_ > 0) --depth_;
            if (depth_ == 0) inRecord_ = false;
            above_.clear();
            code_.clear();
            behindMember_ = false;
        } else if (c == ';') {
            if (inRecord_ && !code_.empty()) {
                records.back().members.push_back({LastWord(code_.substr(0, code_.find('['))), inside_, above_});
                behindMember_ = true;
            }
            above_.clear();
            inside_.clear();
            code_.clear();
        } else {
            if (behindMember_) behindMember_ = false;
            code_ += c;
            if (at_ + 1 < text_.size() && std::isspace(static_cast<unsigned char>(text_[at_ + 1])) != 0) code_ += ' ';
        }
    }

    void Shared(std::string_view comment) {
        std::vector<std::string*> last; // what the line before told of
        for (std::size_t at = comment.find('\n'); at < comment.size();) {
            const std::size_t end = std::min(comment.find('\n', at + 1), comment.size());
            std::string_view line = comment.substr(at + 1, end - at - 1);
            at = end;
            const std::size_t star = line.find('*');
            if (star == std::string_view::npos) continue;
            line.remove_prefix(std::min(star + 2, line.size()));
            const std::size_t gap = line.find("  ");
            if (gap == 0) {
                for (std::string* const text : last)
                    *text += " " + Plain(line);
            } else if (gap != std::string_view::npos && gap > 0) {
                last.clear();
                std::string_view names = line.substr(0, gap);
                while (!names.empty()) {
                    const std::size_t comma = std::min(names.find(", "), names.size());
                    last.push_back(&shared[std::string(names.substr(0, comma))]);
                    *last.back() = Plain(line.substr(gap));
                    names.remove_prefix(std::min(comma + 2, names.size()));
                }
            } else {
                last.clear();
            }
        }
    }

    bool IsRecord() const { return code_.find("struct ") != std::string::npos; }

    static std::string LastWord(std::string_view code) {
        const auto isWord = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; };
        std::size_t end = code.size();
        while (end > 0 && !isWord(code[end - 1]))
            --end;
        std::size_t begin = end;
        while (begin > 0 && isWord(code[begin - 1]))
            --begin;
        return std::string(code.substr(begin, end - begin));
    }

    // One line, without the stars that lead its lines.
    static std::string Plain(std::string_view comment) {
        std::string plain;
        bool lineBegins = true;
        for (const char c : comment) {
            if (c == '\n') lineBegins = true;
            const bool isBlank = std::isspace(static_cast<unsigned char>(c)) != 0;
            if (isBlank && (plain.empty() || plain.back() == ' ')) continue;
            if (lineBegins && c == '*') continue;
            if (!isBlank) lineBegins = false;
            plain += isBlank ? ' ' : c;
        }
        while (!plain.empty() && plain.back() == ' ')
            plain.pop_back();
        return plain;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int depth_ = 0;
    bool inRecord_ = false;
    bool lineBegins_ = true;
    bool behindMember_ = false;
    std::string code_;
    std::string above_;
    std::string inside_;
};

// The keys that a comment quotes, in its order: "A" of `"A": ...`, "A/B" of `"A"."B"` and of `"A"[..]."B"`.
inline std::vector<std::string> QuotedKeys(std::string_view comment) {
    std::vector<std::string> keys;
    bool joins = false;
    for (std::size_t at = 0; at < comment.size();) {
        if (comment[at] != '"') {
            ++at;
            continue;
        }
        const std::size_t end = comment.find('"', at + 1);
        if (end == std::string_view::npos) break;
        const std::string part(comment.substr(at + 1, end - at - 1));
        if (joins) {
            keys.back() += "/" + part;
        } else {
            keys.push_back(part);
        }
        at = end + 1;
        if (comment.substr(at).starts_with("[..]")) at += 4;
        joins = comment.substr(at).starts_with(".\"");
        if (joins) ++at;
    }
    return keys;
}

} // namespace orrery::test
