#include "device/RemoteDevice.h"

#include "device/ListText.h"
#include "support/Call.h"

#include <gtest/gtest.h>
#include <vector>

namespace orrery::test {
namespace {

constexpr std::uint32_t kChannelSize = sizeof(CFG_REMOTE_CHANNEL_INFO);
constexpr std::uint32_t kDeviceSize = sizeof(CFG_REMOTE_DEVICE_INFO);
constexpr char kOld = '\x5A'; // what stands in a caller's buffer

// Records of a caller whose layout has `stride` bytes; `extra` bytes stand behind the last one.
class Caller {
  public:
    Caller(std::uint32_t stride, std::size_t count, std::size_t extra = 0)
        : stride_(stride), memory_(std::max<std::size_t>(stride * count + extra, sizeof stride)) {
        std::memset(memory_.data(), kOld, memory_.size());
        SetWord(stride);
    }

    void SetWord(std::uint32_t word) { std::memcpy(memory_.data(), &word, sizeof word); }
    // A member of the record at an index, in this library's layout.
    template <class T>
    void Put(std::size_t index, std::size_t offset, T value) {
        std::memcpy(memory_.data() + index * stride_ + offset, &value, sizeof value);
    }
    template <class R>
    R Get(std::size_t index) const {
        R record;
        std::memset(static_cast<void*>(&record), kOld, sizeof record);
        std::memcpy(static_cast<void*>(&record), memory_.data() + index * stride_,
                    std::min<std::size_t>(stride_, sizeof record));
        return record;
    }
    std::string Bytes() const { return std::string(memory_.view()); }

    Answer Parse(const char* command, const std::string& table, const char* result = "true") const {
        const std::string document =
            R"({ "result" : )" + std::string(result) + R"(, "params" : { "table" : )" + table + " } }";
        std::uint32_t length = kNoLength;
        const auto answer = CLIENT_ParseData(command, document.c_str(), memory_.data(),
                                             static_cast<std::uint32_t>(memory_.size()), &length);
        return {answer, length};
    }
    std::string Pack(const char* command) const {
        return WithoutNewline(PackBytes(command, memory_.data(), memory_.size(), kAmple));
    }

  private:
    std::uint32_t stride_;
    GuardedBuffer memory_;
};

// ---- RemoteChannel ----

std::string ChannelText(int number) {
    return R"({ "Channel" : )" + std::to_string(number) + R"(, "Device" : "dev)" + std::to_string(number)
           + R"(", "Enable" : true })";
}

TEST(RemoteChannel, ThereAndBack) {
    const Caller caller(kChannelSize, 1);
    EXPECT_EQ(caller.Parse("RemoteChannel", ChannelText(7)), (Answer{1, kChannelSize}));
    const auto record = caller.Get<CFG_REMOTE_CHANNEL_INFO>(0);
    EXPECT_EQ(record.dwSize, kChannelSize);
    EXPECT_EQ(record.bEnable, 1);
    EXPECT_STREQ(record.szDevice, "dev7");
    EXPECT_EQ(record.nChannel, 7);
    EXPECT_EQ(caller.Pack("RemoteChannel"), ChannelText(7));
}

TEST(RemoteChannel, ElementsKeepTheirPlacesAndAreCountedAsTheyAreWalked) {
    const Caller caller(kChannelSize, 3, 70); // and less than one more
    const std::string before = caller.Bytes();
    EXPECT_EQ(caller.Parse("RemoteChannel",
                           "[ " + ChannelText(1) + ", null, " + ChannelText(3) + ", " + ChannelText(4) + " ]"),
              (Answer{1, 3 * kChannelSize}));
    EXPECT_STREQ(caller.Get<CFG_REMOTE_CHANNEL_INFO>(0).szDevice, "dev1");
    const auto second = caller.Get<CFG_REMOTE_CHANNEL_INFO>(1); // of a record without keys
    EXPECT_EQ(second.bEnable, 0);
    EXPECT_STREQ(second.szDevice, "");
    EXPECT_EQ(second.nChannel, 0);
    EXPECT_STREQ(caller.Get<CFG_REMOTE_CHANNEL_INFO>(2).szDevice, "dev3");
    // The later records' words are the caller's own.
    std::uint32_t old;
    std::memcpy(&old, before.data() + kChannelSize, sizeof old);
    EXPECT_EQ(second.dwSize, old);
    EXPECT_EQ(caller.Bytes().substr(3 * kChannelSize), std::string(70, kOld));
    EXPECT_EQ(caller.Pack("RemoteChannel"), "[ " + ChannelText(1)
                                                + R"(, { "Channel" : 0, "Device" : "", "Enable" : false }, )"
                                                + ChannelText(3) + " ]");
}

