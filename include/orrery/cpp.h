// The library by types, for C++11 and later: parse<CFG_NTP_INFO>(text), pack(record), iterators over rules and events.
// Header only; link the same library. Include the headers of the families beside it, or orrery.h.
//
// T in the functions below is a record, where one command alone reads (or writes) it, or the type of a command, which
// cpp_commands.h names: a record of several commands does not tell which is meant, and does not compile.
//
//     auto ntp = orrery::parse<CFG_NTP_INFO>(text);
//     if (ntp) { ntp->get().nPort = 124; auto answer = orrery::pack(ntp->get()); }
//     auto reset = orrery::parse<orrery::commands::PwdReset>(text);
//
// Nothing here throws but value() of a result without a value, and what std::string and std::vector throw when memory
// runs out. What stands here needs no exceptions and no type information.
#ifndef ORRERY_CPP_H
#define ORRERY_CPP_H

#ifndef __cplusplus
#error "orrery/cpp.h is C++; calls.h and helpers.h have the functions for C"
#endif

#include "orrery/analyse_rules.h"
#include "orrery/calls.h"
#include "orrery/cpp_commands.h"
#include "orrery/helpers.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <iterator>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#if defined(__has_cpp_attribute)
#if __has_cpp_attribute(nodiscard) && __cplusplus >= 201703L
#define ORRERY_CPP_MUST_USE [[nodiscard]]
#endif
#endif
#if !defined(ORRERY_CPP_MUST_USE) && defined(__GNUC__)
#define ORRERY_CPP_MUST_USE __attribute__((warn_unused_result))
#elif !defined(ORRERY_CPP_MUST_USE)
#define ORRERY_CPP_MUST_USE
#endif

namespace orrery {

static_assert(sizeof(void*) == 8, "records are laid out for 64-bit pointers");

// ---- Results
// ---------------------------------------------------------------------------------------------------------

// Why there is no value. The library says no more; explain.h tells what was wrong with a text.
enum class errc {
    refused,   // the call answered 0
    no_memory, // here, not in the library
};

class bad_result : public std::exception {
  public:
    explicit bad_result(errc why) noexcept : why_(why) {}
    errc why() const noexcept { return why_; }
    const char* what() const noexcept override {
        return why_ == errc::refused ? "orrery: the call was refused" : "orrery: out of memory";
    }

  private:
    errc why_;
};

// A value, or the reason why there is none, in the manner of std::expected.
template <class T>
class result {
  public:
    result(T value) : value_(std::move(value)), has_value_(true) {} // NOLINT: a value is a result
    result(errc why) noexcept : error_(why) {}                      // NOLINT

    bool has_value() const noexcept { return has_value_; }
    explicit operator bool() const noexcept { return has_value_; }
    // Only without a value.
    errc error() const noexcept { return error_; }

    // Only with a value. Out of a result that goes it comes as a value, so that a loop over one may hold it.
    T& operator*() & noexcept { return value_; }
    const T& operator*() const& noexcept { return value_; }
    T operator*() && noexcept { return std::move(value_); }
    T* operator->() noexcept { return &value_; }
    const T* operator->() const noexcept { return &value_; }

    // With a value, or a bad_result is thrown; without exceptions the program ends.
    T& value() & {
        Check();
        return value_;
    }
    const T& value() const& {
        Check();
        return value_;
    }
    T value() && {
        Check();
        return std::move(value_);
    }
    T value_or(T other) && { return has_value_ ? std::move(value_) : std::move(other); }

  private:
    void Check() const {
        if (has_value_) return;
#if defined(__cpp_exceptions) || defined(__EXCEPTIONS)
        throw bad_result(error_);
#else
        std::abort();
#endif
    }

    T value_ = T();
    bool has_value_ = false;
    errc error_ = errc::refused;
};

// ---- Records
// ---------------------------------------------------------------------------------------------------------

// A record that starts clear and with its size words set, those of records inside it too. Records can be a third of a
// megabyte: on the stack only where that is no matter.
template <class R>
struct sized : R {
    static_assert(std::is_trivial<R>::value && std::is_standard_layout<R>::value, "a record of this library");
    sized() noexcept : R() {
        static_assert(sizeof(R) == detail::record_of<R>::size || detail::record_of<R>::size == 0,
                      "compiled with another packing of structures than the library");
        if (const char* const command = detail::record_of<R>::any_command())
            ignore(ORRERY_SetSizeWords(command, static_cast<R*>(this), sizeof(R)));
    }

