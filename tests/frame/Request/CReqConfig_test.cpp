#include "frame/Request/CReqConfig.h"

#include "network/Multicast.h"
#include "support/FailingAllocator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace orrery {
namespace {

std::string Serialized(CReqConfig& request) {
    std::size_t length = 0;
    const char* const text = request.serialize(length);
    if (text == nullptr) return "(none)";
    EXPECT_EQ(std::strlen(text), length);
    return text;
}

TEST(CReqConfig, FieldsStandInTheirOrder) {
    CReqConfig request;
    const void* const fields[] = {&request.nRequestType, &request.nPacketId, &request.nSequence,
                                  &request.nFlags,       &request.nError,    &request.nResult,
                                  &request.nSessionId,   &request.nObjectId, &request.pPayload};
    EXPECT_TRUE(std::is_sorted(std::begin(fields), std::end(fields)));
    EXPECT_EQ(offsetof(CFG_DELETE_PARAM, dwOptions), 8u);
    EXPECT_EQ(offsetof(CFG_MEMBER_NAME, szBuffer), 8u);
    EXPECT_EQ(offsetof(CFG_MEMBER_NAME, nBufferSize), 16u);
    EXPECT_EQ(offsetof(CFG_MEMBER_NAMES, nMaxCount), 8u);
    EXPECT_EQ(offsetof(CFG_MEMBER_NAMES, nRetCount), 12u);
    EXPECT_EQ(offsetof(CFG_MEMBER_NAMES, pNames), 16u);
}

TEST(CReqConfig, WritesGetMemberNames) {
    CFG_MEMBER_NAMES payload{"Encode", 0, 0, nullptr};
    CReqConfig request;
    request.nRequestType = 0x70004;
    request.nPacketId = 5;
    request.nSessionId = 123;
    request.pPayload = &payload;
    EXPECT_EQ(Serialized(request), R"({ "id" : 5, "method" : "configManager.getMemberNames", "object" : 0, )"
                                   R"("params" : { "name" : "Encode" }, "session" : 123 })"
                                   "\n");
}

TEST(CReqConfig, WritesDeleteConfig) {
    CFG_DELETE_PARAM payload{"A/B", 0};
    CReqConfig request;
    request.nRequestType = 0x70002;
    request.nPacketId = 0xFFFFFFFF; // written without a sign
    request.nObjectId = 0x80000000;
    request.nSessionId = 1;
    request.pPayload = &payload;
    EXPECT_EQ(Serialized(request), R"({ "id" : 4294967295, "method" : "configManager.deleteConfig", )"
                                   R"("object" : 2147483648, "params" : { "name" : "A\/B" }, "session" : 1 })"
                                   "\n");
    payload.szName = nullptr;
    EXPECT_NE(Serialized(request).find(R"("name" : null)"), std::string::npos);
}

TEST(CReqConfig, OtherTypesHaveNoMethod) {
    CReqConfig request;
    request.nRequestType = 0x70006;
    EXPECT_EQ(Serialized(request), "{ \"id\" : 0, \"object\" : 0, \"params\" : {  }, \"session\" : 0 }\n");
}

TEST(CReqConfig, NoTextWhenMemoryRunsOut) {
    CReqConfig request;
    std::size_t length = 7;
    const char* text = "";
    {
        test::HeapWatch heap;
        heap.FailOnly(1);
        text = request.serialize(length);
    }
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(length, 0u);
}

// ---- Replies ----

TEST(CReqConfig, ATextThatIsNoJsonGivesZero) {
    CReqConfig request;
    for (const char* text : {"", "{", "{ \"result\" : }"})
        EXPECT_EQ(request.deserialize(text, 0), 0) << text;
    EXPECT_EQ(request.deserialize(nullptr, 0), 0);
    EXPECT_EQ(request.getError(), -1);
    EXPECT_EQ(request.nResult, -1);
}

TEST(CReqConfig, TheResultIsKeptNotReturned) {
    struct {
        const char* text;
        std::int32_t error, result;
    } const cases[] = {
        {R"({ "params" : { } })", -1, -1},    {R"({ "result" : null })", -1, -1}, {R"({ "result" : false })", 0, 0},
        {R"({ "result" : true })", 0, 1},     {R"({ "result" : 0 })", 0, 0},      {R"({ "result" : "no" })", 0, 1},
        {R"({ "result" : true } xyz)", 0, 1},
    };
    for (const auto& [text, error, result] : cases) {
        for (const std::uint32_t type : {0x70002u, 0x70004u, 0x70006u}) {
            CReqConfig request;
            request.nRequestType = type;
            EXPECT_EQ(request.deserialize(text, 1), 1) << text; // the length is not looked at
            EXPECT_EQ(request.getError(), error) << text;
            EXPECT_EQ(request.nResult, result) << text;
            EXPECT_FALSE(request.hasRead());
        }
    }
}

std::uint32_t OptionsOf(const std::string& options, std::uint32_t before = 0) {
    CFG_DELETE_PARAM payload{"x", before};
    CReqConfig request;
    request.nRequestType = CReqConfig::kDeleteConfig;
    request.pPayload = &payload;
    EXPECT_EQ(request.deserialize((R"({ "result" : true, "params" : { "options" : )" + options + " } }").c_str(), 0),
              1);
    return payload.dwOptions;
}

TEST(CReqConfig, OptionsAreAddedUp) {
    EXPECT_EQ(OptionsOf(R"([ "NeedRestart" ])"), 1u);
    EXPECT_EQ(OptionsOf(R"([ "NeedReboot" ])"), 2u);
    EXPECT_EQ(OptionsOf(R"([ "WriteFileError" ])"), 4u);
    EXPECT_EQ(OptionsOf(R"([ "CapsNotSupport" ])"), 8u);
    EXPECT_EQ(OptionsOf(R"([ "ValidateFailed" ])"), 16u);
    EXPECT_EQ(OptionsOf(R"([ "needrestart", "VALIDATEFAILED" ])"), 17u);
    EXPECT_EQ(OptionsOf(R"([ "NeedReboot", "NeedReboot" ])"), 4u);
    EXPECT_EQ(OptionsOf(R"([ "Other", 5, null, "NeedReboot " ])"), 0u);
    EXPECT_EQ(OptionsOf("[ ]"), 0u);
    EXPECT_EQ(OptionsOf("\"NeedReboot\""), 0u);
    EXPECT_EQ(OptionsOf("null", 8), 8u);
    EXPECT_EQ(OptionsOf(R"([ "NeedRestart" ])", 8), 9u);
}

TEST(CReqConfig, TakesThirtyTwoOptions) {
    std::string options = "[ \"NeedRestart\"";
    for (int i = 1; i < 40; ++i)
        options += ", \"NeedRestart\"";
    EXPECT_EQ(OptionsOf(options + " ]"), 32u);
}

TEST(CReqConfig, NamesAreCutAtTheirBuffers) {
    char whole[16], exact[16], cut[16], none[16], without[16];
    for (char* buffer : {whole, exact, cut, none, without})
        std::memset(buffer, '#', 16);
    CFG_MEMBER_NAME names[] = {{0, whole, 16}, {0, exact, 6},    {0, cut, 5},
                               {0, none, 0},   {0, nullptr, 16}, {0, without, 16}};
    CFG_MEMBER_NAMES payload{"x", 6, -1, names};
    CReqConfig request;
    request.nRequestType = CReqConfig::kGetMemberNames;
    request.pPayload = &payload;
    ASSERT_EQ(
        request.deserialize(
            R"({ "result" : true, "params" : { "names" : [ "first", "first", "first", "first", "first", 7, "eighth" ] } })",
            0),
        1);
    EXPECT_TRUE(request.hasRead());
    EXPECT_EQ(payload.nRetCount, 6);
    for (const CFG_MEMBER_NAME& name : names)
        EXPECT_EQ(name.dwSize, 24u);
    EXPECT_EQ(names[0].nBufferSize, 6);
    EXPECT_EQ(std::string_view(whole, 8), std::string_view("first\0##", 8));
    EXPECT_EQ(names[1].nBufferSize, 6);
    EXPECT_EQ(std::string_view(exact, 8), std::string_view("first\0##", 8));
    EXPECT_EQ(names[2].nBufferSize, 5);
    EXPECT_EQ(std::string_view(cut, 6), "first#") << "no terminator: the last byte is the name's";
    EXPECT_EQ(names[3].nBufferSize, 0);
    EXPECT_EQ(none[0], '#');
    EXPECT_EQ(names[4].nBufferSize, 6);
    EXPECT_EQ(names[5].nBufferSize, 1) << "a number has no text";
    EXPECT_EQ(std::string_view(without, 2), std::string_view("\0#", 2));
}

TEST(CReqConfig, NamesAreNotConverted) {
    char buffer[8] = {};
    CFG_MEMBER_NAME name{0, buffer, 8};
    CFG_MEMBER_NAMES payload{"x", 1, 0, &name};
    CReqConfig request;
    request.nRequestType = CReqConfig::kGetMemberNames;
    request.pPayload = &payload;
    ASSERT_EQ(request.deserialize("{ \"result\" : true, \"params\" : { \"names\" : [ \"\xE9\xC3\xA9\" ] } }", 0), 1);
    EXPECT_STREQ(buffer, "\xE9\xC3\xA9");
}

TEST(CReqConfig, CountsOfNames) {
    CFG_MEMBER_NAME names[2] = {};
    const auto counted = [&](std::int32_t most, CFG_MEMBER_NAME* where, const char* value) {
        CFG_MEMBER_NAMES payload{"x", most, -7, where};
        CReqConfig request;
        request.nRequestType = CReqConfig::kGetMemberNames;
        request.pPayload = &payload;
        EXPECT_EQ(request.deserialize(
                      (std::string(R"({ "result" : true, "params" : { "names" : )") + value + " } }").c_str(), 0),
                  1);
        return payload.nRetCount;
    };
    EXPECT_EQ(counted(2, names, R"([ "a" ])"), 1);
    EXPECT_EQ(counted(2, names, R"([ "a", "b", "c" ])"), 2);
    EXPECT_EQ(counted(2, names, "[ ]"), 0);
    EXPECT_EQ(counted(2, names, "\"a\""), 0);
    // Members count like elements, though they are none.
    EXPECT_EQ(counted(2, names, R"({ "a" : "b" })"), 1);
    EXPECT_EQ(names[0].dwSize, 24u);
    EXPECT_EQ(counted(2, names, R"({ "a" : 1, "b" : 2, "c" : 3 })"), 2);
    EXPECT_EQ(counted(0, names, R"([ "a" ])"), 0);
    EXPECT_EQ(counted(-1, names, R"([ "a" ])"), 0);
    EXPECT_EQ(counted(2, nullptr, R"([ "a" ])"), 0);
    EXPECT_EQ(counted(2, names, "null"), -7) << "nothing to count";
}

// ---- Tables ----

TEST(CReqConfig, ReadsATableIntoTheCallersRecord) {
    const auto record = std::make_unique<CFG_MULTICAST_INFO>();
    record->dwSize = sizeof *record;
    record->stuTS.dwSize = sizeof record->stuTS;
    record->stuTS.nCount = 5;
    record->stuTS.stuItem[0].dwSize = sizeof(CFG_MULTICAST_ITEM);
    CReqConfig request;
    request.nRequestType = 0x70006;
    request.pPayload = record.get();
    request.pTable = &kMulticast;
    // Without a result the payload stays as it was.
    EXPECT_EQ(request.deserialize(R"({ "params" : { "table" : { "TS" : [ { "Port" : 1 } ] } } })", 0), 1);
    EXPECT_FALSE(request.hasRead());
    EXPECT_EQ(record->stuTS.nCount, 5);
    // Nor does a missing table fail here: who asks may look.
    EXPECT_EQ(request.deserialize(R"({ "result" : true, "params" : { } })", 0), 1);
    EXPECT_FALSE(request.hasRead());
    EXPECT_EQ(request.getError(), 0);
    EXPECT_EQ(record->stuTS.nCount, 5);

    EXPECT_EQ(request.deserialize(R"({ "result" : true, "params" : { "table" : { "TS" : [ { "Port" : 1 } ] } } })", 0),
              1);
    EXPECT_TRUE(request.hasRead());
    EXPECT_EQ(record->stuTS.nCount, 1);
    EXPECT_EQ(record->stuTS.stuItem[0].nPort, 1);
}

TEST(CReqConfig, RunsWithoutAPayload) {
    for (const std::uint32_t type : {0x70002u, 0x70004u, 0x70006u, 0u}) {
        CReqConfig request;
        request.nRequestType = type;
        EXPECT_EQ(
            request.deserialize(
                R"({ "result" : true, "params" : { "names" : [ "a" ], "options" : [ "a" ], "table" : { } } })", 0),
            1);
        EXPECT_NE(Serialized(request), "(none)");
    }
}

TEST(CReqConfig, ReleasesWhatItHolds) {
    test::HeapWatch heap;
    {
        const std::unique_ptr<IPDU> request(new CReqConfig);
        std::size_t length = 0;
        request->serialize(length);
        request->serialize(length);
    }
    EXPECT_EQ(heap.liveBlocks(), 0);
}

} // namespace
} // namespace orrery
