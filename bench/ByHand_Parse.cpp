#include "bench/ByHand_Names.h"
#include "bench/ByHand_Values.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string_view>

namespace orrery::bench::byhand {

namespace {

constexpr std::string_view kSensors[] = {"NC", "NO"};

template <std::size_t N>
void Copy(const Value& value, char (&field)[N]) {
    const auto text = TextOf(value);
    std::memcpy(field, text.data(), std::min(text.size(), N - 1));
}

template <std::size_t N, class Flag = const NoFlag>
void Text(const Value& object, const char* key, char (&field)[N], Flag&& flag = {}) {
    if (const Value* value = Get(object, key)) {
        Copy(*value, field);
        Raise(flag);
    }
}

void Mask(const Value& object, const char* key, uint32_t (&words)[ORRERY_CHANNEL_WORDS], uint8_t& flag) {
    const Value* value = Get(object, key);
    if (value == nullptr || !value->IsArray()) return;
    flag = 1;
    for (const Value& element : value->GetArray()) {
        const int channel = NumberOf(element);
        if (channel >= 0 && channel < ORRERY_CHANNEL_WORDS * 32) words[channel / 32] |= uint32_t{1} << channel % 32;
    }
}

// The elements of the list at a key, as many as fit; returns how many.
template <class Element, std::size_t N, class Read>
int32_t List(const Value& object, const char* key, Element (&elements)[N], Read read) {
    const Value* value = Get(object, key);
    if (value == nullptr || !value->IsArray()) return 0;
    const auto count = std::min<rapidjson::SizeType>(value->Size(), N);
    for (rapidjson::SizeType i = 0; i < count; ++i)
        read((*value)[i], elements[i]);
    return static_cast<int32_t>(count);
}

template <std::size_t N>
bool Numbers(const Value* value, int (&numbers)[N]) {
    if (value == nullptr || !value->IsArray() || value->Size() != N) return false;
    for (rapidjson::SizeType i = 0; i < N; ++i)
        numbers[i] = NumberOf((*value)[i]);
    return true;
}

int TwoDigits(const char* text) {
    return (text[0] - '0') * 10 + (text[1] - '0');
}

void Section(const Value& value, CFG_TIME_SECTION& section) {
    const auto text = TextOf(value);
    if (text.size() != 19) return;
    const char* const t = text.data();
    section = {t[0] - '0',        TwoDigits(t + 2),  TwoDigits(t + 5), TwoDigits(t + 8),
               TwoDigits(t + 11), TwoDigits(t + 14), TwoDigits(t + 17)};
}

void Week(const Value& object, CFG_EVENT_HANDLER_INFO& handler) {
    const Value* const week = Get(object, "TimeSection");
    if (week == nullptr || !week->IsArray()) return;
    const auto days = std::min<rapidjson::SizeType>(week->Size(), ORRERY_SCHEDULE_DAYS);
    handler.stuTimeSectionEx.bEnableHoliday = days == ORRERY_SCHEDULE_DAYS;
    for (rapidjson::SizeType day = 0; day < days; ++day) {
        const Value& row = (*week)[day];
        if (!row.IsArray()) continue;
        const auto count = std::min<rapidjson::SizeType>(row.Size(), ORRERY_DAY_SECTIONS);
        for (rapidjson::SizeType i = 0; i < count; ++i) {
            CFG_TIME_SECTION& section = handler.stuTimeSectionEx.stuTimeSection[day][i];
            Section(row[i], section);
            if (day < ORRERY_WEEK_DAYS) handler.stuTimeSection[day][i] = section;
        }
    }
}

void Color(const Value* value, CFG_COLOR& color) {
    int parts[4];
    if (Numbers(value, parts)) color = {parts[0], parts[1], parts[2], parts[3]};
}

void Title(const Value& value, CFG_EVENT_TITLE& title) {
    int pair[2];
    Color(Get(value, "BackColor"), title.stuBackColor);
    Color(Get(value, "FrontColor"), title.stuFrontColor);
    if (Numbers(Get(value, "Point"), pair)) title.stuPoint = {pair[0], pair[1]};
    if (Numbers(Get(value, "Size"), pair)) title.stuSize = {static_cast<float>(pair[0]), static_cast<float>(pair[1])};
    Text(value, "Text", title.szText);
}

void Link(const Value& value, CFG_PTZ_LINK& link) {
    if (!value.IsArray() || value.Size() != 5) return;
    link = {CodeOf(value[0], kLinks, 0), NumberOf(value[1]), NumberOf(value[2]), NumberOf(value[3]),
            NumberOf(value[4])};
}

int SplitOf(std::string_view text) {
    int base = 0;
    if (text.substr(0, 5) == "Split") {
        text.remove_prefix(5);
    } else if (text.substr(0, 3) == "PIP") {
        text.remove_prefix(3);
        base = 1000;
    } else {
        return 1;
    }
    int number = 0;
    for (const char digit : text)
        number = number * 10 + (digit - '0');
    return base + number;
}

void Tour(const Value& value, CFG_MONITOR_TOUR& tour) {
    tour.nChannelCount = List(value, "Channels", tour.nChannels, [](const Value& v, int32_t& n) { n = NumberOf(v); });
    Bool(value, "Enable", tour.bEnable);
    if (const Value* split = Get(value, "Split")) tour.nSplit = SplitOf(TextOf(*split));
}

void Handler(const Value& object, CFG_EVENT_HANDLER_INFO& h) {
    Bool(object, "AccessControlEnable", h.bAccessControlEn, h.abAccessControlEn);
    if (Get(object, "AccessControls") != nullptr) {
        h.abAccessControl = 1;
        h.nAccessControlNum = List(object, "AccessControls", h.emAccessControl, [](const Value& v, int32_t& action) {
            if (const Value* operation = Get(v, "Operation")) action = CodeOf(*operation, kDoors, 0);
        });
    }
    Bool(object, "AlarmBellEnable", h.bAlarmBellEn, h.abAlarmBellEn);
    Int(object, "AlarmBellLatch", h.nAlarmBellLatch, h.abAlarmBellLatch);
    Mask(object, "AlarmOutChannels", h.dwAlarmOutMask, h.abAlarmOutMask);
    Bool(object, "AlarmOutEnable", h.bAlarmOutEn);
    h.abAlarmOutEn = 1;
    Int(object, "AlarmOutLatch", h.nAlarmOutLatch, h.abAlarmOutLatch);
    Bool(object, "BeepEnable", h.bBeepEnable, h.abBeepEnable);
    h.nDBKeysNum = List(object, "DB", h.szDBKeys, [](const Value& v, char(&key)[64]) { Copy(v, key); });
    h.abDBKeys = Get(object, "DB") != nullptr;
    Int(object, "Dejitter", h.nDejitter, h.abDejitter);
    Int(object, "Delay", h.nDelay, h.abDelay);
    Mask(object, "ExAlarmOutChannels", h.dwExAlarmOutMask, h.abExAlarmOutMask);
    Bool(object, "ExAlarmOutEnable", h.bExAlarmOutEn, h.abExAlarmOutEn);
    Bool(object, "FlashEnable", h.bFlashEnable, h.abFlashEnable);
    Int(object, "FlashLatch", h.nFlashLatch, h.abFlashLatch);
    Text(object, "JpegSummary", h.szJpegSummary, h.abJpegSummary);
    Bool(object, "LogEnable", h.bLogEnable, h.abLogEnable);
    Bool(object, "MMSEnable", h.bMMSEnable, h.abMMSEnable);
    if (const Value* mail = Get(object, "MailDetail")) {
        h.abMailDetail = 1;
        if (const Value* type = Get(*mail, "AttachmentType")) {
            h.stuMailDetail.emAttachmentType = TextOf(*type) == "video" ? 1 : 0;
        }
        Int(*mail, "MaxSize", h.stuMailDetail.nMaxSize);
        Int(*mail, "MaxTimeLength", h.stuMailDetail.nMaxTimeLength);
    }
    Bool(object, "MailEnable", h.bMailEnable, h.abMailEnable);
    Mask(object, "MatrixChannels", h.dwMatrixMask, h.abMatrixMask);
    Int(object, "MatrixEnable", h.nMatrixEnable, h.abMatrixEnable);
    Bool(object, "MessageEnable", h.bMessageEnable, h.abMessageEnable);
    Int(object, "MessageToNetEnable", h.nMessageToNetEn, h.abMessageToNetEn);
    h.nTourNum = List(object, "MonitorTour", h.stuTour, Tour);
    h.abTour = Get(object, "MonitorTour") != nullptr;
    if (const Value* server = Get(object, "PSTNAlarmServer")) {
        h.abPSTNAlarmServer = 1;
        h.nDestinationNum = List(*server, "Destination", h.byDestination,
                                 [](const Value& v, uint8_t& n) { n = static_cast<uint8_t>(NumberOf(v)); });
        Bool(*server, "NeedReport", h.bNeedReport);
    }
    h.nPtzLinkNum = List(object, "PtzLink", h.stuPtzLink, Link);
    h.abPtzLink = Get(object, "PtzLink") != nullptr;
    Bool(object, "PtzLinkEnable", h.bPtzLinkEn, h.abPtzLinkEn);
    Mask(object, "RecordChannels", h.dwRecordMask, h.abRecordMask);
    Bool(object, "RecordEnable", h.bRecordEnable);
    h.abRecordEnable = 1;
    Int(object, "RecordLatch", h.nRecordLatch, h.abRecordLatch);
    Int(object, "SDK_AlarmOutChannel", h.nAlarmOutChannelNum);
    Int(object, "SDK_RecordChannel", h.nRecordChannelNum);
    Mask(object, "SnapshotChannels", h.dwSnapshot, h.abSnapshot);
    Bool(object, "SnapshotEnable", h.bSnapshotEn, h.abSnapshotEn);
    Int(object, "SnapshotPeriod", h.nSnapshotPeriod, h.abSnapshotPeriod);
    Int(object, "SnapshotTimes", h.nSnapshotTimes, h.abSnapshotTimes);
    h.nSnapshotTitleNum = List(object, "SnapshotTitle", h.stuSnapshotTitle, Title);
    h.abSnapshotTitle = Get(object, "SnapshotTitle") != nullptr;
    Bool(object, "SnapshotTitleEnable", h.bSnapshotTitleEn, h.abSnapshotTitleEn);
    if (const Value* talk = Get(object, "Talkback")) {
        h.abTalkback = 1;
        Bool(*talk, "CallEnable", h.bTalkbackCallEn);
    }
    Week(object, h);
    Bool(object, "TipEnable", h.bTipEnable, h.abTipEnable);
    Mask(object, "TourChannels", h.dwTourMask, h.abTourMask);
    Bool(object, "TourEnable", h.bTourEnable, h.abTourEnable);
    if (const Value* split = Get(object, "TourSplit")) {
        h.abTourSplit = 1;
        h.nTourSplit = TextOf(*split) == "Split8" ? 1 : 0;
    }
    h.nVideoTitleNum = List(object, "VideoTitle", h.stuVideoTitle, Title);
    h.abVideoTitle = Get(object, "VideoTitle") != nullptr;
    Bool(object, "VideoTitleEnable", h.bVideoTitleEn, h.abVideoTitleEn);
    if (const Value* voice = Get(object, "Voice")) Text(*voice, "AudioFileName", h.szAudioFileName, h.abAudioFileName);
    Bool(object, "VoiceEnable", h.bVoiceEnable, h.abVoiceEnable);
}

} // namespace

bool ParseAlarm(const char* text, CFG_ALARM_INPUT_INFO& record) {
    std::memset(&record, 0, sizeof record);
    record.emSenseMethod = record.nSlot = record.nLevel1 = record.nLevel2 = -1;
    LocalDocument document;
    const Value* const params = ParamsOf(*document, text);
    const Value* const table = params == nullptr ? nullptr : Get(*params, "table");
    if (table == nullptr) return false;
    Int(*params, "channel", record.nChannel);
    if (const Value* area = Get(*table, "DefenceAreaType")) record.emDefenceAreaType = CodeOf(*area, kAreas, 0);
    Int(*table, "DisableDelay", record.nDisableDelay);
    Bool(*table, "Enable", record.bEnable);
    if (const Value* control = Get(*table, "EnableControl")) record.emEnableControl = CodeOf(*control, kControls, 0);
    Int(*table, "EnableDelay", record.nEnableDelay);
    if (const Value* handler = Get(*table, "EventHandler")) Handler(*handler, record.stuEventHandler);
    Text(*table, "ID", record.szDeviceID, record.abDeviceID);
    Int(*table, "Level1", record.nLevel1);
    Int(*table, "Level2", record.nLevel2, record.abLevel2);
    Text(*table, "Name", record.szName);
    Int(*table, "Pole", record.nPole);
    if (const Value* sense = Get(*table, "SenseMethod")) record.emSenseMethod = CodeOf(*sense, test::kSensors, -1);
    if (const Value* sensor = Get(*table, "SensorType")) record.nSensorType = CodeOf(*sensor, kSensors, 1);
    Int(*table, "Slot", record.nSlot);
    return true;
}

bool ParseMotionDetect(const char* text, CFG_MOTION_DETECT_INFO& record) {
    std::memset(&record, 0, sizeof record);
    LocalDocument document;
    const Value* const params = ParamsOf(*document, text);
    record.bRead = 1;
    const Value* const result = Get(*document, "result");
    if (result == nullptr || !result->IsTrue()) return false;
    const Value* const table = params == nullptr ? nullptr : Get(*params, "table");
    if (table == nullptr) return false;
    Bool(*table, "Enable", record.bEnable);
    if (const Value* handler = Get(*table, "EventHandler")) Handler(*handler, record.stuEventHandler);
    Int(*table, "Level", record.nLevel, record.abLevel);
    if (const Value* windows = Get(*table, "MotionDetectWindow"); windows != nullptr && windows->IsArray()) {
        const auto count = std::min<rapidjson::SizeType>(windows->Size(), ORRERY_MOTION_WINDOWS);
        for (rapidjson::SizeType i = 0; i < count; ++i) {
            const Value& element = (*windows)[i];
            if (const Value* region = Get(element, "Region"); region != nullptr && region->IsArray()) {
                CFG_MOTION_REGION_WINDOW& window = record.stuRegionWindow[i];
                record.abRegionWindow = 1;
                record.nRegionWindowNum = static_cast<int32_t>(count);
                Int(element, "Id", window.nId);
                Text(element, "Name", window.szName);
                Int(element, "Sensitive", window.nSensitive);
                Int(element, "Threshold", window.nThreshold);
                const auto rows = std::min<rapidjson::SizeType>(region->Size(), ORRERY_MOTION_ROWS);
                window.nRow = static_cast<int32_t>(rows);
                window.nCol = ORRERY_MOTION_READ_COLS;
                for (rapidjson::SizeType row = 0; row < rows; ++row) {
                    const uint32_t bits = (*region)[row].IsUint() ? (*region)[row].GetUint() : 0;
                    for (int col = 0; col < ORRERY_MOTION_READ_COLS; ++col)
                        window.byRegion[row][col] = (bits >> (ORRERY_MOTION_READ_COLS - 1 - col)) & 1;
                }
            }
            if (const Value* rect = Get(element, "Window")) {
                CFG_MOTION_WINDOW& window = record.stuWindow[i];
                record.abWindow = 1;
                record.nWindowNum = static_cast<int32_t>(count);
                Int(element, "Sensitive", window.nSensitive);
                Int(element, "Threshold", window.nThreshold);
                int sides[4];
                if (Numbers(rect, sides)) window.stuWindow = {sides[0], sides[1], sides[2], sides[3]};
            }
        }
    }
    Int(*table, "SubRatio", record.nSubRatio, record.abSubRatio);
    Int(*table, "VolumeRatio", record.nVolumeRatio, record.abVolumeRatio);
    return true;
}

bool ParseSwitch(const char* text, CFG_ENABLE_INFO& record) {
    record = {};
    LocalDocument document;
    const Value* const params = ParamsOf(*document, text);
    const Value* const result = Get(*document, "result");
    if (result == nullptr || !result->IsTrue()) return false;
    const Value* const table = params == nullptr ? nullptr : Get(*params, "table");
    if (table == nullptr) return false;
    Bool(*table, "Enable", record.bEnable);
    return true;
}

bool ParseAlarmCaps(const char* text, CFG_ALARM_CAPS& record) {
    record = {};
    LocalDocument document;
    const Value* const params = ParamsOf(*document, text);
    const Value* const result = Get(*document, "result");
    if (result == nullptr || !result->IsTrue()) return false;
    const Value* const caps = params == nullptr ? nullptr : Get(*params, "caps");
    if (caps == nullptr) return false;
    Int(*caps, "AlarmBellCount", record.nAlarmBellCount);
    Bool(*caps, "AlarmPir", record.bAlarmPir);
    record.nDefenceAreaTypeNum = List(*caps, "DefenceAreaTypes", record.emDefenceAreaTypes,
                                      [](const Value& v, int32_t& code) { code = CodeOf(v, kAreas, 0); });
    Bool(*caps, "Flash", record.bFlash);
    Int(*caps, "MaxBackupAlarmServer", record.nMaxBackupAlarmServer);
    Int(*caps, "MaxDelay", record.nMaxDelay);
    Int(*caps, "MaxPSTNAlarmServer", record.nMaxPSTNAlarmServer);
    record.nSenseMethodNum = List(*caps, "SupportSenseMethod", record.emSenseMethods,
                                  [](const Value& v, int32_t& code) { code = CodeOf(v, test::kSensors, -1); });
    return true;
}

} // namespace orrery::bench::byhand
