#include "bench/Events.h"

namespace orrery::bench {

namespace {

// '#' stands for a number between 0 and 99.
std::string Filled(std::string_view pattern, Dice& dice) {
    std::string text;
    for (const char c : pattern) {
        if (c == '#')
            text += std::to_string(dice.Below(100));
        else
            text += c;
    }
    return text;
}

constexpr std::string_view kObject =
    R"({ "ObjectID" : #, "ObjectType" : "Plate", "Confidence" : #, "Action" : "Appear", "BoundingBox" : [ #, #, #, # ], )"
    R"("Center" : [ #, # ], "Contour" : [ [ #, # ], [ #, # ], [ #, # ], [ #, # ] ], "MainColor" : [ #, #, #, 255 ], )"
    R"("Text" : "A12345", "Category" : "SaloonCar", "CarLogoIndex" : #, "SubBrand" : #, "BrandYear" : 2#, )"
    R"("Image" : { "Offset" : #, "Length" : 81#, "Width" : 64#, "Height" : 48#, "FilePath" : "/capture/#.jpg" }, )"
    R"("ShotFrame" : 1, "TimeType" : "Absolute", "CurrentTimeStamp" : { "UTC" : 17951670#, "UTCMS" : # }, )"
    R"("OriginalBoundingBox" : [ #, #, #, # ], "CurrentSequence" : #, "BeginSequence" : #, "EndSequence" : #, )"
    R"("ColorSimilar" : { "Red" : #, "Yellow" : #, "Green" : #, "Blue" : # }, "RelativeID" : #, "SubText" : "sub" })";

constexpr std::string_view kCar =
    R"({ "PlateNumber" : "A123#", "PlateType" : "Normal", "PlateColor" : "Blue", "VehicleColor" : "White", "Speed" : #, )"
    R"("Event" : "TrafficJunction", "ViolationCode" : "1301", "ViolationDesc" : "none", "LowerSpeedLimit" : #, )"
    R"("UpperSpeedLimit" : #, "OverSpeedMargin" : #, "UnderSpeedMargin" : #, "Lane" : #, "VehicleSize" : "Medium", )"
    R"("VehicleLength" : 4.#, "SnapshotMode" : #, "ChannelName" : "junction #", "MachineName" : "camera #", )"
    R"("MachineGroup" : "ring road", "RoadwayNo" : "R#", "DrivingDirection" : [ "Approach", "north", "south" ], )"
    R"("DeviceAddress" : "pole #", "Redundance" : [ 1, 2, 3 ], "MachineAddress" : "pole #", "ActualShutter" : 2.#, )"
    R"("ActualGain" : #, "Direction" : 3, "DetailedAddress" : "exactly here", "DefendCode" : "#", )"
    R"("TrafficBlackListID" : #, "VehicleColorRGB" : [ #, #, #, # ], "UTC" : 17951670#, "RecNo" : #, )"
    R"("CustomParkNo" : "P#", "ViolationName" : "none", "Weight" : #, "PhysicalLane" : # })";

constexpr std::string_view kCommInfo =
    R"({ "NTPCheckTime" : "Successful", "Seat" : [ { "Type" : "Main", "Status" : [ "Smoking" ], "SafeBelt" : "WithSafeBelt" }, )"
    R"({ "Type" : "Slave", "SunShade" : "WithSunShade" } ], "Attachment" : [ { "Type" : "Pendant", "Rect" : [ #, #, #, # ] } ], )"
    R"("AnnualInspection" : [ [ #, #, #, # ] ], "OriginalPictures" : [ { "Offset" : #, "Length" : # } ], )"
    R"("RFIDEleTagInfo" : { "CardID" : "#", "CardType" : #, "PlateNumber" : "A123#", "ThroughTime" : "2026-11-20 09:30:00" }, )"
    R"("Country" : "NL" })";

std::string Junction(Dice& dice) {
    const std::string object(kObject), car(kCar), info(kCommInfo);
    return Filled(
        R"({ "Event" : [ { "Action" : "Pulse", "Code" : "TrafficJunction", "Index" : 0, "Data" : { )"
        R"("Breaking" : [ "RunRedLight" ], "CardInfo" : [ { "CardNumber" : "#" } ], "CommInfo" : )"
            + info
            + R"(, "CountInGroup" : 3, "Custom" : { "GPS" : { "Longitude" : [ #, #, # ], "Latitude" : [ #, #, # ] }, )"
              R"("WeighInfo" : { "Rough" : #, "Tare" : #, "Net" : # } }, "EventID" : 10#, )"
              R"("Extension" : { "EventLongID" : "0123456789" }, "GroupID" : #, "IndexInGroup" : 1, )"
              R"("JunctionDirection" : "Obverse", "Lane" : #, "LightState" : 1, "MainSeat" : "WithSafeBelt", )"
              R"("Name" : "Junction rule #", "NonMotor" : { "Color" : "Red", "Image" : { "Offset" : #, "Length" : # } }, )"
              R"("NonMotorFeature" : { "Bag" : 1, "Hat" : 2, "Sex" : "Male", "Age" : #, "UpperBodyColor" : [ #, #, #, # ] }, )"
              R"("Object" : )"
            + object
            + R"(, "OpenStrobeState" : "Auto", "PTS" : 4294#.5, "RedLightUTC" : 17951670#, "RedLightUTCMS" : #, )"
              R"("SceneImage" : { "Offset" : #, "Length" : #, "Width" : #, "Height" : # }, "Sequence" : #, )"
              R"("SlaveSeat" : "WithoutSafeBelt", "Speed" : #, "TextSource" : #, "TrafficCar" : )"
            + car + R"(, "TriggerType" : 1, "UTC" : 17951670#, "UTCMS" : #, "Vehicle" : )" + object
            + R"(, "VehicleDirection" : "Head" } } ] })",
        dice);
}

constexpr std::string_view kKinds[] = {
    R"("Code" : "AccessControl", "Data" : { "CardNo" : "47#", "CardType" : 1, "EventID" : #, "Method" : #, )"
    R"("Name" : "door #", "PTS" : 42949.#, "ReaderID" : "#", "Status" : 1, "Type" : "Entry", "UTC" : 17951670#, )"
    R"("UserID" : "#" } })",
    R"("Code" : "VideoMotion", "Data" : { "EventID" : #, "GroupID" : #, "Name" : "yard", "PTS" : 42949.#, "UTC" : 17951670# } })",
    R"("Code" : "TrafficOverSpeed", "Data" : { "EventID" : #, "Lane" : #, "Object" : { "BoundingBox" : [ #, #, #, # ], )"
    R"("ObjectID" : #, "ObjectType" : "Plate" }, "PTS" : 42949.#, "Speed" : #, "SpeedLimit" : [ 40, 80 ], )"
    R"("TrafficCar" : { "PlateNumber" : "A123#", "Speed" : # }, "UTC" : 17951670# } })",
    R"("Code" : "HighSpeed", "Data" : { "CurSpeed" : #, "GPS" : { "Latitude" : [ #, #, # ], "Longitude" : [ #, #, # ], )"
    R"("Speed" : # }, "MaxSpeed" : #, "PTS" : 42949.#, "SpeedLimit" : #, "UTC" : 17951670# } })",
};

std::string ManyEvents(Dice& dice) {
    std::string text = R"({ "EventList" : [ )";
    for (int i = 0; i < 128; ++i) {
        if (i > 0) text += ", ";
        text += R"({ "Action" : "Start", )";
        text += Filled(kKinds[dice.Below(std::size(kKinds))], dice);
    }
    return text + " ] }";
}

std::string ShortEvent(Dice& dice) {
    return R"({ "Event" : [ { "Action" : "Start", "Index" : 1, )" + Filled(kKinds[dice.Below(std::size(kKinds))], dice)
           + " ] }";
}

std::string Typed(Dice& dice) {
    std::string text = R"({ "ObjectList" : [ )";
    for (int i = 0; i < 32; ++i)
        text += (i > 0 ? ", " : "") + Filled(kObject, dice);
    text += R"( ], "VideoAnalyseRule" : [ )";
    for (int i = 0; i < 8; ++i) {
        text += (i > 0 ? ", " : "");
        text += Filled(
            R"({ "Class" : "Normal", "Config" : { "DetectLine" : [ [ #, # ], [ #, # ] ], "Direction" : "LeftToRight", )"
            R"("SizeFilter" : { "MaxSize" : [ 8#, 8# ], "MinSize" : [ #, # ] }, "TriggerPosition" : [ "Center" ] }, )"
            R"("Enable" : true, "EventHandler" : { "BeepEnable" : true, "RecordChannels" : [ # ], )"
            R"("RecordEnable" : true }, "Id" : #, "Name" : "rule #", "ObjectTypes" : [ "Human", "Vehicle" ], )"
            R"("PtzPresetId" : #, "Type" : "CrossLineDetection" })",
            dice);
    }
    return text + " ] }";
}

Texts Made(std::string (*make)(Dice&), int variants) {
    Dice dice(20261120);
    Texts texts;
    for (int i = 0; i < variants; ++i)
        texts.push_back(make(dice));
    return texts;
}

} // namespace

EventBench::EventBench(const char* itsName, Texts itsTexts, std::size_t eventsPerText, Decoder itsDecoder)
    : name(itsName), texts(std::move(itsTexts)), events(eventsPerText), recordBytes(0), decoder(itsDecoder) {
    // As many bytes as the first text's records have.
    decoder(
        texts[0].c_str(), 0,
        [](uint32_t type, const void* record, uint32_t size, void*, int32_t, void* user) -> int32_t {
            auto& bytes = *static_cast<std::size_t*>(user);
            bytes += size;
            if (type == ORRERY_TYPED_VIDEO_ANALYSE_RULE) {
                bytes += static_cast<std::size_t>(static_cast<const EVENT_RULE_TABLE*>(record)->nRuleBufLen);
            }
            return 0;
        },
        &recordBytes);
    records.reset(new char[recordBytes]);
}

EventBench MakeJunctionBench(int variants) {
    return EventBench("events.junction", Made(Junction, variants), 1);
}
Texts MakeShortEventTexts(int variants) {
    return Made(ShortEvent, variants);
}
EventBench MakeManyEventsBench(int variants) {
    return EventBench("events.128", Made(ManyEvents, variants), 128);
}
EventBench MakeTypedBench(int variants) {
    return EventBench("events.typed", Made(Typed, variants), 2, CLIENT_ParseDataByCallback);
}

} // namespace orrery::bench
