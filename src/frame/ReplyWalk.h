// One walk along a reply's text, from its first byte to the last, that makes a document of everything but the value.
#pragma once

#include "frame/Document.h"
#include "frame/json/Tokens.h"

#include <cstddef>
#include <string_view>

namespace orrery {

// Members of one object in key order; of equal keys the last one stays.
class Beside {
  public:
    // False when there is no room. json::kKeySlack bytes of the key may be loaded, however short it is.
    bool Add(std::string_view key, const json::Value& value) noexcept;
    // The object of all members so far, until the next one comes.
    json::Value Object() noexcept { return json::Value::OfObject(members_, count_); }

  private:
    static constexpr std::uint32_t kMost = 12;
    json::Member members_[kMost];
    std::uint32_t count_ = 0;
};

// Where the value stands: under a key of "params", or under a key of its own.
struct ValuePath {
    std::string_view key;
    bool inParams;
};

class ReplyWalk {
  public:
    ReplyWalk(std::string_view text, const ValuePath& path, Document& document) noexcept
        : p_(text.data()), end_(p_ + text.size()), path_(path), document_(document) {}

    // Calls `read` with the value's first byte, once; what stands in front of the value is in the document's root by
    // then, and it answers the byte behind the value or null. `late` is asked about each key behind the value. True
    // when the whole text is JSON, has the value once, and nobody said no; the root then has all but the value.
    template <class Read, class Late>
    bool Run(Read read, Late late) noexcept {
        p_ = json::SkipBlanks(p_, end_);
        if (p_ == end_ || *p_ != '{') return false;
        const bool walked = Object(root_, path_.inParams ? Params() : path_.key, late, [&] {
            if (!path_.inParams) return Value(read);
            return *p_ == '{' && Object(params_, path_.key, late, [&] { return Value(read); });
        });
        if (!walked || !found_) return false;
        return MakeRoot();
    }

  private:
    template <class Late, class Enter>
    bool Object(Beside& members, std::string_view way, Late& late, Enter enter) noexcept {
        bool entered = false;
        json::Step step = json::FirstEntry(p_, end_, '}');
        while (step.more) {
            if (*step.at != '"') return false;
            json::Value key;
            p_ = json::ReadScalar(step.at, end_, document_.arena, &key);
            if (p_ == nullptr) return false;
            const std::string_view name = WithSlack(key.asString());
            if (name.data() == nullptr) return false;
            p_ = json::ValueBehindKey(p_, end_);
            if (p_ == nullptr) return false;
            if (name == way) {
                if (entered || !enter()) return false;
                entered = true;
            } else {
                if (found_ && late(name)) return false;
                json::Value value;
                p_ = *p_ == '{' || *p_ == '[' ? json::ParseAt(p_, end_, document_.arena, value)
                                              : json::ReadScalar(p_, end_, document_.arena, &value);
                if (p_ == nullptr || !members.Add(name, value)) return false;
            }
            step = json::NextEntry(p_, end_, '}');
        }
        p_ = step.at;
        return p_ != nullptr;
    }
    template <class Read>
    bool Value(Read& read) noexcept {
        if (found_ || !MakeRoot()) return false;
        found_ = true;
        p_ = read(p_);
        return p_ != nullptr;
    }
    bool MakeRoot() noexcept;
    // The key that ends at `p_`, with as many bytes behind it as a document's keys have; null when memory ran out.
    std::string_view WithSlack(std::string_view key) noexcept;
    static std::string_view Params() noexcept;

    const char* p_;
    const char* const end_;
    const ValuePath path_;
    Document& document_;
    Beside root_;
    Beside params_;
    bool found_ = false;
};

} // namespace orrery
