#include "orrery/events_common.h"
#include "orrery/events_other_fleet.h"
#include "orrery/types.h"
#include "support/Events.h"

#include <gtest/gtest.h>

namespace {

using namespace orrery::test;

TEST(VehicleACC, OnOffAndUntold) {
    const auto states = [](const char* data) {
        std::pair<int, int> found{-1, -1};
        EXPECT_TRUE(DecodeOne("VehicleACC", data, [&](const Delivered& event) {
            const auto& ignition = event.as<DEV_EVENT_VEHICLEACC_INFO>();
            found = {ignition.emACCStatus, ignition.emConstantElectric};
        }));
        return found;
    };
    EXPECT_EQ(states("{}"), std::pair(0, 0));
    EXPECT_EQ(states(R"({"Status":"On","ConstantElectricStatus":"Off"})"), std::pair(1, 2));
    EXPECT_EQ(states(R"({"Status":"Whatever","ConstantElectricStatus":"On"})"), std::pair(2, 1));
    EXPECT_EQ(states(R"({"Status":"ON","ConstantElectricStatus":"oN"})"), std::pair(1, 1));
    EXPECT_EQ(states(R"({"Status":"","ConstantElectricStatus":null})"), std::pair(2, 0));
}

// Where a terminal tells nothing of its antenna, nothing is known of it; without "GPS" the status is empty.
TEST(VehicleACC, StatusOfTheTerminal) {
    EXPECT_TRUE(DecodeOne("VehicleACC", R"({"GPS":{}})", [](const Delivered& event) {
        const EVENT_GPS_STATUS& status = event.as<DEV_EVENT_VEHICLEACC_INFO>().stuGPSStatus;
        EXPECT_EQ(status.byAntennasStatus, EVENT_STATE_UNKNOWN);
        EXPECT_EQ(status.byPositioningResult, EVENT_STATE_UNKNOWN);
    }));
    EXPECT_TRUE(DecodeOne("VehicleACC", "{}", [](const Delivered& event) {
        const EVENT_GPS_STATUS& status = event.as<DEV_EVENT_VEHICLEACC_INFO>().stuGPSStatus;
        EXPECT_EQ(status.byAntennasStatus, 0);
        EXPECT_EQ(status.byPositioningResult, 0);
    }));
}

TEST(VehicleACC, SourcesOfThePosition) {
    const auto source = [](const char* name) {
        int found = -1;
        EXPECT_TRUE(DecodeOne(
            "VehicleACC", "{\"GPS\":{\"Source\":\"" + std::string(name) + "\"}}",
            [&](const Delivered& event) { found = event.as<DEV_EVENT_VEHICLEACC_INFO>().stuGPSStatus.emSource; }));
        return found;
    };
    EXPECT_EQ(source("GPS"), 0);
    EXPECT_EQ(source("InertialNavigation"), 1);
    EXPECT_EQ(source("inertialNAVIGATION"), 1);
    EXPECT_EQ(source("Map"), 0);
}

TEST(HighSpeed, StartIsAText) {
    EXPECT_TRUE(DecodeOne("HighSpeed", R"({"StartTime":"2026-11-20 09:30:08.009"})", [](const Delivered& event) {
        const NET_TIME_EX& start = event.as<DEV_EVENT_HIGHSPEED_INFO>().stuStartTime;
        EXPECT_EQ(start.dwYear, 2026u);
        EXPECT_EQ(start.dwMillisecond, 9u);
    }));
    EXPECT_TRUE(DecodeOne("HighSpeed", R"({"StartTime":1000000000})", [](const Delivered& event) {
        EXPECT_EQ(event.as<DEV_EVENT_HIGHSPEED_INFO>().stuStartTime.dwYear, 0u);
    }));
}

TEST(TrafficFcc, Fuels) {
    const char* const fuels[] = {"",   "98#", "97#",  "95#",  "93#",  "90#", "10#",
                                 "5#", "0#",  "-10#", "-20#", "-35#", "-50#"};
    for (std::size_t i = 0; i < std::size(fuels); ++i) {
        EXPECT_TRUE(
            DecodeOne("TrafficFcc", "{\"Type\":\"" + std::string(fuels[i]) + "\"}", [&](const Delivered& event) {
                EXPECT_EQ(event.as<DEV_EVENT_TRAFFICFCC_INFO>().emType, static_cast<int>(i)) << fuels[i];
            }));
    }
    EXPECT_TRUE(DecodeOne("TrafficFcc", R"({"Type":"92#"})", [](const Delivered& event) {
        EXPECT_EQ(event.as<DEV_EVENT_TRAFFICFCC_INFO>().emType, EVENT_FUEL_UNKNOWN);
    }));
}

TEST(TrafficEleTagInfo, SixteenChannelsAtMost) {
    EXPECT_TRUE(DecodeOne("TrafficEleTagInfo", R"({"LinkChannel":[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17]})",
                          [](const Delivered& event) {
                              const auto& tag = event.as<DEV_EVENT_TRAFFICELETAGINFO_INFO>();
                              EXPECT_EQ(tag.nLinkChannelNum, 16);
                              EXPECT_EQ(tag.nLinkChannel[15], 16);
                          }));
}

} // namespace
