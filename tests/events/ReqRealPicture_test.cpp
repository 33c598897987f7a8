#include "events/ReqRealPicture.h"
#include "orrery/events_common.h"
#include "orrery/events_intelligent_region.h"
#include "orrery/events_traffic_conduct.h"
#include "orrery/events_traffic_driving.h"
#include "orrery/events_traffic_flow.h"
#include "orrery/events_traffic_junction.h"
#include "orrery/events_traffic_parking.h"
#include "orrery/log.h"
#include "support/Events.h"
#include "support/FailingAllocator.h"
#include "support/GuardedBuffer.h"
#include "support/LogLines.h"
#include "support/Notification.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

namespace {

using namespace orrery::test;
using orrery::CReqRealPicture;

std::int32_t Ignore(std::uint32_t, const void*, std::uint32_t, void*, std::int32_t, void*) {
    return 0;
}

TEST(AnalyzerEvents, NullArgumentsAreRefused) {
    EXPECT_EQ(CLIENT_ParseAnalyzerEventData(nullptr, 0, Ignore, nullptr), 0);
    EXPECT_EQ(CLIENT_ParseAnalyzerEventData("{}", 2, nullptr, nullptr), 0);
}

TEST(AnalyzerEvents, TextThatIsNoJsonSucceedsWithoutEvents) {
    EXPECT_EQ(Decode("{\"Event\":[", [](const Delivered&) { FAIL(); }), 1);
    EXPECT_EQ(Decode("", [](const Delivered&) { FAIL(); }), 1);
    EXPECT_EQ(Decode("{\"Other\":[{\"Code\":\"TrafficJam\",\"Data\":{}}]}", [](const Delivered&) { FAIL(); }), 1);
    EXPECT_EQ(Decode("{\"Event\":null,\"EventList\":{}}", [](const Delivered&) { FAIL(); }), 1);
}

TEST(AnalyzerEvents, CallbackTakesCodeRecordSizeAndUser) {
    struct Seen {
        int calls = 0;
    } seen;
    const auto callback = [](std::uint32_t type, const void* record, std::uint32_t size, void* reserved,
                             std::int32_t sequence, void* user) -> std::int32_t {
        ++static_cast<Seen*>(user)->calls;
        EXPECT_EQ(type, 27u);
        EXPECT_NE(record, nullptr);
        EXPECT_EQ(size, sizeof(DEV_EVENT_TRAFFICJAM_INFO));
        EXPECT_EQ(reserved, nullptr);
        EXPECT_EQ(sequence, 0);
        return -1; // nobody looks at it
    };
    const std::string text = EventText("TrafficJam", "{}");
    EXPECT_EQ(CLIENT_ParseAnalyzerEventData(text.c_str(), 0, callback, &seen), 1);
    EXPECT_EQ(seen.calls, 1);
}

TEST(AnalyzerEvents, EventGoesBeforeEventList) {
    EXPECT_EQ(CodesOf(R"({"EventList":[{"Code":"TrafficJam","Data":{}}],"Event":[{"Code":"TrafficStay","Data":{}}]})"),
              std::vector<std::uint32_t>{282});
    EXPECT_EQ(CodesOf(R"({"EventList":[{"Code":"TrafficJam","Data":{}}],"Event":null})"),
              std::vector<std::uint32_t>{27});
    EXPECT_EQ(CodesOf(R"({"EventList":[{"Code":"TrafficJam","Data":{}}],"Event":[]})"), std::vector<std::uint32_t>{});
}

TEST(AnalyzerEvents, TwelveEventsComeInOrder) {
    std::string text = "{\"Event\":[";
    for (int i = 0; i < 12; ++i)
        text += (i ? "," : "") + std::string("{\"Code\":\"TrafficJam\",\"Data\":{\"Lane\":") + std::to_string(i) + "}}";
    int next = 0;
    EXPECT_EQ(Decode(text + "]}",
                     [&](const Delivered& event) { EXPECT_EQ(event.as<DEV_EVENT_TRAFFICJAM_INFO>().nLane, next++); }),
              1);
    EXPECT_EQ(next, 12);
}

TEST(AnalyzerEvents, The129thEventIsIgnored) {
    std::string text = "{\"Event\":[";
    for (int i = 0; i < 200; ++i) {
        // Those without a record count among the 128.
        text += (i ? "," : "") + std::string("{\"Code\":\"") + (i % 2 ? "TrafficJam" : "Nothing")
                + "\",\"Data\":{\"Lane\":" + std::to_string(i) + "}}";
    }
    std::vector<int> lanes;
    Decode(text + "]}", [&](const Delivered& event) { lanes.push_back(event.as<DEV_EVENT_TRAFFICJAM_INFO>().nLane); });
    ASSERT_EQ(lanes.size(), 64u);
    EXPECT_EQ(lanes.back(), 127);
}

TEST(AnalyzerEvents, UnknownNamesAndMissingDataAreNotDelivered) {
    EXPECT_EQ(CodesOf(R"({"Event":[{"Code":"Nothing","Data":{}},{"Data":{}},{"Code":27,"Data":{}},
                         {"Code":"trafficjam","Data":{}},{"Code":"TrafficJam"},{"Code":"TrafficJam","Data":null},
                         null,7,"TrafficJam",[],{"Code":"TrafficStay","Data":{}}]})"),
              std::vector<std::uint32_t>{282});
    // Names of rules that have no event.
    EXPECT_EQ(CodesOf(R"({"Event":[{"Code":"All","Data":{}},{"Code":"Traffic*","Data":{}},
                         {"Code":"Unknown","Data":{}}]})"),
              std::vector<std::uint32_t>{});
}