TEST(RemoteChannel, AnOlderCallersRecordEndsInsideAField) {
    const Caller caller(40, 2); // "Device" would end at 72
    EXPECT_EQ(caller.Parse("RemoteChannel", "[ " + ChannelText(1) + ", " + ChannelText(2) + " ]"), (Answer{1, 80}));
    for (const std::size_t i : {0, 1}) {
        EXPECT_EQ(caller.Get<CFG_REMOTE_CHANNEL_INFO>(i).bEnable, 1);
        EXPECT_EQ(caller.Bytes().substr(i * 40 + 8, 32), std::string(32, kOld));
    }
    const std::string known = R"({ "Channel" : 0, "Device" : "", "Enable" : true })";
    EXPECT_EQ(caller.Pack("RemoteChannel"), "[ " + known + ", " + known + " ]");
}

TEST(RemoteChannel, ANewerCallersRecordKeepsWhatIsUnknown) {
    const Caller caller(kChannelSize + 100, 2);
    EXPECT_EQ(caller.Parse("RemoteChannel", "[ " + ChannelText(1) + ", " + ChannelText(2) + " ]"),
              (Answer{1, 2 * (kChannelSize + 100)}));
    EXPECT_EQ(caller.Get<CFG_REMOTE_CHANNEL_INFO>(1).nChannel, 2);
    for (const std::size_t i : {0, 1})
        EXPECT_EQ(caller.Bytes().substr(i * (kChannelSize + 100) + kChannelSize, 100), std::string(100, kOld));
    EXPECT_EQ(caller.Pack("RemoteChannel"), "[ " + ChannelText(1) + ", " + ChannelText(2) + " ]");
}

// Each field with the size from which on a caller has all of it.
TEST(RemoteChannel, AFieldMovesWhenAllOfItLiesWithinTheCallersRecord) {
    for (std::uint32_t size = 4; size <= 2 * kChannelSize; ++size) {
        const Caller caller(size, 1);
        ASSERT_EQ(caller.Parse("RemoteChannel", ChannelText(7)), (Answer{1, size})) << size;
        std::string expected = std::string(size, kOld);
        std::memcpy(expected.data(), &size, 4);
        if (size >= 8) expected.replace(4, 4, std::string("\1\0\0\0", 4));
        if (size >= 72) expected.replace(8, 64, "dev7" + std::string(60, '\0'));
        if (size >= 76) expected.replace(72, 4, std::string("\7\0\0\0", 4));
        ASSERT_EQ(caller.Bytes(), expected) << size;
        EXPECT_EQ(caller.Pack("RemoteChannel"), R"({ "Channel" : )" + std::string(size >= 76 ? "7" : "0")
                                                    + R"(, "Device" : )" + (size >= 72 ? R"("dev7")" : R"("")")
                                                    + R"(, "Enable" : )" + (size >= 8 ? "true" : "false") + " }")
            << size;
    }
}

TEST(RemoteChannel, OfARecordBelowItsOwnWordNothingMoves) {
    for (const std::uint32_t size : {1u, 2u, 3u}) {
        Caller caller(4, 3); // 12 bytes
        caller.SetWord(size);
        const std::string before = caller.Bytes();
        EXPECT_EQ(caller.Parse("RemoteChannel", ChannelText(7)), (Answer{1, size}));
        EXPECT_EQ(caller.Parse("RemoteChannel", "[ " + ChannelText(7) + ", " + ChannelText(8) + " ]"),
                  (Answer{1, 2 * size}));
        EXPECT_EQ(caller.Bytes(), before);
        const std::string one = R"({ "Channel" : 0, "Device" : "", "Enable" : false })";
        EXPECT_EQ(caller.Pack("RemoteChannel"), ListText(static_cast<int>(12 / size), [&](int) { return one; }));
    }
}

TEST(RemoteChannel, SizesThatNoRecordHasFail) {
    Caller caller(kChannelSize, 2);
    for (const std::uint32_t word : {0u, 2 * kChannelSize + 1, 0xFFFFFFFFu}) {
        caller.SetWord(word);
        const std::string before = caller.Bytes();
        EXPECT_EQ(caller.Parse("RemoteChannel", ChannelText(1)), kRefused) << word;
        EXPECT_EQ(caller.Bytes(), before);
        EXPECT_EQ(caller.Pack("RemoteChannel"), kNotBegun) << word;
    }
    caller.SetWord(2 * kChannelSize); // one of them fits
    EXPECT_EQ(caller.Parse("RemoteChannel", "[ " + ChannelText(1) + ", " + ChannelText(2) + " ]"),
              (Answer{1, 2 * kChannelSize}));
}

TEST(RemoteChannel, WhatIsNoRecordFails) {
    const Caller caller(kChannelSize, 1);
    const std::string before = caller.Bytes();
    for (const char* table : {"5", "\"x\"", "true"})
        EXPECT_EQ(caller.Parse("RemoteChannel", table), kRefused) << table;
    EXPECT_EQ(caller.Parse("RemoteChannel", ChannelText(1), "false"), kRefused);
    for (const char* table : {"null", "[ ]"})
        EXPECT_EQ(caller.Parse("RemoteChannel", table), (Answer{1, 0})) << table;
    EXPECT_EQ(caller.Bytes(), before);
}

