// Measuring rods, calibrated areas, and calibration at each position of a camera.
#include "orrery/scenes.h"
#include "support/Call.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orrery::test {
namespace {

using Descriptor = CFG_VIDEOANALYSE_CALIBRATE_INFO;
using Scene = CFG_CALIBRATE_SCENE_INFO;
constexpr const char* kCommand = "VideoAnalyseCalibrate";

struct Positions {
    std::vector<Scene> scenes;
    Records<Descriptor> record{1};

    explicit Positions(std::size_t room) : scenes(room) { Describe(static_cast<std::int32_t>(room), 0); }
    void Describe(std::int32_t most, std::int32_t used) { record.Set(0, {most, used, scenes.data()}); }
    Answer Parse(const std::string& table) { return ParseTable(kCommand, table, record); }
    std::int32_t used() const { return record[0].nRet; }
    std::string Pack() const { return PackAll(kCommand, record); }
};
constexpr Answer kRead{1, 16};

TEST(VideoAnalyseCalibrate, GoesRoundWhole) {
    Positions positions(2);
    ASSERT_EQ(positions.Parse(R"([{"CalibrateArea":[{"Length":1.5,"Line":[[1,2],[3,4]],"Method":"Stereo","Type":""}],
        "Position":[0.25,0.5,0.125],"PtzPresetID":5,"SceneID":6},{"SceneID":7}])"),
              kRead);
    EXPECT_EQ(positions.used(), 2);
    const Scene& scene = positions.scenes[0];
    EXPECT_EQ(scene.nSceneId, 6);
    EXPECT_EQ(scene.nPtzPresetId, 5);
    EXPECT_EQ(scene.bCalibrateArea, 1);
    EXPECT_EQ(scene.nAreaNum, 1);
    EXPECT_EQ(scene.stuAreas[0].nMethod, CFG_CALIBRATE_BY_STEREO);
    EXPECT_EQ(scene.nPositionPan, 450);
    EXPECT_EQ(scene.nPositionTilt, -900);
    EXPECT_EQ(scene.nPositionZoom, 16);
    EXPECT_EQ(positions.scenes[1].nSceneId, 7);
    EXPECT_EQ(positions.scenes[1].bCalibrateArea, 0);
    positions.scenes[1].nPositionTilt = 450;
    EXPECT_EQ(positions.Pack(),
              R"([ { "CalibrateArea" : [ { "Length" : 1.500000000000000, "Line" : [ [ 1, 2 ], [ 3, 4 ] ], )"
              R"("Method" : "Stereo", "Type" : "" } ], "Position" : [ 0.2500000000000000, 0.5000000000000000, )"
              R"(0.1250000000000000 ], "PtzPresetID" : 5, "SceneID" : 6 }, )"
              R"({ "Position" : [ 0.000000000000000, -0.2500000000000000, 0 ], "PtzPresetID" : 0, "SceneID" : 7 } ])");
}

TEST(VideoAnalyseCalibrate, FillsAsManyAsThereIsRoomFor) {
    Positions positions(3);
    positions.Describe(2, 9);
    EXPECT_EQ(positions.Parse(R"([{"SceneID":1},null,{"SceneID":3}])"), kRead);
    EXPECT_EQ(positions.used(), 2);
    EXPECT_EQ(positions.scenes[0].nSceneId, 1);
    EXPECT_EQ(positions.scenes[2].nSceneId, 0);
    EXPECT_EQ(positions.Parse("[]"), kRead);
    EXPECT_EQ(positions.used(), 0);
    EXPECT_EQ(positions.scenes[0].nSceneId, 1); // in place: what the text does not tell stays
    EXPECT_EQ(positions.Pack(), "[  ]");
    positions.Describe(-1, 0);
    EXPECT_EQ(positions.Parse(R"([{"SceneID":4}])"), kRead);
    EXPECT_EQ(positions.used(), 0);
}

TEST(VideoAnalyseCalibrate, RefusesWhatIsNoListOfScenes) {
    for (const char* table : {"null", "{}", "7", "\"x\"", "true"}) {
        Positions positions(2);
        EXPECT_EQ(positions.Parse(table), kRefused) << table;
    }
    const Records<Descriptor> none(1);
    EXPECT_EQ(ParseTable(kCommand, "[]", none), kRefused); // no array of the caller's
    Positions positions(1);
    std::uint32_t length = kNoLength;
    EXPECT_EQ(
        CLIENT_ParseData(kCommand, R"({"result":false,"params":{"table":[]}})", positions.record.data(), 16, &length),
        1);
    EXPECT_EQ(CLIENT_ParseData(kCommand, R"({"params":{"table":[]}})", positions.record.data(), 15, &length), 0);
}

