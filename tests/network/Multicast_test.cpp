#include "network/Multicast.h"

#include "support/Call.h"
#include "support/GuardedBuffer.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr std::uint32_t kRecord = sizeof(CFG_MULTICAST_INFO);
constexpr std::uint32_t kStream = sizeof(CFG_MULTICAST_STREAM);
constexpr std::uint32_t kItem = sizeof(CFG_MULTICAST_ITEM);

constexpr CFG_MULTICAST_STREAM CFG_MULTICAST_INFO::*kStreams[] = {
    &CFG_MULTICAST_INFO::stuTS, &CFG_MULTICAST_INFO::stuRTP, &CFG_MULTICAST_INFO::stuQVII,
    &CFG_MULTICAST_INFO::stuRTPAudio};

// A caller's record: every byte `fill`, but for the size words.
void Prepare(CFG_MULTICAST_INFO& record, int fill, std::uint32_t recordSize = kRecord,
             std::uint32_t streamSize = kStream, std::uint32_t itemSize = kItem) {
    std::memset(static_cast<void*>(&record), fill, sizeof record);
    record.dwSize = recordSize;
    for (const auto stream : kStreams) {
        (record.*stream).dwSize = streamSize;
        for (CFG_MULTICAST_ITEM& item : (record.*stream).stuItem)
            item.dwSize = itemSize;
    }
}

std::string Reply(const std::string& table) {
    return R"({ "result" : true, "params" : { "table" : )" + table + " } }";
}

std::int32_t ParseInto(void* record, const std::string& document, std::uint32_t* length = nullptr) {
    return CLIENT_ParseData("Multicast", document.c_str(), record, kRecord, length);
}

constexpr const char* kFull =
    R"({ "QVII" : [ { "Channel" : 3, "Enable" : true, "LocalAddr" : "10.1.1.1", "MulticastAddr" : "224.1.1.3", )"
    R"("Port" : 33, "StreamType" : "Extra2" } ], )"
    R"("RTP" : [ { "Channel" : 1, "Enable" : false, "LocalAddr" : "", "MulticastAddr" : "224.1.1.1", "Port" : 11, )"
    R"("StreamType" : "Main" }, )"
    R"({ "Channel" : 2, "Enable" : true, "LocalAddr" : "10.1.1.2", "MulticastAddr" : "224.1.1.2", "Port" : 22, )"
    R"("StreamType" : "Extra1" } ], )"
    R"("RTPAudio" : [ { "Channel" : 4, "Enable" : true, "LocalAddr" : "10.1.1.4", "MulticastAddr" : "224.1.1.4", )"
    R"("Port" : 44, "StreamType" : "Snapshot" } ], )"
    R"("TS" : [ { "Channel" : 5, "Enable" : true, "LocalAddr" : "10.1.1.5", "MulticastAddr" : "224.1.1.5", )"
    R"("Port" : 55, "StreamType" : "Object" } ] })";

TEST(Multicast, FieldsStandWhereCallersExpectThem) {
    EXPECT_EQ(offsetof(CFG_MULTICAST_ITEM, bEnable), 4u);
    EXPECT_EQ(offsetof(CFG_MULTICAST_ITEM, szMulticastAddr), 8u);
    EXPECT_EQ(offsetof(CFG_MULTICAST_ITEM, nPort), 264u);
    EXPECT_EQ(offsetof(CFG_MULTICAST_ITEM, szLocalAddr), 268u);
    EXPECT_EQ(offsetof(CFG_MULTICAST_ITEM, nChannel), 524u);
    EXPECT_EQ(offsetof(CFG_MULTICAST_ITEM, emStreamType), 528u);
    EXPECT_EQ(kItem, 532u);
    EXPECT_EQ(kStream, 4 + 256 * kItem + 4);
    EXPECT_EQ(kRecord, 4 + 4 * kStream);
}

