// Texts of events where the local encoding is not UTF-8, and where a field ends in the middle of a character.
#include "orrery/events_common.h"
#include "orrery/events_intelligent_region.h"
#include "orrery/events_traffic_driving.h"
#include "orrery/events_traffic_flow.h"
#include "orrery/events_traffic_junction.h"
#include "orrery/events_traffic_parking.h"
#include "orrery/events_vehicle.h"
#include "support/Locales.h"
#include "support/Notification.h"

#include <optional>

namespace orrery::test {
namespace {

// One character: three bytes in UTF-8, two in GBK.
constexpr std::string_view kUtf8 = "\xE4\xB8\xAD";
constexpr std::string_view kGbk = "\xD6\xD0";

std::string Times(std::size_t count, std::string_view text) {
    std::string all;
    for (; count > 0; --count)
        all += text;
    return all;
}
std::string Characters(std::size_t count) {
    return Times(count, kUtf8);
}
std::string Key(std::string_view key, std::string_view text) {
    return '"' + std::string(key) + "\":\"" + std::string(text) + '"';
}

// The field holds exactly these bytes, and zeros to its end.
template <std::size_t N>
testing::AssertionResult Holds(const char (&field)[N], std::string expected) {
    if (expected.size() > N) return testing::AssertionFailure() << "the test expects more than the field can hold";
    expected.resize(N, '\0');
    const std::string is(field, N);
    return is == expected ? testing::AssertionSuccess()
                          : testing::AssertionFailure() << testing::PrintToString(is.c_str()) << " instead of "
                                                        << testing::PrintToString(expected.c_str());
}

class EventLocale : public CompiledLocales {
  protected:
    void SetUp() override {
        CompiledLocales::SetUp();
        Compile("GBK", "zh_CN.GBK");
        if (HasFatalFailure()) return;
        locale_.emplace("zh_CN.GBK");
        ASSERT_TRUE(locale_->isThere());
    }
    void TearDown() override {
        locale_.reset();
        CompiledLocales::TearDown();
    }

    static bool Car(const std::string& keys, const std::function<void(const EVENT_TRAFFIC_CAR_INFO&)>& look) {
        return DecodeOne("TrafficJam", "{\"TrafficCar\":{" + keys + "}}",
                         [&](const Delivered& event) { look(event.as<DEV_EVENT_TRAFFICJAM_INFO>().stuTrafficCar); });
    }
    static bool Object(const std::string& keys, const std::function<void(const EVENT_OBJECT_INFO&)>& look) {
        return DecodeOne("StayDetection", "{\"Object\":{" + keys + "}}",
                         [&](const Delivered& event) { look(event.as<DEV_EVENT_STAYDETECTION_INFO>().stuObject); });
    }