TEST(AnalyzerEvents, ActionGoesOnToTheNextEvent) {
    std::vector<int> actions;
    Decode(R"({"Event":[{"Code":"TrafficStay","Data":{}},
                        {"Code":"TrafficStay","Action":"sTART","Data":{}},
                        {"Code":"TrafficStay","Data":{}},
                        {"Code":"TrafficStay","Action":"Begin","Data":{}},
                        {"Code":"TrafficStay","Action":"STOP","Data":{}},
                        {"Code":"TrafficStay","Action":7,"Data":{}},
                        {"Code":"TrafficStay","Action":"pulse","Data":{}}]})",
           [&](const Delivered& event) { actions.push_back(event.as<DEV_EVENT_TRAFFICSTAY_INFO>().byEventAction); });
    EXPECT_EQ(actions, (std::vector<int>{0, 1, 1, 1, 2, 2, 0}));
}

TEST(AnalyzerEvents, ActionOfAnUnknownEventGoesOnToo) {
    Decode(R"({"Event":[{"Code":"Nothing","Action":"Stop","Data":{}},{"Code":"TrafficStay","Data":{}}]})",
           [](const Delivered& event) { EXPECT_EQ(event.as<DEV_EVENT_TRAFFICSTAY_INFO>().byEventAction, 2); });
    // But one without data is dropped before its action is read.
    Decode(R"({"Event":[{"Code":"Nothing","Action":"Stop"},{"Code":"TrafficStay","Data":{}}]})",
           [](const Delivered& event) { EXPECT_EQ(event.as<DEV_EVENT_TRAFFICSTAY_INFO>().byEventAction, 0); });
}

TEST(AnalyzerEvents, GroupGoesOnToTheNextEvent) {
    std::vector<std::uint32_t> groups;
    std::vector<int> places;
    Decode(R"({"Event":[{"Code":"TrafficStay","Data":{"GroupID":7,"CountInGroup":3,"IndexInGroup":258}},
                        {"Code":"TrafficStay","Data":{"GroupID":4000000000}},
                        {"Code":"TrafficStay","Data":{}},
                        {"Code":"TrafficStay","Data":{"GroupID":-2}}]})",
           [&](const Delivered& event) {
               const auto& file = event.as<DEV_EVENT_TRAFFICSTAY_INFO>().stuFileInfo;
               groups.push_back(file.nGroupID);
               places.push_back(file.byCount * 256 + file.byIndex);
           });
    EXPECT_EQ(groups, (std::vector<std::uint32_t>{7, 4000000000u, 4000000000u, 4294967294u}));
    EXPECT_EQ(places, (std::vector<int>{770, 770, 770, 770})); // 258 in a byte is 2
}

TEST(AnalyzerEvents, GroupOfACarStaysWithItsEvent) {
    std::vector<std::uint32_t> groups;
    Decode(R"({"Event":[{"Code":"TrafficStay","Data":{"GroupID":7,
                          "TrafficCar":{"GroupID":9,"CountInGroup":4,"IndexInGroup":5}}},
                        {"Code":"TrafficStay","Data":{}}]})",
           [&](const Delivered& event) {
               const auto& file = event.as<DEV_EVENT_TRAFFICSTAY_INFO>().stuFileInfo;
               groups.push_back(file.nGroupID);
               EXPECT_EQ(file.byCount, groups.size() == 1 ? 4 : 0);
               EXPECT_EQ(file.byIndex, groups.size() == 1 ? 5 : 0);
           });
    EXPECT_EQ(groups, (std::vector<std::uint32_t>{9, 7}));
}