TEST(RemoteChannel, ADevicesNameIsCutAtItsCapacity) {
    const Caller caller(kChannelSize, 1);
    caller.Parse("RemoteChannel", R"({ "Device" : ")" + std::string(80, 'd') + R"(" })");
    EXPECT_EQ(std::string(caller.Get<CFG_REMOTE_CHANNEL_INFO>(0).szDevice), std::string(63, 'd'));
}

// ---- RemoteDevice ----

const std::string kDevice =
    R"({ "Address" : "10.0.0.5", "AudioInputChannels" : 3, "Definition" : "High", "DeviceClass" : "NVR", )"
    R"("DeviceType" : "N16", "Enable" : true, "GB28181" : { "DeviceNo" : "3402", "Port" : 5060 }, "HttpPort" : 80, )"
    R"("MachineAddress" : "hall", "MachineGroup" : "ground", "Name" : "recorder", "Password" : "pw", )"
    R"("Port" : 37777, "ProtocolType" : "Private", "RtspPort" : 554, "SerialNo" : "S123", "UserName" : "admin", )"
    R"("Vendor" : "General", "VideoInputChannels" : 16, "VideoInputs" : [ )"
    R"({ "ControlID" : "c1", "Enable" : true, "ExtraStreamUrl" : "rtsp:\/\/x1", "MainStreamUrl" : "rtsp:\/\/m1", )"
    R"("Name" : "n1", "ServiceType" : "UDP" }, )"
    R"({ "ControlID" : "c2", "Enable" : false, "ExtraStreamUrl" : "rtsp:\/\/x2", "MainStreamUrl" : "rtsp:\/\/m2", )"
    R"("Name" : "n2", "ServiceType" : "AUTO" } ] })";

// What is written of a device of which nothing is known.
const std::string kBlankDevice =
    R"({ "Address" : "", "AudioInputChannels" : 0, "Definition" : "Standard", "DeviceClass" : "", )"
    R"("DeviceType" : "", "Enable" : false, "HttpPort" : 0, "MachineAddress" : "", "MachineGroup" : "", )"
    R"("Name" : "", "Password" : "", "Port" : 0, "ProtocolType" : "", "RtspPort" : 0, "SerialNo" : "", )"
    R"("UserName" : "", "Vendor" : "", "VideoInputChannels" : 0 })";

std::string Member(const std::string& id, const std::string& device) {
    return Quoted(id) + " : " + device;
}

void GiveInputs(Caller& caller, std::size_t index, CFG_REMOTE_VIDEO_INPUT* inputs, std::int32_t room) {
    caller.Put(index, offsetof(CFG_REMOTE_DEVICE_INFO, pVideoInputs), inputs);
    caller.Put(index, offsetof(CFG_REMOTE_DEVICE_INFO, nMaxVideoInputs), room);
}

// Without an array of inputs.
struct Bare : Caller {
    Bare(std::uint32_t stride, std::size_t count, std::size_t extra = 0) : Caller(stride, count, extra) {
        for (std::size_t i = 0; i < count; ++i)
            GiveInputs(*this, i, nullptr, 0);
    }
};

TEST(RemoteDevice, ThereAndBack) {
    std::vector<CFG_REMOTE_VIDEO_INPUT> inputs(3);
    Caller caller(kDeviceSize, 1);
    GiveInputs(caller, 0, inputs.data(), 3);
    const std::string text = "{ " + Member("cam-1", kDevice) + " }";
    EXPECT_EQ(caller.Parse("RemoteDevice", text), (Answer{1, kDeviceSize}));
    const auto device = caller.Get<CFG_REMOTE_DEVICE_INFO>(0);
    EXPECT_EQ(device.dwSize, kDeviceSize);
    EXPECT_EQ(device.bEnable, 1);
    EXPECT_STREQ(device.szID, "cam-1");
    EXPECT_STREQ(device.szIP, "10.0.0.5");
    EXPECT_EQ(device.nPort, 37777);
    EXPECT_STREQ(device.szProtocol, "Private");
    EXPECT_STREQ(device.szUser, "admin");
    EXPECT_STREQ(device.szPassword, "pw");
    EXPECT_STREQ(device.szSerial, "S123");
    EXPECT_STREQ(device.szDevClass, "NVR");
    EXPECT_STREQ(device.szDevType, "N16");
    EXPECT_STREQ(device.szName, "recorder");
    EXPECT_STREQ(device.szAddress, "hall");
    EXPECT_STREQ(device.szGroup, "ground");
    EXPECT_EQ(device.nDefinition, CFG_DEFINITION_HIGH);
    EXPECT_EQ(device.nVideoChannels, 16);
    EXPECT_EQ(device.nAudioInputChannels, 3);
    EXPECT_EQ(device.nRtspPort, 554);
    EXPECT_STREQ(device.szVendor, "General");
    EXPECT_EQ(device.pVideoInputs, inputs.data());
    EXPECT_EQ(device.nMaxVideoInputs, 3);
    ASSERT_EQ(device.nRetVideoInputs, 2);
    EXPECT_EQ(device.nHttpPort, 80);
    EXPECT_EQ(device.bGB28181, 1);
    EXPECT_EQ(device.nGB28181Port, 5060);
    EXPECT_STREQ(device.szDeviceNo, "3402");
    EXPECT_EQ(inputs[0].bEnable, 1);
    EXPECT_STREQ(inputs[0].szName, "n1");
    EXPECT_STREQ(inputs[0].szControlID, "c1");
    EXPECT_STREQ(inputs[0].szMainStreamUrl, "rtsp://m1");
    EXPECT_STREQ(inputs[0].szExtraStreamUrl, "rtsp://x1");
    EXPECT_EQ(inputs[0].emServiceType, CFG_REMOTE_SERVICE_UDP);
    EXPECT_EQ(inputs[1].bEnable, 0);
    EXPECT_STREQ(inputs[1].szName, "n2");
    EXPECT_EQ(inputs[1].emServiceType, CFG_REMOTE_SERVICE_AUTO);
    EXPECT_EQ(caller.Pack("RemoteDevice"), text);
}

