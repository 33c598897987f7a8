#include "orrery/Documents.h"
#include "orrery/Output.h"
#include "orrery/Words.h"

#include "Commands.h"
#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleBodyMap.h"
#include "analyse/Templates.h"
#include "events/EventMap.h"

#include <algorithm>

namespace orrery::tool {

namespace {

// One row of a list: a value a column, as JSON.
struct Listed {
    std::vector<std::string> columns;
    std::vector<std::vector<Node>> rows{};
};

Node RecordNode(const record::Table* table) {
    return table == nullptr ? Node::Null() : Node::Text(table->record);
}

Listed ListedCommands() {
    Listed listed{{"command", "does", "record", "frame"}};
    for (const Command& command : Commands()) {
        const char* const does = !command.packs() ? "parse" : !command.parses() ? "pack" : "parse, pack";
        listed.rows.push_back(
            {Node::Text(command.name), Node::Text(does), RecordNode(command.table), Node::Text(FrameWord(command))});
    }
    return listed;
}

Listed ListedEvents() {
    Listed listed{{"code", "event", "record", "size"}};
    for (const events::EventRow& event : events::Events())
        listed.rows.push_back({Node::Unsigned(event.code), event.name.empty() ? Node::Null() : Node::Text(event.name),
                               RecordNode(event.table), Node::Unsigned(event.reportedSize)});
    return listed;
}

Listed ListedRules() {
    Listed listed{{"code", "rule", "does", "record", "size"}};
    for (const RuleBody& rule : RuleBodies())
        listed.rows.push_back(
            {Node::Unsigned(rule.code), Node::Text(RuleNameOf(static_cast<std::int32_t>(rule.code), false)),
             Node::Text(rule.isRead ? "parse, pack" : "pack"), RecordNode(rule.table), Node::Unsigned(rule.size)});
    return listed;
}

Listed ListedTemplates() {
    Listed listed{{"template", "by class", "record"}};
    for (const TemplateRow& row : Templates())
        listed.rows.push_back({Node::Text(row.name), Node::Bool(row.isByClass), RecordNode(row.table)});
    return listed;
}

} // namespace

std::string List(Listing what, bool isJson) {
    const Listed listed = what == Listing::Events      ? ListedEvents()
                          : what == Listing::Rules     ? ListedRules()
                          : what == Listing::Templates ? ListedTemplates()
                                                       : ListedCommands();
    if (isJson) {
        Node all = Node::Array();
        for (const auto& row : listed.rows) {
            Node node = Node::Object();
            for (std::size_t i = 0; i < row.size(); ++i) {
                if (listed.columns[i] == "does") { // for programs, a flag a direction
                    const std::string does = row[i].Bare();
                    node.Add("parse", Node::Bool(does.starts_with("parse")));
                    node.Add("pack", Node::Bool(does.ends_with("pack")));
                    continue;
                }
                const bool isName = listed.columns[i] == "command" || listed.columns[i] == "event"
                                    || listed.columns[i] == "rule" || listed.columns[i] == "template";
                node.Add(isName ? "name" : listed.columns[i] == "by class" ? "byClass" : listed.columns[i], row[i]);
            }
            all.Add(std::move(node));
        }
        return all.Print();
    }
    std::vector<std::size_t> widths;
    for (const std::string& column : listed.columns)
        widths.push_back(column.size());
    std::vector<std::vector<std::string>> rows{listed.columns};
    for (const auto& row : listed.rows) {
        std::vector<std::string>& cells = rows.emplace_back();
        for (const Node& value : row) {
            std::string cell = value.Bare();
            if (cell == "null") cell = "-";
            if (cell == "true" || cell == "false") cell = cell == "true" ? "yes" : "no";
            widths[cells.size()] = std::max(widths[cells.size()], cell.size());
            cells.push_back(std::move(cell));
        }
    }
    std::string text;
    for (const auto& cells : rows) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            text += cells[i];
            if (i + 1 < cells.size()) text.append(widths[i] + 2 - cells[i].size(), ' ');
        }
        text += '\n';
    }
    return text;
}

} // namespace orrery::tool