TEST(AnalyzerEvents, HeadOfAnEvent) {
    // 1,000,000,000 seconds are 2001-09-09 01:46:40.
    EXPECT_TRUE(DecodeOne("TrafficStay",
                          R"({"Name":"Rule","PTS":42949672960.5,"EventID":-5,"UTC":1000000000,"UTCMS":250})",
                          [](const Delivered& event) {
                              const auto& stay = event.as<DEV_EVENT_TRAFFICSTAY_INFO>();
                              EXPECT_EQ(stay.nChannelID, -1);
                              EXPECT_STREQ(stay.szName, "Rule");
                              EXPECT_EQ(stay.dPTS, 42949672960.5);
                              EXPECT_EQ(stay.nEventID, -5);
                              EXPECT_EQ(stay.stuUTC.dwYear, 2001u);
                              EXPECT_EQ(stay.stuUTC.dwMonth, 9u);
                              EXPECT_EQ(stay.stuUTC.dwDay, 9u);
                              EXPECT_EQ(stay.stuUTC.dwHour, 1u);
                              EXPECT_EQ(stay.stuUTC.dwMinute, 46u);
                              EXPECT_EQ(stay.stuUTC.dwSecond, 40u);
                              EXPECT_EQ(stay.stuUTC.dwMillisecond, 250u);
                              EXPECT_EQ(stay.stuUTC.dwReserved[0], 0u);
                          }));
    // A name keeps 128 characters and then has no terminator.
    const std::string name(130, 'n');
    EXPECT_TRUE(DecodeOne("TrafficStay", "{\"Name\":\"" + name + "\"}", [&](const Delivered& event) {
        const auto& stay = event.as<DEV_EVENT_TRAFFICSTAY_INFO>();
        EXPECT_EQ(std::string_view(stay.szName, 128), std::string_view(name).substr(0, 128));
        EXPECT_EQ(stay.byReservedHead[0], 0);
    }));
}

TEST(AnalyzerEvents, WholeTimeStampKeepsItsLowBits) {
    // 2^32 + 7.9 without its fraction, in 32 bits
    EXPECT_TRUE(
        DecodeOne("TrafficRestrictedPlate", R"({"PTS":4294967303.9,"TriggerType":3})", [](const Delivered& event) {
            const auto& plate = event.as<DEV_EVENT_TRAFFICRESTRICTEDPLATE_INFO>();
            EXPECT_EQ(plate.dwPTS, 7u);
            EXPECT_EQ(plate.nTriggerType, 3);
        }));
    for (const char* pts : {"1e300", "-1e300", "-1", "\"x\""}) {
        EXPECT_TRUE(DecodeOne("TrafficRestrictedPlate", std::string("{\"PTS\":") + pts + "}", [](const Delivered&) {}));
    }
}

TEST(AnalyzerEvents, AlarmRecordOfAnEvent) {
    EXPECT_TRUE(DecodeOne("TrafficParking",
                          R"({"IsExistAlarmRecord":true,"AlarmRecordSize":4000000000,"AlarmRecordPath":"/a.dav"})",
                          [](const Delivered& event) {
                              const auto& parking = event.as<DEV_EVENT_TRAFFICPARKING_INFO>();
                              EXPECT_EQ(parking.bIsExistAlarmRecord, 1u);
                              EXPECT_EQ(parking.dwAlarmRecordSize, 4000000000u);
                              EXPECT_STREQ(parking.szAlarmRecordPath, "/a.dav");
                          }));
    EXPECT_TRUE(DecodeOne("TrafficParking", "{\"AlarmRecordPath\":\"" + std::string(300, 'p') + "\"}",
                          [](const Delivered& event) {
                              const auto& parking = event.as<DEV_EVENT_TRAFFICPARKING_INFO>();
                              EXPECT_EQ(parking.bIsExistAlarmRecord, 0u);
                              EXPECT_EQ(std::strlen(parking.szAlarmRecordPath), 255u);
                          }));
}