TEST(Multicast, ThereAndBack) {
    auto record = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*record, 0xEE);
    std::uint32_t length = 0;
    ASSERT_EQ(ParseInto(record.get(), Reply(kFull), &length), 1);
    EXPECT_EQ(length, kRecord);
    EXPECT_EQ(record->stuTS.nCount, 1);
    EXPECT_EQ(record->stuRTP.nCount, 2);
    EXPECT_EQ(record->stuQVII.nCount, 1);
    EXPECT_EQ(record->stuRTPAudio.nCount, 1);
    const CFG_MULTICAST_ITEM& item = record->stuRTP.stuItem[1];
    EXPECT_EQ(item.bEnable, 1u);
    EXPECT_STREQ(item.szMulticastAddr, "224.1.1.2");
    EXPECT_EQ(item.nPort, 22);
    EXPECT_STREQ(item.szLocalAddr, "10.1.1.2");
    EXPECT_EQ(item.nChannel, 2);
    EXPECT_EQ(item.emStreamType, CFG_MULTICAST_STREAM_EXTRA1);
    EXPECT_EQ(record->stuTS.stuItem[0].emStreamType, CFG_MULTICAST_STREAM_OBJECT);
    // The caller's size words stand, and what no item took is clear.
    auto empty = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*empty, 0);
    EXPECT_EQ(std::memcmp(&record->stuTS.stuItem[1], &empty->stuTS.stuItem[1], 255 * kItem), 0);
    EXPECT_EQ(record->dwSize, kRecord);
    EXPECT_EQ(record->stuTS.dwSize, kStream);
    EXPECT_EQ(Pack("Multicast", *record), kFull);
}

TEST(Multicast, AStreamKeeps256Items) {
    std::string items;
    for (int i = 0; i < 300; ++i)
        items += (i > 0 ? ", { \"Channel\" : " : "{ \"Channel\" : ") + std::to_string(i) + " }";
    auto record = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*record, 0);
    ASSERT_EQ(ParseInto(record.get(), Reply("{ \"RTP\" : [ " + items + " ] }")), 1);
    EXPECT_EQ(record->stuRTP.nCount, 256);
    EXPECT_EQ(record->stuRTP.stuItem[255].nChannel, 255);
    EXPECT_EQ(record->stuQVII.nCount, 0);
    record->stuRTP.nCount = 1000;
    const std::string text = Pack("Multicast", *record);
    EXPECT_NE(text.find("\"Channel\" : 255"), std::string::npos);
    record->stuRTP.nCount = -1;
    EXPECT_EQ(Pack("Multicast", *record), "null");
}

TEST(Multicast, ValuesOfAnItem) {
    auto record = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*record, 0xEE);
    ASSERT_EQ(ParseInto(record.get(), Reply(R"({ "QVII" : [ { "Enable" : "no", "Port" : 1.9, "Channel" : true,
        "MulticastAddr" : ")" + std::string(300, 'm')
                                            + R"(", "LocalAddr" : ")" + std::string(256, 'l') + R"(" },
        null, { "Enable" : 5, "Port" : "7", "MulticastAddr" : 5, "LocalAddr" : null } ] })")),
              1);
    ASSERT_EQ(record->stuQVII.nCount, 3);
    const CFG_MULTICAST_ITEM& first = record->stuQVII.stuItem[0];
    EXPECT_EQ(first.bEnable, 1u);
    EXPECT_EQ(first.nPort, 1);
    EXPECT_EQ(first.nChannel, 1);
    EXPECT_EQ(first.szMulticastAddr, std::string(255, 'm'));
    EXPECT_EQ(first.szLocalAddr, std::string(255, 'l'));
    for (const int other : {1, 2}) {
        const CFG_MULTICAST_ITEM& item = record->stuQVII.stuItem[other];
        EXPECT_EQ(item.bEnable, other == 2 ? 1u : 0u);
        EXPECT_EQ(item.nPort, 0);
        EXPECT_EQ(item.nChannel, 0);
        EXPECT_STREQ(item.szMulticastAddr, "");
        EXPECT_STREQ(item.szLocalAddr, "");
    }
    record->stuQVII.stuItem[2].bEnable = 0x80000000u; // any number but zero
    EXPECT_NE(Pack("Multicast", *record).find(R"("Enable" : true, "LocalAddr" : "", "MulticastAddr" : "")"),
              std::string::npos);
}