  private:
    std::optional<ProcessLocale> locale_;
};

TEST_F(EventLocale, TextsOfACarAreCutBeforeTheyAreConverted) {
    const std::string keys =
        // 32 bytes are ten characters and two bytes of the eleventh, which is no character any more.
        Key("PlateNumber", Characters(11))
        + ','
        // 29 and 3: the last byte of the field is the last of a character, and the converted text is shorter.
        + Key("PlateColor", std::string(29, 'c') + Characters(2))
        + ','
        // 31 and 1: text to the last byte.
        + Key("VehicleColor", std::string(31, 'v') + Characters(1)) + ',' + Key("ViolationDesc", Characters(30))
        + ','                                                   // 21 and one byte
        + Key("ChannelName", "n\xC3\xA9\xF0\x9F\x98\x80") + ',' // 1 character that GBK has, 1 that it lacks
        + Key("MachineName", Characters(100)) + ','             // 85 and one byte
        + Key("MachineGroup", Characters(85)) + ','             // 255 bytes
        + Key("RoadwayNo", "a" + Characters(21)) + ','          // 64 bytes
        + Key("ViolationName", "ab" + Characters(21)) + ','     // 65 bytes: one too many
        + Key("CustomRoadwayDirection", Characters(10));        // fits
    EXPECT_TRUE(Car(keys, [](const EVENT_TRAFFIC_CAR_INFO& car) {
        EXPECT_TRUE(Holds(car.szPlateNumber, Times(10, kGbk) + "?"));
        EXPECT_TRUE(Holds(car.szPlateColor, std::string(29, 'c') + std::string(kGbk)));
        EXPECT_TRUE(Holds(car.szVehicleColor, std::string(31, 'v') + "?"));
        EXPECT_TRUE(Holds(car.szViolationDesc, Times(21, kGbk) + "?"));
        EXPECT_TRUE(Holds(car.szChannelName, "n\xA8\xA6?"));
        EXPECT_TRUE(Holds(car.szMachineName, Times(85, kGbk) + "?"));
        EXPECT_TRUE(Holds(car.szMachineGroup, Times(85, kGbk)));
        EXPECT_TRUE(Holds(car.szRoadwayNo, "a" + Times(21, kGbk)));
        EXPECT_TRUE(Holds(car.szViolationName, "ab" + Times(20, kGbk) + "?"));
        EXPECT_TRUE(Holds(car.szCustomRoadwayDirection, Times(10, kGbk)));
        EXPECT_EQ(car.nSpeed, 0);
        EXPECT_EQ(car.nSnapshotMode, 0);
    }));
}

TEST_F(EventLocale, OrdinaryTextsOfACarAreCutAfterwards) {
    const std::string keys = Key("VehicleSign", Characters(20)) + ','    // 31 bytes: 15 characters and a half
                             + Key("CustomParkNo", Characters(20)) + ',' // 32 bytes
                             + Key("DefendCode", "d" + Characters(40));  // 63 bytes: 1 and 31 characters
    EXPECT_TRUE(Car(keys, [](const EVENT_TRAFFIC_CAR_INFO& car) {
        EXPECT_TRUE(Holds(car.szVehicleSign, Times(15, kGbk) + "\xD6"));
        EXPECT_TRUE(Holds(car.szCustomParkNo, Times(16, kGbk)));
        EXPECT_TRUE(Holds(car.szDefendCode, "d" + Times(31, kGbk)));
    }));
}

TEST_F(EventLocale, RawTextsOfACarStayUtf8) {
    const std::string keys = Key("PlateType", Characters(11)) + ',' // 31 bytes: ten characters and one byte
                             + Key("Event", Characters(22)) + ','   // 63 bytes: 21 characters
                             + Key("ViolationCode", Characters(1)) + ',' + "\"DrivingDirection\":[\"" + Characters(90)
                             + "\",\"" + Characters(90) + "\",\"" + Characters(2) + "\"]";
    EXPECT_TRUE(Car(keys, [](const EVENT_TRAFFIC_CAR_INFO& car) {
        EXPECT_TRUE(Holds(car.szPlateType, Characters(10) + "\xE4"));
        EXPECT_TRUE(Holds(car.szEvent, Characters(21)));
        EXPECT_TRUE(Holds(car.szViolationCode, Characters(1)));
        // The heading stands as it was sent, 255 bytes of it; of its ends 256 bytes are converted.
        EXPECT_TRUE(Holds(car.szDrivingDirection[0], Characters(85)));
        EXPECT_TRUE(Holds(car.szDrivingDirection[1], Times(85, kGbk) + "?"));
        EXPECT_TRUE(Holds(car.szDrivingDirection[2], Times(2, kGbk)));
    }));
}

TEST_F(EventLocale, TextsOfAnyLengthAreConvertedWhole) {
    const std::string keys = Key("DeviceAddress", Characters(1000)) + ',' + Key("MachineAddress", "m") + ','
                             + Key("DetailedAddress", "\xE4\xB8");
    EXPECT_TRUE(Car(keys, [](const EVENT_TRAFFIC_CAR_INFO& car) {
        EXPECT_EQ(car.pszDeviceAddress, Times(1000, kGbk));
        EXPECT_STREQ(car.pszMachineAddress, "m");
        EXPECT_STREQ(car.pszDetailedAddress, "?"); // begins a character and ends
    }));
    EXPECT_TRUE(Object("\"Image\":{" + Key("FilePath", "/" + Characters(3)) + '}',
                       [](const EVENT_OBJECT_INFO& object) { EXPECT_EQ(object.pszFilePath, "/" + Times(3, kGbk)); }));
}

TEST_F(EventLocale, TextsOfAnObjectAreCutBeforeTheyAreConverted) {
    const std::string keys = Key("ObjectType", Characters(50)) + ','                 // 42 characters and two bytes
                             + Key("Text", "ab" + Characters(50)) + ','              // 2 and 42 characters: 128 bytes
                             + Key("Category", Characters(30)) + ','                 // 21 characters and one byte
                             + Key("SubText", std::string(19, 's') + Characters(1)); // 19 and one byte
    EXPECT_TRUE(Object(keys, [](const EVENT_OBJECT_INFO& object) {
        EXPECT_TRUE(Holds(object.szObjectType, Times(42, kGbk) + "?"));
        EXPECT_TRUE(Holds(object.szText, "ab" + Times(42, kGbk)));
        EXPECT_TRUE(Holds(object.szObjectSubType, Times(21, kGbk) + "?"));
        EXPECT_TRUE(Holds(object.szSubText, std::string(19, 's') + "?"));
        EXPECT_EQ(object.nConfidence, 0);
        EXPECT_EQ(object.wBrandYear, 0);
    }));
}

TEST_F(EventLocale, NameOfARuleIsCutBeforeAndItsSourceAfterwards) {
    const std::string data =
        '{' + Key("Name", Characters(50)) + ",\"SourceIndex\":1," + Key("SourceDevice", Characters(150)) + '}';
    EXPECT_TRUE(DecodeOne("StayDetection", data, [](const Delivered& event) {
        const auto& stay = event.as<DEV_EVENT_STAYDETECTION_INFO>();
        EXPECT_TRUE(Holds(stay.szName, Times(42, kGbk) + "?"));
        EXPECT_TRUE(Holds(stay.szSourceDevice, Times(129, kGbk) + "\xD6")); // 259 bytes
    }));
    EXPECT_TRUE(DecodeOne("TrafficParking", '{' + Key("AlarmRecordPath", "/" + Characters(150)) + '}',
                          [](const Delivered& event) {
                              const auto& parking = event.as<DEV_EVENT_TRAFFICPARKING_INFO>();
                              EXPECT_TRUE(Holds(parking.szAlarmRecordPath, "/" + Times(127, kGbk))); // 255 bytes
                          }));
}

TEST_F(EventLocale, CarGivesItsObjectTheConvertedPlateAndTheRawType) {
    const std::string data = "{\"TrafficCar\":{" + Key("PlateNumber", Characters(11)) + ','
                             + Key("PlateType", Characters(30)) + ',' + Key("PlateColor", "Blue") + "}}";
    EXPECT_TRUE(DecodeOne("TrafficOverLine", data, [](const Delivered& event) {
        const auto& object = event.as<DEV_EVENT_TRAFFICOVERLINE_INFO>().stuObject;
        EXPECT_TRUE(Holds(object.szText, Times(10, kGbk) + "?"));
        EXPECT_TRUE(Holds(object.szObjectSubType, Characters(20) + "\xE4")); // 61 bytes
        EXPECT_EQ(object.rgbaMainColor, 0x0000FF00u);
    }));
}

TEST_F(EventLocale, TextsOfWhatTravelsAlong) {
    const std::string data =
        "{\"CommInfo\":{" + Key("Country", Characters(3)) + ",\"RFIDEleTagInfo\":{" + Key("CardID", "c" + Characters(2))
        + ',' + Key("PlateSN", Characters(4)) + "}," + "\"Drivers\":[{" + Key("SubText", Characters(7)) + ",\"Image\":{"
        + Key("FilePath", Characters(9)) + "}}]},\"Extension\":{" + Key("EventLongID", Characters(5)) + "}}";
    EXPECT_TRUE(DecodeOne("TrafficJam", data, [](const Delivered& event) {
        const auto& jam = event.as<DEV_EVENT_TRAFFICJAM_INFO>();
        EXPECT_TRUE(Holds(jam.stuCommInfo.szCountry, Times(3, kGbk)));
        EXPECT_TRUE(Holds(jam.stuCommInfo.stuRFIDTag.szCardID, "c" + Times(2, kGbk)));
        EXPECT_TRUE(Holds(jam.stuCommInfo.stuRFIDTag.szPlateSN, Times(4, kGbk)));
        EXPECT_TRUE(Holds(jam.szEventLongID, Times(5, kGbk)));
        ASSERT_EQ(jam.stuCommInfo.nDriversNum, 1);
        // 20 bytes: six characters and two bytes of the seventh
        EXPECT_TRUE(Holds(jam.stuCommInfo.pDrivers[0].szSubText, Times(6, kGbk) + "?"));
        EXPECT_EQ(jam.stuCommInfo.pDrivers[0].pszFilePath, Times(9, kGbk));
    }));
}

TEST_F(EventLocale, PathsOfANotification) {
    const std::string info = Key("FilePath", Characters(140)) + ',' + Key("FTPPath", "f" + Characters(140)) + ','
                             + Key("VideoPath", Characters(2)) + ',' + Key("RecordFile", Characters(70));
    const EventVisitor visit = [](const Delivered& event) {
        const auto& junction = event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>();
        EXPECT_EQ(junction.stuCommInfo.pszFilePath, Times(127, kGbk) + "\xD6"); // 255 bytes
        EXPECT_EQ(junction.stuCommInfo.pszFTPPath, "f" + Times(127, kGbk));
        EXPECT_EQ(junction.stuCommInfo.pszVideoPath, Times(2, kGbk));
        EXPECT_TRUE(Holds(junction.szRecordFile, Times(63, kGbk) + "\xD6")); // 127 bytes
    };
    EXPECT_EQ(DecodeNotification(info, R"({"Code":"TrafficJunction","Data":{}})", visit), 1);
}

// Where the local encoding is UTF-8, or the program never asked for one, bytes stay what they are.
TEST(EventTexts, ACutGoesThroughACharacter) {
    const std::string data = '{' + Key("Name", Characters(50)) + ",\"TrafficCar\":{"
                             + Key("PlateNumber", Characters(11)) + ',' + Key("VehicleSign", Characters(11)) + "}}";
    for (const char* const name : {"C", "C.UTF-8"}) {
        const ProcessLocale locale(name);
        ASSERT_TRUE(locale.isThere());
        EXPECT_TRUE(DecodeOne("TrafficJam", data, [](const Delivered& event) {
            const auto& jam = event.as<DEV_EVENT_TRAFFICJAM_INFO>();
            EXPECT_TRUE(Holds(jam.szName, Characters(42) + "\xE4\xB8"));
            EXPECT_TRUE(Holds(jam.stuTrafficCar.szPlateNumber, Characters(10) + "\xE4\xB8"));
            EXPECT_TRUE(Holds(jam.stuTrafficCar.szVehicleSign, Characters(10) + "\xE4"));
        }));
    }
}

} // namespace
} // namespace orrery::test