TEST(AnalyzerEvents, SourceDeviceStandsBesideItsIndexOnly) {
    const auto source = [](const std::string& keys, int index, const char* device) {
        EXPECT_TRUE(DecodeOne("StayDetection", '{' + keys + '}', [&](const Delivered& event) {
            const auto& stay = event.as<DEV_EVENT_STAYDETECTION_INFO>();
            EXPECT_EQ(stay.nSourceIndex, index) << keys;
            EXPECT_STREQ(stay.szSourceDevice, device) << keys;
        })) << keys;
    };
    source(R"("SourceIndex":4,"SourceDevice":"gate")", 4, "gate");
    source(R"("SourceDevice":"gate")", -1, "");
    source(R"("SourceIndex":null,"SourceDevice":"gate")", -1, "");
    source(R"("SourceIndex":"4","SourceDevice":"gate")", 0, "gate"); // there, but no number
    source(R"("SourceIndex":4,"SourceDevice":5)", 4, "");
    source(R"("SourceIndex":4)", 4, "");
    source("\"SourceIndex\":4,\"SourceDevice\":\"" + std::string(270, 'd') + '"', 4, std::string(259, 'd').c_str());
    // The next event of a text has none of the one before.
    std::vector<std::string> devices;
    Decode(R"({"Event":[{"Code":"StayDetection","Data":{"Name":"A","Count":7,"SourceIndex":1,"SourceDevice":"gate"}},
                        {"Code":"StayDetection","Data":{}}]})",
           [&](const Delivered& event) {
               const auto& stay = event.as<DEV_EVENT_STAYDETECTION_INFO>();
               devices.push_back(stay.szName + std::string("/") + stay.szSourceDevice + "/"
                                 + std::to_string(stay.nSourceIndex) + "/" + std::to_string(stay.dwCount));
           });
    EXPECT_EQ(devices, (std::vector<std::string>{"A/gate/1/7", "//-1/0"}));
}

TEST(AnalyzerEvents, CountIsAnIntegerOrABool) {
    const std::pair<const char*, std::uint32_t> counts[] = {
        {"6", 6},   {"4000000000", 4000000000u}, {"true", 1}, {"false", 0}, {"6.5", 0}, {"\"6\"", 0}, {"[6]", 0},
        {"null", 0}};
    for (const auto& [text, count] : counts) {
        const std::uint32_t expected = count;
        EXPECT_TRUE(DecodeOne("StayDetection", "{\"Count\":" + std::string(text) + '}', [&](const Delivered& event) {
            EXPECT_EQ(event.as<DEV_EVENT_STAYDETECTION_INFO>().dwCount, expected);
        })) << text;
    }
}

TEST(AnalyzerEvents, MillisecondsDoNotNeedTheSeconds) {
    EXPECT_TRUE(DecodeOne("TrafficStay", R"({"UTCMS":250})", [](const Delivered& event) {
        const auto& stay = event.as<DEV_EVENT_TRAFFICSTAY_INFO>();
        EXPECT_EQ(stay.stuUTC.dwYear, 0u);
        EXPECT_EQ(stay.stuUTC.dwMillisecond, 250u);
    }));
    // The largest number of seconds: 2106-02-07 06:28:15.
    EXPECT_TRUE(DecodeOne("TrafficStay", R"({"UTC":4294967295,"UTCMS":1})", [](const Delivered& event) {
        const auto& utc = event.as<DEV_EVENT_TRAFFICSTAY_INFO>().stuUTC;
        EXPECT_EQ(utc.dwYear, 2106u);
        EXPECT_EQ(utc.dwMonth, 2u);
        EXPECT_EQ(utc.dwDay, 7u);
        EXPECT_EQ(utc.dwHour, 6u);
        EXPECT_EQ(utc.dwMinute, 28u);
        EXPECT_EQ(utc.dwSecond, 15u);
        EXPECT_EQ(utc.dwMillisecond, 1u);
    }));
}

TEST(AnalyzerEvents, DataThatIsNoObjectHasNoKeys) {
    EXPECT_EQ(CodesOf(R"({"Event":[{"Code":"TrafficStay","Data":7},{"Code":"TrafficStay","Data":[]},
                                   {"Code":"StayDetection","Data":"x"}]})"),
              (std::vector<std::uint32_t>{282, 282, 6}));
}

// ---- The message form --------------------------------------------------------------------------------------------

constexpr const char* kNotification = R"({"params":{"info":{"Transfer":"offline","Channel":3,"CountInGroup":4,
    "IndexInGroup":2,"PictureType":9,"Ack":true,"PicID":[11,12],"Time":"2026-11-20 09:30:05","Tag":"atmAFTERpaste",
    "Resolution":[1920,1080],"Flags":["Timing","Event","Event","Nothing"],"FilePath":"/pic","Repeat":513,
    "RecordFile":"/rec","FTPPath":"/ftp","VideoPath":"/vid",
    "Events":[{"Code":"TrafficJunction","Data":{}},{"Code":"TrafficHighBeam","Data":{"CommInfo":{}}}]}}})";