TEST(RemoteDevice, MembersComeInTheOrderOfTheirBytesAndNullsAreNotCounted) {
    const auto device = [](int port) { return R"({ "Port" : )" + std::to_string(port) + " }"; };
    const Bare caller(kDeviceSize, 4);
    EXPECT_EQ(caller.Parse("RemoteDevice", "{ " + Member("b", device(2)) + ", " + Member("B", device(1)) + ", "
                                               + Member("a", "null") + ", " + Member("c", "5") + " }"),
              (Answer{1, 3 * kDeviceSize}));
    EXPECT_STREQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(0).szID, "B");
    EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(0).nPort, 1);
    EXPECT_STREQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(1).szID, "b");
    EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(1).nPort, 2);
    EXPECT_STREQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(2).szID, "c"); // no object, but a member
    EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(2).nPort, 0);
    // The fourth is as it was.
    EXPECT_EQ(caller.Bytes().substr(3 * kDeviceSize, 100), std::string(100, kOld));
}

TEST(RemoteDevice, AsManyAsFitAreRead) {
    std::string table = "{ ";
    for (const char* id : {"1", "2", "3"})
        table += Member(id, "{ }") + (*id < '3' ? ", " : " }");
    const Bare caller(kDeviceSize, 2, kDeviceSize - 1);
    EXPECT_EQ(caller.Parse("RemoteDevice", table), (Answer{1, 2 * kDeviceSize}));
    EXPECT_STREQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(1).szID, "2");
    EXPECT_EQ(caller.Bytes().substr(2 * kDeviceSize), std::string(kDeviceSize - 1, kOld));
    EXPECT_EQ(caller.Pack("RemoteDevice"), "{ " + Member("1", kBlankDevice) + ", " + Member("2", kBlankDevice) + " }");
}

TEST(RemoteDevice, WhatTheTextLeavesOutIsZero) {
    const Bare caller(kDeviceSize, 1); // full of old bytes
    EXPECT_EQ(caller.Parse("RemoteDevice", R"({ "x" : { } })"), (Answer{1, kDeviceSize}));
    const auto device = caller.Get<CFG_REMOTE_DEVICE_INFO>(0);
    EXPECT_STREQ(device.szVendor, "");
    EXPECT_EQ(device.nDefinition, 0);
    EXPECT_EQ(device.nHttpPort, 0);
    EXPECT_EQ(device.bGB28181, 0);
    EXPECT_EQ(device.nRetVideoInputs, 0);
    EXPECT_EQ(device.szVendor[259], 0);
    EXPECT_EQ(caller.Pack("RemoteDevice"), "{ " + Member("x", kBlankDevice) + " }");
}

TEST(RemoteDevice, WhatIsNoObjectFails) {
    const Bare caller(kDeviceSize, 1);
    const std::string before = caller.Bytes();
    for (const char* table : {"[ { } ]", "[ ]", "5", "\"x\""})
        EXPECT_EQ(caller.Parse("RemoteDevice", table), kRefused) << table;
    EXPECT_EQ(caller.Parse("RemoteDevice", R"({ "x" : { } })", "false"), kRefused);
    EXPECT_EQ(caller.Parse("RemoteDevice", "null"), (Answer{1, 0}));
    EXPECT_EQ(caller.Parse("RemoteDevice", "{ }"), (Answer{1, 0}));
    EXPECT_EQ(caller.Parse("RemoteDevice", R"({ "x" : null })"), (Answer{1, 0}));
    EXPECT_EQ(caller.Bytes(), before);
}

TEST(RemoteDevice, SizesThatNoRecordHasFail) {
    Bare caller(kDeviceSize, 1);
    for (const std::uint32_t word : {0u, kDeviceSize + 1, 0xFFFFFFFFu}) {
        caller.SetWord(word);
        const std::string before = caller.Bytes();
        EXPECT_EQ(caller.Parse("RemoteDevice", R"({ "x" : { } })"), kRefused) << word;
        EXPECT_EQ(caller.Bytes(), before);
        EXPECT_EQ(caller.Pack("RemoteDevice"), kNotBegun) << word;
    }
}

