#include "events/VehicleParts.h"

#include "events/EventLog.h"
#include "frame/json/MemberKeys.h"

#include <algorithm>
#include <charconv>

namespace orrery::events {

using json::Value;

namespace {

constexpr Name kPlateColorRows[] = {
    {EVENT_PLATE_COLOR_OTHER, "Other"},
    {EVENT_PLATE_COLOR_BLUE, "Blue"},
    {EVENT_PLATE_COLOR_YELLOW, "Yellow"},
    {EVENT_PLATE_COLOR_WHITE, "White"},
    {EVENT_PLATE_COLOR_BLACK, "Black"},
    {EVENT_PLATE_COLOR_YELLOW_BOTTOM_BLACK_TEXT, "YellowbottomBlackText"},
    {EVENT_PLATE_COLOR_BLUE_BOTTOM_WHITE_TEXT, "BluebottomWhiteText"},
    {EVENT_PLATE_COLOR_BLACK_BOTTOM_WHITE_TEXT, "BlackBottomWhiteText"},
    {EVENT_PLATE_COLOR_SHADOW_GREEN, "ShadowGreen"},
    {EVENT_PLATE_COLOR_YELLOW_GREEN, "YellowGreen"},
};

constexpr Name kNonMotorColorRows[] = {
    {0, "Other"},        {1, "White"},        {2, "Orange"},          {3, "Pink"},
    {4, "Black"},        {5, "Red"},          {6, "Yellow"},          {7, "Gray"},
    {8, "Blue"},         {9, "Green"},        {10, "Purple"},         {11, "Brown"},
    {12, "Sliver"},      {13, "Darkviolet"},  {14, "Maroon"},         {15, "Dimgray"},
    {16, "Whitesmoke"},  {17, "Darkorange"},  {18, "Mistyrose"},      {19, "Tomato"},
    {20, "Olive"},       {21, "Gold"},        {22, "Darkolivegreen"}, {23, "Chartreuse"},
    {24, "Greenyellow"}, {25, "Forestgreen"}, {26, "Seagreen"},       {27, "Deepskyblue"},
    {28, "Cyan"},        {29, "Other"},       {30, "Other"},          {31, "Fuchsia"},
    {32, "Lime"},        {33, "Navy"},        {34, "Teal"},           {35, "Aqua"},
    {36, "Orangered"},
};

constexpr Name kNonMotorTypeRows[] = {
    {0, "Other"},
    {1, "Tricycle"},
    {2, "Motorcycle"},
    {3, "Non-Motor"},
    {4, "Bicycle"},
    {5, "DualTriWheelMotorcycle"},
    {6, "LightMotorcycle"},
    {7, "EmbassyMotorcycle"},
    {8, "MarginalMotorcycle"},
    {9, "AreaoutMotorcycle"},
    {10, "ForeignMotorcycle"},
    {11, "TrialMotorcycle"},
    {12, "CoachMotorcycle"},
    {13, "Passerby"},
    {14, "VanTricycle"},
    {15, "MannedConvertibleTricycle"},
    {16, "NoMannedConvertibleTricycle"},
    {17, "Electricbike"},
    {18, "FourWheelerNonMotor"},
    {19, "Scooter"},
};

struct NamedColor {
    std::string_view name;
    std::uint32_t color;
};
constexpr NamedColor kObjectColors[] = {
    {"Blue", 0x0000FF00}, {"Yellow", 0xFFFF0000}, {"White", 0xFFFFFF00}, {"Black", 0},
    {"Red", 0xFF000000},  {"Green", 0x00FF0000},  {"Gray", 0x80808000},
};

// The heading stands as it was sent, the two ends of the road are converted.
void ReadDrivingDirections(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    const std::uint32_t count = std::min(static_cast<std::uint32_t>(value.elements().size()), field.dims[0]);
    for (std::uint32_t i = 0; i < count; ++i) {
        auto* const at = reinterpret_cast<char*>(record + field.offset + std::size_t{i} * field.elementSize);
        if (i == 0)
            call.parser.GetJsonString(value[i], at, field.elementSize, false);
        else
            call.parser.GetConvertedText(value[i], at, field.elementSize);
    }
}

void ReadSeatStatus(const Field&, const Value& value, std::byte* record, ReadCall&) {
    constexpr std::size_t kMostTexts = 16;
    for (const Value& status : value.elements().first(std::min(value.elements().size(), kMostTexts))) {
        if (EqualsFolded(status.asString(), "Smoking")) SET_MEMBER(record, EVENT_SEAT_INFO, bSmoking, 1);
        if (EqualsFolded(status.asString(), "Calling")) SET_MEMBER(record, EVENT_SEAT_INFO, bCalling, 1);
    }
}

std::uint32_t Decimal(std::string_view text) noexcept {
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos) return 0;
    std::int32_t number = 0;
    std::from_chars(text.data() + start, text.data() + text.size(), number);
    return static_cast<std::uint32_t>(number);
}

// "2026-11-20 09:30:00", to the digit. False for any other text.
bool ReadUsualTime(std::string_view text, std::uint32_t (&fields)[6]) noexcept {
    constexpr std::string_view kForm = "0000-00-00 00:00:00";
    if (text.size() != kForm.size()) return false;
    std::uint32_t number = 0;
    std::size_t field = 0;
    for (std::size_t i = 0; i < kForm.size(); ++i) {
        const char c = text[i];
        if (kForm[i] == '0') {
            if (c < '0' || c > '9') return false;
            number = number * 10 + static_cast<std::uint32_t>(c - '0');
        } else {
            if (c != kForm[i]) return false;
            fields[field++] = number;
            number = 0;
        }
    }
    fields[field] = number;
    return true;
}

// What stands behind the last `mark`, which is cut off; the whole text when there is none.
std::string_view TakeLast(std::string_view& text, char mark) noexcept {
    const std::size_t at = text.rfind(mark);
    const std::string_view last = at == std::string_view::npos ? text : text.substr(at + 1);
    text = at == std::string_view::npos ? std::string_view{} : text.substr(0, at);
    return last;
}

void ReadSplitTimeField(const Field& field, const Value& value, std::byte* record, ReadCall&) {
    std::uint32_t fields[6] = {};
    ReadSplitTime(value.asString(), fields);
    std::memcpy(record + field.offset, fields, sizeof fields);
}

void FillPath(const char* path, std::size_t capacity, const char* failure, const char*& field, Arena& arena) noexcept {
    const std::string_view text(path, strnlen(path, capacity - 1));
    if (text.empty()) return;
    field = OwnText(text, arena);
    if (field == nullptr) ORRERY_EVENT_ERROR("%s", failure);
}

void ReadCommInfoAndPaths(const Field& field, const Value& value, std::byte* record, ReadCall& call) {
    std::byte* const at = record + field.offset;
    if (!value.isNull()) ReadRecord(kCommInfo, value, at, call);
    const EventSourceInfo& source = *EventOf(call).source;
    Arena& arena = call.parser.text().arena();
    auto& info = *reinterpret_cast<EVENT_COMM_INFO*>(at);
    FillPath(source.szFilePath, sizeof source.szFilePath, "New szFilePath Failed", info.pszFilePath, arena);
    FillPath(source.szFTPPath, sizeof source.szFTPPath, "New szFTPPath Failed", info.pszFTPPath, arena);
    FillPath(source.szVideoPath, sizeof source.szVideoPath, "New szVideoPath Failed", info.pszVideoPath, arena);
}

constexpr NameIndex kPlateColorIndex = IndexOver(kPlateColorRows);
constexpr NameIndex kNonMotorColorIndex = IndexOver(kNonMotorColorRows);
constexpr NameIndex kNonMotorTypeIndex = IndexOver(kNonMotorTypeRows);

} // namespace