  private:
    static void ignore(std::int32_t) noexcept {}
};

// A record on the heap, clear and with its size words. Null only when it was moved from.
template <class R>
class box {
  public:
    box() : record_(new (std::nothrow) sized<R>()) {}
    // False when there was no memory.
    explicit operator bool() const noexcept { return record_ != nullptr; }
    R& get() noexcept { return *record_; }
    const R& get() const noexcept { return *record_; }
    R& operator*() noexcept { return *record_; }
    const R& operator*() const noexcept { return *record_; }
    R* operator->() noexcept { return record_.get(); }
    const R* operator->() const noexcept { return record_.get(); }

  private:
    std::unique_ptr<sized<R>> record_;
};

namespace detail {

// The command of T, which is a record or a command's type, for reading and for writing.
template <class T, class Enable = void>
struct target {
    using record = T;
    using parsed_by = typename record_of<T>::parsed_by;
    using packed_by = typename record_of<T>::packed_by;
};
template <class T>
struct target<T, typename std::enable_if<(T::is_command || T::parses)>::type> {
    using record = typename T::record;
    using parsed_by = typename std::conditional<T::parses && T::is_command, T, no_command>::type;
    using packed_by = typename std::conditional<T::packs, T, no_command>::type;
};
template <class T, class Enable = void>
struct is_command_type : std::false_type {};
template <class T>
struct is_command_type<T, typename std::enable_if<(T::is_command || T::parses)>::type> : std::true_type {};
template <class R>
struct plain {
    using type = R;
};
template <class R>
struct plain<sized<R>> {
    using type = R;
};
template <class T>
struct parsing : target<T> {
    using by = typename target<T>::parsed_by;
    static_assert(!std::is_same<by, no_command>::value, "no command reads this record");
    static_assert(!std::is_same<by, several_commands>::value,
                  "several commands read this record: name one, parse<orrery::commands::Name>(text)");
};
template <class T>
struct packing : target<T> {
    using by = typename target<T>::packed_by;
    static_assert(!std::is_same<by, no_command>::value, "no command writes this record");
    static_assert(!std::is_same<by, several_commands>::value,
                  "several commands write this record: name one, pack<orrery::commands::Name>(record)");
};

} // namespace detail

// ---- Reading
// ---------------------------------------------------------------------------------------------------------

// Reads into a record of the caller's, for those whose pointers lead to the caller's lists: returns the bytes of record
// data.
template <class T>
ORRERY_CPP_MUST_USE result<std::uint32_t> parse_into(typename detail::target<T>::record& record, const char* text) {
    std::uint32_t length = 0;
    if (CLIENT_ParseData(detail::parsing<T>::by::name(), text, &record, sizeof record, &length) == 0)
        return errc::refused;
    return result<std::uint32_t>(length);
}

// Reads one record. Pointers in it are null: lists behind them are passed over.
template <class T>
ORRERY_CPP_MUST_USE result<box<typename detail::target<T>::record>> parse(const char* text) {
    box<typename detail::target<T>::record> record;
    if (!record) return errc::no_memory;
    if (!parse_into<T>(record.get(), text)) return errc::refused;
    return result<decltype(record)>(std::move(record));
}
template <class T>
ORRERY_CPP_MUST_USE result<box<typename detail::target<T>::record>> parse(const std::string& text) {
    return parse<T>(text.c_str());
}

// Reads as many records as the reply has, `most` at the most.
template <class T>
ORRERY_CPP_MUST_USE result<std::vector<sized<typename detail::target<T>::record>>> parse_all(const char* text,
                                                                                             std::size_t most) {
    using record = typename detail::target<T>::record;
    static_assert(sizeof(sized<record>) == sizeof(record), "records stand one behind the other");
    std::vector<sized<record>> records(most);
    std::uint32_t length = 0;
    if (most > UINT32_MAX / sizeof(record)
        || CLIENT_ParseData(detail::parsing<T>::by::name(), text, records.data(),
                            static_cast<std::uint32_t>(most * sizeof(record)), &length)
               == 0)
        return errc::refused;
    if (length / sizeof(record) < most) records.resize(length / sizeof(record));
    return result<decltype(records)>(std::move(records));
}
template <class T>
ORRERY_CPP_MUST_USE result<std::vector<sized<typename detail::target<T>::record>>> parse_all(const std::string& text,
                                                                                             std::size_t most) {
    return parse_all<T>(text.c_str(), most);
}

// Reads a template of analysis settings; T is one of orrery::templates, `class_type` a CFG_RULE_CLASS_... .
template <class T>
ORRERY_CPP_MUST_USE result<box<typename T::record>> parse_template(const char* text, std::int32_t class_type) {
    static_assert(!T::is_command, "a method of orrery::templates");
    static_assert(!std::is_same<typename T::record, CFG_ANALYSERULES_INFO>::value, "rules have parse_rules()");
    box<typename T::record> record;
    if (!record) return errc::no_memory;
    const char reserved = 0;
    if (CLIENT_ParseVideoInAnalyse(T::name(), class_type, text, &reserved, &record.get(), sizeof(typename T::record))
        == 0)
        return errc::refused;
    return result<decltype(record)>(std::move(record));
}

// ---- Writing
// ---------------------------------------------------------------------------------------------------------

// Larger texts are refused.
constexpr std::uint32_t largest_text = std::uint32_t{64} << 20;

namespace detail {
inline result<std::string> pack_bytes(const char* command, const void* records, std::size_t size) {
    if (size > UINT32_MAX) return errc::refused;
    for (std::uint32_t room = std::uint32_t{64} << 10; room <= largest_text; room *= 8) {
        std::string text(room, '\0');
        if (CLIENT_PacketData(command, records, static_cast<std::uint32_t>(size), &text[0], room) == 0) continue;
        const void* const end = std::memchr(text.data(), '\0', room);
        const std::size_t length =
            end == nullptr ? room : static_cast<std::size_t>(static_cast<const char*>(end) - text.data());
        // A text that fills its room may have lost its newline to it.
        if (length + 1 >= room) continue;
        text.resize(length);
        return result<std::string>(std::move(text));
    }
    return errc::refused;
}
} // namespace detail

// The text of a record: pack(record), or pack<orrery::commands::Name>(record).
template <class R>
ORRERY_CPP_MUST_USE typename std::enable_if<!detail::is_command_type<R>::value, result<std::string>>::type
pack(const R& record) {
    using plain = typename detail::plain<R>::type;
    return detail::pack_bytes(detail::packing<plain>::by::name(), static_cast<const plain*>(&record), sizeof record);
}
template <class T>
ORRERY_CPP_MUST_USE typename std::enable_if<detail::is_command_type<T>::value, result<std::string>>::type
pack(const typename detail::target<T>::record& record) {
    return detail::pack_bytes(detail::packing<T>::by::name(), &record, sizeof record);
}
// The text of several records.
template <class T>
ORRERY_CPP_MUST_USE result<std::string> pack_all(const typename detail::target<T>::record* first, std::size_t count) {
    using record = typename detail::target<T>::record;
    if (count > UINT32_MAX / sizeof(record)) return errc::refused;
    return detail::pack_bytes(detail::packing<T>::by::name(), first, count * sizeof(record));
}
template <class T>
ORRERY_CPP_MUST_USE result<std::string>
pack_all(const std::vector<sized<typename detail::target<T>::record>>& records) {
    return pack_all<T>(records.data(), records.size());
}

// ---- Rules
// -----------------------------------------------------------------------------------------------------------

// One item of a rule buffer; it lives as long as the buffer stays as it is.
class rule_view {
  public:
    explicit rule_view(unsigned char* item) noexcept : item_(item) { std::memcpy(&head_, item, sizeof head_); }

