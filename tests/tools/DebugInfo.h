// Records as a compiler lays them out, read from the debug information that it leaves (readelf prints it).
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace orrery::test {

struct CompiledMember {
    std::uint64_t offset = 0;
    std::string type; // "i32[4]", "char[64]", "record:NAME", "ptr:NAME"
};

struct CompiledRecord {
    std::uint64_t size = 0;
    std::map<std::string, CompiledMember> members;
};

class DebugInfo {
  public:
    explicit DebugInfo(std::FILE* dump) {
        std::vector<std::uint64_t> open; // entry at each depth
        std::uint64_t current = 0;
        char line[4096];
        while (std::fgets(line, sizeof line, dump) != nullptr) {
            const std::string text(line);
            unsigned long depth = 0;
            unsigned long offset = 0;
            char tag[64] = "";
            if (std::sscanf(line, " <%lx><%lx>: Abbrev Number: %*u (%63[A-Za-z_])", &depth, &offset, tag) == 3) {
                current = offset;
                entries_[current].tag = tag;
                open.resize(depth + 1);
                open[depth] = current;
                if (depth > 0) entries_[open[depth - 1]].children.push_back(current);
                continue;
            }
            char attribute[64] = "";
            if (current == 0 || std::sscanf(line, " <%*x> %63[A-Za-z_]", attribute) != 1) continue;
            const std::size_t colon = text.find(':', text.find(attribute));
            if (colon == std::string::npos) continue;
            std::string value = text.substr(colon + 1);
            // "(indirect string, offset: 0x1b): nName"
            if (const std::size_t indirect = value.find("): ");
                value.find("(ind") < indirect && indirect < value.size())
                value = value.substr(indirect + 2);
            entries_[current].attributes[attribute] = Trimmed(value);
        }
    }

    std::map<std::string, CompiledRecord> Records() const {
        std::map<std::string, CompiledRecord> records;
        for (const auto& [offset, entry] : entries_) {
            if (entry.tag != "DW_TAG_structure_type" || !entry.attributes.contains("DW_AT_name")) continue;
            CompiledRecord& record = records[entry.Text("DW_AT_name")];
            record.size = entry.Number("DW_AT_byte_size");
            for (const std::uint64_t child : entry.children) {
                const Entry& member = entries_.at(child);
                if (member.tag != "DW_TAG_member") continue;
                record.members[member.Text("DW_AT_name")] = {member.Number("DW_AT_data_member_location"),
                                                             TypeText(member.Reference())};
            }
        }
        return records;
    }

  private:
    struct Entry {
        std::string tag;
        std::map<std::string, std::string> attributes;
        std::vector<std::uint64_t> children;

        std::string Text(const char* name) const { return attributes.contains(name) ? attributes.at(name) : ""; }
        std::uint64_t Number(const char* name) const { return std::strtoull(Text(name).c_str(), nullptr, 0); }
        // "<0x4d>"
        std::uint64_t Reference() const {
            const std::string text = Text("DW_AT_type");
            return text.empty() ? 0 : std::strtoull(text.c_str() + 1, nullptr, 16);
        }
    };

    static std::string Trimmed(const std::string& text) {
        const std::size_t first = text.find_first_not_of(" \t\n");
        const std::size_t last = text.find_last_not_of(" \t\n");
        return first == std::string::npos ? std::string() : text.substr(first, last - first + 1);
    }

    // Through typedefs and qualifiers.
    const Entry& Plain(std::uint64_t offset) const {
        const Entry* entry = &entries_.at(offset);
        while (entry->tag == "DW_TAG_typedef" || entry->tag == "DW_TAG_const_type")
            entry = &entries_.at(entry->Reference());
        return *entry;
    }

    std::string TypeText(std::uint64_t offset) const {
        const Entry& type = Plain(offset);
        if (type.tag == "DW_TAG_structure_type") return "record:" + type.Text("DW_AT_name");
        if (type.tag == "DW_TAG_pointer_type") return "ptr:" + Plain(type.Reference()).Text("DW_AT_name");
        if (type.tag == "DW_TAG_array_type") {
            std::string dims;
            for (const std::uint64_t child : type.children) {
                const Entry& range = entries_.at(child);
                const bool counted = range.attributes.contains("DW_AT_count");
                dims += "["
                        + std::to_string(counted ? range.Number("DW_AT_count") : range.Number("DW_AT_upper_bound") + 1)
                        + "]";
            }
            return TypeText(type.Reference()) + dims;
        }
        const std::string bits = std::to_string(8 * type.Number("DW_AT_byte_size"));
        if (type.tag == "DW_TAG_enumeration_type") return "u" + bits;
        if (type.Text("DW_AT_name") == "char") return "char";
        switch (type.Number("DW_AT_encoding")) {
        case 4:
            return "f" + bits;
        case 5: // signed
        case 6: // signed character
            return "i" + bits;
        case 7: // unsigned
        case 8: // unsigned character
            return "u" + bits;
        default:
            return "?" + type.Text("DW_AT_name");
        }
    }

    std::map<std::uint64_t, Entry> entries_;
};

// Compiles the source, which sees the public headers, and reads the records that it uses; none when that failed.
inline std::map<std::string, CompiledRecord> RecordsOf(const std::string& source) {
    const std::string object = source + ".o";
    const std::string compile = std::string(ORRERY_COMPILER) + " -std=c++11 -g -gdwarf-4 -c -I" ORRERY_SOURCE_DIR
                                + "/include -o '" + object + "' '" + source + "'";
    if (std::system(compile.c_str()) != 0) return {};
    std::FILE* const dump = popen((std::string(ORRERY_READELF) + " --debug-dump=info '" + object + "'").c_str(), "r");
    if (dump == nullptr) return {};
    auto records = DebugInfo(dump).Records();
    if (pclose(dump) != 0) records.clear();
    return records;
}

} // namespace orrery::test
