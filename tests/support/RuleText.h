// Texts of analysis rules as devices send them: one sample of each record with all its keys, and whole replies.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace orrery::test {

// Where "TrackEnable" stands in a rule that keeps it.
enum class Track : unsigned char {
    None,      // unknown to the rule
    InRule,    // read and written in the rule
    ToConfig,  // read in the rule, written in "Config"
    ReadAlone, // read in the rule, not written
};

struct RuleType {
    unsigned code;
    const char* name;    // read; empty: never read
    const char* written; // null: the same
};

struct RuleSample {
    const char* record;
    std::span<const RuleType> types;
    Track track;
    std::string_view config;        // the members of "Config", as they are both read and written
    std::string_view onlyRead = {}; // further members that writing leaves out
};

// All 58 records.
std::span<const RuleSample> RuleSamples();

// "EventHandler" with all that is written for it: the week of seven days of ten periods, the flags that always are.
std::string LinkageText();
// A rule of a sample. `asWritten`: as the library writes it, in any order of members.
std::string RuleText(const RuleSample& sample, const RuleType& type, bool asWritten);
// A device's reply with these rules as its table.
std::string RuleReply(std::string_view rules);
// A reply with `count` rules, each about 2.2 kilobytes: a channel's 32 rules are 70 kilobytes.
std::string ManyRules(int count);

} // namespace orrery::test
