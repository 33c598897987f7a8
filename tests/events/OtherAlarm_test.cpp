#include "orrery/events_other_alarm.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

using namespace orrery::test;

template <class R, class Member>
Member ValueOf(const char* code, const std::string& data, Member R::*member) {
    Member value{};
    EXPECT_TRUE(DecodeOne(code, data, [&](const Delivered& event) { value = event.as<R>().*member; })) << data;
    return value;
}

TEST(AnalogAlarm, SensorsByTheirPlaceInTheList) {
    const char* const sensors[] = {
        "DoorMagnetism",
        "PassiveInfrared",
        "GasSensor",
        "SmokingSensor",
        "WaterSensor",
        "ActiveInfrared",
        "GlassSensor",
        "EmergencySwitch",
        "ShockSensor",
        "DoubleMethod",
        "ThreeMethod",
        "TempSensor",
        "HumiditySensor",
        "WindSensor",
        "CallButton",
        "GasPressure",
        "GasConcentration",
        "GasFlow",
        "OtherSensor",
        "Oil",
        "MileageSensor",
        "UrgencyButton",
        "Steal",
        "Perimeter",
        "PreventRemove",
        "DoorBell",
        "AlterVolt",
        "DirectVolt",
        "AlterCur",
        "DirectCur",
        "RSUGeneral",
        "RSUDoor",
        "RSUPowerOff",
        "Temp1500",
        "TempDS18B20",
        "Humidity1500",
        "Infrared",
        "FireAlarm",
        "CO2",
        "Sound",
        "PM25",
        "SF6",
        "O3",
        "AmbientLight",
    };
    static_assert(std::size(sensors) == 44);
    const auto sensor = [](const std::string& data) {
        return ValueOf("AnalogAlarm", data, &DEV_EVENT_ANALOGALARM_INFO::emSenseMethod);
    };
    for (std::size_t i = 0; i < std::size(sensors); ++i)
        EXPECT_EQ(sensor("{\"SenseMethod\":\"" + std::string(sensors[i]) + "\"}"), static_cast<int>(i)) << sensors[i];
    EXPECT_EQ(sensor(R"({"SenseMethod":"AMBIENTlight"})"), 43);
    EXPECT_EQ(sensor(R"({"SenseMethod":"Oil "})"), -1);
    EXPECT_EQ(sensor(R"({"SenseMethod":""})"), -1);
    EXPECT_EQ(sensor(R"({"SenseMethod":3})"), -1);
    EXPECT_EQ(sensor(R"({"SenseMethod":null})"), 0);
    EXPECT_EQ(sensor("{}"), 0);
}

TEST(AnalogAlarm, StatusToTheLimits) {
    const char* const statuses[] = {"normal", "invalid", "upper1", "upper2", "upper3",
                                    "upper4", "lower1",  "lower2", "lower3", "lower4"};
    const auto status = [](const std::string& data) {
        return ValueOf("AnalogAlarm", data, &DEV_EVENT_ANALOGALARM_INFO::emStatus);
    };
    for (std::size_t i = 0; i < std::size(statuses); ++i)
        EXPECT_EQ(status("{\"status\":\"" + std::string(statuses[i]) + "\"}"), static_cast<int>(i));
    EXPECT_EQ(status(R"({"status":"LOWER4"})"), 9);
    EXPECT_EQ(status(R"({"status":"upper5"})"), -1);
    EXPECT_EQ(status(R"({"status":null})"), -1);
    EXPECT_EQ(status(R"({"Status":"normal"})"), -1); // keys keep their case
}

// The input stands beside the data, not in it.
TEST(AnalogAlarm, IndexIsTheEventsOwn) {
    int count = 0;
    Decode(
        R"({"Event":[{"Code":"AnalogAlarm","Index":5,"Data":{"Index":9}},{"Code":"AnalogAlarm","Data":{"Index":9}}]})",
        [&](const Delivered& event) {
            EXPECT_EQ(event.as<DEV_EVENT_ANALOGALARM_INFO>().nIndex, count++ == 0 ? 5 : 0);
            EXPECT_EQ(event.as<DEV_EVENT_ANALOGALARM_INFO>().nChannelID, -1);
        });
    EXPECT_EQ(count, 2);
}

TEST(VideoStatic, Modes) {
    const auto mode = [](const std::string& data) {
        return ValueOf("VideoStatic", data, &DEV_EVENT_VIDEOSTATIC_INFO::emMode);
    };
    EXPECT_EQ(mode(R"({"Mode":"Indoor"})"), 1);
    EXPECT_EQ(mode(R"({"Mode":"Outdoor"})"), 2);
    EXPECT_EQ(mode(R"({"Mode":"outDOOR"})"), 2);
    EXPECT_EQ(mode(R"({"Mode":"Roof"})"), 0);
    EXPECT_EQ(mode(R"({"Mode":null})"), 0);
}

TEST(PicInfo, TypeIsTheCodeOfAnEvent) {
    const auto type = [](const std::string& data) { return ValueOf("PicInfo", data, &DEV_EVENT_PICINFO_INFO::nType); };
    EXPECT_EQ(type(R"({"Type":"TrafficOverSpeed"})"), 262);
    EXPECT_EQ(type(R"({"Type":"trafficoverspeed"})"), 0);
    EXPECT_EQ(type(R"({"Type":"Nothing"})"), 0);
    EXPECT_EQ(type("{\"Type\":\"" + std::string(5000, 'T') + "\"}"), 0);
}

