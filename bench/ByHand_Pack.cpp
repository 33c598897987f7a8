#include "bench/ByHand.h"
#include "bench/ByHand_Names.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <cstring>
#include <string_view>

#include <rapidjson/writer.h>

namespace orrery::bench::byhand {

Value SectionText(const CFG_TIME_SECTION& section, Pool& pool) {
    char text[96];
    const auto pair = [](char* at, int number) {
        at[0] = static_cast<char>('0' + number / 10);
        at[1] = static_cast<char>('0' + number % 10);
    };
    std::memcpy(text, "0 00:00:00-00:00:00", 20);
    text[0] = static_cast<char>('0' + section.dwMask);
    pair(text + 2, section.nBeginHour);
    pair(text + 5, section.nBeginMin);
    pair(text + 8, section.nBeginSec);
    pair(text + 11, section.nEndHour);
    pair(text + 14, section.nEndMin);
    pair(text + 17, section.nEndSec);
    return Value(text, 19, pool);
}

namespace {

using rapidjson::kArrayType;
using rapidjson::kObjectType;
using rapidjson::SizeType;
using rapidjson::StringRef;

Value::StringRefType TextOf(std::string_view text) {
    return StringRef(text.data(), static_cast<SizeType>(text.size()));
}

// A document under construction: its allocator, and short words for what the records need.
struct Builder {
    Pool& pool;

    template <std::size_t N>
    void Bool(Value& object, const char (&key)[N], int flag) {
        object.AddMember(StringRef(key), Value(flag != 0), pool);
    }
    template <std::size_t N>
    void Int(Value& object, const char (&key)[N], int number) {
        object.AddMember(StringRef(key), Value(number), pool);
    }
    // Fields outlive the document, so they are referred to.
    Value Text(const char* field, std::size_t capacity) {
        return Value(StringRef(field, static_cast<SizeType>(strnlen(field, capacity))));
    }
    template <std::size_t N, std::size_t C>
    void Text(Value& object, const char (&key)[N], const char (&field)[C]) {
        object.AddMember(StringRef(key), Text(field, C), pool);
    }
    template <std::size_t N, std::size_t C>
    void Name(Value& object, const char (&key)[N], const std::string_view (&names)[C], int code) {
        if (code < 0 || code >= static_cast<int>(C) || names[code].empty()) return;
        object.AddMember(StringRef(key), TextOf(names[code]), pool);
    }
    template <std::size_t N>
    void Mask(Value& object, const char (&key)[N], const uint32_t (&words)[ORRERY_CHANNEL_WORDS]) {
        Value list(kArrayType);
        for (unsigned word = 0; word < ORRERY_CHANNEL_WORDS; ++word) {
            for (uint32_t bits = words[word]; bits != 0; bits &= bits - 1)
                list.PushBack(word * 32 + static_cast<unsigned>(std::countr_zero(bits)), pool);
        }
        object.AddMember(StringRef(key), list, pool);
    }
    Value Numbers(std::initializer_list<int> numbers) {
        Value list(kArrayType);
        list.Reserve(static_cast<SizeType>(numbers.size()), pool);
        for (const int number : numbers)
            list.PushBack(number, pool);
        return list;
    }
    // A list of as many elements as are in use.
    template <std::size_t N, class Element, std::size_t M, class Make>
    void List(Value& object, const char (&key)[N], const Element (&elements)[M], int32_t count, Make make) {
        count = std::clamp<int32_t>(count, 0, M);
        if (count == 0) return;
        Value list(kArrayType);
        list.Reserve(static_cast<SizeType>(count), pool);
        for (int32_t i = 0; i < count; ++i)
            list.PushBack(make(elements[i]), pool);
        object.AddMember(StringRef(key), list, pool);
    }
    Value Day(const CFG_TIME_SECTION (&sections)[ORRERY_DAY_SECTIONS]) {
        Value row(kArrayType);
        row.Reserve(ORRERY_DAY_SECTIONS, pool);
        for (const CFG_TIME_SECTION& section : sections)
            row.PushBack(SectionText(section, pool), pool);
        return row;
    }
    Value Color(const CFG_COLOR& c) { return Numbers({c.nRed, c.nGreen, c.nBlue, c.nAlpha}); }
    Value Title(const CFG_EVENT_TITLE& title) {
        Value object(kObjectType);
        object.AddMember("BackColor", Color(title.stuBackColor), pool);
        object.AddMember("FrontColor", Color(title.stuFrontColor), pool);
        object.AddMember("Point", Numbers({title.stuPoint.nX, title.stuPoint.nY}), pool);
        Value size(kArrayType);
        size.PushBack(static_cast<double>(title.stuSize.fWidth), pool);
        size.PushBack(static_cast<double>(title.stuSize.fHeight), pool);
        object.AddMember("Size", size, pool);
        Text(object, "Text", title.szText);
        return object;
    }
    Value Link(const CFG_PTZ_LINK& link) {
        if (link.emType < 0 || link.emType > 3) return Value();
        Value list(kArrayType);
        list.Reserve(5, pool);
        list.PushBack(TextOf(kLinks[link.emType]), pool);
        for (const int number : {link.nValue, link.nParam1, link.nParam2, link.nParam3})
            list.PushBack(number, pool);
        return list;
    }
    Value Tour(const CFG_MONITOR_TOUR& tour) {
        Value object(kObjectType);
        List(object, "Channels", tour.nChannels, tour.nChannelCount, [](int32_t n) { return Value(n); });
        Bool(object, "Enable", tour.bEnable);
        char split[32];
        const int length = tour.nSplit >= 1000 ? std::snprintf(split, sizeof split, "PIP%d", tour.nSplit - 1000)
                                               : std::snprintf(split, sizeof split, "Split%d", tour.nSplit);
        object.AddMember("Split", Value(split, static_cast<SizeType>(length), pool), pool);
        return object;
    }