TEST(VideoAnalyseCalibrate, AnElementThatIsNoSceneEndsTheList) {
    for (const char* none : {"[]", "7", "\"x\"", "true", "1.5"}) {
        const std::string table = std::string(R"([{"SceneID":4},)") + none + R"(,{"SceneID":6}])";
        Positions positions(3);
        EXPECT_EQ(positions.Parse(table), (Answer{0, 16})) << none;
        EXPECT_EQ(positions.scenes[0].nSceneId, 4) << none; // those in front of it stand
        EXPECT_EQ(positions.scenes[2].nSceneId, 0) << none;
        // What there is no room for is not looked at.
        positions.Describe(1, 0);
        EXPECT_EQ(positions.Parse(table), kRead) << none;
        EXPECT_EQ(positions.used(), 1) << none;
        positions.Describe(2, 0);
        EXPECT_EQ(positions.Parse(table).result, 0) << none;
    }
}

TEST(VideoAnalyseCalibrate, AnEmptyListOfAreasLeavesTheAreas) {
    Positions positions(1);
    positions.scenes[0].nAreaNum = 3;
    positions.scenes[0].stuAreas[2].fLength = 5;
    EXPECT_EQ(positions.Parse(R"([{"CalibrateArea":[],"PtzPresetID":7}])"), kRead);
    EXPECT_EQ(positions.scenes[0].bCalibrateArea, 1);
    EXPECT_EQ(positions.scenes[0].nPtzPresetId, 7);
    EXPECT_EQ(positions.scenes[0].nAreaNum, 3);
    EXPECT_EQ(positions.scenes[0].stuAreas[2].fLength, 5);
    EXPECT_EQ(positions.Parse(R"([{"CalibrateArea":[{"Length":2}]}])"), kRead);
    EXPECT_EQ(positions.scenes[0].nAreaNum, 1);
    EXPECT_EQ(positions.scenes[0].stuAreas[0].fLength, 2);
}

TEST(VideoAnalyseCalibrate, PacksNothingFromNowhere) {
    Records<Descriptor> record(1);
    EXPECT_EQ(PackAll(kCommand, record), "[  ]");
    record.Set(0, {1, 1, nullptr});
    char text[64];
    EXPECT_EQ(CLIENT_PacketData(kCommand, record.data(), 16, text, sizeof text), 0);
    record.Set(0, {1, -1, nullptr});
    EXPECT_EQ(PackAll(kCommand, record), "[  ]");
}

TEST(VideoAnalyseCalibrate, AreasThatAreNoListTakeThePresetWithThem) {
    Positions positions(4);
    ASSERT_EQ(positions.Parse(R"([{"PtzPresetID":1,"CalibrateArea":7},{"PtzPresetID":2,"CalibrateArea":[]},
        {"PtzPresetID":3},{"PtzPresetID":4,"CalibrateArea":{}}])"),
              kRead);
    EXPECT_EQ(positions.scenes[0].nPtzPresetId, 0);
    EXPECT_EQ(positions.scenes[0].bCalibrateArea, 1);
    EXPECT_EQ(positions.scenes[1].nPtzPresetId, 2);
    EXPECT_EQ(positions.scenes[1].bCalibrateArea, 1);
    EXPECT_EQ(positions.scenes[2].nPtzPresetId, 3);
    EXPECT_EQ(positions.scenes[2].bCalibrateArea, 0);
    EXPECT_EQ(positions.scenes[3].nPtzPresetId, 0);
    std::string areas = "{}";
    for (int i = 1; i < 11; ++i)
        areas += ",{\"Length\":" + std::to_string(i) + "}";
    ASSERT_EQ(positions.Parse("[{\"CalibrateArea\":[" + areas + "]}]"), kRead);
    EXPECT_EQ(positions.scenes[0].nAreaNum, 10);
    EXPECT_EQ(positions.scenes[0].stuAreas[9].fLength, 9.0f);
}

Scene ReadPosition(const std::string& position) {
    Positions positions(1);
    positions.scenes[0].nPositionPan = 11;
    positions.scenes[0].nPositionTilt = 12;
    positions.scenes[0].nPositionZoom = 13;
    EXPECT_EQ(positions.Parse("[{\"Position\":" + position + "}]"), kRead);
    return positions.scenes[0];
}

