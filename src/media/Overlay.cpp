#include "media/Overlay.h"

#include "frame/Request/CStrParse.h"
#include "frame/record/Engine.h"
#include "frame/record/SharedCodecs.h"

#include <algorithm>

namespace orrery {

using namespace record;
using json::Value;

namespace {

// "10:20:30". False, and the call ends, when the value is no text that can be split.
bool Split(const Value& value, CStrParse& items, ReadCall& call) {
    const std::string_view text = value.asString();
    char* const copy = call.parser.text().arena().Array<char>(text.size() + 1);
    if (copy != nullptr) {
        std::copy(text.begin(), text.end(), copy);
        copy[text.size()] = '\0';
    }
    if (copy != nullptr && items.setText(copy)) return true;
    call.refused = true;
    if (copy != nullptr && *copy != '\0') call.parser.text().arena().MarkFailed(); // there was no memory for the items
    return false;
}

void ReadNumbers(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    CStrParse items;
    if (!Split(value, items, call)) return;
    const auto count = std::min(items.getCount(), static_cast<std::int32_t>(field.dims[0]));
    for (std::int32_t i = 0; i < count; ++i)
        Store(record + field.offset + static_cast<std::uint32_t>(i) * sizeof(std::int32_t), items.getInt(i));
    StoreSlot(field.count, record, count);
}
constexpr CustomCodec kNumbers{ReadNumbers, nullptr, R"("1:2")"};

void ReadBits(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    CStrParse items;
    if (!Split(value, items, call)) return;
    std::uint32_t mask = 0;
    for (std::int32_t i = 0; i < items.getCount(); ++i)
        mask |= std::uint32_t{1} << (static_cast<std::uint32_t>(items.getInt(i)) & 31);
    Store(record + field.offset, mask);
}
constexpr CustomCodec kBits{ReadBits, nullptr, R"("0:3")"};

} // namespace

TABLE(kSnapInfo, CFG_SNAP_INFO,
      {
          FIELD(nChannel, "Chn", FromOne),
          FIELD(nSizeCount),
          FIELD(nSizes, "Size", Custom(kNumbers)).Count(AT(nSizeCount)).Always(),
          FIELD(nFpsCount),
          FIELD(nFps, "FPS", Custom(kNumbers)).Count(AT(nFpsCount)).Always(),
          FIELD(nQualityCount),
          FIELD(nQualities, "Quality", Custom(kNumbers)).Count(AT(nQualityCount)).Always(),
          FIELD(dwModeMask, "Mode", Custom(kBits)).Always(),
          FIELD(dwFormatMask, "Format", Custom(kBits)).Always(),
      });

TABLE(kWaterMark, CFG_WATERMARK_INFO,
      {
          FIELD(nChannel, "Chn", FromOne),
          FIELD(nEnable, "En", Int),
          FIELD(nStream, "Stream", Int),
          FIELD(nKey, "Key", Int),
          FIELD(szString, "String", Text),
      });

TABLE(kVideoEncodeRoi, CFG_VIDEO_ENCODE_ROI_INFO,
      {
          FIELD(nRegionCount),
          FIELD(nRegions, "Regions", UInt).WrittenAs(Int).CountUncapped(AT(nRegionCount)),
          FIELD(nQuality, "Quality", Int),
          FIELD(bMain, "Main", Bool),
          FIELD(bExtra1, "Extra1", Bool),
          FIELD(bExtra2, "Extra2", Bool),
          FIELD(bExtra3, "Extra3", Bool),
          FIELD(bSnapshot, "Snapshot", Bool),
      });

} // namespace orrery