TEST(ReqRealPicture, NotificationFillsWhatAllEventsShare) {
    CReqRealPicture picture;
    picture.dwPacketSubType = CReqRealPicture::kPacketSubType;
    ASSERT_EQ(picture.deserialize(kNotification, 0), 1);
    EXPECT_EQ(picture.bNotification, 1u);
    EXPECT_EQ(picture.getSequence(), 1u);
    EXPECT_EQ(picture.nTransferMode, 1u);
    EXPECT_EQ(picture.nChannel, 3);
    EXPECT_EQ(picture.bAck, 1u);
    EXPECT_EQ(picture.dwPicID[0], 11u);
    EXPECT_EQ(picture.dwPicID[1], 12u);
    ASSERT_EQ(picture.lstEvents.count(), 2u);
    int seen = 0;
    const EventVisitor visit = [&](const Delivered& event) {
        if (seen++ == 0) {
            const auto& junction = event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>();
            EXPECT_EQ(junction.nChannelID, 3);
            EXPECT_EQ(junction.stuFileInfo.byCount, 4);
            EXPECT_EQ(junction.stuFileInfo.byIndex, 2);
            EXPECT_EQ(junction.stuFileInfo.byPictureType, 9);
            EXPECT_EQ(junction.stuFileInfo.byFileTag, EVENT_FILE_TAG_ATM_AFTER_PASTE);
            EXPECT_EQ(junction.stuFileInfo.stuFileTime.dwYear, 2026u);
            EXPECT_EQ(junction.stuFileInfo.stuFileTime.dwMonth, 11u);
            EXPECT_EQ(junction.stuFileInfo.stuFileTime.dwDay, 20u);
            EXPECT_EQ(junction.stuFileInfo.stuFileTime.dwHour, 9u);
            EXPECT_EQ(junction.stuFileInfo.stuFileTime.dwMinute, 30u);
            EXPECT_EQ(junction.stuFileInfo.stuFileTime.dwSecond, 5u);
            EXPECT_EQ(junction.wWidth, 1920);
            EXPECT_EQ(junction.wHeight, 1080);
            // Bit 1, and bit 4 twice: it carries into bit 5.
            EXPECT_EQ(junction.dwFlagMask, 2u + 32u);
            EXPECT_EQ(junction.byRepeat, 1); // 513 in a byte
            EXPECT_STREQ(junction.szRecordFile, "/rec");
            ASSERT_NE(junction.stuCommInfo.pszFilePath, nullptr); // also without "CommInfo"
            EXPECT_STREQ(junction.stuCommInfo.pszFilePath, "/pic");
            EXPECT_STREQ(junction.stuCommInfo.pszFTPPath, "/ftp");
            EXPECT_STREQ(junction.stuCommInfo.pszVideoPath, "/vid");
        } else {
            EXPECT_EQ(event.as<DEV_EVENT_TRAFFICHIGHBEAM_INFO>().stuCommInfo.pszFilePath, nullptr);
        }
    };
    picture.deliver(VisitEvent, const_cast<EventVisitor*>(&visit));
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(picture.lstEvents.count(), 0u);
}

TEST(ReqRealPicture, WhatANotificationLeavesOut) {
    CReqRealPicture picture;
    picture.dwPacketSubType = CReqRealPicture::kPacketSubType;
    ASSERT_EQ(picture.deserialize(R"({"params":{"info":{"Transfer":"soon","PicID":[1],
                                      "Events":[{"Code":"TrafficStay","Data":{}}]}}})",
                                  0),
              1);
    EXPECT_EQ(picture.nTransferMode, 0xFFFFFFFFu);
    EXPECT_EQ(picture.nChannel, -1);
    EXPECT_EQ(picture.dwPicID[0], 0u);
    const EventVisitor visit = [](const Delivered& event) {
        const auto& stay = event.as<DEV_EVENT_TRAFFICSTAY_INFO>();
        EXPECT_EQ(stay.stuFileInfo.byCount, 1);
        EXPECT_EQ(stay.dwFlagMask, 1u);
        EXPECT_EQ(stay.stuCommInfo.pszFilePath, nullptr);
    };
    picture.deliver(VisitEvent, const_cast<EventVisitor*>(&visit));

    CReqRealPicture empty;
    empty.dwPacketSubType = CReqRealPicture::kPacketSubType;
    empty.deserialize(R"({"params":{"info":{"Flags":[],"Events":[{"Code":"TrafficStay","Data":{}}]}}})", 0);
    const EventVisitor noFlag = [](const Delivered& event) {
        EXPECT_EQ(event.as<DEV_EVENT_TRAFFICSTAY_INFO>().dwFlagMask, 0u);
    };
    empty.deliver(VisitEvent, const_cast<EventVisitor*>(&noFlag));
}

