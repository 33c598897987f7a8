// "EncodeEncrypt": items in an array of the caller's.
#include "orrery/encode.h"
#include "orrery/types.h"
#include "support/Call.h"

#include <gtest/gtest.h>

namespace orrery::test {
namespace {

constexpr const char* kName = "EncodeEncrypt";
constexpr Answer kRead{1, sizeof(CFG_ENCODE_ENCRYPT_INFO)};
constexpr Answer kNoList{1, kNoLength};

// A record and the items behind it; the last byte of each is the last that may be touched.
struct Encrypt {
    explicit Encrypt(std::uint8_t room, int fill = 0x11) : info(1), items(room, fill) {
        for (std::uint8_t i = 0; i < room; ++i) {
            CFG_ENCRYPT_ITEM item = items[i];
            item.stuTime.dwSize = sizeof(NET_TIME_V2);
            items.Set(i, item);
        }
        info.Set(0, {5, reinterpret_cast<CFG_ENCRYPT_ITEM*>(items.data()), room, 99});
    }
    Answer Parse(const std::string& table, const std::string& params = "") const {
        return ParseTable(kName, table, info, "", params);
    }
    CFG_ENCODE_ENCRYPT_INFO record() const { return info[0]; }

    Records<CFG_ENCODE_ENCRYPT_INFO> info;
    Records<CFG_ENCRYPT_ITEM> items;
};

TEST(EncodeEncrypt, HasTheLayoutThatClientsWereBuiltWith) {
    EXPECT_EQ(sizeof(CFG_ENCRYPT_ITEM), 4u + 4 + 4 + 2 + 32 + 2 + 28);
    EXPECT_EQ(offsetof(CFG_ENCRYPT_ITEM, szKey), 14u);
    EXPECT_EQ(offsetof(CFG_ENCRYPT_ITEM, stuTime), 48u);
    EXPECT_EQ(offsetof(CFG_ENCODE_ENCRYPT_INFO, nMaxCount), 2 * sizeof(void*));
}

constexpr const char* kItem = R"({"EncryptEnable":true,"Type":"AES","Mode":"CFB","Length":256,"Key":"k3y/",
                                  "Time":"2026-11-20 09:30:00"})";
constexpr const char* kItemText = R"({ "EncryptEnable" : true, "Key" : "k3y\/", "Length" : 256, "Mode" : "CFB", )"
                                  R"("Time" : "2026-11-20 09:30:00", "Type" : "AES" })";

TEST(EncodeEncrypt, ReadsAndWritesAllKeys) {
    const Encrypt encrypt(2);
    ASSERT_EQ(encrypt.Parse("[" + std::string(kItem) + "," + kItem + "]", R"("channel":3,)"), kRead);
    EXPECT_EQ(encrypt.record().nChannel, 3);
    EXPECT_EQ(encrypt.record().nMaxCount, 2);
    EXPECT_EQ(encrypt.record().nReturnCount, 2);
    const CFG_ENCRYPT_ITEM item = encrypt.items[1];
    EXPECT_EQ(item.bEncryptEnable, 1u);
    EXPECT_EQ(item.emType, CFG_ENCRYPT_AES);
    EXPECT_EQ(item.emMode, CFG_ENCRYPT_CFB);
    EXPECT_EQ(item.nLength, 256);
    EXPECT_STREQ(item.szKey, "k3y/");
    EXPECT_EQ(item.stuTime.dwSize, 28u);
    EXPECT_EQ(item.stuTime.stuTime.dwYear, 2026);
    EXPECT_EQ(item.stuTime.stuTime.dwSecond, 0);
    EXPECT_EQ(PackAll(kName, encrypt.info), "[ " + std::string(kItemText) + ", " + kItemText + " ]");
}

TEST(EncodeEncrypt, KeepsWhatTheItemsHeldWhereKeysAreAbsent) {
    const Encrypt encrypt(1);
    ASSERT_EQ(encrypt.Parse(R"([{"Length":65537}])"), kRead);
    const CFG_ENCRYPT_ITEM item = encrypt.items[0];
    EXPECT_EQ(item.nLength, 1); // sixteen bits of it
    EXPECT_EQ(item.bEncryptEnable, 0x11111111u);
    EXPECT_EQ(item.emType, 0x11111111);
    EXPECT_EQ(item.szKey[31], 0x11);
    EXPECT_EQ(item.stuTime.stuTime.dwYear, 0x11111111);
}