TEST(Multicast, StreamTypesInBothDirections) {
    const char* const names[] = {"Main", "Extra1", "Extra2", "Extra3", "Snapshot", "Object"};
    auto record = Cleared<CFG_MULTICAST_INFO>();
    const auto read = [&](const std::string& value) {
        Prepare(*record, 0);
        EXPECT_EQ(ParseInto(record.get(), Reply("{ \"TS\" : [ { \"StreamType\" : " + value + " } ] }")), 1);
        return record->stuTS.stuItem[0].emStreamType;
    };
    const auto written = [&](std::int32_t code) {
        Prepare(*record, 0);
        record->stuTS.nCount = 1;
        record->stuTS.stuItem[0].emStreamType = code;
        return Pack("Multicast", *record);
    };
    for (int code = 0; code < 6; ++code) {
        EXPECT_EQ(read('"' + std::string(names[code]) + '"'), code);
        EXPECT_NE(written(code).find("\"StreamType\" : \"" + std::string(names[code]) + "\""), std::string::npos);
    }
    EXPECT_EQ(read("\"object\""), CFG_MULTICAST_STREAM_OBJECT);
    EXPECT_EQ(read("\"EXTRA3\""), CFG_MULTICAST_STREAM_EXTRA3);
    EXPECT_EQ(read("\"Extra4\""), 0);
    EXPECT_EQ(read("5"), 0);
    for (const std::int32_t code : {9, 6, -1}) {
        EXPECT_NE(written(code).find(R"("StreamType" : "Main")"), std::string::npos) << code;
    }
}

TEST(Multicast, AnItemOfEightBytesReceivesItsEnableAlone) {
    auto record = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*record, 0xEE, kRecord, kStream, 8);
    ASSERT_EQ(ParseInto(record.get(), Reply(kFull)), 1);
    const auto expected = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*expected, 0xEE, kRecord, kStream, 8);
    for (const auto stream : kStreams) {
        for (CFG_MULTICAST_ITEM& item : ((*expected).*stream).stuItem)
            item.bEnable = 0;
        ((*expected).*stream).nCount = 1;
        ((*expected).*stream).stuItem[0].bEnable = 1;
    }
    expected->stuRTP.nCount = 2;
    expected->stuRTP.stuItem[0].bEnable = 0;
    expected->stuRTP.stuItem[1].bEnable = 1;
    EXPECT_EQ(std::memcmp(record.get(), expected.get(), kRecord), 0);
}

// The end of each field of an item.
constexpr std::uint32_t kFieldEnds[] = {8, 264, 268, 524, 528, 532};

TEST(Multicast, AnItemReceivesTheFieldsThatItsSizeCovers) {
    auto record = Cleared<CFG_MULTICAST_INFO>();
    for (std::uint32_t size = 0; size <= kItem + 4; ++size) {
        Prepare(*record, 0xEE, kRecord, kStream, size);
        ASSERT_EQ(ParseInto(record.get(), Reply(R"({ "TS" : [ { } ] })")), 1);
        // Of an empty item every covered field is clear.
        std::uint32_t covered = 4;
        for (const std::uint32_t end : kFieldEnds) {
            if (end <= size) covered = end;
        }
        const auto* const item = reinterpret_cast<const unsigned char*>(&record->stuTS.stuItem[0]);
        EXPECT_EQ(record->stuTS.stuItem[0].dwSize, size);
        for (std::uint32_t i = 4; i < kItem; ++i)
            ASSERT_EQ(item[i], i < covered ? 0 : 0xEE) << "size " << size << " byte " << i;
    }
}

TEST(Multicast, AStreamReceivesTheItemsAndTheCountThatItsSizeCovers) {
    auto record = Cleared<CFG_MULTICAST_INFO>();
    for (std::uint32_t size : {0u, 4u, 4 + kItem - 1, 4 + kItem, 4 + 2 * kItem - 1, 4 + 2 * kItem, 4 + 256 * kItem,
                               kStream - 1, kStream, kStream + 1}) {
        Prepare(*record, 0xEE, kRecord, size);
        ASSERT_EQ(ParseInto(record.get(), Reply(R"({ "RTP" : [ ] })")), 1);
        for (std::uint32_t i = 0; i < 256; ++i) {
            EXPECT_EQ(record->stuRTP.stuItem[i].bEnable, 4 + (i + 1) * kItem <= size ? 0u : 0xEEEEEEEEu) << size;
        }
        EXPECT_EQ(record->stuRTP.nCount, size >= kStream ? 0 : static_cast<std::int32_t>(0xEEEEEEEE)) << size;
    }
}

