// The walk over a document along a record's table, as the engine would read it, that notes what the engine passes over.
#pragma once

#include "explain/Finding.h"

#include "frame/Document.h"

#include <span>
#include <vector>

namespace orrery::explain {

class Walk {
  public:
    Walk(Document& document, std::vector<Finding>& findings) : document_(document), findings_(findings) {}

    // The keys that rows read, and those that nothing reads.
    std::uint32_t read = 0;
    std::uint32_t left = 0;
    // Of the caller's buffer, the record that is walked.
    std::uint32_t record = 0;

    // A record at the top. `isSingle`: the command reads one record, so that a list in its place is somebody's mistake.
    void Top(const record::Table& table, const json::Value& value, const Path& path, std::string_view memberName = {},
             bool isSingle = true);
    // Keys that start at the document.
    void FromRoot(const record::Table& table, const json::Value& root, const Path& path);
    // Reports members of an object that stand outside all records: those that are neither among `known` nor keys of
    // `table` that start at the document, below the object of its own `prefix` ("params/").
    void Around(const json::Value& object, std::span<const std::string_view> known, const record::Table* table,
                std::string_view prefix, const Path& path);

    Finding& Add(int kind, int gravity, const json::Value& value, const Path& path, std::string message);

    // An object's keys that its table reads only by functions, beside its rows: found by trying.
    void SetAlways(bool tries) { triesAll_ = tries; }
    // Keys that are read although no row of the record's own object says so. They outlive the walk.
    void AlsoReads(std::span<const std::string_view> keys) { also_ = keys; }

  private:
    // Nodes of one key that read one object together: what another of them reads is no unknown key.
    struct Sharing {
        const json::Value* object = nullptr;
        const record::Table* table = nullptr;
        const record::Node* first = nullptr;
        const record::Node* end = nullptr;
    };
    bool IsReadBeside(const json::Value& object, const json::Member& member) const;

    // The row that a value is read by.
    struct Site {
        const record::Table& table;
        const record::Field& field;
        const Path& path;
    };

    Finding& Add(int kind, int gravity, const json::Value& value, const Site& site, std::string message);
    bool WrongType(const json::Value& value, const Site& site, const char* wanted, std::string consequence = {});

    bool Record(const record::Table& table, const json::Value& value, const Path& path, bool ownsObject,
                const Site* site, bool isTop);
    void Tuple(const record::Table& table, const json::Value& value, const Path& path);
    void Nodes(const record::Table& table, record::NodeRange range, const json::Value& object, const Path& path,
               bool reportsUnknown);
    void Shared(const record::Table& table, const record::Node* first, const record::Node* end,
                const json::Value& value, const Path& path);
    void Node(const record::Table& table, const record::Node& node, const json::Value& value, const Path& path);
    // Whether a value is just what a row wants whose words say nothing of reading: nearly all are.
    bool IsPlainlyRead(const record::Table& table, const record::Node& node, const json::Value& value);
    Finding& UnknownKey(const json::Member& member, const Path& path, std::string field, bool isTried);
    void Unknown(const record::Table& table, record::NodeRange range, const json::Member& member, const Path& path);
    void Row(const Site& site, const json::Value& value);
    void List(const Site& site, int level, const json::Value& value);
    // False when a nested record is not read at all.
    bool Element(const Site& site, const json::Value& value, std::string_view memberName = {});
    void Dropped(const Site& site, const json::Value& list, std::uint32_t room, std::uint32_t lost, const char* why);

    void Number(const Site& site, const json::Value& value);
    void Text(const Site& site, const json::Value& value, std::string_view text);
    void Code(const Site& site, const json::Value& value, const record::NameTable& names, std::string_view text,
              bool isTried = false);
    void Time(const Site& site, const json::Value& value);
    void Section(const Site& site, const json::Value& value, bool anyWidth);
    // How many of the leading values are periods that there is nothing to tell of: nearly all are.
    static std::size_t PlainSections(std::span<const json::Value> values);
    void Schedule(const Site& site, const json::Value& value, std::uint32_t rows, std::uint32_t columns);
    void Numbers(const Site& site, const json::Value& value);
    void Custom(const Site& site, const json::Value& value);
    void Groups(const Site& site, const json::Value& value);
    void GroupRules(const Site& site, const json::Value& value);
    void AsSample(const Site& site, const json::Value& value, const json::Value& sample, const Path& path);

    Document& document_;
    std::vector<Finding>& findings_;
    std::span<const std::string_view> also_;
    Sharing sharing_;
    const record::Table* groupRules_ = nullptr; // what the rules of the group that is walked are read by
    bool triesAll_ = false;
    int functionsAround_ = 0; // records around this one whose functions may look at any of its keys
};

// Names the nearest key that is read, for an unknown one: among its object's, once it is told, or among these.
void AddNearest(Finding& finding);
void AddNearest(Finding& finding, const std::vector<std::string_view>& keys);

// Whether functions of the table look at the record's object as a whole.
bool LooksAround(const record::Table& table);

} // namespace orrery::explain