TEST(RemoteDevice, TheDefinitionComparesExactly) {
    const auto read = [](const std::string& text) {
        const Bare caller(kDeviceSize, 1);
        caller.Parse("RemoteDevice", R"({ "x" : { "Definition" : )" + text + " } }");
        return caller.Get<CFG_REMOTE_DEVICE_INFO>(0).nDefinition;
    };
    EXPECT_EQ(read(R"("High")"), 1);
    EXPECT_EQ(read(R"("Standard")"), 0);
    EXPECT_EQ(read(R"("high")"), 0);
    EXPECT_EQ(read(R"("HIGH")"), 0);
    EXPECT_EQ(read("1"), 0);
    for (const std::int32_t code : {-1, 0, 2, 3}) {
        Bare caller(kDeviceSize, 1);
        caller.Put(0, offsetof(CFG_REMOTE_DEVICE_INFO, nDefinition), code);
        EXPECT_NE(caller.Pack("RemoteDevice").find(R"("Definition" : "Standard")"), std::string::npos) << code;
    }
    Bare caller(kDeviceSize, 1);
    caller.Put(0, offsetof(CFG_REMOTE_DEVICE_INFO, nDefinition), 1);
    EXPECT_NE(caller.Pack("RemoteDevice").find(R"("Definition" : "High")"), std::string::npos);
}

TEST(RemoteDevice, TheNationalNetworkGoesByItsPresence) {
    const auto read = [](const std::string& value) {
        const Bare caller(kDeviceSize, 1);
        caller.Parse("RemoteDevice", R"({ "x" : { "GB28181" : )" + value + " } }");
        return caller.Get<CFG_REMOTE_DEVICE_INFO>(0);
    };
    EXPECT_EQ(read("{ }").bGB28181, 1);
    EXPECT_EQ(read("false").bGB28181, 1); // there, though nothing is in it
    EXPECT_EQ(read("null").bGB28181, 0);
    EXPECT_EQ(read(R"({ "Port" : 9 })").nGB28181Port, 9);

    Bare caller(kDeviceSize, 1);
    caller.Parse("RemoteDevice", "{ " + Member("x", kDevice) + " }");
    caller.Put(0, offsetof(CFG_REMOTE_DEVICE_INFO, bGB28181), std::int32_t{0});
    EXPECT_EQ(caller.Pack("RemoteDevice").find("GB28181"), std::string::npos);
    caller.Put(0, offsetof(CFG_REMOTE_DEVICE_INFO, bGB28181), std::int32_t{-4});
    EXPECT_NE(caller.Pack("RemoteDevice").find(R"("GB28181" : { "DeviceNo" : "3402", "Port" : 5060 })"),
              std::string::npos);
}

TEST(RemoteDevice, TextsAreCutAtTheirCapacity) {
    const std::string x(300, 'x');
    std::string device = R"({ "GB28181" : { "DeviceNo" : ")" + x + R"(" })";
    for (const char* key : {"Address", "ProtocolType", "UserName", "Password", "SerialNo", "DeviceClass", "DeviceType",
                            "Name", "MachineAddress", "MachineGroup", "Vendor"})
        device += ", " + Quoted(key) + " : " + Quoted(x);
    const Bare caller(kDeviceSize, 1);
    EXPECT_EQ(caller.Parse("RemoteDevice", "{ " + Member(x, device + " }") + " }"), (Answer{1, kDeviceSize}));
    const auto record = caller.Get<CFG_REMOTE_DEVICE_INFO>(0);
    EXPECT_EQ(std::string(record.szID), x.substr(0, 63));
    EXPECT_EQ(std::string(record.szIP), x.substr(0, 31));
    EXPECT_EQ(std::string(record.szProtocol), x.substr(0, 31));
    EXPECT_EQ(std::string(record.szUser), x.substr(0, 63));
    EXPECT_EQ(std::string(record.szPassword), x.substr(0, 63));
    EXPECT_EQ(std::string(record.szSerial), x.substr(0, 31));
    EXPECT_EQ(std::string(record.szDevClass), x.substr(0, 15));
    EXPECT_EQ(std::string(record.szDevType), x.substr(0, 31));
    EXPECT_EQ(std::string(record.szName), x.substr(0, 127));
    EXPECT_EQ(std::string(record.szAddress), x.substr(0, 127));
    EXPECT_EQ(std::string(record.szGroup), x.substr(0, 63));
    EXPECT_EQ(std::string(record.szVendor), x.substr(0, 259));
    EXPECT_EQ(std::string(record.szDeviceNo), x.substr(0, 31));
    EXPECT_EQ(record.nPort, 0);
    EXPECT_EQ(record.nDefinition, 0);
    EXPECT_EQ(record.nHttpPort, 0);
}