    std::uint32_t code() const noexcept { return head_.dwRuleType; } // ORRERY_RULE_...
    std::uint8_t id() const noexcept { return head_.stuRuleGeneral.byId; }
    std::int32_t rule_class() const noexcept { return head_.stuRuleGeneral.nClass; } // CFG_RULE_CLASS_...
    const CFG_RULE_INFO& head() const noexcept { return head_; }
    // The rule's record, which need not be aligned.
    const unsigned char* body() const noexcept { return item_ + sizeof head_; }
    std::size_t size() const noexcept { return static_cast<std::size_t>(head_.nRuleSize); }

    // Whether the rule's record is an R.
    template <class R>
    bool is() const noexcept {
        static_assert(detail::record_of<R>::rules::any, "no rule has this record");
        return detail::record_of<R>::rules::has(code()) && size() >= sizeof(R);
    }
    // A copy of the rule's record; refused when it is no R.
    template <class R>
    result<box<R>> as() const {
        if (!is<R>()) return errc::refused;
        box<R> record;
        if (!record) return errc::no_memory;
        std::memcpy(&record.get(), body(), sizeof(R));
        return result<decltype(record)>(std::move(record));
    }
    // Puts a record in the place of the rule's; false when that is no R.
    template <class R>
    bool put(const R& record) const noexcept {
        if (!is<R>()) return false;
        std::memcpy(item_ + sizeof head_, &record, sizeof(R));
        return true;
    }