TEST(VideoAnalyseCalibrate, PositionsAreScaled) {
    struct Case {
        const char* text;
        std::int32_t pan, tilt, zoom;
    };
    for (const Case& one : {
             Case{"[1.0,0.5,0.5]", 1800, -900, 64},
             Case{"[0,0,0]", 0, 0, 0},
             Case{"[-1,-1,1]", 1800, 1800, 128},
             Case{"[-0.25,1,0.0079]", 3150, -1800, 1}, // 0.0079 x 128 + 0.5 = 1.5
             Case{"[0.0003,0.0003,0.0038]", 1, -1, 0}, // 0.54 and -0.54 away from 0 by a half, 0.986
             Case{"[1.01,0.5,1.01]", 0, -900, 0},      // out of range
             Case{"[-1.01,-0.5,-0.1]", 0, 900, 0},
             Case{"[0.5,2.0,0.5]", 0, 12, 64}, // the tilt takes the pan with it and stays
             Case{"[0.5,-1.5,0.5]", 0, 12, 64},
             Case{"[0.5,0.5]", 11, 12, 13}, // not three numbers
             Case{"[0.5,0.5,0.5,0.5]", 11, 12, 13},
             Case{"[0.5,\"0.5\",0.5]", 11, 12, 13},
             Case{"[0.5,null,0.5]", 11, 12, 13},
             Case{"7", 11, 12, 13},
         }) {
        const Scene scene = ReadPosition(one.text);
        EXPECT_EQ(scene.nPositionPan, one.pan) << one.text;
        EXPECT_EQ(scene.nPositionTilt, one.tilt) << one.text;
        EXPECT_EQ(scene.nPositionZoom, one.zoom) << one.text;
    }
}

TEST(VideoAnalyseCalibrate, PositionsOutOfRangeAreWrittenAsZero) {
    struct Case {
        std::int32_t pan, tilt, zoom;
        const char* text;
    };
    for (const Case& one : {
             Case{900, -900, 64, "[ 0.5000000000000000, 0.5000000000000000, 0.5000000000000000 ]"},
             Case{1800, 1800, 128, "[ -1.000000000000000, -1.000000000000000, 1.000000000000000 ]"},
             Case{3600, 900, 1, "[ 0.000000000000000, -0.5000000000000000, 0.007812500000000000 ]"},
             Case{3601, 1801, 129, "[ 0, 0, 0 ]"},
             Case{-1, -18001, 0, "[ 0, 0, 0 ]"},
             Case{2700, -18000, 2, "[ -0.5000000000000000, 10.00000000000000, 0.01562500000000000 ]"},
         }) {
        Positions positions(1);
        positions.Describe(1, 1);
        positions.scenes[0].nPositionPan = one.pan;
        positions.scenes[0].nPositionTilt = one.tilt;
        positions.scenes[0].nPositionZoom = one.zoom;
        EXPECT_NE(positions.Pack().find(std::string("\"Position\" : ") + one.text), std::string::npos)
            << positions.Pack() << one.text;
    }
}

// ---- Areas ---------------------------------------------------------------------------------------------------------

Scene ReadAreas(const std::string& areas) {
    Positions positions(1);
    EXPECT_EQ(positions.Parse("[{\"CalibrateArea\":[" + areas + "]}]"), kRead);
    return positions.scenes[0];
}
std::string WrittenAreas(const Scene& scene) {
    Positions positions(1);
    positions.Describe(1, 1);
    positions.scenes[0] = scene;
    return positions.Pack();
}

TEST(CalibrateArea, CornersCloseUpWhileTheyCount) {
    const Scene scene = ReadAreas(R"({"Line":[[1,2],null,[3],[4,5],7,[6,7,8]],"Area":{"a":[1,2]}})");
    const CFG_CALIBRATE_AREA& area = scene.stuAreas[0];
    EXPECT_EQ(area.nLinePoint, 5); // all but the null
    EXPECT_EQ(area.stuLine[0].nX, 1);
    EXPECT_EQ(area.stuLine[1].nX, 4);
    EXPECT_EQ(area.stuLine[2].nY, 7);
    EXPECT_EQ(area.stuLine[3].nX, 0);
    EXPECT_EQ(area.nAreaPoint, 0);
    EXPECT_NE(WrittenAreas(scene).find(R"("Line" : [ [ 1, 2 ], [ 4, 5 ], [ 6, 7 ], [ 0, 0 ], [ 0, 0 ] ])"),
              std::string::npos);
    std::string many = "[1,2]";
    for (int i = 0; i < 20; ++i)
        many += ",[3,4]";
    Scene most = ReadAreas("{\"Area\":[" + many + "]}");
    EXPECT_EQ(most.stuAreas[0].nAreaPoint, 20);
    EXPECT_EQ(most.stuAreas[0].nStaffNum, 0);
    most.stuAreas[0].nAreaPoint = 21; // ends at the field
    const std::string text = WrittenAreas(most);
    std::size_t corners = 0;
    for (std::size_t at = text.find("[ 3, 4 ]"); at != std::string::npos; at = text.find("[ 3, 4 ]", at + 1))
        ++corners;
    EXPECT_EQ(corners, 19u);
    EXPECT_EQ(ReadAreas(R"({"Area":[]})").stuAreas[0].nAreaPoint, 0);
    EXPECT_EQ(WrittenAreas(ReadAreas(R"({"Area":[]})")).find("\"Area\""), std::string::npos);
}

