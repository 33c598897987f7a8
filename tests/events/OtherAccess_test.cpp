#include "orrery/events_other_access.h"
#include "support/Events.h"

#include <gtest/gtest.h>

namespace {

using namespace orrery::test;

// One number of the one event of a text.
template <class R>
std::int64_t NumberOf(const char* code, const std::string& data, const std::function<std::int64_t(const R&)>& look) {
    std::int64_t number = INT64_MIN;
    EXPECT_TRUE(DecodeOne(code, data, [&](const Delivered& event) { number = look(event.as<R>()); })) << data;
    return number;
}

std::int64_t Access(const std::string& data, std::int32_t DEV_EVENT_ACCESSCONTROL_INFO::*member) {
    return NumberOf<DEV_EVENT_ACCESSCONTROL_INFO>("AccessControl", data,
                                                  [&](const auto& access) { return access.*member; });
}

TEST(AccessControl, MethodsAreNumberedAnew) {
    const auto method = [](std::int64_t number) {
        return Access("{\"Method\":" + std::to_string(number) + "}", &DEV_EVENT_ACCESSCONTROL_INFO::emOpenMethod);
    };
    const std::pair<int, int> known[] = {{0, 1},   {1, 2},   {2, 3},   {3, 4},  {4, 5},  {5, 6},
                                         {6, 7},   {7, 8},   {8, 10},  {9, 11}, {10, 0}, {11, 8},
                                         {12, 13}, {13, 14}, {14, 15}, {15, 8}, {16, 0}};
    for (const auto& [device, client] : known)
        EXPECT_EQ(method(device), client) << device;
    EXPECT_EQ(method(17), 18);
    EXPECT_EQ(method(41), 42);
    EXPECT_EQ(method(2147483646), 2147483647);
    EXPECT_EQ(method(-1), 0);
    EXPECT_EQ(method(-2147483648LL), 0);
    EXPECT_EQ(Access("{}", &DEV_EVENT_ACCESSCONTROL_INFO::emOpenMethod), 0);
}

TEST(AccessControl, CardTypesAboveSixAreUnknown) {
    const auto type = [](int number) {
        return Access("{\"CardType\":" + std::to_string(number) + "}", &DEV_EVENT_ACCESSCONTROL_INFO::emCardType);
    };
    for (int number = 0; number <= 6; ++number)
        EXPECT_EQ(type(number), number);
    for (int number : {-1, 7, 254, 256, 1 << 30})
        EXPECT_EQ(type(number), -1) << number;
    EXPECT_EQ(type(255), 255);
    EXPECT_EQ(Access("{}", &DEV_EVENT_ACCESSCONTROL_INFO::emCardType), -1);
}

TEST(AccessControl, StatusAbsentMeansDone) {
    EXPECT_EQ(Access("{}", &DEV_EVENT_ACCESSCONTROL_INFO::bStatus), 1);
    EXPECT_EQ(Access(R"({"Status":null})", &DEV_EVENT_ACCESSCONTROL_INFO::bStatus), 1);
    EXPECT_EQ(Access(R"({"Status":0})", &DEV_EVENT_ACCESSCONTROL_INFO::bStatus), 0);
    EXPECT_EQ(Access(R"({"Status":1})", &DEV_EVENT_ACCESSCONTROL_INFO::bStatus), 1);
    EXPECT_EQ(Access(R"({"Status":-5})", &DEV_EVENT_ACCESSCONTROL_INFO::bStatus), 1);
}

TEST(AccessControl, TypesOfPassage) {
    EXPECT_EQ(Access(R"({"Type":"Entry"})", &DEV_EVENT_ACCESSCONTROL_INFO::emEventType), 1);
    EXPECT_EQ(Access(R"({"Type":"Exit"})", &DEV_EVENT_ACCESSCONTROL_INFO::emEventType), 2);
    EXPECT_EQ(Access(R"({"Type":"EXIT"})", &DEV_EVENT_ACCESSCONTROL_INFO::emEventType), 2);
    EXPECT_EQ(Access(R"({"Type":"Through"})", &DEV_EVENT_ACCESSCONTROL_INFO::emEventType), 0);
}

TEST(AccessControl, CapturesAreCountedByTheirAddress) {
    const auto numbers = [](const char* data) { return Access(data, &DEV_EVENT_ACCESSCONTROL_INFO::nNumbers); };
    EXPECT_EQ(numbers("{}"), 0);
    EXPECT_EQ(numbers(R"({"SnapURL":""})"), 0);
    EXPECT_EQ(numbers(R"({"SnapURL":7})"), 0);
    EXPECT_EQ(numbers(R"({"SnapURL":"/a"})"), 1);
    EXPECT_EQ(numbers(R"({"SnapURL":"/a","Numbers":null})"), 1);
    EXPECT_EQ(numbers(R"({"SnapURL":"/a","Numbers":0})"), 0);
    EXPECT_EQ(numbers(R"({"SnapURL":"","Numbers":3})"), 3);
}

// The door stands beside the data, not in it; without one the channel is the head's.
TEST(AccessControl, IndexIsTheChannel) {
    std::vector<int> channels;
    Decode(
        R"({"Event":[{"Code":"AccessControl","Index":5,"Data":{"Index":9}},{"Code":"AccessControl","Data":{"Index":9}},
                        {"Code":"AccessControl","Index":null,"Data":{}},{"Code":"AccessControl","Index":0,"Data":{}}]})",
        [&](const Delivered& event) { channels.push_back(event.as<DEV_EVENT_ACCESSCONTROL_INFO>().nChannelID); });
    EXPECT_EQ(channels, (std::vector<int>{5, -1, -1, 0}));
}

