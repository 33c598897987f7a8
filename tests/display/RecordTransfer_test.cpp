#include "display/RecordTransfer.h"

#include "display/OneOrMany.h"
#include "orrery/log.h"
#include "support/LogLines.h"

#include <vector>

namespace orrery::test {
namespace {

// A sink that keeps codes and sources too.
class Positions : public LogLines {
  public:
    void SetPosition(const char* file, int line, E_LOG_LEVEL level) override {
        told += std::string(file) + ' ' + std::to_string(static_cast<int>(level)) + ' ';
        LogLines::SetPosition(file, line, level);
    }
    void TraceOut(int zero, int code, const char* format, char*& arguments) override {
        char hexadecimal[16];
        std::snprintf(hexadecimal, sizeof hexadecimal, "%x ", static_cast<unsigned>(code));
        told += hexadecimal;
        LogLines::TraceOut(zero, code, format, arguments);
        told += texts(E_LOG_LEVEL_ERROR).back() + '\n';
    }
    std::string told;
};

// What is told of a call.
template <class Call>
std::string ToldOf(Call call) {
    Positions log;
    call();
    return log.told;
}

// ---- "RecordBackupRestore" ----

using Backup = CFG_RECORD_BACKUP_RESTORE_INFO;
const std::string kBackup = "MediaConfig 0 90000001 Media_RecordBackup_Packet Function Parameter is invalid.\n";

TEST(RecordBackupRestore, ThereAndBack) {
    const std::string text = R"({ "BackupDevices" : [ "usb1", "usb2" ], "BitrateLimit" : 4096 })";
    const auto parsed = Parse<Backup>("RecordBackupRestore", text);
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->nBitrateLimit, 4096);
    ASSERT_EQ(parsed->nDeviceCount, 2);
    EXPECT_STREQ(parsed->szBackupDevices[0], "usb1");
    EXPECT_STREQ(parsed->szBackupDevices[1], "usb2");
    EXPECT_EQ(Pack("RecordBackupRestore", *parsed), text);
    ExpectOneOrMany<Backup>("RecordBackupRestore", text, R"({ "BitrateLimit" : 0 })");
}

TEST(RecordBackupRestore, DevicesEndAtTheirRoom) {
    for (const int count : {32, 33}) {
        std::string list;
        for (int i = 0; i < count; ++i)
            list += (i > 0 ? ", \"" : "\"") + std::to_string(i) + std::string(100, 'x') + '"';
        const auto parsed = Parse<Backup>("RecordBackupRestore", R"({ "BackupDevices" : [ )" + list + " ] }");
        EXPECT_EQ(parsed->nDeviceCount, 32);
        EXPECT_EQ(std::string(parsed->szBackupDevices[31]), "31" + std::string(61, 'x'));
    }
    Backup record{};
    record.nDeviceCount = 33;
    const std::string text = Pack("RecordBackupRestore", record);
    EXPECT_EQ(std::count(text.begin(), text.end(), '"'), 2 * (32 + 2));
    record.nDeviceCount = -1;
    EXPECT_EQ(Pack("RecordBackupRestore", record), R"({ "BitrateLimit" : 0 })");
}

TEST(RecordBackupRestore, TellsOfARecordThatIsTooShortToWrite) {
    const Records<Backup> records(1);
    const auto pack = [&](std::uint32_t size, std::uint32_t capacity, int expected) {
        return ToldOf([&] {
            const auto text = std::make_unique<char[]>(kAmple);
            EXPECT_EQ(CLIENT_PacketData("RecordBackupRestore", records.data(), size, text.get(), capacity), expected);
        });
    };
    EXPECT_EQ(pack(sizeof(Backup) - 1, kAmple, 0), kBackup);
    EXPECT_EQ(pack(0, kAmple, 0), kBackup);
    EXPECT_EQ(pack(sizeof(Backup), 5, 0), ""); // merely too long
    EXPECT_EQ(pack(sizeof(Backup), kAmple, 1), "");
    // Reading tells nothing.
    EXPECT_EQ(ToldOf([&] {
                  EXPECT_EQ(CLIENT_ParseData("RecordBackupRestore", "{}", records.data(), sizeof(Backup) - 1, nullptr),
                            0);
                  EXPECT_EQ(ParseTable("RecordBackupRestore", "5", records), kRefused);
              }),
              "");
}

// ---- "RecordDownloadSpeed" ----

using Speed = CFG_RECORD_DOWNLOAD_SPEED_INFO;
const std::string kTable =
    "MediaConfig 0 90000001 Media_RecordDownloadSpeed_Parse Function Parameter table is invalid\n";
const std::string kParameter = "MediaConfig 0 90000001 Media_RecordDownloadSpeed_Parse Function Parameter is invalid\n";

struct Speeds {
    Answer answer;
    std::uint32_t count;
    std::vector<std::uint32_t> numbers; // all of the caller's array
    std::string told;
};

constexpr std::uint32_t kOld = 0xA5A5A5A5;

// Into an array of `room`; none when it is below zero.
Speeds Read(const std::string& table, int room = 4, const char* result = "true") {
    const auto size = static_cast<std::size_t>(std::max(room, 0));
    const GuardedBuffer memory(size * sizeof(std::uint32_t));
    for (std::size_t i = 0; i < size; ++i)
        std::memcpy(memory.data() + i * sizeof kOld, &kOld, sizeof kOld);
    Speeds speeds;
    Records<Speed> records(1);
    Speed record{};
    record.pnSpeeds = room < 0 ? nullptr : reinterpret_cast<std::uint32_t*>(memory.data());
    record.nMaxCount = room < 0 ? 4 : static_cast<std::uint32_t>(room);
    record.nSpeedCount = kOld;
    records.Set(0, record);
    speeds.told = ToldOf([&] {
        speeds.answer =
            ParseDocument("RecordDownloadSpeed",
                          "{\"result\":" + std::string(result) + ",\"params\":{\"table\":" + table + "}}", records);
    });
    speeds.count = records[0].nSpeedCount;
    EXPECT_EQ(records[0].pnSpeeds, record.pnSpeeds);
    EXPECT_EQ(records[0].nMaxCount, record.nMaxCount);
    speeds.numbers.resize(size);
    if (size > 0) std::memcpy(speeds.numbers.data(), memory.data(), size * sizeof kOld);
    return speeds;
}

using Numbers = std::vector<std::uint32_t>;

TEST(RecordDownloadSpeed, ReadsAList) {
    const Speeds speeds = Read("[ 7, 4000000000, -1, 2.75 ]");
    EXPECT_EQ(speeds.answer, (Answer{1, sizeof(Speed)}));
    EXPECT_EQ(speeds.count, 4u);
    EXPECT_EQ(speeds.numbers, (Numbers{7, 4000000000, 0, 2}));
    EXPECT_EQ(speeds.told, "");
    const Speeds few = Read("[ 5 ]");
    EXPECT_EQ(few.count, 1u);
    EXPECT_EQ(few.numbers, (Numbers{5, kOld, kOld, kOld}));
    const Speeds none = Read("[ ]");
    EXPECT_EQ(none.answer.result, 1);
    EXPECT_EQ(none.count, 0u);
}

TEST(RecordDownloadSpeed, TellsHowManyThereAreBeyondTheRoom) {
    const Speeds speeds = Read("[ 1, 2, 3, 4, 5, 6 ]");
    EXPECT_EQ(speeds.answer.result, 1);
    EXPECT_EQ(speeds.count, 6u);
    EXPECT_EQ(speeds.numbers, (Numbers{1, 2, 3, 4}));
    EXPECT_EQ(Read("[ 1, 2 ]", 0).count, 2u);
}

TEST(RecordDownloadSpeed, ReadsANumber) {
    for (const auto& [text, number] : std::vector<std::pair<std::string, std::uint32_t>>{
             {"9", 9}, {"4000000000", 4000000000}, {"1.5", 1}, {"-3", 0}}) {
        const Speeds speeds = Read(text);
        EXPECT_EQ(speeds.answer, (Answer{1, sizeof(Speed)})) << text;
        EXPECT_EQ(speeds.count, 1u);
        EXPECT_EQ(speeds.numbers, (Numbers{number, kOld, kOld, kOld})) << text;
        EXPECT_EQ(speeds.told, "");
    }
    const Speeds noRoom = Read("9", 0);
    EXPECT_EQ(noRoom.answer.result, 1);
    EXPECT_EQ(noRoom.count, 1u);
}

TEST(RecordDownloadSpeed, TellsOfATableThatIsNeither) {
    for (const auto& [text, count] : std::vector<std::pair<std::string, std::uint32_t>>{
             {"\"fast\"", 0}, {"true", 0}, {"{ }", 0}, {R"({ "a" : 1, "b" : 2 })", 2}}) {
        for (const int room : {4, -1}) {
            const Speeds speeds = Read(text, room);
            EXPECT_EQ(speeds.answer.result, 0) << text;
            EXPECT_EQ(speeds.told, kTable) << text;
            EXPECT_EQ(speeds.count, count) << text;
        }
    }
}

TEST(RecordDownloadSpeed, TellsOfAMissingArray) {
    const Speeds list = Read("[ 1, 2, 3 ]", -1);
    EXPECT_EQ(list.answer.result, 0);
    EXPECT_EQ(list.count, 3u); // told all the same
    EXPECT_EQ(list.told, kBackup);
    const Speeds number = Read("9", -1);
    EXPECT_EQ(number.answer.result, 0);
    EXPECT_EQ(number.count, 0u);
    EXPECT_EQ(number.told, kBackup);
}

TEST(RecordDownloadSpeed, TellsOfABufferBelowOneRecord) {
    const Records<Speed> records(1, kUntouched);
    for (const std::uint32_t size : {1u, static_cast<std::uint32_t>(sizeof(Speed)) - 1}) {
        EXPECT_EQ(ToldOf([&] {
                      EXPECT_EQ(CLIENT_ParseData("RecordDownloadSpeed", R"({"result":true,"params":{"table":[1]}})",
                                                 records.data(), size, nullptr),
                                0);
                  }),
                  kParameter);
    }
    EXPECT_TRUE(records.isAll(kUntouched));
}

TEST(RecordDownloadSpeed, IsQuietOfOtherFailures) {
    for (const Speeds& speeds : {Read("[ 1 ]", 4, "false"), Read("[ 1 ]", 4, "0"), Read("null")}) {
        EXPECT_EQ(speeds.answer, kRefused);
        EXPECT_EQ(speeds.told, "");
        EXPECT_EQ(speeds.count, kOld);
        EXPECT_EQ(speeds.numbers, (Numbers{kOld, kOld, kOld, kOld}));
    }
    EXPECT_EQ(Read("[", 4).answer, kRefused);
    EXPECT_EQ(Read("[", 4).told, "");
}

TEST(RecordDownloadSpeed, Writes) {
    std::uint32_t numbers[] = {7, 4000000000, 9};
    const auto written = [&](std::uint32_t room, std::uint32_t count, std::uint32_t* first) {
        return Pack("RecordDownloadSpeed", Speed{first, room, count});
    };
    EXPECT_EQ(written(3, 3, numbers), "[ 7, 4000000000, 9 ]");
    EXPECT_EQ(written(3, 2, numbers), "[ 7, 4000000000 ]");
    EXPECT_EQ(written(3, 1, numbers), "7"); // a bare number
    EXPECT_EQ(written(3, 4, numbers), "[ 7, 4000000000, 9 ]");
    EXPECT_EQ(written(1, 3, numbers), "[ 7 ]"); // more are told of than there is room for
    EXPECT_EQ(written(3, UINT32_MAX, numbers), "[ 7, 4000000000, 9 ]");
    EXPECT_EQ(written(3, 0, numbers), "null");
    EXPECT_EQ(written(0, 3, numbers), "null");
    EXPECT_EQ(written(3, 3, nullptr), "null");
    const Speed record{numbers, 3, 3};
    EXPECT_EQ(PackBytes("RecordDownloadSpeed", &record, sizeof record - 1, kAmple), kNotBegun);
    EXPECT_EQ(PackBytes("RecordDownloadSpeed", &record, sizeof record, 21), kFailed); // 20 and the newline
    EXPECT_EQ(PackBytes("RecordDownloadSpeed", &record, sizeof record, 22), "[ 7, 4000000000, 9 ]\n");
}

} // namespace
} // namespace orrery::test
