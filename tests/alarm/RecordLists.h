// Records of alarms that stand alone or in a list.
#pragma once

#include "support/RecordOrList.h"

#include <string>

namespace orrery::test {

// An empty list is refused.
template <class R>
void ExpectAlarmsOneOrMany(const char* command, const std::string& object, const std::string& written) {
    ExpectRecordOrList<R>(command, object, written, kRefused);
}

// A list of `count` elements that are all alike.
inline std::string Many(int count, const std::string& element) {
    std::string list = "[ ";
    for (int i = 0; i < count; ++i)
        list += (i == 0 ? "" : ", ") + element;
    return list + " ]";
}

// Whether the reply of a refused call is read.
template <class R>
bool ReadsRefused(const char* command, const std::string& table = "{ }") {
    const Records<R> records(1);
    return ParseDocument(command, R"({"result":false,"params":{"table":)" + table + "}}", records).result != 0;
}

} // namespace orrery::test