constexpr NameTable kPlateColors = NamesOver(kPlateColorRows, kFolded.LastWins().UnknownLeaves(), kPlateColorIndex);
constexpr NameTable kNonMotorColors =
    NamesOver(kNonMotorColorRows, kFolded.LastWins().UnknownLeaves(), kNonMotorColorIndex);
constexpr NameTable kNonMotorTypes =
    NamesOver(kNonMotorTypeRows, kFolded.LastWins().UnknownLeaves(), kNonMotorTypeIndex);

constexpr CustomCodec kDrivingDirections{ReadDrivingDirections};
constexpr CustomCodec kSeatStatus{ReadSeatStatus};
constexpr CustomCodec kSplitTime{ReadSplitTimeField};
constexpr CustomCodec kCommInfoAndPaths{ReadCommInfoAndPaths};

void ReadSplitTime(std::string_view text, std::uint32_t (&fields)[6]) noexcept {
    if (ReadUsualTime(text, fields)) return;
    const std::size_t blank = text.rfind(' ');
    std::string_view date = text.substr(0, blank);
    std::string_view time = blank == std::string_view::npos ? std::string_view{} : text.substr(blank + 1);
    for (int i : {2, 1, 0})
        fields[i] = Decimal(TakeLast(date, '-'));
    for (int i : {5, 4, 3})
        fields[i] = Decimal(TakeLast(time, ':'));
}

