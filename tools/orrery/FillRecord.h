// JSON by field names into a record, the way back from PrintRecord; strict, because a person may have written it.
#pragma once

#include "explain/Finding.h"
#include "frame/json/Value.h"
#include "frame/record/Table.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace orrery::tool {

// `what()` starts with the path of the field: "stuEventHandler.stuPtzLink[3].emTyp: no such field in ...".
struct FillError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// What a filling carries along: what stands behind the pointers of records, and the fields that no record has.
class Memory {
  public:
    // `unknown`: takes such fields, which are passed over then; without it they are refused.
    explicit Memory(std::vector<explain::Finding>* unknown = nullptr) : unknown_(unknown) {}

    // A member of `record` that has no place there. `names`: those that do. Throws FillError where nobody takes it.
    void Unknown(const json::Member& member, const std::string& path, const char* record,
                 const std::vector<std::string_view>& names);

    // Cleared. Throws FillError for more than any client has behind its pointers.
    std::byte* Allocate(std::size_t size);

  private:
    std::vector<explain::Finding>* unknown_;
    std::vector<std::unique_ptr<std::byte[]>> blocks_;
    std::size_t used_ = 0;
};

// Clears the record, sets its size words and then what the value tells. Throws FillError.
void FillRecord(const record::Table& table, const json::Value& value, std::byte* record, Memory& memory,
                const std::string& path = {});

// Fields of a value that packing will pass over, because the count or the flag that they need is not given, as a note
// for the person who wrote the value: its path, "is given without ...". The value must have passed FillRecord.
std::vector<explain::Finding> PassedOver(const record::Table& table, const json::Value& value,
                                         const std::string& path = {});

// Gives the pointers of a record room for `count` elements each, their capacities included.
void GiveRoom(const record::Table& table, std::byte* record, std::uint32_t count, Memory& memory);

// The same for records of a type that only the text tells, once it was read: true when there are such, and reading it
// again fills them. `root` is the text's document.
bool GiveRoomAsRead(const record::Table& table, std::byte* record, const json::Value& root, Memory& memory);

// The longest list, of those under the key if there is one: no pointer of a record needs more room. At least 1.
std::uint32_t LongestList(const json::Value& root, std::string_view key = {});

// "an array", "a text", ...
const char* TypeName(const json::Value& value);

} // namespace orrery::tool
