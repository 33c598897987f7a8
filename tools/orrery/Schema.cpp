#include "orrery/Schema.h"

#include "orrery/Documents.h"

#include <cctype>

namespace orrery::tool {

std::string SchemaWord(std::string_view word) {
    std::string text(word);
    // Capitals that begin it, but for the one that begins the next word: "UInt", "NetTime", "Int".
    for (std::size_t i = 0; i < text.size() && std::isupper(static_cast<unsigned char>(text[i])) != 0; ++i) {
        if (i > 1 && i + 1 < text.size() && std::islower(static_cast<unsigned char>(text[i + 1])) != 0) break;
        text[i] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[i])));
    }
    return text;
}

std::string Schema() {
    const Tables tables;
    Node schema = Node::Object();
    schema.Add("schema", Node::Unsigned(2))
        .Add("version", Node::Text(ORRERY_VERSION))
        .Add("commands", CommandNodes(tables))
        .Add("records", RecordNodes(tables))
        .Add("rules", RuleNodes(tables))
        .Add("events", EventNodes(tables))
        .Add("typed", TypedNodes(tables))
        .Add("templates", TemplateNodes(tables))
        .Add("texts", TextNodes())
        .Add("enumerations", EnumerationNodes());
    return schema.Print();
}

} // namespace orrery::tool