std::uint32_t FlagsOf(const std::string& flags) {
    std::uint32_t mask = 0xDEAD;
    const EventVisitor visit = [&](const Delivered& event) {
        mask = event.as<DEV_EVENT_TRAFFICSTAY_INFO>().dwFlagMask;
    };
    EXPECT_EQ(DecodeNotification("\"Flags\":" + flags, R"({"Code":"TrafficStay","Data":{}})", visit), 1);
    return mask;
}

TEST(ReqRealPicture, FlagsAreAdded) {
    const char* const names[] = {"*", "timing", "MANUAL", "Marked", "Event", "Mosaic", "Cutout"};
    for (std::uint32_t bit = 0; bit < 7; ++bit)
        EXPECT_EQ(FlagsOf("[\"" + std::string(names[bit]) + "\"]"), 1u << bit) << names[bit];
    EXPECT_EQ(FlagsOf(R"(["Cutout","*",null,7,"Timing"])"), 64u + 1u + 2u);
    EXPECT_EQ(FlagsOf(R"(["*","*","*"])"), 3u);
    EXPECT_EQ(FlagsOf(R"(["Every"])"), 0u);
    EXPECT_EQ(FlagsOf(R"("Timing")"), 0u); // there, but no list
    EXPECT_EQ(FlagsOf("null"), 1u);
    // Of 33 texts 32 are looked at.
    std::string many = "[";
    for (int i = 0; i < 31; ++i)
        many += "\"Nothing\",";
    EXPECT_EQ(FlagsOf(many + R"("Timing","Manual"])"), 2u);
}

TEST(ReqRealPicture, TransferModesAndTagsInAnyCase) {
    const auto read = [](const std::string& info) {
        auto picture = std::make_unique<CReqRealPicture>();
        picture->dwPacketSubType = CReqRealPicture::kPacketSubType;
        EXPECT_EQ(picture->deserialize(("{\"params\":{\"info\":{" + info + "}}}").c_str(), 0), 1);
        return picture;
    };
    EXPECT_EQ(read(R"("Transfer":"REALTIME")")->nTransferMode, 0u);
    EXPECT_EQ(read(R"("Transfer":"Offline")")->nTransferMode, 1u);
    EXPECT_EQ(read(R"("Transfer":"offlineover")")->nTransferMode, 2u);
    EXPECT_EQ(read(R"("Transfer":1)")->nTransferMode, 0xFFFFFFFFu);
    EXPECT_EQ(read(R"("PicID":[1,2,3])")->dwPicID[0], 0u);
    EXPECT_EQ(read(R"("PicID":[1,2])")->dwPicID[1], 2u);
    EXPECT_EQ(read(R"("Ack":false)")->bAck, 0u);
    const std::pair<const char*, int> tags[] = {{"atmbeforepaste", EVENT_FILE_TAG_ATM_BEFORE_PASTE},
                                                {"ATMAfterPaste", EVENT_FILE_TAG_ATM_AFTER_PASTE},
                                                {"x", 0}};
    for (const auto& [name, tag] : tags) {
        const int expected = tag;
        const EventVisitor visit = [&](const Delivered& event) {
            EXPECT_EQ(event.as<DEV_EVENT_TRAFFICSTAY_INFO>().stuFileInfo.byFileTag, expected);
        };
        EXPECT_EQ(
            DecodeNotification("\"Tag\":\"" + std::string(name) + '"', R"({"Code":"TrafficStay","Data":{}})", visit),
            1);
    }
}

TEST(ReqRealPicture, PathsEndWithTheirRoom) {
    const std::string all = "\"FilePath\":\"" + std::string(300, 'p') + "\",\"FTPPath\":\"" + std::string(255, 'f')
                            + "\",\"VideoPath\":\"\",\"RecordFile\":\"" + std::string(200, 'r') + '"';
    const EventVisitor visit = [](const Delivered& event) {
        const auto& junction = event.as<DEV_EVENT_TRAFFICJUNCTION_INFO>();
        EXPECT_EQ(junction.stuCommInfo.pszFilePath, std::string(255, 'p'));
        EXPECT_EQ(junction.stuCommInfo.pszFTPPath, std::string(255, 'f'));
        EXPECT_EQ(junction.stuCommInfo.pszVideoPath, nullptr);
        EXPECT_EQ(junction.szRecordFile, std::string(127, 'r'));
    };
    EXPECT_EQ(DecodeNotification(all, R"({"Code":"TrafficJunction","Data":{}})", visit), 1);
}