// Three texts are read only when they are some.
TEST(AccessControl, NumbersAreNoTexts) {
    EXPECT_TRUE(DecodeOne("AccessControl", R"({"ClassNumber":3,"PhoneNumber":31201234567,"CardName":true})",
                          [](const Delivered& event) {
                              const auto& access = event.as<DEV_EVENT_ACCESSCONTROL_INFO>();
                              EXPECT_STREQ(access.szClassNumber, "");
                              EXPECT_STREQ(access.szPhoneNumber, "");
                              EXPECT_STREQ(access.szCardName, "");
                          }));
}

// ---- Identity cards ----------------------------------------------------------------------------------------------

TEST(CitizenIDCard, SexByTheCardsNumbers) {
    const auto sex = [](const char* data) {
        const auto card = NumberOf<DEV_EVENT_CITIZENIDCARD_INFO>("CitizenIDCard", data,
                                                                 [](const auto& found) { return found.emSex; });
        const auto compared = NumberOf<DEV_EVENT_CITIZENPICTURECOMPARE_INFO>(
            "CitizenPictureCompare", data, [](const auto& found) { return found.emSex; });
        EXPECT_EQ(card, compared);
        return card;
    };
    EXPECT_EQ(sex(R"({"Sex":1})"), 1);
    EXPECT_EQ(sex(R"({"Sex":2})"), 2);
    EXPECT_EQ(sex(R"({"Sex":9})"), 3);
    EXPECT_EQ(sex(R"({"Sex":3})"), 0);
    EXPECT_EQ(sex(R"({"Sex":0})"), 0);
    EXPECT_EQ(sex(R"({"Sex":true})"), 0);
    EXPECT_EQ(sex(R"({"Sex":1.0})"), 0);
    EXPECT_EQ(sex(R"({"Sex":"1"})"), 0);
    EXPECT_EQ(sex("{}"), 0);
}

TEST(CitizenIDCard, GroupIsReadFromIntegersOnly) {
    EXPECT_TRUE(DecodeOne("CitizenIDCard", R"({"GroupID":7.5,"CountInGroup":true,"IndexInGroup":"2"})",
                          [](const Delivered& event) {
                              const auto& card = event.as<DEV_EVENT_CITIZENIDCARD_INFO>();
                              EXPECT_EQ(card.nGroupID, 0);
                              EXPECT_EQ(card.nCountInGroup, 0);
                              EXPECT_EQ(card.nIndexInGroup, 0);
                          }));
}

