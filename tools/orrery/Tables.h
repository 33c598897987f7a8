// All record tables that commands reach, and all name tables, under names that stay as they are.
#pragma once

#include "frame/record/Table.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

struct Tables {
    Tables();

    // By the records' names; tables of the same record in the order in which commands reach them.
    std::vector<const record::Table*> all;

    // The record's name; when several tables describe the record, those after the first add where they were met:
    // "CFG_RECT@CFG_MOTION_WINDOW.stuWindow".
    const std::string& LabelOf(const record::Table& table) const { return tableLabels_.at(&table); }
    // The field that uses the name table first: "CFG_PTZ_LINK.emType".
    const std::string& LabelOf(const record::NameTable& ofNames) const { return nameLabels_.at(&ofNames); }
    // By their labels.
    std::vector<const record::NameTable*> names;

    // All tables that describe the record, case folded.
    std::vector<const record::Table*> Of(std::string_view record) const;
    // Each record once.
    std::vector<std::string_view> Records() const;

  private:
    void Meet(const record::Table& table, const std::string& where);

    std::map<const record::Table*, std::string> tableLabels_;
    std::map<const record::NameTable*, std::string> nameLabels_;
};

} // namespace orrery::tool