// Paths for which there is no memory are missing; the event is not.
TEST(ReqRealPicture, PathsWithoutMemoryAreMissing) {
    const std::string paths = "\"FilePath\":\"" + std::string(255, 'p') + "\",\"FTPPath\":\"" + std::string(255, 'f')
                              + "\",\"VideoPath\":\"" + std::string(255, 'v') + '"';
    const char* const lines[] = {"New szFilePath Failed", "New szFTPPath Failed", "New szVideoPath Failed"};
    std::ptrdiff_t first[3] = {}; // how often each was the first to be missing
    // The driver's path takes more and more of the memory at hand, so that it ends at each of the three in turn.
    for (std::size_t size = 0; size < 32768; size += 96) {
        const std::string text = "{\"params\":{\"info\":{" + paths
                                 + R"(,"Events":[{"Code":"TrafficJam","Data":{"CommInfo":{"Drivers":[{"Image":)"
                                   R"({"FilePath":")"
                                 + std::string(size, 'd') + "\"}}]}}}]}}}";
        auto picture = std::make_unique<CReqRealPicture>();
        picture->dwPacketSubType = CReqRealPicture::kPacketSubType;
        LogLines log;
        HeapWatch watch;
        watch.FailFrom(1);
        ASSERT_EQ(picture->deserialize(text.c_str(), 0), 1);
        watch.FailNone();
        const EventVisitor visit = [&](const Delivered& event) {
            const auto& comm = event.as<DEV_EVENT_TRAFFICJAM_INFO>().stuCommInfo;
            const char* const found[] = {comm.pszFilePath, comm.pszFTPPath, comm.pszVideoPath};
            bool isFirst = true;
            for (int i = 0; i < 3; ++i) {
                EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, lines[i]), found[i] == nullptr) << size;
                first[i] += isFirst && found[i] == nullptr;
                isFirst = isFirst && found[i] != nullptr;
            }
        };
        picture->deliver(VisitEvent, const_cast<EventVisitor*>(&visit));
    }
    for (int i = 0; i < 3; ++i)
        EXPECT_GT(first[i], 0) << lines[i];
}

TEST(ReqRealPicture, NotificationWithoutEvents) {
    for (const char* const text : {"{}", "[]", R"({"params":null})", R"({"params":{"info":[1]}})",
                                   R"({"params":{"info":{"Events":{"Code":"TrafficStay","Data":{}}}}})",
                                   R"({"Event":[{"Code":"TrafficStay","Data":{}}]})"}) {
        CReqRealPicture picture;
        picture.dwPacketSubType = CReqRealPicture::kPacketSubType;
        EXPECT_EQ(picture.deserialize(text, 0), 1) << text;
        EXPECT_EQ(picture.bNotification, 1u) << text;
        EXPECT_EQ(picture.lstEvents.count(), 0u) << text;
        EXPECT_EQ(picture.nChannel, -1) << text;
    }
}

TEST(ReqRealPicture, ReplyHasAResultAndNoEvents) {
    CReqRealPicture picture;
    picture.dwPacketSubType = CReqRealPicture::kPacketSubType;
    EXPECT_EQ(picture.nResult, 0xFFFFFFFFu);
    ASSERT_EQ(
        picture.deserialize(R"({"result":true,"params":{"info":{"Events":[{"Code":"TrafficStay","Data":{}}]}}})", 0),
        1);
    EXPECT_EQ(picture.bNotification, 0u);
    EXPECT_EQ(picture.nResult, 1u);
    EXPECT_EQ(picture.lstEvents.count(), 0u);
    EXPECT_EQ(picture.deserialize("{\"result\":", 0), 0);
}

TEST(ReqRealPicture, RefusesAnotherPacketType) {
    CReqRealPicture picture;
    EXPECT_EQ(picture.parseEventText("{}"), 0);
    EXPECT_EQ(picture.deserialize("{}", 0), 0);
    picture.dwPacketSubType = CReqRealPicture::kPacketSubType;
    EXPECT_EQ(picture.parseEventText("{}"), 1);
    EXPECT_EQ(picture.parseEventText("{"), 0);
    std::size_t length = 7;
    EXPECT_EQ(picture.serialize(length), nullptr);
    EXPECT_EQ(length, 0u);
}

// ---- Memory and threads ------------------------------------------------------------------------------------------