TEST(CalibrateArea, StaffsEndAtTheirRoomAndNullsDoNotCount) {
    std::string staffs = "{},null";
    for (int i = 2; i < 21; ++i)
        staffs += ",{\"Length\":" + std::to_string(i) + "}";
    const Scene scene = ReadAreas("{\"Staffs\":[" + staffs + "]}");
    EXPECT_EQ(scene.stuAreas[0].nStaffNum, 19); // twenty places, one of them a null
    EXPECT_EQ(scene.stuAreas[0].stuStaffs[1].fLength, 0.0f);
    EXPECT_EQ(scene.stuAreas[0].stuStaffs[2].fLength, 2.0f);
    EXPECT_EQ(scene.stuAreas[0].stuStaffs[19].fLength, 19.0f);
    EXPECT_EQ(scene.stuAreas[0].nMethod, 0);
}

TEST(CalibrateArea, ATypeIsKnownInItsPlaceAlone) {
    const Scene scene = ReadAreas(R"({"Type":""},{"Type":"GROUD"},{"Type":"Horizontal"},{"Type":"Vertical"},
        {"Type":"Any"},{"Type":"Any"})");
    for (std::int32_t i = 0; i < 5; ++i)
        EXPECT_EQ(scene.stuAreas[i].nType, i);
    EXPECT_EQ(scene.stuAreas[5].nType, 0);
    const Scene elsewhere = ReadAreas(R"({"Type":"Groud"},{"Type":"Horizontal"},{},{"Type":"vertical"})");
    EXPECT_EQ(elsewhere.stuAreas[0].nType, 0);
    EXPECT_EQ(elsewhere.stuAreas[1].nType, 0);
    EXPECT_EQ(elsewhere.stuAreas[3].nType, CFG_CALIBRATE_AREA_VERTICAL);
    Scene written = scene;
    for (const char* type : {"", "Groud", "Horizontal", "Vertical", "Any"})
        EXPECT_NE(WrittenAreas(written).find(std::string("\"Type\" : \"") + type + "\" }"), std::string::npos) << type;
    written.nAreaNum = 1;
    written.stuAreas[0].nType = 5;
    EXPECT_EQ(WrittenAreas(written).find("\"Type\""), std::string::npos);
}

TEST(CalibrateArea, CodesGoBothWays) {
    const char* const methods[] = {"Scene", "Lane", "Plate", "Stereo"};
    const char* const types[] = {"Horizontal", "Vertical", "Any", "Cross"};
    const char* const methodsInOtherCase[] = {"sCENE", "LANE", "plate", "stereo"};
    const char* const typesInOtherCase[] = {"HORIZONTAL", "vertical", "aNY", "cross"};
    for (std::int32_t i = 0; i < 4; ++i) {
        const auto text = [](const char* method, const char* type) {
            return std::string("{\"Method\":\"") + method + "\",\"Staffs\":[{\"Type\":\"" + type + "\"}]}";
        };
        const Scene scene = ReadAreas(text(methods[i], types[i]));
        EXPECT_EQ(scene.stuAreas[0].nMethod, i + 1);
        EXPECT_EQ(scene.stuAreas[0].stuStaffs[0].nType, i + 1);
        const Scene other = ReadAreas(text(methodsInOtherCase[i], typesInOtherCase[i]));
        EXPECT_EQ(other.stuAreas[0].nMethod, i + 1);
        EXPECT_EQ(other.stuAreas[0].stuStaffs[0].nType, i + 1);
        const std::string written = WrittenAreas(scene);
        EXPECT_NE(written.find(std::string("\"Method\" : \"") + methods[i] + "\""), std::string::npos);
        EXPECT_NE(written.find(std::string("\"Type\" : \"") + types[i] + "\" } ]"), std::string::npos);
    }
    Scene scene = ReadAreas(R"({"Method":"Guess","Staffs":[{"Type":"Ground","Start":[1],"End":7}]})");
    EXPECT_EQ(scene.stuAreas[0].nMethod, 0);
    EXPECT_EQ(scene.stuAreas[0].stuStaffs[0].nType, 0);
    EXPECT_EQ(scene.stuAreas[0].stuStaffs[0].nStartX, 0);
    for (const std::int32_t code : {0, 5, -1}) {
        scene.stuAreas[0].nMethod = code;
        scene.stuAreas[0].stuStaffs[0].nType = code;
        const std::string written = WrittenAreas(scene);
        EXPECT_EQ(written.find("\"Method\""), std::string::npos);
        EXPECT_NE(written.find(R"("Start" : [ 0, 0 ] } ])"), std::string::npos);
    }
}

} // namespace
} // namespace orrery::test
