#include "media/CommAttribute.h"

#include "frame/record/Engine.h"

#include <algorithm>
#include <iterator>

namespace orrery {

using namespace record;

namespace {

constexpr std::int32_t kBaudRates[] = {300, 600, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};
constexpr std::int32_t kDataBits[] = {5, 6, 7, 8};

NAMES(kParities, kFolded,
      {
          {CFG_COMM_PARITY_NONE, "None"},
          {CFG_COMM_PARITY_ODD, "Odd"},
          {CFG_COMM_PARITY_EVEN, "Even"},
          {CFG_COMM_PARITY_MARK, "Mark"},
          {CFG_COMM_PARITY_SPACE, "Space"},
      });

NAMES(kStopBits, kFolded,
      {
          {CFG_COMM_STOP_BITS_1, "1"},
          {CFG_COMM_STOP_BITS_1_5, "1.5"},
          {CFG_COMM_STOP_BITS_2, "2"},
      });

// Where a number stands in its list; 0 when it is none of them.
template <std::size_t N>
std::uint8_t IndexOf(const std::int32_t (&list)[N], std::int32_t number) {
    const auto* const at = std::find(std::begin(list), std::end(list), number);
    return at == std::end(list) ? 0 : static_cast<std::uint8_t>(at - list);
}

std::uint8_t CodeOf(const NameTable& names, const json::Value& value) {
    return static_cast<std::uint8_t>(names.CodeOf(value.asString()).value_or(0));
}

void ReadCommAttribute(const Field&, const json::Value& value, std::byte* record, ReadCall&) {
    if (value.elements().size() < 4) return;
    SET_MEMBER(record, CFG_COMM_ATTRIBUTE, byBaudRate, IndexOf(kBaudRates, value[0].asInt()));
    SET_MEMBER(record, CFG_COMM_ATTRIBUTE, byDataBits, IndexOf(kDataBits, value[1].asInt()));
    SET_MEMBER(record, CFG_COMM_ATTRIBUTE, byParity, CodeOf(kParities, value[2]));
    SET_MEMBER(record, CFG_COMM_ATTRIBUTE, byStopBits, CodeOf(kStopBits, value[3]));
}

void WriteCommAttribute(const Field&, const std::byte* record, WriteCall& call) {
    const std::size_t baudRate = MEMBER(record, CFG_COMM_ATTRIBUTE, byBaudRate);
    const std::size_t dataBits = MEMBER(record, CFG_COMM_ATTRIBUTE, byDataBits);
    const Name* const parity = kParities.RowOf(MEMBER(record, CFG_COMM_ATTRIBUTE, byParity));
    const Name* const stopBits = kStopBits.RowOf(MEMBER(record, CFG_COMM_ATTRIBUTE, byStopBits));
    const bool given[] = {baudRate < std::size(kBaudRates), dataBits < std::size(kDataBits), parity != nullptr,
                          stopBits != nullptr};
    std::size_t end = std::size(given);
    while (end > 0 && !given[end - 1])
        --end;
    if (end == 0) return; // the place then holds null
    call.Key();
    call.out.BeginArray();
    for (std::size_t i = 0; i < end; ++i) {
        if (!given[i])
            call.out.Null();
        else if (i < 2)
            call.out.Int(i == 0 ? kBaudRates[baudRate] : kDataBits[dataBits]);
        else
            call.out.String(i == 2 ? parity->text : stopBits->text);
    }
    call.out.EndArray();
}

} // namespace

constexpr CustomCodec kCommAttributeList{ReadCommAttribute, WriteCommAttribute, R"([19200,7,"Even","2"])"};

} // namespace orrery
