#include "bench/Texts.h"

#include <array>
#include <cstdio>

namespace orrery::bench {

void TextBuilder::NewLine() {
    if (isFlat()) {
        if (layout_ != Layout::Compact) text_ += ' ';
        return;
    }
    text_ += '\n';
    text_.append(static_cast<std::size_t>(depth_) * 3, ' ');
}

void TextBuilder::Separate() {
    if (afterKey_) {
        afterKey_ = false;
        return;
    }
    if (depth_ == 0) return;
    if (!first_) text_ += ',';
    NewLine();
    first_ = false;
}

TextBuilder& TextBuilder::Key(std::string_view key) {
    Separate();
    text_ += '"';
    text_ += key;
    text_ += layout_ == Layout::Compact ? "\":" : "\" : ";
    afterKey_ = true;
    return *this;
}

TextBuilder& TextBuilder::Text(std::string_view text) {
    Separate();
    text_ += '"';
    for (const char c : text) {
        if (c == '"' || c == '\\' || c == '/') text_ += '\\';
        text_ += c;
    }
    text_ += '"';
    return *this;
}

TextBuilder& TextBuilder::Number(std::int64_t number) {
    return Raw(std::to_string(number));
}

TextBuilder& TextBuilder::Raw(std::string_view token) {
    Separate();
    text_ += token;
    return *this;
}

TextBuilder& TextBuilder::Open(char bracket, bool flat) {
    Separate();
    text_ += bracket;
    ++depth_;
    if (flat || flatDepth_ > 0) ++flatDepth_;
    first_ = true;
    return *this;
}

TextBuilder& TextBuilder::Close(char bracket) {
    --depth_;
    if (!first_) NewLine();
    if (flatDepth_ > 0) --flatDepth_;
    text_ += bracket;
    first_ = false;
    return *this;
}

namespace {

constexpr std::array kPlaces = {"Loading bay", "Gate 3",   "Entrance hall", "Car park B2",       "Roof",
                                "仓库东门",    "Platform", "Office/Lab",    "Main road, camera", "Cash desk 7"};
constexpr std::array kKinds = {"door", "window", "sensor", "contact", "beam", "camera", "panic button"};
constexpr std::array kSenses = {"DoorMagnetism", "PassiveInfrared", "GasSensor",  "SmokingSensor", "GlassSensor",
                                "ShockSensor",   "CallButton",      "TempSensor", "WaterSensor",   "FireAlarm"};
constexpr std::array kAreas = {"Intime", "Delay", "Fullday", "Follow", "Panic", "Fire", "Entrance1"};
constexpr std::array kControls = {"Normal", "EnableAlways", "DisableOnce", "DisableAlways"};
constexpr std::array kLinks = {"None", "Preset", "Tour", "Pattern"};
constexpr std::array kSplits = {"Split1", "Split4", "Split8", "Split9", "Split16", "PIP1"};
constexpr std::array kVideoCodecs = {"H.264", "H.265", "MJPG", "MPEG4"};
constexpr std::array kAudioCodecs = {"G.711A", "G.711Mu", "AAC", "PCM"};
constexpr std::array kRateControls = {"CBR", "VBR"};
constexpr std::array kPacks = {"QVAV", "PS"};
constexpr std::array kProfiles = {"Baseline", "Main", "High"};
constexpr std::array kRates = {"25.0", "30.0", "12.50", "15", "0.250"};
constexpr std::array kDoors = {"Auto", "Open", "Close", "OpenAlways", "CloseAlways"};

template <class Choices>
std::string_view Pick(Dice& dice, const Choices& choices) {
    return choices[static_cast<std::size_t>(dice.Below(static_cast<int>(choices.size())))];
}

std::string NameOf(Dice& dice) {
    std::string name(Pick(dice, kPlaces));
    name += ' ';
    name += Pick(dice, kKinds);
    return name;
}

Layout LayoutOf(Dice& dice) {
    const int roll = dice.Below(8);
    return roll < 5 ? Layout::Device : roll < 7 ? Layout::Compact : Layout::Indented;
}

void Channels(TextBuilder& text, Dice& dice, std::string_view key, int most) {
    text.Key(key).Open('[', true);
    int channel = dice.Below(4);
    for (int i = dice.Between(1, most); i > 0; --i, channel += dice.Between(1, 5))
        text.Number(channel);
    text.Close(']');
}

void Numbers(TextBuilder& text, std::string_view key, std::initializer_list<int> numbers) {
    text.Key(key).Open('[', true);
    for (const int number : numbers)
        text.Number(number);
    text.Close(']');
}

void Schedule(TextBuilder& text, Dice& dice) {
    text.Key("TimeSection").Open('[');
    const int days = dice.Chance(30) ? 8 : 7;
    for (int day = 0; day < days; ++day) {
        text.Open('[', true);
        const int used = dice.Between(1, 3);
        for (int section = 0; section < 6; ++section) {
            char cell[32] = "0 00:00:00-24:00:00";
            if (section < used) {
                const int begin = section * 7 + dice.Below(3), end = begin + dice.Between(1, 4);
                std::snprintf(cell, sizeof cell, "1 %02d:%02d:00-%02d:%02d:%02d", begin, dice.Below(60), end,
                              dice.Below(60), dice.Below(60));
            }
            text.Text(cell);
        }
        text.Close(']');
    }
    text.Close(']');
}

void Title(TextBuilder& text, Dice& dice) {
    text.Open('{');
    Numbers(text, "BackColor", {dice.Below(256), dice.Below(256), dice.Below(256), 128});
    Numbers(text, "FrontColor", {255, dice.Below(256), 255, 0});
    Numbers(text, "Point", {dice.Below(8192), dice.Below(8192)});
    Numbers(text, "Size", {dice.Below(8192), dice.Below(8192)});
    text.Key("Text").Text(NameOf(dice));
    text.Close('}');
}

void Tour(TextBuilder& text, Dice& dice, int channels) {
    text.Open('{');
    text.Key("Channels").Open('[', true);
    for (int i = 0; i < channels; ++i)
        text.Number(dice.Below(512));
    text.Close(']');
    text.Key("Enable").Bool(dice.Chance(50));
    text.Key("Split").Text(Pick(dice, kSplits));
    text.Close('}');
}

// How far the lists of a linkage are filled.
struct Lists {
    int links = 2;
    int titles = 1;
    int tours = 1;
    int tourChannels = 4;
};

void EventHandler(TextBuilder& text, Dice& dice, const Lists& lists) {
    const auto flag = [&](std::string_view key) { text.Key(key).Bool(dice.Chance(50)); };
    const auto number = [&](std::string_view key, int most) { text.Key(key).Number(dice.Below(most + 1)); };
    text.Key("EventHandler").Open('{');
    flag("AccessControlEnable");
    text.Key("AccessControls").Open('[', true);
    for (int door = dice.Between(1, 2); door > 0; --door)
        text.Open('{').Key("Operation").Text(Pick(dice, kDoors)).Close('}');
    text.Close(']');
    flag("AlarmBellEnable");
    number("AlarmBellLatch", 300);
    Channels(text, dice, "AlarmOutChannels", 4);
    flag("AlarmOutEnable");
    number("AlarmOutLatch", 300);
    flag("BeepEnable");
    text.Key("DB").Open('[', true);
    for (int i = dice.Between(1, 3); i > 0; --i)
        text.Text(NameOf(dice));
    text.Close(']');
    number("Dejitter", 30);
    number("Delay", 300);
    Channels(text, dice, "ExAlarmOutChannels", 3);
    flag("ExAlarmOutEnable");
    flag("FlashEnable");
    number("FlashLatch", 20);
    text.Key("JpegSummary").Text("summary of " + NameOf(dice));
    flag("LogEnable");
    flag("MMSEnable");
    text.Key("MailDetail").Open('{');
    text.Key("AttachmentType").Text(dice.Chance(50) ? "picture" : "video");
    number("MaxSize", 8192);
    number("MaxTimeLength", 60);
    text.Close('}');
    flag("MailEnable");
    Channels(text, dice, "MatrixChannels", 3);
    flag("MatrixEnable");
    flag("MessageEnable");
    flag("MessageToNetEnable");
    text.Key("MonitorTour").Open('[');
    for (int i = 0; i < lists.tours; ++i)
        Tour(text, dice, lists.tourChannels);
    text.Close(']');
    text.Key("PSTNAlarmServer").Open('{');
    Channels(text, dice, "Destination", 4);
    flag("NeedReport");
    text.Close('}');
    text.Key("PtzLink").Open('[');
    for (int i = 0; i < lists.links; ++i) {
        text.Open('[', true).Text(Pick(dice, kLinks)).Number(dice.Below(256));
        text.Number(dice.Below(4)).Number(0).Number(dice.Below(2)).Close(']');
    }
    text.Close(']');
    flag("PtzLinkEnable");
    Channels(text, dice, "RecordChannels", 8);
    flag("RecordEnable");
    number("RecordLatch", 300);
    number("SDK_AlarmOutChannel", 64);
    number("SDK_RecordChannel", 256);
    Channels(text, dice, "SnapshotChannels", 8);
    flag("SnapshotEnable");
    number("SnapshotPeriod", 10);
    number("SnapshotTimes", 5);
    text.Key("SnapshotTitle").Open('[');
    for (int i = 0; i < lists.titles; ++i)
        Title(text, dice);
    text.Close(']');
    flag("SnapshotTitleEnable");
    text.Key("Talkback").Open('{').Key("CallEnable").Bool(dice.Chance(50)).Key("CallProtocol").Text("Cellular");
    text.Key("Caller").Text("Device").Close('}');
    Schedule(text, dice);
    flag("TipEnable");
    Channels(text, dice, "TourChannels", 4);
    flag("TourEnable");
    text.Key("TourSplit").Text(dice.Chance(50) ? "Split1" : "Split8");
    text.Key("VideoTitle").Open('[');
    for (int i = 0; i < lists.titles; ++i)
        Title(text, dice);
    text.Close(']');
    flag("VideoTitleEnable");
    text.Key("Voice").Open('{').Key("AudioFileName").Text("/usr/data/" + NameOf(dice) + ".wav").Close('}');
    flag("VoiceEnable");
    text.Close('}');
}

void AlarmTable(TextBuilder& text, Dice& dice, const Lists& lists) {
    text.Open('{');
    text.Key("DefenceAreaType").Text(Pick(dice, kAreas));
    text.Key("DisableDelay").Number(dice.Below(300));
    text.Key("Enable").Bool(dice.Chance(50));
    text.Key("EnableControl").Text(Pick(dice, kControls));
    text.Key("EnableDelay").Number(dice.Below(300));
    EventHandler(text, dice, lists);
    text.Key("ID").Text("ID-" + std::to_string(dice.Below(100000)));
    text.Key("Level1").Number(dice.Below(256));
    text.Key("Level2").Number(dice.Below(256));
    text.Key("Name").Text(NameOf(dice));
    text.Key("Pole").Number(dice.Below(2));
    text.Key("SenseMethod").Text(Pick(dice, kSenses));
    text.Key("SensorType").Text(dice.Chance(50) ? "NC" : "NO");
    text.Key("Slot").Number(dice.Below(16));
    text.Close('}');
}

// Around every reply: { "id" : 17, "params" : { ... }, "result" : true, "session" : 1842513 }.
template <class Content>
std::string Reply(Layout layout, Dice& dice, Content content) {
    TextBuilder text(layout);
    text.Open('{').Key("id").Number(dice.Below(1000)).Key("params").Open('{');
    content(text);
    text.Close('}').Key("result").Bool(true).Key("session").Number(dice.Between(1000000, 99999999)).Close('}');
    return text.Take();
}

// Every key of a stream's format; pictures have no sound.
void Format(TextBuilder& text, Dice& dice, bool pictures) {
    text.Open('{');
    if (!pictures) {
        text.Key("Audio").Open('{').Key("Compression").Text(Pick(dice, kAudioCodecs)).Key("Depth").Number(16);
        text.Key("Frequency").Number(dice.Chance(50) ? 8000 : 44100).Key("Mode").Number(dice.Below(8));
        text.Key("Pack").Text(Pick(dice, kPacks)).Key("PacketPeriod").Number(dice.Between(10, 40)).Close('}');
    }
    text.Key("AudioEnable").Bool(dice.Chance(50)).Key("SnapEnable").Bool(pictures);
    text.Key("Video").Open('{').Key("BitRate").Number(dice.Between(64, 8192));
    text.Key("BitRateControl").Text(Pick(dice, kRateControls)).Key("Compression").Text(Pick(dice, kVideoCodecs));
    text.Key("FPS").Raw(Pick(dice, kRates)).Key("GOP").Number(dice.Between(1, 150));
    text.Key("Height").Number(dice.Between(144, 2160)).Key("Pack").Text(Pick(dice, kPacks));
    text.Key("Profile").Text(Pick(dice, kProfiles)).Key("Quality").Number(dice.Between(1, 6));
    text.Key("Width").Number(dice.Between(176, 3840)).Close('}');
    text.Key("VideoEnable").Bool(dice.Chance(90)).Close('}');
}

void Formats(TextBuilder& text, Dice& dice, std::string_view key, int count, bool pictures) {
    text.Key(key).Open('[');
    for (int i = 0; i < count; ++i)
        Format(text, dice, pictures);
    text.Close(']');
}

// A channel of some configuration that no command here knows: a bit of everything.
void SomeChannel(TextBuilder& text, Dice& dice) {
    text.Open('{');
    text.Key("Address").Text("192.168." + std::to_string(dice.Below(256)) + "." + std::to_string(dice.Below(256)));
    text.Key("BitRate").Number(dice.Between(64, 8192));
    text.Key("Enable").Bool(dice.Chance(50));
    text.Key("Gain").Raw(std::to_string(dice.Below(100)) + "." + std::to_string(dice.Between(1, 99)));
    text.Key("Name").Text(NameOf(dice));
    if (dice.Chance(50)) {
        text.Key("Region").Open('[');
        for (int i = dice.Between(3, 8); i > 0; --i)
            text.Open('[', true).Number(dice.Below(8192)).Number(dice.Below(8192)).Close(']');
        text.Close(']');
    }
    if (dice.Chance(20)) text.Key("Reserved").Raw("null");
    text.Key("StartTime").Text("2026-11-20 09:30:" + std::to_string(dice.Between(10, 59)));
    text.Close('}');
}

std::string TextOfSize(std::size_t size, Dice& dice) {
    const Layout layout = LayoutOf(dice);
    if (size < 1000) {
        return Reply(layout, dice, [&](TextBuilder& text) {
            text.Key("table").Open('{').Key("Enable").Bool(dice.Chance(50));
            text.Key("Level").Number(dice.Below(7)).Key("Name").Text(NameOf(dice));
            if (layout == Layout::Compact) Numbers(text, "Point", {dice.Below(8192), dice.Below(8192)});
            text.Key("Type").Text(Pick(dice, kSenses));
            text.Close('}');
        });
    }
    return Reply(layout, dice, [&](TextBuilder& text) {
        text.Key("table").Open('[');
        do {
            // Alarms weigh 3 KB, so short texts have none.
            if (size > 20000 && dice.Chance(10))
                AlarmTable(text, dice, {});
            else
                SomeChannel(text, dice);
        } while (text.size() + 150 < size);
        text.Close(']');
    });
}

template <class Make>
Texts Variants(int count, std::uint64_t seed, Make make) {
    Texts texts;
    for (int i = 0; i < count; ++i) {
        Dice dice(seed + static_cast<std::uint64_t>(i));
        texts.push_back(make(dice));
    }
    return texts;
}

} // namespace

Texts TextsOfSize(std::size_t size, int variants) {
    return Variants(variants, size * 1000, [=](Dice& dice) { return TextOfSize(size, dice); });
}

Texts AlarmReplies(int variants) {
    return Variants(variants, 1, [](Dice& dice) {
        const Layout layout = dice.Chance(75) ? Layout::Device : Layout::Compact;
        return Reply(layout, dice, [&](TextBuilder& text) {
            text.Key("channel").Number(dice.Below(32)).Key("table");
            AlarmTable(text, dice, {});
        });
    });
}

Texts LongAlarmReplies(std::size_t size, int variants) {
    return Variants(variants, 2 * size, [=](Dice& dice) {
        return Reply(Layout::Device, dice, [&](TextBuilder& text) {
            Lists lists;
            // Bytes of the lists' entries, roughly; what the text has besides them is 3.5 KB.
            const auto left = static_cast<int>(size) - 3500;
            lists.titles = std::min(255, 1 + std::max(0, left) / 800);
            lists.links = std::min(255, 2 + std::max(0, left) / 400);
            const int channels = std::max(0, left - lists.titles * 2 * 160 - lists.links * 30) / 5;
            lists.tours = std::min(255, 1 + channels / 60);
            lists.tourChannels = std::min(255, 4 + channels / lists.tours);
            text.Key("channel").Number(dice.Below(32)).Key("table");
            AlarmTable(text, dice, lists);
        });
    });
}

Texts MotionDetectReplies(int variants) {
    return Variants(variants, 3, [](Dice& dice) {
        const Layout layout = dice.Chance(75) ? Layout::Device : Layout::Compact;
        return Reply(layout, dice, [&](TextBuilder& text) {
            text.Key("table").Open('{').Key("DetectVersion").Text("V3.0");
            text.Key("Enable").Bool(dice.Chance(50));
            EventHandler(text, dice, {});
            text.Key("Level").Number(dice.Between(1, 6));
            text.Key("MotionDetectWindow").Open('[');
            const int windows = dice.Between(2, 4);
            for (int i = 0; i < windows; ++i) {
                text.Open('{').Key("Id").Number(i).Key("Name").Text("Region" + std::to_string(i));
                text.Key("Region").Open('[', true);
                for (int row = 0; row < 18; ++row)
                    text.Number(dice.Below(1 << 22));
                text.Close(']');
                text.Key("Sensitive").Number(dice.Below(101)).Key("Threshold").Number(dice.Below(101));
                Numbers(text, "Window", {dice.Below(8192), dice.Below(8192), dice.Below(8192), dice.Below(8192)});
                text.Close('}');
            }
            text.Close(']');
            text.Key("SubRatio").Number(dice.Below(101)).Key("VolumeRatio").Number(dice.Below(101));
            text.Close('}');
        });
    });
}

Texts SwitchReplies(int variants) {
    return Variants(variants, 4, [](Dice& dice) {
        return Reply(dice.Chance(75) ? Layout::Device : Layout::Compact, dice, [&](TextBuilder& text) {
            text.Key("table").Open('{').Key("Enable").Bool(dice.Chance(50)).Close('}');
        });
    });
}

Texts AlarmCapsReplies(int variants) {
    return Variants(variants, 5, [](Dice& dice) {
        return Reply(dice.Chance(75) ? Layout::Device : Layout::Compact, dice, [&](TextBuilder& text) {
            text.Key("caps").Open('{').Key("AlarmBellCount").Number(dice.Below(4));
            text.Key("AlarmPir").Bool(dice.Chance(50));
            text.Key("DefenceAreaTypes").Open('[', true);
            for (int i = dice.Between(3, 7); i > 0; --i)
                text.Text(Pick(dice, kAreas));
            text.Close(']');
            text.Key("Flash").Bool(dice.Chance(50)).Key("MaxBackupAlarmServer").Number(dice.Below(4));
            text.Key("MaxDelay").Number(dice.Below(600)).Key("MaxPSTNAlarmServer").Number(dice.Below(4));
            text.Key("SupportSenseMethod").Open('[', true);
            for (int i = dice.Between(5, 16); i > 0; --i)
                text.Text(Pick(dice, kSenses));
            text.Close(']').Close('}');
        });
    });
}

Texts EncodeReplies(int variants) {
    return Variants(variants, 6, [](Dice& dice) {
        TextBuilder text(dice.Chance(75) ? Layout::Device : Layout::Compact);
        text.Open('{').Key("channel").Number(-1).Key("id").Number(dice.Below(1000));
        text.Key("params").Open('{').Key("table").Open('[');
        for (int channel = 0; channel < 16; ++channel) {
            text.Open('{');
            Formats(text, dice, "ExtraFormat", 3, false);
            Formats(text, dice, "MainFormat", 3, false);
            Formats(text, dice, "SnapFormat", 3, true);
            text.Close('}');
        }
        text.Close(']').Close('}').Key("result").Bool(true).Key("session").Number(dice.Below(99999999)).Close('}');
        return text.Take();
    });
}

} // namespace orrery::bench