TEST(RemoteDevice, OfEqualIdentifiersTheLastIsWritten) {
    Bare caller(kDeviceSize, 3);
    caller.Parse("RemoteDevice", R"({ "a" : { "Port" : 1 }, "b" : { "Port" : 2 }, "c" : { "Port" : 3 } })");
    caller.Put(2, offsetof(CFG_REMOTE_DEVICE_INFO, szID), 'a');
    const std::string text = caller.Pack("RemoteDevice");
    EXPECT_EQ(text.find(R"("Port" : 1,)"), std::string::npos);
    EXPECT_LT(text.find(R"("Port" : 3,)"), text.find(R"("Port" : 2,)")); // "a" stands in front of "b"
}

// ---- Video inputs ----

std::string Inputs(const std::string& inputs) {
    return R"({ "x" : { "VideoInputs" : )" + inputs + " } }";
}

TEST(RemoteDeviceInputs, AnArrayTakesWhatItHasRoomFor) {
    for (const std::int32_t room : {0, 1, 2, 3, 4}) {
        std::vector<CFG_REMOTE_VIDEO_INPUT> inputs(4);
        for (CFG_REMOTE_VIDEO_INPUT& input : inputs)
            input.bEnable = 77;
        Caller caller(kDeviceSize, 1);
        GiveInputs(caller, 0, inputs.data(), room);
        caller.Parse("RemoteDevice", Inputs(R"([ { "Enable" : true }, { "Enable" : true }, { "Enable" : true } ])"));
        const std::int32_t read = std::min(room, 3);
        EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(0).nRetVideoInputs, read);
        for (std::int32_t i = 0; i < 4; ++i)
            EXPECT_EQ(inputs[static_cast<std::size_t>(i)].bEnable, i < read ? 1 : 77) << room;
    }
}

// Members of an object are counted as elements are, but none of them is an input.
TEST(RemoteDeviceInputs, WhatIsNoListIsCountedByItsSize) {
    const std::vector<std::pair<std::string, std::int32_t>> values = {
        {R"({ "a" : { "Enable" : true }, "b" : { "Enable" : true }, "c" : 1 })", 2},
        {R"({ "a" : { "Enable" : true } })", 1},
        {"{ }", 0},
        {"5", 0},
        {R"("text")", 0},
        {"true", 0},
        {"null", 0}};
    for (const auto& [value, count] : values) {
        CFG_REMOTE_VIDEO_INPUT inputs[2] = {};
        inputs[0].bEnable = inputs[1].bEnable = 77;
        Caller caller(kDeviceSize, 1);
        GiveInputs(caller, 0, inputs, 2);
        EXPECT_EQ(caller.Parse("RemoteDevice", Inputs(value)), (Answer{1, kDeviceSize})) << value;
        EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(0).nRetVideoInputs, count) << value;
        EXPECT_EQ(inputs[0].bEnable, 77) << value;
        EXPECT_EQ(inputs[1].bEnable, 77) << value;
    }
}

TEST(RemoteDeviceInputs, WithoutAnArrayOrRoomThereAreNone) {
    CFG_REMOTE_VIDEO_INPUT input{};
    for (const auto& [array, room] : std::vector<std::pair<CFG_REMOTE_VIDEO_INPUT*, std::int32_t>>{
             {nullptr, 5}, {&input, -1}, {&input, INT32_MIN}, {&input, 0}}) {
        Caller caller(kDeviceSize, 1);
        GiveInputs(caller, 0, array, room);
        EXPECT_EQ(caller.Parse("RemoteDevice", Inputs(R"([ { "Name" : "n" } ])")), (Answer{1, kDeviceSize}));
        const auto device = caller.Get<CFG_REMOTE_DEVICE_INFO>(0);
        EXPECT_EQ(device.nRetVideoInputs, 0);
        EXPECT_EQ(device.pVideoInputs, array);
        EXPECT_EQ(device.nMaxVideoInputs, room);
        EXPECT_STREQ(input.szName, "");
        caller.Put(0, offsetof(CFG_REMOTE_DEVICE_INFO, nRetVideoInputs), std::int32_t{3});
        EXPECT_EQ(caller.Pack("RemoteDevice").find("VideoInputs"), std::string::npos);
    }
}

TEST(RemoteDeviceInputs, WhatTheTextDoesNotTellStays) {
    CFG_REMOTE_VIDEO_INPUT inputs[3] = {};
    for (CFG_REMOTE_VIDEO_INPUT& input : inputs) {
        input.bEnable = 5;
        std::strcpy(input.szName, "old");
        input.emServiceType = 9;
    }
    Caller caller(kDeviceSize, 1);
    GiveInputs(caller, 0, inputs, 3);
    caller.Parse("RemoteDevice", Inputs(R"([ { "Name" : "new" }, null, { "ServiceType" : "TCP", "Enable" : null } ])"));
    EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(0).nRetVideoInputs, 3);
    EXPECT_STREQ(inputs[0].szName, "new");
    EXPECT_EQ(inputs[0].bEnable, 5);
    EXPECT_EQ(inputs[0].emServiceType, 9);
    EXPECT_STREQ(inputs[1].szName, "old");
    EXPECT_STREQ(inputs[2].szName, "old");
    EXPECT_EQ(inputs[2].emServiceType, 0);
    EXPECT_EQ(inputs[2].bEnable, 5);
}

