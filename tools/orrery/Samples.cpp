#include "orrery/Samples.h"

#include <iterator>
#include <string_view>

namespace orrery::tool {

using namespace record;

namespace {

// Of functions that only read, which bring no text of their own that they would write.
struct Sample {
    std::string_view record, key;
    const char* json;
};
constexpr Sample kSamples[] = {
    {"CFG_AUDIOANALYSECAPS_INFO", "SupportedRules", R"({"AudioAbnormalDetection": {}})"},
    {"CFG_DIAGNOSIS_PROJECT_TASK", "TimeSection", R"([["1 08:00:00-17:30:00"]])"},
    {"CFG_ENCODE_NAA_CAPS", "MainIPSmooth", "[2, 4]"},
    {"CFG_RULE_CAPS", "FeatureSupport", "1"},
    {"CFG_RULE_TRAFFICGATE_INFO", "Config/SpeedLimit", "[20, 60]"},
    {"CFG_RULE_TRAFFICJUNCTION_INFO", "Config/SpeedLimit", "[20, 60]"},
    {"CFG_RULE_TRAFFICSPEED_INFO", "Config/SpeedLimit", "[20, 60]"},
    {"CFG_TRAFFICGLOBAL_INFO", "Calibration/PeriodOfValidity", R"(["2026-11-20 09:30:00", "2026-12-20 09:30:00"])"},
    {"DEV_EVENT_ACCESSCONTROL_INFO", "CardType", "1"},
    {"DEV_EVENT_CITIZENIDCARD_INFO", "Sex", "2"},
    {"DEV_EVENT_CITIZENPICTURECOMPARE_INFO", "Sex", "2"},
    {"DEV_EVENT_FACEDETECTION_INFO", "Beard", "1"},
    {"DEV_EVENT_FACEDETECTION_INFO", "Eye", "1"},
    {"DEV_EVENT_FACEDETECTION_INFO", "Mask", "1"},
    {"DEV_EVENT_FACEDETECTION_INFO", "Mouth", "1"},
    {"DEV_EVENT_FACEDETECTION_INFO", "Race", "1"},
    {"DEV_EVENT_FACERECOGNITION_INFO", "Face/Beard", "1"},
    {"DEV_EVENT_FACERECOGNITION_INFO", "Face/Eye", "1"},
    {"DEV_EVENT_FACERECOGNITION_INFO", "Face/Mask", "1"},
    {"DEV_EVENT_FACERECOGNITION_INFO", "Face/Mouth", "1"},
    {"DEV_EVENT_FACERECOGNITION_INFO", "Face/Race", "1"},
    {"DEV_EVENT_HUMANTRAIT_INFO", "DetectObject", "1"},
    {"DEV_EVENT_PICINFO_INFO", "Type", R"("CrossLineDetection")"},
    {"DEV_EVENT_TRAFFICSNAPSHOT_INFO", "CarWayInfo", R"([{"SigInfo": [{}]}])"},
    {"DEV_EVENT_XRAYDETECTION_INFO", "Packet/Grade", "1"},
    {"EVENT_FACE_ATTRIBUTES", "Glass", "1"},
    {"EVENT_GATE_CAR_INFO", "DrivingDirection", R"(["Approach", "North", "South"])"},
    {"EVENT_GPS_STATUS", "AlarmPoints", "[1, 2]"},
    {"EVENT_HUMAN_ATTRIBUTES", "CoatType", "1"},
    {"EVENT_HUMAN_ATTRIBUTES", "HasBag", "1"},
    {"EVENT_HUMAN_ATTRIBUTES", "HasHat", "1"},
    {"EVENT_HUMAN_ATTRIBUTES", "TrousersType", "1"},
    {"EVENT_OBJECT_INFO", "Action", R"("Removed")"}, // its last character is not looked at
    {"EVENT_OBJECT_INFO_EX", "Action", R"("Removed")"},
    {"EVENT_PERSON_INFO", "Birthday", R"("1990-05-17")"},
    {"EVENT_PERSON_INFO_EX", "Birthday", R"("1990-05-17")"},
    {"EVENT_RFID_TAG_INFO", "ThroughTime", R"("2026-11-20 09:30:00")"},
    {"EVENT_SEAT_INFO", "Status", R"(["Smoking", "Calling"])"},
    {"EVENT_TRAFFIC_CAR_INFO", "DrivingDirection", R"(["Approach", "North", "South"])"},
};

} // namespace

const char* SampleOf(const Table& table, const Field& field) {
    if (field.custom == nullptr) return nullptr;
    if (field.custom->sample != nullptr) return field.custom->sample;
    if (field.key == nullptr || field.custom->read == nullptr) return nullptr;
    for (const Sample& sample : kSamples)
        if (sample.record == table.record && sample.key == field.key) return sample.json;
    return nullptr;
}

std::size_t SamplesToldHere() {
    return std::size(kSamples);
}

} // namespace orrery::tool