TEST(EncodeEncrypt, CountsItemsThatAreNoObjects) {
    const Encrypt encrypt(4);
    EXPECT_EQ(encrypt.Parse(R"([7,[],{"Length":-1,"EncryptEnable":"x"}])"), kRead);
    EXPECT_EQ(encrypt.record().nReturnCount, 3);
    EXPECT_EQ(encrypt.items[1].nLength, 0x1111);
    EXPECT_EQ(encrypt.items[2].nLength, 0); // a negative number is none
    EXPECT_EQ(encrypt.items[2].bEncryptEnable, 1u);
}

TEST(EncodeEncrypt, ReadsNoMoreThanThereIsRoomFor) {
    const Encrypt encrypt(2);
    EXPECT_EQ(encrypt.Parse(R"([{"Length":1},{"Length":2},{"Length":3}])"), kRead);
    EXPECT_EQ(encrypt.record().nReturnCount, 2);
    EXPECT_EQ(encrypt.items[1].nLength, 2);
}

TEST(EncodeEncrypt, EndsAtTheFirstNull) {
    const Encrypt encrypt(3);
    EXPECT_EQ(encrypt.Parse(R"([{"Length":1},null,{"Length":3}])"), kRead);
    EXPECT_EQ(encrypt.record().nReturnCount, 1);
    EXPECT_EQ(encrypt.items[1].nLength, 0x1111);
    EXPECT_EQ(encrypt.items[2].nLength, 0x1111);
    EXPECT_EQ(encrypt.Parse("[null]"), kRead);
    EXPECT_EQ(encrypt.record().nReturnCount, 0);
    EXPECT_EQ(encrypt.Parse("[]"), kRead);
    EXPECT_EQ(encrypt.record().nReturnCount, 0);
}

TEST(EncodeEncrypt, CountsAFullRoom) {
    const Encrypt encrypt(255);
    std::string table = "[{}";
    for (int i = 1; i < 300; ++i)
        table += ",{}";
    EXPECT_EQ(encrypt.Parse(table + "]"), kRead);
    EXPECT_EQ(encrypt.record().nReturnCount, 255);
}

// ---- Keys that depend on something ----

TEST(EncodeEncrypt, ReadsAKeyOnlyOfTheCipherItKnows) {
    const Encrypt encrypt(4, 0);
    EXPECT_EQ(encrypt.Parse(R"([{"Key":"one","Type":"DES"},{"Key":"two","Type":"AES"},{"Key":"three"},
                                {"Key":"four","Type":"aes"}])"),
              kRead);
    EXPECT_EQ(encrypt.items[0].emType, CFG_ENCRYPT_UNKNOWN);
    EXPECT_STREQ(encrypt.items[0].szKey, "");
    EXPECT_STREQ(encrypt.items[1].szKey, "two");
    EXPECT_STREQ(encrypt.items[2].szKey, "three"); // the cipher that the item held
    EXPECT_EQ(encrypt.items[3].emType, CFG_ENCRYPT_UNKNOWN);
    EXPECT_STREQ(encrypt.items[3].szKey, "");
}

TEST(EncodeEncrypt, CutsALongKey) {
    const Encrypt encrypt(1);
    EXPECT_EQ(encrypt.Parse(R"([{"Type":"AES","Key":"0123456789abcdef0123456789abcdefXY"}])"), kRead);
    EXPECT_STREQ(encrypt.items[0].szKey, "0123456789abcdef0123456789abcde");
    EXPECT_EQ(encrypt.Parse(R"([{"Type":"AES","Key":12}])"), kRead);
    EXPECT_STREQ(encrypt.items[0].szKey, "");
}

TEST(EncodeEncrypt, ReadsAndWritesATimeOnlyOfTheSizeItKnows) {
    for (const std::uint32_t size : {0u, 24u, 27u, 29u, 32u, 0xFFFFFFFFu}) {
        Encrypt encrypt(1, 0);
        CFG_ENCRYPT_ITEM item = encrypt.items[0];
        item.stuTime.dwSize = size;
        encrypt.items.Set(0, item);
        EXPECT_EQ(encrypt.Parse("[" + std::string(kItem) + "]"), kRead);
        EXPECT_EQ(encrypt.items[0].stuTime.stuTime.dwYear, 0);
        EXPECT_EQ(PackAll(kName, encrypt.info), R"([ { "EncryptEnable" : true, "Key" : "k3y\/", "Length" : 256, )"
                                                R"("Mode" : "CFB", "Time" : null, "Type" : "AES" } ])");
    }
}

// ---- Names ----

TEST(EncodeEncrypt, KnowsItsNames) {
    const auto read = [](const std::string& name) {
        const Encrypt encrypt(1);
        EXPECT_EQ(encrypt.Parse(R"([{"Type":")" + name + R"(","Mode":")" + name + "\"}]"), kRead);
        return std::pair(encrypt.items[0].emType, encrypt.items[0].emMode);
    };
    EXPECT_EQ(read("AES"), std::pair(0, 4));
    EXPECT_EQ(read("ECB"), std::pair(1, 0));
    EXPECT_EQ(read("CBC"), std::pair(1, 1));
    EXPECT_EQ(read("CFB"), std::pair(1, 2));
    EXPECT_EQ(read("OFB"), std::pair(1, 3));
    for (const char* name : {"UnKnown", "ecb", "", "CTR"})
        EXPECT_EQ(read(name), std::pair(1, 4)) << name;
}

TEST(EncodeEncrypt, WritesNamesFromOneList) {
    const char* const list[] = {"AES", "ECB", "CBC", "CFB", "OFB", "UnKnown"};
    const auto write = [](std::int32_t type, std::int32_t mode) {
        Encrypt encrypt(1, 0);
        CFG_ENCRYPT_ITEM item = encrypt.items[0];
        item.emType = type;
        item.emMode = mode;
        encrypt.items.Set(0, item);
        return PackAll(kName, encrypt.info);
    };
    const auto text = [](const char* type, const char* mode) {
        return R"([ { "EncryptEnable" : false, "Key" : "", "Length" : 0, "Mode" : ")" + std::string(mode)
               + R"(", "Time" : "0000-00-00 00:00:00", "Type" : ")" + type + "\" } ]";
    };
    for (std::int32_t i = 0; i < 6; ++i)
        EXPECT_EQ(write(i, i - 1), text(list[i], list[i])) << i;
    for (const std::int32_t code : {-2, 6, INT32_MIN, INT32_MAX})
        EXPECT_EQ(write(code, code), text("UnKnown", "UnKnown")) << code;
    EXPECT_EQ(write(-1, 5), text("UnKnown", "UnKnown"));
}

// ---- The caller's memory ----

TEST(EncodeEncrypt, DoesNotNeedAnArray) {
    for (const int room : {0, 1, 255}) {
        Records<CFG_ENCODE_ENCRYPT_INFO> info(1);
        info.Set(0, {5, nullptr, static_cast<std::uint8_t>(room), 99});
        EXPECT_EQ(ParseTable(kName, "[" + std::string(kItem) + "]", info), kRead);
        EXPECT_EQ(info[0].nReturnCount, 0);
        EXPECT_EQ(info[0].nMaxCount, room);
        EXPECT_EQ(info[0].pstuItems, nullptr);
        EXPECT_EQ(PackAll(kName, info), "null");
    }
}

TEST(EncodeEncrypt, TouchesNoItemWithoutRoom) {
    Encrypt encrypt(1);
    CFG_ENCODE_ENCRYPT_INFO record = encrypt.record();
    record.nMaxCount = 0;
    encrypt.info.Set(0, record);
    EXPECT_EQ(encrypt.Parse("[" + std::string(kItem) + "]"), kRead);
    EXPECT_EQ(encrypt.record().nReturnCount, 0);
    EXPECT_EQ(encrypt.items[0].nLength, 0x1111);
    EXPECT_EQ(PackAll(kName, encrypt.info), "null");
}

TEST(EncodeEncrypt, WritesAsManyAsThereIsRoomForWhateverWasRead) {
    Encrypt encrypt(2, 0);
    for (const int read : {0, 1, 200}) {
        CFG_ENCODE_ENCRYPT_INFO record = encrypt.record();
        record.nReturnCount = static_cast<std::uint8_t>(read);
        encrypt.info.Set(0, record);
        const std::string item = R"({ "EncryptEnable" : false, "Key" : "", "Length" : 0, "Mode" : "ECB", )"
                                 R"("Time" : "0000-00-00 00:00:00", "Type" : "AES" })";
        EXPECT_EQ(PackAll(kName, encrypt.info), "[ " + item + ", " + item + " ]");
    }
}

TEST(EncodeEncrypt, EndsAKeyWithoutATerminator) {
    Encrypt encrypt(1, 0);
    CFG_ENCRYPT_ITEM item = encrypt.items[0];
    std::memset(item.szKey, 'k', sizeof item.szKey);
    encrypt.items.Set(0, item);
    EXPECT_NE(PackAll(kName, encrypt.info).find("\"Key\" : \"" + std::string(32, 'k') + "\""), std::string::npos);
}

// ---- Replies without a list ----

TEST(EncodeEncrypt, GivesUpOnWhatIsNoList) {
    for (const char* table : {"{}", kItem, "1", "\"x\"", "false"}) {
        const Encrypt encrypt(1);
        EXPECT_EQ(encrypt.Parse(table, R"("channel":7,)"), kNoList) << table;
        EXPECT_EQ(encrypt.record().nChannel, 7);
        EXPECT_EQ(encrypt.record().nReturnCount, 99);
        EXPECT_EQ(encrypt.items[0].nLength, 0x1111);
    }
}

TEST(EncodeEncrypt, KeepsTheChannelOfAReplyWithoutTable) {
    for (const char* document :
         {R"({"result":true,"params":{"channel":7}})", R"({"params":{"channel":7,"table":null}})"}) {
        const Encrypt encrypt(1);
        EXPECT_EQ(ParseDocument(kName, document, encrypt.info), kRefused);
        EXPECT_EQ(encrypt.record().nChannel, 7);
        EXPECT_EQ(encrypt.record().nReturnCount, 99);
    }
    const Encrypt encrypt(1);
    EXPECT_EQ(ParseDocument(kName, "{}", encrypt.info), kRefused);
    EXPECT_EQ(encrypt.record().nChannel, 0);
}

TEST(EncodeEncrypt, ReadsTheTableOfARefusedCall) {
    const Encrypt encrypt(1);
    EXPECT_EQ(ParseDocument(kName, R"({"result":false,"params":{"table":[{"Length":9}]}})", encrypt.info), kRead);
    EXPECT_EQ(encrypt.items[0].nLength, 9);
}

TEST(EncodeEncrypt, TouchesNothingOfWhatIsNoJson) {
    const Encrypt encrypt(1);
    EXPECT_EQ(ParseDocument(kName, "[", encrypt.info), kRefused);
    EXPECT_EQ(encrypt.record().nChannel, 5);
    const Records<CFG_ENCODE_ENCRYPT_INFO> part(0, sizeof(CFG_ENCODE_ENCRYPT_INFO) - 1, 0x11);
    EXPECT_EQ(ParseTable(kName, "[]", part), kRefused);
    EXPECT_TRUE(part.isAll(0x11));
    EXPECT_EQ(PackAll(kName, part), kNotBegun);
}

TEST(EncodeEncrypt, FillsItsTextToTheLastByte) {
    const Encrypt encrypt(1, 0);
    const std::string text = PackAll(kName, encrypt.info);
    const auto pack = [&](std::size_t capacity) {
        return PackBytes(kName, encrypt.info.data(), encrypt.info.size(), capacity);
    };
    EXPECT_EQ(pack(text.size() + 2), text + "\n");
    EXPECT_EQ(pack(text.size() + 1), text);
    EXPECT_EQ(pack(text.size()), kFailed);
}

} // namespace
} // namespace orrery::test