TEST(CitizenIDCard, EndlessIsNoDate) {
    const auto check = [](const char* data, int longTerm, std::uint32_t year, std::uint32_t month, std::uint32_t day) {
        EXPECT_TRUE(DecodeOne("CitizenIDCard", data, [&](const Delivered& event) {
            const auto& card = event.as<DEV_EVENT_CITIZENIDCARD_INFO>();
            EXPECT_EQ(card.bLongTerm, longTerm) << data;
            EXPECT_EQ(card.stuEnd.dwYear, year) << data;
            EXPECT_EQ(card.stuEnd.dwMonth, month) << data;
            EXPECT_EQ(card.stuEnd.dwDay, day) << data;
            EXPECT_EQ(card.stuEnd.dwHour, 0u) << data;
        }));
        EXPECT_TRUE(DecodeOne("CitizenPictureCompare", data, [&](const Delivered& event) {
            const auto& card = event.as<DEV_EVENT_CITIZENPICTURECOMPARE_INFO>();
            EXPECT_EQ(card.bLongTerm, longTerm) << data;
            EXPECT_EQ(card.stuEnd.dwYear, year) << data;
            EXPECT_EQ(card.stuEnd.dwMonth, month) << data;
            EXPECT_EQ(card.stuEnd.dwDay, day) << data;
            EXPECT_EQ(card.stuEnd.dwHour, 0u) << data;
        }));
    };
    check(R"({"End":"Endless"})", 1, 0, 0, 0);
    check(R"({"End":"endless"})", 0, 0, 0, 0);
    check(R"({"End":"2030-01-02"})", 0, 2030, 1, 2);
    check(R"({"End":"2030-01"})", 0, 2030, 1, 0);
    check(R"({"End":7})", 0, 0, 0, 0);
    check("{}", 0, 0, 0, 0);
}

TEST(CitizenPictureCompare, ImagesComeInPairs) {
    const auto check = [](const char* data, std::uint32_t first, std::uint32_t second) {
        EXPECT_TRUE(DecodeOne("CitizenPictureCompare", data, [&](const Delivered& event) {
            const auto& compared = event.as<DEV_EVENT_CITIZENPICTURECOMPARE_INFO>();
            EXPECT_EQ(compared.stuImage[0].dwOffset, first) << data;
            EXPECT_EQ(compared.stuImage[1].dwOffset, second) << data;
        }));
    };
    check(R"({"ImageInfo":[{"Offset":1}]})", 0, 0);
    check(R"({"ImageInfo":[{"Offset":1},{"Offset":2}]})", 1, 2);
    check(R"({"ImageInfo":[{"Offset":1},{"Offset":2},{"Offset":3}]})", 1, 2);
    check(R"({"ImageInfo":{"Offset":1}})", 0, 0);
}

// ---- Tags and targets --------------------------------------------------------------------------------------------

TEST(RFIDInfo, StateTurnsTheActionRound) {
    std::vector<int> states;
    Decode(R"({"Event":[{"Code":"RFIDInfo","Data":{}},{"Code":"RFIDInfo","Action":"Start","Data":{}},
                        {"Code":"RFIDInfo","Action":"Stop","Data":{}},{"Code":"RFIDInfo","Action":"Pulse","Data":{}}]})",
           [&](const Delivered& event) { states.push_back(event.as<DEV_EVENT_RFIDINFO_INFO>().nState); });
    EXPECT_EQ(states, (std::vector<int>{1, 0, 1, 1}));
}

TEST(RFIDInfo, TenTagsAtMost) {
    EXPECT_TRUE(DecodeOne("RFIDInfo", R"({"RFID":["0","1","2","3","4","5","6","7","8","0123456789abcdef","ten"]})",
                          [](const Delivered& event) {
                              const auto& tags = event.as<DEV_EVENT_RFIDINFO_INFO>();
                              EXPECT_EQ(tags.nRFIDNum, 10);
                              EXPECT_STREQ(tags.szRFID[8], "8");
                              EXPECT_STREQ(tags.szRFID[9], "0123456789a"); // 11 of them
                          }));
}

TEST(ShootingScoreRecognition, TenHitsAtMost) {
    std::string data = "{\"BulletHoles\":[";
    for (int i = 0; i < 12; ++i)
        data += (i ? ",{\"Score\":" : "{\"Score\":") + std::to_string(i) + "}";
    EXPECT_TRUE(DecodeOne("ShootingScoreRecognition", data + "]}", [](const Delivered& event) {
        const auto& hits = event.as<DEV_EVENT_SHOOTINGSCORERECOGNITION_INFO>();
        EXPECT_EQ(hits.nBulletHolesNum, 10);
        EXPECT_EQ(hits.stuBulletHoles[9].nScore, 9);
    }));
    EXPECT_TRUE(DecodeOne("ShootingScoreRecognition", R"({"DetectRegion":[5]})", [](const Delivered& event) {
        EXPECT_EQ(event.as<DEV_EVENT_SHOOTINGSCORERECOGNITION_INFO>().stuDetectRegion.nX, 0);
    }));
}

} // namespace