TEST(Multicast, ARecordReceivesTheStreamsThatItsSizeCovers) {
    auto record = Cleared<CFG_MULTICAST_INFO>();
    const auto before = Cleared<CFG_MULTICAST_INFO>();
    for (std::uint32_t streams = 0; streams <= 4; ++streams) {
        for (const std::uint32_t size : {4 + streams * kStream, 4 + (streams + 1) * kStream - 1}) {
            Prepare(*record, 0xEE, size);
            Prepare(*before, 0xEE, size);
            std::uint32_t length = 0;
            ASSERT_EQ(ParseInto(record.get(), Reply(kFull), &length), 1);
            EXPECT_EQ(length, kRecord);
            for (std::uint32_t i = 0; i < 4; ++i) {
                const bool same = std::memcmp(&((*record).*kStreams[i]), &((*before).*kStreams[i]), kStream) == 0;
                EXPECT_EQ(same, i >= streams) << "size " << size << " stream " << i;
            }
        }
    }
}

// Whatever the sizes say, nothing past them is written, nor past the record.
TEST(Multicast, NothingPastTheCallersSizesIsWritten) {
    const GuardedBuffer buffer(kRecord);
    auto& record = *reinterpret_cast<CFG_MULTICAST_INFO*>(buffer.data());
    const auto before = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*before, 0xEE);
    const std::string reply = Reply(kFull);
    // The record's words; the distance between them is prime, so that the streams and items are cut everywhere.
    for (std::uint32_t size = 4; size <= kRecord; size += size < 2 * kItem ? 1 : 3581) {
        std::memcpy(static_cast<void*>(&record), before.get(), kRecord);
        record.dwSize = size;
        ASSERT_EQ(ParseInto(&record, reply), 1);
        EXPECT_EQ(std::memcmp(buffer.data() + size, reinterpret_cast<const char*>(before.get()) + size, kRecord - size),
                  0)
            << size;
    }
    for (const std::uint32_t size : {0u, kRecord - 1, kRecord, kRecord + 1, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        Prepare(record, 0xEE, size, size, size);
        EXPECT_EQ(ParseInto(&record, reply), 1) << size;
        char text[4096];
        EXPECT_EQ(CLIENT_PacketData("Multicast", &record, kRecord, text, sizeof text), 1) << size;
    }
}

TEST(Multicast, BuffersBelowTheWholeRecordAreLeftAlone) {
    const GuardedBuffer buffer(kRecord);
    const std::string reply = Reply(kFull);
    std::memset(buffer.data(), 0xEE, kRecord);
    char text[4096];
    for (std::uint32_t size = 4; size < kRecord; ++size) {
        // The buffer's last bytes, so that the page behind it begins where the caller's memory ends.
        char* const memory = buffer.data() + kRecord - size;
        std::memcpy(memory, &size, sizeof size);
        ASSERT_EQ(CLIENT_ParseData("Multicast", reply.c_str(), memory, size, nullptr), 0);
        ASSERT_EQ(CLIENT_PacketData("Multicast", memory, size, text, sizeof text), 0);
        ASSERT_EQ(std::memcmp(memory, &size, sizeof size), 0);
        std::memset(memory, 0xEE, sizeof size);
    }
    for (std::uint32_t i = 0; i < kRecord; ++i)
        ASSERT_EQ(static_cast<unsigned char>(buffer.data()[i]), 0xEE) << i;
}

TEST(Multicast, WritesFieldsThatTheCallerLacksAsNothing) {
    auto record = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*record, 0);
    record->stuTS.nCount = 1;
    CFG_MULTICAST_ITEM& item = record->stuTS.stuItem[0];
    item = {268, 1, "224.0.0.9", 99, "10.0.0.9", 9, 5}; // up to the port
    EXPECT_EQ(Pack("Multicast", *record),
              R"({ "TS" : [ { "Channel" : 0, "Enable" : true, "LocalAddr" : "", "MulticastAddr" : "224.0.0.9", )"
              R"("Port" : 99, "StreamType" : "Main" } ] })");
    record->stuTS.dwSize = kStream - 1; // then its count is not known
    EXPECT_EQ(Pack("Multicast", *record), "null");
    record->stuTS.dwSize = kStream;
    record->dwSize = 4 + kStream - 1;
    EXPECT_EQ(Pack("Multicast", *record), "null");
}

TEST(Multicast, AStreamThatIsNoListReadsAsEmpty) {
    for (const char* table : {R"({ "TS" : null })", R"({ "TS" : { "a" : { "Channel" : 1 } } })", R"({ "TS" : 5 })",
                              "{ }", "[ 1 ]", "\"text\""}) {
        auto record = Cleared<CFG_MULTICAST_INFO>();
        Prepare(*record, 0xEE);
        EXPECT_EQ(ParseInto(record.get(), Reply(table)), 1) << table;
        EXPECT_EQ(record->stuTS.nCount, 0) << table;
        EXPECT_EQ(record->stuTS.stuItem[0].nChannel, 0) << table;
    }
}

TEST(Multicast, AnyStreamThatTheReplyLacksReadsAsEmpty) {
    const char* const keys[] = {"TS", "RTP", "QVII", "RTPAudio"};
    for (std::size_t there = 0; there < 4; ++there) {
        auto record = Cleared<CFG_MULTICAST_INFO>();
        Prepare(*record, 0xEE);
        EXPECT_EQ(ParseInto(record.get(), Reply("{ \"" + std::string(keys[there]) + "\" : [ { \"Channel\" : 6 } ] }")),
                  1);
        for (std::size_t stream = 0; stream < 4; ++stream) {
            const CFG_MULTICAST_STREAM& read = (*record).*kStreams[stream];
            EXPECT_EQ(read.nCount, stream == there ? 1 : 0) << keys[there] << keys[stream];
            EXPECT_EQ(read.stuItem[0].nChannel, stream == there ? 6 : 0) << keys[there] << keys[stream];
            EXPECT_EQ(read.stuItem[1].nChannel, 0) << keys[there] << keys[stream];
        }
    }
}

TEST(Multicast, WhatTheReplyMustHold) {
    const auto before = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*before, 0xEE);
    const auto run = [&](const std::string& document, std::int32_t expected, bool untouched) {
        const auto record = Cleared<CFG_MULTICAST_INFO>();
        Prepare(*record, 0xEE);
        std::uint32_t length = kNoLength;
        EXPECT_EQ(ParseInto(record.get(), document, &length), expected) << document;
        EXPECT_EQ(length, expected == 1 ? kRecord : kNoLength) << document;
        EXPECT_EQ(std::memcmp(record.get(), before.get(), kRecord) == 0, untouched) << document;
    };
    run(R"({ "params" : { "table" : { "TS" : [ ] } } })", 1, true); // no "result": nothing is read
    run(R"({ "result" : null, "params" : { "table" : { "TS" : [ ] } } })", 1, true);
    run(R"({ "result" : false, "params" : { "table" : { "TS" : [ ] } } })", 1, false); // present is enough
    run(R"({ "result" : true, "params" : { "table" : null } })", 0, true);
    run(R"({ "result" : true, "params" : { } })", 0, true);
    run(R"({ "result" : true })", 0, true);
    run(R"({ "result" : )", 0, true);
    run("", 0, true);
}

TEST(Multicast, UnalignedRecords) {
    std::vector<char> memory(kRecord + 1);
    const auto aligned = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*aligned, 0);
    std::memcpy(memory.data() + 1, aligned.get(), kRecord);
    ASSERT_EQ(ParseInto(memory.data() + 1, Reply(kFull)), 1);
    char text[4096];
    ASSERT_EQ(CLIENT_PacketData("Multicast", memory.data() + 1, kRecord, text, sizeof text), 1);
    EXPECT_EQ(std::string(text), std::string(kFull) + '\n');
}

TEST(Multicast, ATextOfExactlyTheCapacityLosesItsNewline) {
    auto record = Cleared<CFG_MULTICAST_INFO>();
    Prepare(*record, 0);
    ASSERT_EQ(ParseInto(record.get(), Reply(kFull)), 1);
    const auto length = static_cast<std::uint32_t>(std::strlen(kFull)) + 1;
    const GuardedBuffer text(length);
    EXPECT_EQ(CLIENT_PacketData("Multicast", record.get(), kRecord, text.data(), length), 1);
    EXPECT_STREQ(text.data(), kFull);
    EXPECT_EQ(CLIENT_PacketData("Multicast", record.get(), kRecord, text.data(), length - 1), 0);
}

} // namespace
} // namespace orrery::test