const std::string kBusyText = R"({"Event":[
    {"Code":"TrafficOverLine","Data":{"Object":{"Image":{"FilePath":"/object.jpg"}},
        "TrafficCar":{"DeviceAddress":"here","MachineAddress":"there","DetailedAddress":"exactly here"},
        "CommInfo":{"Drivers":[{"Image":{"FilePath":"/driver.jpg"}},{}],"Seat":[{"Type":"Main"}]}}},
    {"Code":"TrafficGate","Data":{"TrafficCar":{"DeviceAddress":"gate"},"CommInfo":{"Drivers":[{},{},{}]}}},
    {"Code":"TrafficAccident","Data":{"Objects":[{"Image":{"FilePath":"/a.jpg"}},{"Image":{"FilePath":"/b.jpg"}}]}}]})";

TEST(AnalyzerEvents, NothingStaysAllocated) {
    HeapWatch watch;
    for (int i = 0; i < 3; ++i)
        CLIENT_ParseAnalyzerEventData(kBusyText.c_str(), 0, Ignore, nullptr);
    EXPECT_EQ(watch.liveBlocks(), 0);
    EXPECT_LE(watch.allocations(), 3u * 3u * 4u) << "more than a handful an event";
}

TEST(AnalyzerEvents, EveryAllocationMayFail) {
    // Enough events that their records do not fit the first chunk, and a list of drivers that needs one of its own.
    std::string text = "{\"Event\":[";
    for (int i = 0; i < 20; ++i)
        text += kBusyText.substr(10, kBusyText.size() - 12) + ",";
    text += R"({"Code":"TrafficJam","Data":{"CommInfo":{"Drivers":[)";
    for (int i = 0; i < 1000; ++i)
        text += i == 0 ? "{}" : ",{}";
    text += "]}}}]}";
    ASSERT_EQ(CodesOf(text).size(), 61u);
    HeapWatch watch;
    CLIENT_ParseAnalyzerEventData(text.c_str(), 0, Ignore, nullptr);
    const std::size_t allocations = watch.allocations();
    ASSERT_GT(allocations, 0u);
    for (const bool onwards : {false, true}) {
        for (std::size_t n = 1; n <= allocations + 1; ++n) {
            if (onwards)
                watch.FailFrom(n);
            else
                watch.FailOnly(n);
            EXPECT_EQ(CLIENT_ParseAnalyzerEventData(
                          text.c_str(), 0,
                          [](std::uint32_t, const void* record, std::uint32_t size, void*, std::int32_t, void*) {
                              volatile unsigned sum = 0;
                              for (std::uint32_t i = 0; i < size; ++i)
                                  sum = sum + static_cast<const unsigned char*>(record)[i];
                              return std::int32_t{0};
                          },
                          nullptr),
                      1);
            watch.FailNone();
        }
    }
    EXPECT_EQ(watch.liveBlocks(), 0);
    // And afterwards all is well.
    EXPECT_EQ(CodesOf(kBusyText), (std::vector<std::uint32_t>{257, 24, 22}));
}

TEST(AnalyzerEvents, TextEndsAtItsTerminator) {
    GuardedBuffer text(std::string_view(kBusyText.c_str(), kBusyText.size() + 1));
    int count = 0;
    const EventVisitor visit = [&](const Delivered&) { ++count; };
    EXPECT_EQ(CLIENT_ParseAnalyzerEventData(text.data(), 5, VisitEvent, const_cast<EventVisitor*>(&visit)), 1);
    EXPECT_EQ(count, 3);
}

TEST(AnalyzerEvents, CallbackMayCallTheLibrary) {
    int inner = 0;
    int outer = 0;
    Decode(kBusyText, [&](const Delivered& event) {
        ++outer;
        const unsigned char first = *static_cast<const unsigned char*>(event.record);
        Decode(kBusyText, [&](const Delivered&) { ++inner; });
        EXPECT_EQ(*static_cast<const unsigned char*>(event.record), first);
    });
    EXPECT_EQ(outer, 3);
    EXPECT_EQ(inner, 9);
}

TEST(AnalyzerEventsThread, EightThreadsDecodeAtOnce) {
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([t] {
            for (int i = 0; i < 50; ++i) {
                const int lane = t * 1000 + i;
                DecodeOne("TrafficOverLine", "{\"Lane\":" + std::to_string(lane) + "}", [&](const Delivered& event) {
                    EXPECT_EQ(event.as<DEV_EVENT_TRAFFICOVERLINE_INFO>().nLane, lane);
                });
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace
