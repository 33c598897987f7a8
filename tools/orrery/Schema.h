// The parts of the schema, by what they tell of. docs/schema.md describes all of it.
#pragma once

#include "orrery/Output.h"
#include "orrery/Tables.h"

#include "explain/headers/HeaderWords.h"

#include <span>
#include <string>

namespace orrery::tool {

// A vocabulary's word as the schema has it: "BareIfOne" is "bareIfOne", "UInt" is "uint".
std::string SchemaWord(std::string_view word);

// ---- Codes ---------------------------------------------------------------------------------------------------------

// The constants of the headers, by lists.
Node EnumerationNodes();
// The name of the schema for a list of constants.
std::string NameOfEnumeration(const headers::Enumeration& enumeration);
// Adds what a field's codes are to it: the names, the constants, what others do.
void AddCodes(Node& node, std::string_view record, const record::Field& field);

// ---- Records -------------------------------------------------------------------------------------------------------

// All records with their fields; where several tables describe a record, its forms.
Node RecordNodes(const Tables& tables);
// What one row says of the text.
Node RowNode(const record::Table& table, const record::Field& field);
// Adds "record" and, where the record has several forms, "form".
void AddRecord(Node& node, const Tables& tables, const record::Table& table, std::string_view key = "record");

// ---- Commands and the texts that are none ---------------------------------------------------------------------------

Node CommandNodes(const Tables& tables);
Node RuleNodes(const Tables& tables);
Node EventNodes(const Tables& tables);
Node TypedNodes(const Tables& tables);
Node TemplateNodes(const Tables& tables);
// Where events, typed texts and templates stand in their texts.
Node TextNodes();

} // namespace orrery::tool