TEST(RemoteDeviceInputs, ServiceTypesCompareExactly) {
    const auto read = [](const std::string& text) {
        CFG_REMOTE_VIDEO_INPUT input{};
        input.emServiceType = 9;
        Caller caller(kDeviceSize, 1);
        GiveInputs(caller, 0, &input, 1);
        caller.Parse("RemoteDevice", Inputs(R"([ { "ServiceType" : )" + text + " } ]"));
        return input.emServiceType;
    };
    EXPECT_EQ(read(R"("AUTO")"), -1);
    EXPECT_EQ(read(R"("TCP")"), 0);
    EXPECT_EQ(read(R"("UDP")"), 1);
    EXPECT_EQ(read(R"("MCAST")"), 2);
    EXPECT_EQ(read(R"("tcp")"), -1);
    EXPECT_EQ(read(R"("SCTP")"), -1);
    EXPECT_EQ(read("5"), -1);
    EXPECT_EQ(read("null"), 9);

    const auto written = [](std::int32_t code) {
        CFG_REMOTE_VIDEO_INPUT input{};
        input.emServiceType = code;
        Bare caller(kDeviceSize, 1);
        GiveInputs(caller, 0, &input, 1);
        caller.Put(0, offsetof(CFG_REMOTE_DEVICE_INFO, nRetVideoInputs), std::int32_t{1});
        const std::string text = caller.Pack("RemoteDevice");
        const std::size_t at = text.find(R"("VideoInputs" : )");
        return at == std::string::npos ? text : text.substr(at);
    };
    const std::string rest = R"("VideoInputs" : [ { "ControlID" : "", "Enable" : false, "ExtraStreamUrl" : "", )"
                             R"("MainStreamUrl" : "", "Name" : "")";
    EXPECT_EQ(written(-1), rest + R"(, "ServiceType" : "AUTO" } ] } })");
    EXPECT_EQ(written(0), rest + R"(, "ServiceType" : "TCP" } ] } })");
    EXPECT_EQ(written(2), rest + R"(, "ServiceType" : "MCAST" } ] } })");
    EXPECT_EQ(written(3), rest + " } ] } }");
    EXPECT_EQ(written(-2), rest + " } ] } }");
}

TEST(RemoteDeviceInputs, TextsAreCutAndCountsEndAtTheRoom) {
    const std::string x(300, 'x');
    std::string input = "{ \"Enable\" : true";
    for (const char* key : {"Name", "ControlID", "MainStreamUrl", "ExtraStreamUrl"})
        input += ", " + Quoted(key) + " : " + Quoted(x);
    CFG_REMOTE_VIDEO_INPUT inputs[2] = {};
    Caller caller(kDeviceSize, 1);
    GiveInputs(caller, 0, inputs, 1);
    caller.Parse("RemoteDevice", Inputs("[ " + input + " } ]"));
    EXPECT_EQ(std::string(inputs[0].szName), x.substr(0, 63));
    EXPECT_EQ(std::string(inputs[0].szControlID), x.substr(0, 127));
    EXPECT_EQ(std::string(inputs[0].szMainStreamUrl), x.substr(0, 259));
    EXPECT_EQ(std::string(inputs[0].szExtraStreamUrl), x.substr(0, 259));
    EXPECT_EQ(inputs[0].emServiceType, 0);
    std::strcpy(inputs[1].szName, "second");
    caller.Put(0, offsetof(CFG_REMOTE_DEVICE_INFO, nRetVideoInputs), std::int32_t{2});
    EXPECT_EQ(caller.Pack("RemoteDevice").find("second"), std::string::npos);
}

TEST(RemoteDeviceInputs, EachRecordHasItsOwnArray) {
    CFG_REMOTE_VIDEO_INPUT first[1] = {};
    CFG_REMOTE_VIDEO_INPUT third[2] = {};
    const std::uint32_t stride = kDeviceSize + 12;
    Caller caller(stride, 3);
    GiveInputs(caller, 0, first, 1);
    GiveInputs(caller, 1, nullptr, 0);
    GiveInputs(caller, 2, third, 2);
    const std::string inputs = R"({ "VideoInputs" : [ { "Name" : "n1" }, { "Name" : "n2" } ] })";
    caller.Parse("RemoteDevice",
                 "{ " + Member("a", inputs) + ", " + Member("b", inputs) + ", " + Member("c", inputs) + " }");
    EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(0).nRetVideoInputs, 1);
    EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(1).nRetVideoInputs, 0);
    EXPECT_EQ(caller.Get<CFG_REMOTE_DEVICE_INFO>(2).nRetVideoInputs, 2);
    EXPECT_STREQ(first[0].szName, "n1");
    EXPECT_STREQ(third[1].szName, "n2");
}