  private:
    unsigned char* item_;
    CFG_RULE_INFO head_;
};

// Rules of a channel in a buffer that has the size they need.
class rule_buffer {
  public:
    class iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = rule_view;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = rule_view;

        explicit iterator(unsigned char* at) noexcept : at_(at) {}
        rule_view operator*() const noexcept { return rule_view(at_); }
        iterator& operator++() noexcept {
            at_ += sizeof(CFG_RULE_INFO) + rule_view(at_).size();
            return *this;
        }
        iterator operator++(int) noexcept {
            iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const iterator& other) const noexcept { return at_ == other.at_; }
        bool operator!=(const iterator& other) const noexcept { return at_ != other.at_; }

      private:
        unsigned char* at_;
    };

    rule_buffer() = default;
    // Room for `size` bytes, to be read into.
    explicit rule_buffer(std::size_t size) : bytes_(size) {}

    iterator begin() noexcept { return iterator(bytes_.data()); }
    iterator end() noexcept { return iterator(bytes_.data() + bytes_.size()); }
    std::size_t size() const noexcept { return count_; } // rules
    bool empty() const noexcept { return count_ == 0; }
    std::size_t bytes() const noexcept { return bytes_.size(); }

    // Adds a rule: its code, one that has R as its record, what its body says, its id and its class. False for a code
    // of another record, and when the buffer is full.
    template <class R>
    bool add(std::uint32_t code, const R& record, std::uint8_t id = 0,
             std::int32_t rule_class = CFG_RULE_CLASS_NORMAL) {
        static_assert(detail::record_of<R>::rules::any, "no rule has this record");
        if (!detail::record_of<R>::rules::has(code) || count_ == ORRERY_MOST_RULES) return false;
        CFG_RULE_INFO head = CFG_RULE_INFO();
        head.dwRuleType = code;
        head.nRuleSize = static_cast<std::int32_t>(sizeof(R));
        head.stuRuleGeneral.byId = id;
        head.stuRuleGeneral.nClass = rule_class;
        Append(&head, sizeof head);
        Append(&record, sizeof record);
        ++count_;
        return true;
    }

    // As the C functions take it; it leads into this buffer.
    CFG_ANALYSERULES_INFO descriptor() noexcept {
        CFG_ANALYSERULES_INFO rules = CFG_ANALYSERULES_INFO();
        rules.nRuleCount = static_cast<std::int32_t>(count_);
        rules.pRuleBuf = bytes_.data();
        rules.nRuleLen = static_cast<std::int32_t>(bytes_.size());
        return rules;
    }
    // Takes over what was read into the buffer: only items that are whole count.
    void adopt(std::int32_t count) {
        std::size_t at = 0;
        count_ = 0;
        while (count_ < static_cast<std::size_t>(count < 0 ? 0 : count)
               && at + sizeof(CFG_RULE_INFO) <= bytes_.size()) {
            const rule_view rule(bytes_.data() + at);
            const std::size_t left = bytes_.size() - at - sizeof(CFG_RULE_INFO);
            if (rule.head().nRuleSize <= 0 || rule.size() > left)
                break; // what names no type takes a head without a body
            at += sizeof(CFG_RULE_INFO) + rule.size();
            ++count_;
        }
        bytes_.resize(at);
    }

  private:
    void Append(const void* from, std::size_t size) {
        const auto* const first = static_cast<const unsigned char*>(from);
        bytes_.insert(bytes_.end(), first, first + size);
    }

    std::vector<unsigned char> bytes_;
    std::size_t count_ = 0;
};

// Reads the rules of a channel: T is commands::VideoAnalyseRule, AudioAnalyseRule or IVSFramRule.
template <class T>
ORRERY_CPP_MUST_USE result<rule_buffer> parse_rules(const char* text) {
    static_assert(std::is_same<typename T::record, CFG_ANALYSERULES_INFO>::value && T::is_command,
                  "a command of rules");
    rule_buffer buffer(ORRERY_RuleBytes(T::name(), text));
    CFG_ANALYSERULES_INFO rules = buffer.descriptor();
    if (CLIENT_ParseData(T::name(), text, &rules, sizeof rules, nullptr) == 0) return errc::refused;
    buffer.adopt(rules.nRuleCount);
    return result<rule_buffer>(std::move(buffer));
}
template <class T>
ORRERY_CPP_MUST_USE result<rule_buffer> parse_rules(const std::string& text) {
    return parse_rules<T>(text.c_str());
}
// Reads a template of rules: T is templates::VideoInAnalyse_getTemplateRule, `class_type` a CFG_RULE_CLASS_... .
// Nothing tells beforehand how much its rules need: a little first, then as much as any.
template <class T>
ORRERY_CPP_MUST_USE result<rule_buffer> parse_rules(const char* text, std::int32_t class_type) {
    static_assert(std::is_same<typename T::record, CFG_ANALYSERULES_INFO>::value && !T::is_command,
                  "a template of rules");
    const char reserved = 0;
    for (std::size_t room = std::size_t{1} << 18; room <= std::size_t{1} << 24; room *= 64) {
        rule_buffer buffer(room);
        CFG_ANALYSERULES_INFO rules = buffer.descriptor();
        if (CLIENT_ParseVideoInAnalyse(T::name(), class_type, text, &reserved, &rules, sizeof rules) == 0) continue;
        buffer.adopt(rules.nRuleCount);
        return result<rule_buffer>(std::move(buffer));
    }
    return errc::refused;
}
template <class T>
ORRERY_CPP_MUST_USE result<rule_buffer> parse_rules(const std::string& text, std::int32_t class_type) {
    return parse_rules<T>(text.c_str(), class_type);
}
// Writes them: the empty list for an empty buffer.
template <class T>
ORRERY_CPP_MUST_USE result<std::string> pack_rules(rule_buffer& buffer) {
    static_assert(std::is_same<typename T::record, CFG_ANALYSERULES_INFO>::value && T::packs, "a command of rules");
    const CFG_ANALYSERULES_INFO rules = buffer.descriptor();
    return detail::pack_bytes(T::name(), &rules, sizeof rules);
}

// ---- Events
// ----------------------------------------------------------------------------------------------------------

// An event, or what else a text carries: a code and its record. It lives as long as what it was taken from.
class event_view {
  public:
    event_view(std::uint32_t code, const void* record, std::uint32_t size) noexcept
        : code_(code), record_(record), size_(size) {}

    std::uint32_t code() const noexcept { return code_; } // ORRERY_EVENT_... or ORRERY_TYPED_...
    const void* record() const noexcept { return record_; }
    std::uint32_t size() const noexcept { return size_; } // as the callback is told it
    // The record; null when the code is none of R's.
    template <class R>
    const R* as() const noexcept {
        static_assert(detail::record_of<R>::events::any, "no event has this record");
        return detail::record_of<R>::events::has(code_) ? static_cast<const R*>(record_) : nullptr;
    }

  private:
    std::uint32_t code_;
    const void* record_;
    std::uint32_t size_;
};

namespace detail {
template <class F>
struct visit {
    static std::int32_t call(std::uint32_t code, const void* record, std::uint32_t size, void*, std::int32_t,
                             void* user) {
        (*static_cast<F*>(user))(event_view(code, record, size));
        return 0;
    }
};
} // namespace detail

