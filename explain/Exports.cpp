// The functions of the library that programs link beside the translation.
#include "explain/Explain.h"
#include "explain/Packs.h"

#include "orrery/explain.h"

#include <algorithm>
#include <new>

#ifdef _WIN32
#define ORRERY_EXPORT extern "C" __declspec(dllexport)
#else
#define ORRERY_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace orrery::explain {

namespace {

// Lines and columns of places that come in the order of the text.
class Lines {
  public:
    explicit Lines(std::string_view text) : text_(text) {}

    void GoTo(std::size_t offset) {
        if (offset <= at_) return;
        std::string_view passed = text_.substr(std::min(at_, text_.size()), offset - at_);
        at_ += passed.size();
        if (const std::size_t last = passed.rfind('\n'); last != std::string_view::npos) {
            line += static_cast<std::uint32_t>(std::ranges::count(passed, '\n'));
            column = 1;
            passed.remove_prefix(last + 1);
        }
        column += Characters(passed);
    }
    std::uint32_t line = 1;
    std::uint32_t column = 1;

  private:
    static std::uint32_t Characters(std::string_view text) {
        std::uint32_t count = 0;
        for (const char c : text)
            count += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
        return count;
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

// `text` null: findings of a record, which have no place.
std::int32_t HandOver(const Explanation& explanation, std::string_view text, ORRERY_FINDING_CALLBACK callback,
                      void* user) {
    Lines lines(text);
    for (const Finding& found : explanation.findings) {
        lines.GoTo(found.offset);
        ORRERY_FINDING finding{};
        finding.dwSize = sizeof finding;
        finding.nKind = found.kind;
        finding.nGravity = found.gravity;
        finding.nLine = text.data() == nullptr ? 0 : lines.line;
        finding.nColumn = text.data() == nullptr ? 0 : lines.column;
        finding.nLost = found.lost;
        finding.nOffset = found.offset;
        finding.nLength = found.length;
        finding.szKind = WordOf(found.kind);
        finding.szPath = found.path.c_str();
        finding.szField = found.field.c_str();
        finding.szMessage = found.message.c_str();
        finding.szNearest = found.nearest.c_str();
        if (callback(&finding, user) == 0) break;
    }
    return static_cast<std::int32_t>(std::min<std::size_t>(explanation.findings.size(), INT32_MAX));
}

struct Fit {
    std::string_view command;
    std::uint32_t read, left, wrong;
    bool isRefused;
};

Fit FitOf(std::string_view name, const Explanation& explanation) {
    Fit fit{name, explanation.read, explanation.left, 0, explanation.isRefused};
    for (const Finding& finding : explanation.findings)
        fit.wrong += finding.gravity != ORRERY_FINDING_NOTE && finding.kind != ORRERY_FINDING_UNKNOWN_KEY;
    return fit;
}

} // namespace

} // namespace orrery::explain

using namespace orrery;
using namespace orrery::explain;

ORRERY_EXPORT int32_t ORRERY_ExplainReply(const char* command, const char* text, size_t length, uint32_t records,
                                          ORRERY_FINDING_CALLBACK callback, void* user) {
    if (command == nullptr || text == nullptr || callback == nullptr) return ORRERY_EXPLAIN_BAD_ARGUMENT;
    const Command* const found = FindCommand(command);
    if (found == nullptr || !found->parses() || found->table == nullptr) return ORRERY_EXPLAIN_UNKNOWN_COMMAND;
    try {
        const std::string_view all(text, length);
        return HandOver(ExplainReply(*found, all, records), all, callback, user);
    } catch (const std::bad_alloc&) {
        return ORRERY_EXPLAIN_NO_MEMORY;
    }
}

ORRERY_EXPORT int32_t ORRERY_ExplainEvents(const char* text, size_t length, ORRERY_FINDING_CALLBACK callback,
                                           void* user) {
    if (text == nullptr || callback == nullptr) return ORRERY_EXPLAIN_BAD_ARGUMENT;
    try {
        const std::string_view all(text, length);
        return HandOver(ExplainEvents(all), all, callback, user);
    } catch (const std::bad_alloc&) {
        return ORRERY_EXPLAIN_NO_MEMORY;
    }
}

ORRERY_EXPORT int32_t ORRERY_ExplainRecord(const char* command, const void* record, uint32_t recordSize,
                                           ORRERY_FINDING_CALLBACK callback, void* user) {
    if (command == nullptr || record == nullptr || callback == nullptr) return ORRERY_EXPLAIN_BAD_ARGUMENT;
    const Command* const found = FindCommand(command);
    if (found == nullptr || !found->packs() || found->table == nullptr) return ORRERY_EXPLAIN_UNKNOWN_COMMAND;
    try {
        return HandOver(ExplainRecords(*found, static_cast<const std::byte*>(record), recordSize), {}, callback, user);
    } catch (const std::bad_alloc&) {
        return ORRERY_EXPLAIN_NO_MEMORY;
    }
}

ORRERY_EXPORT int32_t ORRERY_FindFits(const char* text, size_t length, ORRERY_FIT_CALLBACK callback, void* user) {
    if (text == nullptr || callback == nullptr) return ORRERY_EXPLAIN_BAD_ARGUMENT;
    try {
        const std::string_view all(text, length);
        std::vector<Fit> fits;
        for (const Command& command : Commands()) {
            if (!command.parses() || command.table == nullptr) continue;
            const Fit fit = FitOf(command.name, ExplainReply(command, all, 0, false));
            if (fit.read > 0) fits.push_back(fit);
        }
        const Fit events = FitOf({}, ExplainEvents(all, false));
        if (events.read > 0) fits.push_back(events);
        // What a command reads counts for it, what it leaves against it. A key that it reads something wrong of tells
        // neither way: the reply is likely faulty, or of another command.
        const auto score = [](const Fit& fit) {
            return std::int64_t{fit.read} - std::int64_t{fit.left} - std::int64_t{fit.wrong};
        };
        std::stable_sort(fits.begin(), fits.end(), [&](const Fit& left, const Fit& right) {
            if (left.isRefused != right.isRefused) return right.isRefused;
            return score(left) > score(right);
        });
        for (const Fit& fit : fits) {
            const std::string name(fit.command);
            const ORRERY_FIT told{sizeof told, fit.read, fit.left, fit.wrong, fit.isRefused ? 1 : 0, name.c_str()};
            if (callback(&told, user) == 0) break;
        }
        return static_cast<std::int32_t>(fits.size());
    } catch (const std::bad_alloc&) {
        return ORRERY_EXPLAIN_NO_MEMORY;
    }
}