// A caller that is too old for the room behind its pointer, or for the pointer, has no inputs.
TEST(RemoteDeviceInputs, OlderCallersHaveNone) {
    constexpr std::uint32_t kPointer = offsetof(CFG_REMOTE_DEVICE_INFO, pVideoInputs);
    constexpr std::uint32_t kRoom = offsetof(CFG_REMOTE_DEVICE_INFO, nMaxVideoInputs);
    CFG_REMOTE_VIDEO_INPUT input{};
    for (const std::uint32_t size : {kPointer, kPointer + 7, kPointer + 8, kRoom + 3, kRoom + 4, kRoom + 8}) {
        std::strcpy(input.szName, "old");
        Caller caller(size, 1);
        if (size >= kPointer + 8) caller.Put(0, kPointer, &input);
        if (size >= kRoom + 4) caller.Put(0, kRoom, std::int32_t{1});
        EXPECT_EQ(caller.Parse("RemoteDevice", Inputs(R"([ { "Name" : "new" } ])")), (Answer{1, size}));
        EXPECT_STREQ(input.szName, size >= kRoom + 4 ? "new" : "old") << size;
        const bool isCounted = size >= kRoom + 8;
        EXPECT_EQ(caller.Pack("RemoteDevice").find("VideoInputs\" : [") != std::string::npos, isCounted) << size;
    }
}

// ---- The caller's size ----

// What a caller of a size finds in its record: the fields that end within it, in the order of the record.
TEST(RemoteDevice, AFieldMovesWhenAllOfItLiesWithinTheCallersRecord) {
    std::vector<CFG_REMOTE_VIDEO_INPUT> inputs(2);
    Caller whole(kDeviceSize, 1);
    GiveInputs(whole, 0, inputs.data(), 2);
    const std::string text = "{ " + Member("cam-1", kDevice) + " }";
    ASSERT_EQ(whole.Parse("RemoteDevice", text), (Answer{1, kDeviceSize}));
    const std::string full = whole.Bytes();
    // Where each field begins and ends.
    using R = CFG_REMOTE_DEVICE_INFO;
    const std::vector<std::pair<std::size_t, std::size_t>> fields = {
        {offsetof(R, bEnable), 4},         {offsetof(R, szID), 64},
        {offsetof(R, szIP), 32},           {offsetof(R, nPort), 4},
        {offsetof(R, szProtocol), 32},     {offsetof(R, szUser), 64},
        {offsetof(R, szPassword), 64},     {offsetof(R, szSerial), 32},
        {offsetof(R, szDevClass), 16},     {offsetof(R, szDevType), 32},
        {offsetof(R, szName), 128},        {offsetof(R, szAddress), 128},
        {offsetof(R, szGroup), 64},        {offsetof(R, nDefinition), 4},
        {offsetof(R, nVideoChannels), 4},  {offsetof(R, nAudioInputChannels), 4},
        {offsetof(R, nRtspPort), 4},       {offsetof(R, szVendor), 260},
        {offsetof(R, nRetVideoInputs), 4}, {offsetof(R, nHttpPort), 4},
        {offsetof(R, bGB28181), 4},        {offsetof(R, nGB28181Port), 4},
        {offsetof(R, szDeviceNo), 32}};
    for (std::uint32_t size = 4; size <= 2 * kDeviceSize; ++size) {
        Caller caller(size, 2);
        for (const std::size_t i : {0, 1}) {
            if (size >= offsetof(R, pVideoInputs) + 8) caller.Put(i, offsetof(R, pVideoInputs), inputs.data());
            if (size >= offsetof(R, nMaxVideoInputs) + 4) caller.Put(i, offsetof(R, nMaxVideoInputs), std::int32_t{2});
        }
        std::string expected = caller.Bytes();
        ASSERT_EQ(
            caller.Parse("RemoteDevice", "{ " + Member("cam-1", kDevice) + ", " + Member("cam-2", kDevice) + " }"),
            (Answer{1, 2 * size}));
        for (const std::size_t i : {0, 1}) {
            for (const auto& [offset, bytes] : fields) {
                if (offset + bytes > size) continue;
                expected.replace(i * size + offset, bytes, full.substr(offset, bytes));
                if (i == 1 && offset == offsetof(R, szID)) expected[size + offset + 4] = '2';
            }
        }
        ASSERT_EQ(caller.Bytes(), expected) << size;
        // A caller that cannot tell its devices apart writes one.
        const std::string written = caller.Pack("RemoteDevice");
        ASSERT_EQ(written.starts_with(size >= 72 ? R"({ "cam-1" : { "Address" : )" : R"({ "" : { "Address" : )"), true)
            << size << written;
        // What pads the record moves nothing.
        if (size < kDeviceSize - 4) continue;
        ASSERT_EQ(written, "{ " + Member("cam-1", kDevice) + ", " + Member("cam-2", kDevice) + " }") << size;
    }
}

} // namespace
} // namespace orrery::test