// Calls visitor(event_view) for each event while it lives, copying nothing. The visitor must not throw: an exception
// out of it ends the program. False when the call answered 0.
template <class F>
bool visit_events(const char* text, F&& visitor) {
    using type = typename std::remove_reference<F>::type;
    void* const user = const_cast<void*>(static_cast<const void*>(std::addressof(visitor)));
    return CLIENT_ParseAnalyzerEventData(text, 0, detail::visit<type>::call, user) != 0;
}
template <class F>
bool visit_typed(const char* text, F&& visitor) {
    using type = typename std::remove_reference<F>::type;
    void* const user = const_cast<void*>(static_cast<const void*>(std::addressof(visitor)));
    return CLIENT_ParseDataByCallback(text, 0, detail::visit<type>::call, user) != 0;
}

// Events that stay: each with all that its pointers lead to.
class event_list {
    struct node {
        std::unique_ptr<unsigned char[]> copy;
        std::uint32_t code;
        std::uint32_t size;
        std::unique_ptr<node> next;
    };

  public:
    class iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = event_view;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = event_view;

        iterator() = default;
        event_view operator*() const noexcept { return event_view(node_->code, node_->copy.get(), node_->size); }
        iterator& operator++() noexcept {
            node_ = node_->next.get();
            return *this;
        }
        iterator operator++(int) noexcept {
            iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const iterator& other) const noexcept { return node_ == other.node_; }
        bool operator!=(const iterator& other) const noexcept { return node_ != other.node_; }

      private:
        friend class event_list;
        explicit iterator(const node* at) noexcept : node_(at) {}
        const node* node_ = nullptr;
    };

    event_list() = default;
    event_list(event_list&& other) noexcept { *this = std::move(other); }
    event_list& operator=(event_list&& other) noexcept {
        Clear();
        first_ = std::move(other.first_);
        last_ = other.last_;
        size_ = other.size_;
        other.last_ = nullptr;
        other.size_ = 0;
        return *this;
    }
    ~event_list() { Clear(); }

    iterator begin() const noexcept { return iterator(first_.get()); }
    iterator end() const noexcept { return iterator(); }
    std::size_t size() const noexcept { return size_; }
    bool empty() const noexcept { return size_ == 0; }

    // Adds a copy; false when there is no memory for it.
    bool add(const event_view& event) noexcept {
        const std::uint32_t bytes = ORRERY_CopyEvent(event.code(), event.record(), event.size(), nullptr, 0);
        std::unique_ptr<node> next(bytes == 0 ? nullptr : new (std::nothrow) node());
        if (!next) return false;
        next->copy.reset(new (std::nothrow) unsigned char[bytes]);
        if (!next->copy) return false;
        const std::uint32_t copied =
            ORRERY_CopyEvent(event.code(), event.record(), event.size(), next->copy.get(), bytes);
        if (copied != bytes) return false;
        next->code = event.code();
        next->size = event.size();
        node* const added = next.get();
        (last_ == nullptr ? first_ : last_->next) = std::move(next);
        last_ = added;
        ++size_;
        return true;
    }

  private:
    // One after the other: a list that ends itself would call itself as often as it is long.
    void Clear() noexcept {
        while (first_) {
            std::unique_ptr<node> next = std::move(first_->next);
            first_ = std::move(next);
        }
        last_ = nullptr;
        size_ = 0;
    }

    std::unique_ptr<node> first_;
    node* last_ = nullptr;
    std::size_t size_ = 0;
};

namespace detail {
struct event_collector {
    event_list list;
    bool complete;
    void operator()(const event_view& event) noexcept { complete = list.add(event) && complete; }
};
} // namespace detail

// The events of a text. Text that is no JSON has none.
ORRERY_CPP_MUST_USE inline result<event_list> events(const char* text) {
    detail::event_collector all = {event_list(), true};
    if (!visit_events(text, all)) return errc::refused;
    if (!all.complete) return errc::no_memory;
    return result<event_list>(std::move(all.list));
}
ORRERY_CPP_MUST_USE inline result<event_list> events(const std::string& text) {
    return events(text.c_str());
}
// What a text carries whose keys tell it. Where its last key was refused, it is refused whole: visit_typed() tells of
// the others.
ORRERY_CPP_MUST_USE inline result<event_list> typed(const char* text) {
    detail::event_collector all = {event_list(), true};
    if (!visit_typed(text, all)) return errc::refused;
    if (!all.complete) return errc::no_memory;
    return result<event_list>(std::move(all.list));
}
ORRERY_CPP_MUST_USE inline result<event_list> typed(const std::string& text) {
    return typed(text.c_str());
}

} // namespace orrery

#endif