void LogTrafficCar(const Value& value, std::byte* record, ReadCall& call) {
    if (!LogHasSink()) return;
    Arena& arena = call.parser.text().arena();
    json::TextWriter measure(nullptr, 0);
    char* text = nullptr;
    if (measure.Write(value, arena)) text = arena.Array<char>(measure.length() + 1);
    if (text != nullptr) {
        json::TextWriter writer(text, measure.length());
        writer.Write(value, arena);
        text[measure.length()] = '\0';
    }
    ORRERY_EVENT_DETAIL("ParseStrtoTrafficCar() start input[%s]", text != nullptr ? text : "");
    const auto& car = *reinterpret_cast<const EVENT_TRAFFIC_CAR_INFO*>(record);
    const std::string_view sent = value["PlateNumber"].asString();
    const std::string_view plate = TextOf(car.szPlateNumber);
    // What was sent, its length, and what became of it.
    const char* const sentText = OwnText(sent, arena);
    const char* const plateText = OwnText(plate, arena);
    ORRERY_EVENT_DETAIL("ParseStrtoTrafficCar() szPlateNumber[%s-%d-%s]", sentText != nullptr ? sentText : "",
                        static_cast<int>(sent.size()), plateText != nullptr ? plateText : "");
}

void StopAtMissingDrivers(const Value& value, std::byte* record, ReadCall&) {
    auto& info = *reinterpret_cast<EVENT_COMM_INFO*>(record);
    if (info.pDrivers != nullptr || value["Drivers"].elements().empty()) return;
    // Nothing behind the drivers is read once there was no room for them.
    const std::int32_t ntpStatus = info.emNTPStatus;
    info = EVENT_COMM_INFO{};
    info.emNTPStatus = ntpStatus;
}

void ForgetSceneWithoutLength(const Value&, std::byte* record, ReadCall&) {
    auto& scene = *reinterpret_cast<EVENT_SCENE_IMAGE*>(record);
    if (scene.dwLength > 0)
        scene.bSceneImage = 1;
    else
        scene = EVENT_SCENE_IMAGE{};
}

bool SetObjectColor(std::uint32_t& color, std::string_view name, std::uint8_t& isSet) noexcept {
    if (name.empty()) return false;
    for (const NamedColor& known : kObjectColors) {
        if (known.name != name) continue;
        color = known.color;
        isSet = 1;
    }
    return true;
}

void CarOverObjects(const Value& car, const CarTexts& texts, EVENT_OBJECT_INFO& object, EVENT_OBJECT_INFO& vehicle,
                    EVENT_FILE_INFO& fileInfo) noexcept {
    if (car.isNull()) return;
    static constexpr json::MemberKeys<7> kKeys("CountInGroup", "GroupID", "IndexInGroup", "PlateColor", "PlateNumber",
                                               "PlateType", "VehicleColor");
    const auto [count, group, index, plateColor, plateNumber, plateType, vehicleColor] = json::ValuesAt(car, kKeys);
    if (!plateNumber->isNull()) {
        constexpr std::size_t kMost = sizeof object.szText - 1;
        const std::string_view plate = texts.plateNumber.substr(0, kMost);
        std::memset(object.szText, 0, sizeof object.szText);
        std::memcpy(object.szText, plate.data(), plate.size());
    }
    if (!plateColor->isNull()) SetObjectColor(object.rgbaMainColor, texts.plateColor, object.bColor);
    if (!plateType->isNull()) {
        constexpr std::size_t kMost = 61;
        const std::string_view text = plateType->asString().substr(0, kMost);
        std::memset(object.szObjectSubType, 0, sizeof object.szObjectSubType);
        if (!text.empty()) std::memcpy(object.szObjectSubType, text.data(), text.size());
    }
    if (!vehicleColor->isNull()) SetObjectColor(vehicle.rgbaMainColor, texts.vehicleColor, vehicle.bColor);
    GroupInto(fileInfo, *count, *group, *index);
}

} // namespace orrery::events