    Value Handler(const CFG_EVENT_HANDLER_INFO& h);
};

Value Builder::Handler(const CFG_EVENT_HANDLER_INFO& h) {
    Value o(kObjectType);
    if (h.abAccessControlEn) Bool(o, "AccessControlEnable", h.bAccessControlEn);
    if (h.abAccessControl) {
        List(o, "AccessControls", h.emAccessControl, h.nAccessControlNum, [&](int32_t action) {
            Value door(kObjectType);
            Name(door, "Operation", kDoors, action);
            return door;
        });
    }
    if (h.abAlarmBellEn) Bool(o, "AlarmBellEnable", h.bAlarmBellEn);
    if (h.abAlarmBellLatch) Int(o, "AlarmBellLatch", h.nAlarmBellLatch);
    if (h.abAlarmOutMask) Mask(o, "AlarmOutChannels", h.dwAlarmOutMask);
    if (h.abAlarmOutEn) Bool(o, "AlarmOutEnable", h.bAlarmOutEn);
    if (h.abAlarmOutLatch) Int(o, "AlarmOutLatch", h.nAlarmOutLatch);
    if (h.abBeepEnable) Bool(o, "BeepEnable", h.bBeepEnable);
    if (h.abDBKeys) List(o, "DB", h.szDBKeys, h.nDBKeysNum, [&](const char(&key)[64]) { return Text(key, 64); });
    if (h.abDejitter) Int(o, "Dejitter", h.nDejitter);
    if (h.abDelay) Int(o, "Delay", h.nDelay);
    if (h.abExAlarmOutMask) Mask(o, "ExAlarmOutChannels", h.dwExAlarmOutMask);
    if (h.abExAlarmOutEn) Bool(o, "ExAlarmOutEnable", h.bExAlarmOutEn);
    if (h.abFlashEnable) Bool(o, "FlashEnable", h.bFlashEnable);
    if (h.abFlashLatch) Int(o, "FlashLatch", h.nFlashLatch);
    if (h.abJpegSummary) Text(o, "JpegSummary", h.szJpegSummary);
    if (h.abLogEnable) Bool(o, "LogEnable", h.bLogEnable);
    if (h.abMMSEnable) Bool(o, "MMSEnable", h.bMMSEnable);
    if (h.abMailDetail) {
        Value mail(kObjectType);
        mail.AddMember("AttachmentType",
                       h.stuMailDetail.emAttachmentType == 0 ? StringRef("picture") : StringRef("video"), pool);
        Int(mail, "MaxSize", h.stuMailDetail.nMaxSize);
        Int(mail, "MaxTimeLength", h.stuMailDetail.nMaxTimeLength);
        o.AddMember("MailDetail", mail, pool);
    }
    if (h.abMailEnable) Bool(o, "MailEnable", h.bMailEnable);
    if (h.abMatrixMask) Mask(o, "MatrixChannels", h.dwMatrixMask);
    if (h.abMatrixEnable) Bool(o, "MatrixEnable", h.nMatrixEnable == 1);
    if (h.abMessageEnable) Bool(o, "MessageEnable", h.bMessageEnable);
    if (h.abMessageToNetEn) Bool(o, "MessageToNetEnable", h.nMessageToNetEn == 1);
    if (h.abTour) List(o, "MonitorTour", h.stuTour, h.nTourNum, [&](const CFG_MONITOR_TOUR& t) { return Tour(t); });
    if (h.abPSTNAlarmServer) {
        Value server(kObjectType);
        List(server, "Destination", h.byDestination, h.nDestinationNum, [](uint8_t n) { return Value(unsigned{n}); });
        Bool(server, "NeedReport", h.bNeedReport);
        o.AddMember("PSTNAlarmServer", server, pool);
    }
    if (h.abPtzLink) List(o, "PtzLink", h.stuPtzLink, h.nPtzLinkNum, [&](const CFG_PTZ_LINK& l) { return Link(l); });
    if (h.abPtzLinkEn) Bool(o, "PtzLinkEnable", h.bPtzLinkEn);
    if (h.abRecordMask) Mask(o, "RecordChannels", h.dwRecordMask);
    if (h.abRecordEnable) Bool(o, "RecordEnable", h.bRecordEnable);
    if (h.abRecordLatch) Int(o, "RecordLatch", h.nRecordLatch);
    if (h.abSnapshot) Mask(o, "SnapshotChannels", h.dwSnapshot);
    if (h.abSnapshotEn) Bool(o, "SnapshotEnable", h.bSnapshotEn);
    if (h.abSnapshotPeriod) Int(o, "SnapshotPeriod", h.nSnapshotPeriod);
    if (h.abSnapshotTimes) Int(o, "SnapshotTimes", h.nSnapshotTimes);
    const auto title = [&](const CFG_EVENT_TITLE& t) { return Title(t); };
    if (h.abSnapshotTitle) List(o, "SnapshotTitle", h.stuSnapshotTitle, h.nSnapshotTitleNum, title);
    if (h.abSnapshotTitleEn) Bool(o, "SnapshotTitleEnable", h.bSnapshotTitleEn);
    if (h.abTalkback) {
        Value talk(kObjectType);
        Bool(talk, "CallEnable", h.bTalkbackCallEn);
        talk.AddMember("CallProtocol", h.emTalkbackProtocol == 0 ? Value("Cellular") : Value(), pool);
        talk.AddMember("Caller", h.emTalkbackCaller == 0 ? Value("Device") : Value(), pool);
        o.AddMember("Talkback", talk, pool);
    }
    Value week(kArrayType);
    week.Reserve(ORRERY_SCHEDULE_DAYS, pool);
    for (const auto& day : h.stuTimeSection)
        week.PushBack(Day(day), pool);
    if (h.stuTimeSectionEx.bEnableHoliday) {
        week.PushBack(Day(h.stuTimeSectionEx.stuTimeSection[ORRERY_WEEK_DAYS]), pool);
    }
    o.AddMember("TimeSection", week, pool);
    if (h.abTipEnable) Bool(o, "TipEnable", h.bTipEnable);
    if (h.abTourMask) Mask(o, "TourChannels", h.dwTourMask);
    if (h.abTourEnable) Bool(o, "TourEnable", h.bTourEnable == 1);
    if (h.abVideoTitle) List(o, "VideoTitle", h.stuVideoTitle, h.nVideoTitleNum, title);
    if (h.abVideoTitleEn) Bool(o, "VideoTitleEnable", h.bVideoTitleEn);
    if (h.abAudioFileName) {
        Value voice(kObjectType);
        Text(voice, "AudioFileName", h.szAudioFileName);
        o.AddMember("Voice", voice, pool);
    }
    if (h.abVoiceEnable) Bool(o, "VoiceEnable", h.bVoiceEnable);
    return o;
}

} // namespace

void Write(const Document& document, rapidjson::StringBuffer& out) {
    alignas(16) char levels[1024];
    Pool pool(levels, sizeof levels);
    rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF8<>, rapidjson::UTF8<>, Pool> writer(out, &pool);
    document.Accept(writer);
}

bool Deliver(const rapidjson::StringBuffer& out, char* text, std::size_t capacity) {
    std::memset(text, 0, capacity);
    if (out.GetSize() + 2 > capacity) return false;
    std::memcpy(text, out.GetString(), out.GetSize());
    text[out.GetSize()] = '\n';
    return true;
}

void WriteAlarm(const CFG_ALARM_INPUT_INFO& record, rapidjson::StringBuffer& out) {
    LocalDocument document;
    Builder build{document->GetAllocator()};
    Value& table = document->SetObject();
    build.Name(table, "DefenceAreaType", kAreas, record.emDefenceAreaType);
    build.Int(table, "DisableDelay", record.nDisableDelay);
    build.Bool(table, "Enable", record.bEnable);
    build.Name(table, "EnableControl", kControls, record.emEnableControl);
    build.Int(table, "EnableDelay", record.nEnableDelay);
    table.AddMember("EventHandler", build.Handler(record.stuEventHandler), build.pool);
    build.Text(table, "ID", record.szDeviceID);
    if (record.nLevel1 != -1) build.Int(table, "Level1", record.nLevel1);
    if (record.abLevel2) build.Int(table, "Level2", record.nLevel2);
    build.Text(table, "Name", record.szName);
    build.Int(table, "Pole", record.nPole);
    build.Name(table, "SenseMethod", test::kSensors, record.emSenseMethod);
    table.AddMember("SensorType", record.nSensorType == 0 ? StringRef("NC") : StringRef("NO"), build.pool);
    if (record.nSlot != -1) build.Int(table, "Slot", record.nSlot);
    Write(*document, out);
}

void WriteMotionDetect(const CFG_MOTION_DETECT_INFO& record, rapidjson::StringBuffer& out) {
    LocalDocument document;
    Builder build{document->GetAllocator()};
    Pool& pool = build.pool;
    Value& table = document->SetObject();
    const bool regions = record.abRegionWindow != 0;
    table.AddMember("DetectVersion", regions ? StringRef("V3.0") : StringRef("V1.0"), pool);
    build.Bool(table, "Enable", record.bEnable);
    table.AddMember("EventHandler", build.Handler(record.stuEventHandler), pool);
    if (regions) {
        Value windows(kArrayType);
        const int count = std::clamp(record.nRegionWindowNum, 0, ORRERY_MOTION_WINDOWS);
        for (int i = 0; i < count; ++i) {
            const CFG_MOTION_REGION_WINDOW& window = record.stuRegionWindow[i];
            Value object(kObjectType);
            build.Int(object, "Id", window.nId);
            build.Text(object, "Name", window.szName);
            Value region(kArrayType);
            for (int row = 0; row < window.nRow; ++row) {
                unsigned bits = 0;
                for (int col = 0; col < window.nCol; ++col)
                    bits |= static_cast<unsigned>(window.byRegion[row][col] == 1) << (window.nCol - 1 - col);
                region.PushBack(bits, pool);
            }
            object.AddMember("Region", region, pool);
            build.Int(object, "Sensitive", window.nSensitive);
            build.Int(object, "Threshold", window.nThreshold);
            if (record.abWindow != 0 && i < record.nWindowNum) {
                const CFG_RECT& rect = record.stuWindow[i].stuWindow;
                object.AddMember("Window", build.Numbers({rect.nLeft, rect.nTop, rect.nRight, rect.nBottom}), pool);
            }
            windows.PushBack(object, pool);
        }
        table.AddMember("MotionDetectWindow", windows, pool);
    }
    if (record.abSubRatio) build.Int(table, "SubRatio", record.nSubRatio);
    if (record.abVolumeRatio) build.Int(table, "VolumeRatio", record.nVolumeRatio);
    Write(*document, out);
}

void WriteSwitch(const CFG_ENABLE_INFO& record, rapidjson::StringBuffer& out) {
    LocalDocument document;
    Builder build{document->GetAllocator()};
    build.Bool(document->SetObject(), "Enable", static_cast<int>(record.bEnable));
    Write(*document, out);
}

bool PackAlarm(const CFG_ALARM_INPUT_INFO& record, char* text, std::size_t capacity) {
    rapidjson::StringBuffer out;
    WriteAlarm(record, out);
    return Deliver(out, text, capacity);
}

bool PackMotionDetect(const CFG_MOTION_DETECT_INFO& record, char* text, std::size_t capacity) {
    rapidjson::StringBuffer out;
    WriteMotionDetect(record, out);
    return Deliver(out, text, capacity);
}

bool PackSwitch(const CFG_ENABLE_INFO& record, char* text, std::size_t capacity) {
    rapidjson::StringBuffer out;
    WriteSwitch(record, out);
    return Deliver(out, text, capacity);
}

} // namespace orrery::bench::byhand
