// Which events are shown: "name=AccessControl", "nSpeed>60", "stuObject.szObjectType~Car".
#pragma once

#include "orrery/Output.h"

#include <optional>
#include <string>
#include <string_view>

namespace orrery::tool {

class Filter {
  public:
    // PATH, or PATH and one of = != < <= > >= ~ and a value. Throws std::invalid_argument for anything else.
    explicit Filter(std::string_view text);

    const std::string& path() const { return path_; }
    // Whether the member lets its event through; null: there is none, which only != lets through. Numbers compare as
    // numbers, all else as texts, with ASCII case ignored; a code is its number and its name. ~ looks for a part. A
    // PATH alone wants something there: no 0, no empty text or list.
    bool Takes(const Node* member) const;

  private:
    enum class Operator { IsThere, Equal, Differs, Less, AtMost, Greater, AtLeast, Holds };

    bool TakesText(std::string_view text) const;

    std::string path_;
    Operator operator_ = Operator::IsThere;
    std::string value_;
    std::optional<double> number_;
};

} // namespace orrery::tool