TEST(PtzPreset, NameAlwaysEnds) {
    const std::string longName(200, 'n');
    EXPECT_TRUE(DecodeOne("PtzPreset", "{\"Name\":\"" + longName + "\"}", [&](const Delivered& event) {
        EXPECT_STREQ(event.as<DEV_EVENT_PTZPRESET_INFO>().szName, longName.substr(0, 127).c_str());
    }));
    // Elsewhere a name may fill its field.
    EXPECT_TRUE(DecodeOne("MultiSceneSwitch", "{\"Name\":\"" + longName + "\"}", [&](const Delivered& event) {
        EXPECT_EQ(std::memcmp(event.as<DEV_EVENT_MULTISCENESWITCH_INFO>().szName, longName.data(), 128), 0);
    }));
    // What is no text leaves no name.
    EXPECT_TRUE(DecodeOne("PtzPreset", R"({"Name":7})", [](const Delivered& event) {
        EXPECT_STREQ(event.as<DEV_EVENT_PTZPRESET_INFO>().szName, "");
    }));
}

TEST(PtzPreset, PositionNeedsThreeNumbers) {
    EXPECT_TRUE(DecodeOne("PtzPreset", R"({"Position":[1,2]})", [](const Delivered& event) {
        for (const float number : event.as<DEV_EVENT_PTZPRESET_INFO>().fPosition)
            EXPECT_EQ(number, 0.0f);
    }));
    EXPECT_TRUE(DecodeOne("PtzPreset", R"({"Position":[-1.5,2,0.25]})", [](const Delivered& event) {
        EXPECT_EQ(event.as<DEV_EVENT_PTZPRESET_INFO>().fPosition[0], -1.5f);
        EXPECT_EQ(event.as<DEV_EVENT_PTZPRESET_INFO>().fPosition[2], 0.25f);
    }));
}

TEST(LinkSD, SourceIsABlockOfItsOwn) {
    const auto source = [](const char* data, const auto& look) {
        EXPECT_TRUE(DecodeOne("LinkSD", data, [&](const Delivered& event) {
            look(event.as<DEV_EVENT_LINKSD_INFO>().pSrcInfo);
        })) << data;
    };
    source("{}", [](const EVENT_LINK_SOURCE_INFO* info) { EXPECT_EQ(info, nullptr); });
    source(R"({"SrcInfo":null})", [](const EVENT_LINK_SOURCE_INFO* info) { EXPECT_EQ(info, nullptr); });
    for (const char* empty : {R"({"SrcInfo":{}})", R"({"SrcInfo":7})", R"({"SrcInfo":[]})"}) {
        source(empty, [](const EVENT_LINK_SOURCE_INFO* info) {
            ASSERT_NE(info, nullptr);
            const EVENT_LINK_SOURCE_INFO zero{};
            EXPECT_EQ(std::memcmp(info, &zero, sizeof zero), 0);
        });
    }
    source(R"({"SrcInfo":{"SrcEvent":"0123456789012345678901234567890123456789"}})",
           [](const EVENT_LINK_SOURCE_INFO* info) {
               ASSERT_NE(info, nullptr);
               EXPECT_STREQ(info->szSrcEvent, "0123456789012345678901234567890"); // 31 of them
           });
}

// Without memory for the block there is no source, and the rest of the record stands.
TEST(LinkSD, SourceMayLackMemory) {
    bool withoutSource = false;
    bool withSource = false;
    HeapWatch watch;
    // The text in front, which is copied for its escape, shifts the place where a chunk of memory ends, so that it
    // comes to lie before a block.
    for (std::size_t shift = 0; shift < 64; ++shift) {
        std::string text = R"({"Event":[{"Code":"Nothing","Data":{"Note":"\n)" + std::string(8 * shift, 'a') + "\"}},";
        for (int i = 0; i < 100; ++i)
            text += std::string(i ? "," : "") + R"({"Code":"LinkSD","Data":{"SrcInfo":{"SrcChannel":4},"PresetID":9}})";
        text += "]}";
        for (std::size_t n = 1; n <= 4; ++n) {
            watch.FailOnly(n);
            Decode(text, [&](const Delivered& event) {
                if (event.type != 513) return;
                const auto& link = event.as<DEV_EVENT_LINKSD_INFO>();
                EXPECT_EQ(link.nPresetID, 9);
                if (link.pSrcInfo == nullptr) {
                    withoutSource = true;
                } else {
                    withSource = true;
                    EXPECT_EQ(link.pSrcInfo->nSrcChannel, 4);
                }
            });
            watch.FailNone();
        }
    }
    EXPECT_TRUE(withSource);
    EXPECT_TRUE(withoutSource);
}

TEST(PassChange, PictureTypes) {
    const auto type = [](const std::string& data) {
        return ValueOf("PassChange", data, &DEV_EVENT_PASSCHANGE_INFO::emPictureType);
    };
    EXPECT_EQ(type(R"({"PictureType":""})"), 0);
    EXPECT_EQ(type(R"({"PictureType":"Pass"})"), 1);
    EXPECT_EQ(type(R"({"PictureType":"Real"})"), 2);
    EXPECT_EQ(type(R"({"PictureType":"REAL"})"), 2);
    EXPECT_EQ(type(R"({"PictureType":"Fake"})"), 0);
}

} // namespace
