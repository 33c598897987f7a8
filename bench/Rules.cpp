#include "bench/Rules.h"

#include "support/RuleText.h"

#include <algorithm>
#include <cstdio>

#include <rapidjson/writer.h>

namespace orrery::bench {

namespace {

constexpr std::size_t kKinds = 9; // the kinds of rule that take turns
constexpr std::size_t kRecordsKept = 3;
constexpr std::size_t kTextRoomPerRule = 4096;

// A reply with `count` rules or, as written, the list that the library packs of it. The first is test::ManyRules.
std::string RulesFrom(std::size_t first, int count, bool asWritten) {
    std::string rules;
    for (int i = 0; i < count; ++i) {
        const test::RuleSample& sample = test::RuleSamples()[(first + static_cast<std::size_t>(i)) % kKinds];
        if (i > 0) rules += ',';
        rules += test::RuleText(sample, sample.types[0], asWritten);
    }
    return asWritten ? "[" + rules + "]" : test::RuleReply(rules);
}

// The library writes members in the order of their keys.
void Sort(rapidjson::Value& value) {
    if (value.IsArray()) {
        for (auto& element : value.GetArray())
            Sort(element);
    }
    if (!value.IsObject()) return;
    for (auto member = value.MemberBegin(); member < value.MemberEnd(); ++member)
        Sort(member->value);
    std::sort(value.MemberBegin(), value.MemberEnd(),
              [](const auto& a, const auto& b) { return std::string_view(a.name.GetString()) < b.name.GetString(); });
}

std::string Compact(const rapidjson::Value& value) {
    rapidjson::StringBuffer out;
    rapidjson::Writer<rapidjson::StringBuffer> writer(out);
    value.Accept(writer);
    return out.GetString();
}

template <class R>
constexpr std::pair<unsigned, std::size_t> WeekAt(unsigned code) {
    return {code, sizeof(CFG_RULE_INFO) + offsetof(R, stuTimeSection)};
}

// Where a rule's week lies in its item.
std::size_t WeekOffset(unsigned code) {
    constexpr std::pair<unsigned, std::size_t> kWeeks[] = {
        WeekAt<CFG_RULE_CROSSLINE_INFO>(2), WeekAt<CFG_RULE_CROSSFENCE_INFO>(287), WeekAt<CFG_RULE_CROSSREGION_INFO>(3),
        WeekAt<CFG_RULE_FIRE_INFO>(12),     WeekAt<CFG_RULE_PRESERVATION_INFO>(8), WeekAt<CFG_RULE_FIGHT_INFO>(14),
        WeekAt<CFG_RULE_MOVE_INFO>(9),      WeekAt<CFG_RULE_STAY_INFO>(6),         WeekAt<CFG_RULE_LEFT_INFO>(5),
    };
    static_assert(std::size(kWeeks) == kKinds);
    for (const auto& [known, offset] : kWeeks) {
        if (known == code) return offset;
    }
    std::fprintf(stderr, "no week is known of rule type %u\n", code);
    return 0;
}

std::string_view View(const rapidjson::Value& text) {
    return {text.GetString(), text.GetStringLength()};
}

void AddSteps(std::string_view key, const rapidjson::Value& value, std::size_t week, std::vector<BuildStep>& steps) {
    BuildStep step{BuildStep::Null, false, key, {}, 0, 0, week};
    if (key == "TimeSection") {
        step.kind = BuildStep::Week;
    } else if (value.IsBool()) {
        step.kind = BuildStep::Bool;
        step.flag = value.GetBool();
    } else if (value.IsInt64()) {
        step.kind = BuildStep::Int;
        step.number = value.GetInt64();
    } else if (value.IsNumber()) {
        step.kind = BuildStep::Real;
        step.real = value.GetDouble();
    } else if (value.IsString()) {
        step.kind = BuildStep::Text;
        step.text = View(value);
    } else if (value.IsObject()) {
        step.kind = BuildStep::OpenObject;
    } else if (value.IsArray()) {
        step.kind = BuildStep::OpenArray;
    }
    steps.push_back(step);
    if (step.kind == BuildStep::OpenObject) {
        for (const auto& member : value.GetObject())
            AddSteps(View(member.name), member.value, week, steps);
    } else if (step.kind == BuildStep::OpenArray) {
        for (const auto& element : value.GetArray())
            AddSteps({}, element, week, steps);
    } else {
        return;
    }
    steps.push_back({BuildStep::Close, false, {}, {}, 0, 0, 0});
}

byhand::Value WeekOf(const uint8_t* at, byhand::Pool& pool) {
    byhand::Value week(rapidjson::kArrayType);
    week.Reserve(ORRERY_WEEK_DAYS, pool);
    for (int day = 0; day < ORRERY_WEEK_DAYS; ++day) {
        byhand::Value row(rapidjson::kArrayType);
        row.Reserve(ORRERY_RULE_DAY_SECTIONS, pool);
        for (int i = 0; i < ORRERY_RULE_DAY_SECTIONS; ++i, at += sizeof(CFG_TIME_SECTION)) {
            CFG_TIME_SECTION section;
            std::memcpy(&section, at, sizeof section);
            row.PushBack(byhand::SectionText(section, pool), pool);
        }
        week.PushBack(row, pool);
    }
    return week;
}

rapidjson::GenericStringRef<char> Ref(std::string_view text) {
    return rapidjson::StringRef(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

} // namespace

RuleBench::RuleBench(int rules) : room(static_cast<std::size_t>(rules) * kTextRoomPerRule), count_(rules) {
    for (std::size_t i = 0; i < kKinds; ++i)
        texts.push_back(RulesFrom(i, rules, false));
    // Room for the largest is found by reading into more than enough.
    constexpr std::size_t kMostPerRule = std::size_t{1} << 19;
    ruleBytes = static_cast<std::size_t>(rules) * kMostPerRule;
    buffer_.reset(new uint8_t[ruleBytes]);
    packed_.reset(new char[room]);
    std::vector<std::vector<std::size_t>> weeks;
    std::size_t most = 0;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        weeks.emplace_back();
        if (!Parse(i)) continue; // the self-test tells
        std::size_t offset = 0;
        for (int rule = 0; rule < rules; ++rule) {
            CFG_RULE_INFO head;
            std::memcpy(&head, buffer_.get() + offset, sizeof head);
            weeks.back().push_back(offset + WeekOffset(head.dwRuleType));
            offset += sizeof head + static_cast<std::size_t>(head.nRuleSize);
        }
        most = std::max(most, offset);
    }
    ruleBytes = most;
    buffer_.reset(new uint8_t[ruleBytes]);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        due_.push_back(std::make_unique<rapidjson::Document>());
        due_.back()->Parse(RulesFrom(i, rules, true).c_str());
        Sort(*due_.back());
        if (!Parse(i)) continue;
        steps_.emplace_back();
        for (std::size_t rule = 0; rule < weeks[i].size(); ++rule)
            AddSteps({}, (*due_.back())[static_cast<rapidjson::SizeType>(rule)], weeks[i][rule], steps_.back());
        if (i >= kRecordsKept) continue;
        kept_.emplace_back(new uint8_t[ruleBytes]);
        std::memcpy(kept_.back().get(), buffer_.get(), ruleBytes);
    }
}

void RuleBench::Write(std::size_t i, rapidjson::StringBuffer& out) const {
    byhand::LocalDocument document;
    byhand::Pool& pool = document->GetAllocator();
    constexpr std::size_t kDeepest = 16;
    byhand::Value open[kDeepest];
    std::string_view keys[kDeepest];
    std::size_t depth = 0;
    open[0].SetArray().Reserve(static_cast<rapidjson::SizeType>(count_), pool);
    const auto add = [&](std::string_view key, byhand::Value& value) {
        if (open[depth].IsObject())
            open[depth].AddMember(Ref(key), value, pool);
        else
            open[depth].PushBack(value, pool);
    };
    for (const BuildStep& step : steps_[i]) {
        byhand::Value value;
        switch (step.kind) {
        case BuildStep::OpenObject:
        case BuildStep::OpenArray:
            ++depth;
            keys[depth] = step.key;
            if (step.kind == BuildStep::OpenObject)
                open[depth].SetObject();
            else
                open[depth].SetArray();
            continue;
        case BuildStep::Close:
            --depth;
            add(keys[depth + 1], open[depth + 1]);
            continue;
        case BuildStep::Null:
            break;
        case BuildStep::Bool:
            value.SetBool(step.flag);
            break;
        case BuildStep::Int:
            value.SetInt64(step.number);
            break;
        case BuildStep::Real:
            value.SetDouble(step.real);
            break;
        case BuildStep::Text:
            value.SetString(Ref(step.text));
            break;
        case BuildStep::Week:
            value = WeekOf(kept_[i].get() + step.week, pool);
            break;
        }
        add(step.key, value);
    }
    static_cast<byhand::Value&>(*document) = open[0];
    byhand::Write(*document, out);
}

bool RuleBench::SameBothWays() {
    const auto fails = [&](std::size_t i, const char* what) {
        std::fprintf(stderr, "%s with %d rules: text %zu %s\n", kCommand, count_, i, what);
        return false;
    };
    if (texts[0] != test::ManyRules(count_)) return fails(0, "is not the reply that it should be");
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!Parse(i) || !ParseTextAndClear(i)) return fails(i, "is not read");
    }
    if (kept_.size() != kRecordsKept) return fails(kept_.size(), "gives no record");
    for (std::size_t i = 0; i < kRecordsKept; ++i) {
        if (!Pack(i)) return fails(i, "is not packed");
        rapidjson::Document ours;
        ours.Parse<rapidjson::kParseStopWhenDoneFlag>(packed_.get());
        rapidjson::StringBuffer theirs;
        Write(i, theirs);
        const std::string due = Compact(*due_[i]);
        if (ours.HasParseError() || Compact(ours) != due)
            return fails(i, ("is packed otherwise than is due\n" + Compact(ours) + "\n" + due).c_str());
        if (theirs.GetString() != due)
            return fails(i, ("is built otherwise by hand\n" + std::string(theirs.GetString()) + "\n" + due).c_str());
    }
    return true;
}

} // namespace orrery::bench
