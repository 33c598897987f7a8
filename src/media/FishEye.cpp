#include "frame/record/Engine.h"
#include "media/FishEyeModes.h"
#include "media/VideoInput.h"

#include <algorithm>
#include <string_view>

namespace orrery {

using namespace record;

namespace {

PART(kFishEyeWindow, CFG_FISHEYE_WINDOW,
     {
         FIELD(nWinId, "WinID", Int),
         FIELD(nX, "X", Int),
         FIELD(nY, "Y", Int),
         FIELD(nHorizontalAngle, "HorizontalAngle", Int),
         FIELD(nVerticalAngle, "VerticalAngle", Int),
     });

PART(kFishEyeMode, CFG_FISHEYE_MODE,
     {
         FIELD(emMode),
         FIELD(nWindowCount),
         FIELD(stuWindows, "", Record(kFishEyeWindow)).Count(AT(nWindowCount)),
     });

// Modes stand under names that become codes, and unknown ones are kept: a name is not enough to tell them apart.
void ReadFishEyeModes(const Field& field, const json::Value& value, std::byte* record, ReadCall& call) {
    std::uint32_t count = 0;
    for (const json::Member& member : value.members()) {
        if (count == ORRERY_FISHEYE_MODES) break;
        std::byte* const mode = record + field.offset + count++ * sizeof(CFG_FISHEYE_MODE);
        SET_MEMBER(mode, CFG_FISHEYE_MODE, emMode, static_cast<std::uint32_t>(*kFishEyeModes.CodeOf(member.key())));
        ReadFields(kFishEyeMode, member.value, mode, call);
    }
    SET_MEMBER(record, CFG_FISHEYE_INFO, nModeCount, count);
}

// The modes of a record as they are written.
struct WrittenModes {
    const std::byte* first;
    std::uint32_t count;

    const std::byte* at(std::uint32_t i) const { return first + i * sizeof(CFG_FISHEYE_MODE); }
    std::string_view name(std::uint32_t i) const {
        const Name* const row = kFishEyeModes.RowOf(static_cast<std::int32_t>(MEMBER(at(i), CFG_FISHEYE_MODE, emMode)));
        return row != nullptr ? row->text : std::string_view();
    }
    std::uint32_t windows(std::uint32_t i) const {
        return std::min<std::uint32_t>(MEMBER(at(i), CFG_FISHEYE_MODE, nWindowCount), ORRERY_FISHEYE_WINDOWS);
    }
    // Windows by their place: of modes that share a name the last one's stands. Null behind the last place.
    const std::byte* window(std::string_view of, std::uint32_t place) const {
        for (std::uint32_t i = count; i-- > 0;) {
            if (name(i) != of || windows(i) <= place) continue;
            return at(i) + offsetof(CFG_FISHEYE_MODE, stuWindows) + place * sizeof(CFG_FISHEYE_WINDOW);
        }
        return nullptr;
    }
};

void WriteFishEyeModes(const Field& field, const std::byte* record, WriteCall& call) {
    const WrittenModes modes{
        record + field.offset,
        std::min<std::uint32_t>(MEMBER(record, CFG_FISHEYE_INFO, nModeCount), ORRERY_FISHEYE_MODES)};
    std::string_view names[ORRERY_FISHEYE_MODES];
    std::string_view* end = names; // in order, each once
    for (std::uint32_t i = 0; i < modes.count; ++i) {
        if (modes.windows(i) == 0) continue;
        std::string_view* const place = std::lower_bound(names, end, modes.name(i));
        if (place != end && *place == modes.name(i)) continue;
        std::move_backward(place, end, end + 1);
        *place = modes.name(i);
        ++end;
    }
    if (end == names) return;
    call.Key();
    call.out.BeginObject();
    for (const std::string_view* name = names; name != end; ++name) {
        call.out.Key(*name);
        call.out.BeginArray();
        for (std::uint32_t place = 0; const std::byte* const window = modes.window(*name, place); ++place)
            WriteRecord(kFishEyeWindow, window, call);
        call.out.EndArray();
    }
    call.out.EndObject();
}

constexpr CustomCodec kFishEyeModeList{
    ReadFishEyeModes, WriteFishEyeModes,
    R"({"Panorama":[{"HorizontalAngle":40,"VerticalAngle":50,"WinID":1,"X":20,"Y":30}],"Single":[{"WinID":2}]})"};

} // namespace

TABLE(kFishEye, CFG_FISHEYE_INFO,
      {
          FIELD(nModeCount),
          FIELD(stuModes, "Position", Custom(kFishEyeModeList)).PointsTo(kFishEyeMode).Count(AT(nModeCount)),
      });

} // namespace orrery
