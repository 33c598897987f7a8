// What the ten commands share whose records begin with the size that their caller was compiled with.
#include "display/Display.h"
#include "display/MonitorWall.h"
#include "display/OneOrMany.h"
#include "display/VideoWidget.h"
#include "support/LogLines.h"

#include <vector>

namespace orrery::test {
namespace {

constexpr char kOld = '\x5A'; // what stands in a caller's buffer

struct Sized {
    const char* command;
    std::uint32_t size;
    const char* object; // fills the four bytes behind the size word, or later ones
    std::size_t offset; // of the member that it fills
    std::int32_t value;
};

const Sized kSized[] = {
    {"ChannelTitle", sizeof(CFG_CHANNEL_TITLE_INFO), R"({ "SerialNo" : 77 })",
     offsetof(CFG_CHANNEL_TITLE_INFO, nSerialNo), 77},
    {"VideoOut", sizeof(CFG_VIDEO_OUT_INFO), R"({ "Margin" : [ 77 ] })", offsetof(CFG_VIDEO_OUT_INFO, nMargin), 77},
    {"VideoColor", sizeof(CFG_VIDEO_COLOR_INFO), R"({ "Hue" : 77 })", offsetof(CFG_VIDEO_COLOR_INFO, nHue), 77},
    {"VideoWidget", sizeof(CFG_VIDEO_WIDGET_INFO), R"({ "Covers" : [ { } ] })",
     offsetof(CFG_VIDEO_WIDGET_INFO, nCoverCount), 1},
    {"MonitorWall", sizeof(CFG_MONITOR_WALL_INFO), R"({ "GridLine" : 77 })", offsetof(CFG_MONITOR_WALL_INFO, nGridLine),
     77},
    {"MonitorTour", sizeof(CFG_MONITOR_TOUR_INFO), R"({ "Interval" : 77 })", offsetof(CFG_MONITOR_TOUR_INFO, nInterval),
     77},
    {"VideoOutputComposite", sizeof(CFG_VIDEO_OUTPUT_COMPOSITE_INFO), R"({ "BlockIndex" : 77 })",
     offsetof(CFG_VIDEO_OUTPUT_COMPOSITE_INFO, nBlockIndex), 77},
    {"MonitorCollection", sizeof(CFG_SPLIT_SOURCE), R"({ "VideoChannel" : 77 })",
     offsetof(CFG_SPLIT_SOURCE, nVideoChannel), 77},
    {"DisplaySource", sizeof(CFG_SPLIT_SOURCE), R"({ "VideoChannel" : 77 })", offsetof(CFG_SPLIT_SOURCE, nVideoChannel),
     77},
    {"RecordSource", sizeof(CFG_SPLIT_SOURCE), R"({ "VideoChannel" : 77 })", offsetof(CFG_SPLIT_SOURCE, nVideoChannel),
     77},
};

// Records `stride` bytes apart, whose first word says so. Pointers of the caller's are null.
class Caller {
  public:
    Caller(const Sized& sized, std::uint32_t stride, std::size_t bytes)
        : sized_(sized), stride_(stride), memory_(bytes) {
        std::memset(memory_.data(), kOld, bytes);
        for (std::size_t at = 0; sized.size == sizeof(CFG_SPLIT_SOURCE) && at < bytes; at += stride)
            std::memset(memory_.data() + at, 0, std::min<std::size_t>(stride, bytes - at));
        SetWord(stride);
        before_ = memory_.view();
    }

    void SetWord(std::uint32_t word) {
        std::memcpy(memory_.data(), &word, std::min(sizeof word, memory_.view().size()));
        before_ = memory_.view();
    }
    Answer ParseDocument(const std::string& document) const {
        std::uint32_t length = kNoLength;
        const auto result = CLIENT_ParseData(sized_.command, document.c_str(), memory_.data(),
                                             static_cast<std::uint32_t>(memory_.view().size()), &length);
        return {result, length};
    }
    Answer Parse(const std::string& table) const {
        return ParseDocument(R"({ "result" : true, "params" : { "table" : )" + table + " } }");
    }
    std::string Pack() const {
        return WithoutNewline(PackBytes(sized_.command, memory_.data(), memory_.view().size(), kAmple));
    }
    std::int32_t Value(std::size_t index) const {
        std::int32_t value;
        std::memcpy(&value, memory_.data() + index * stride_ + sized_.offset, sizeof value);
        return value;
    }
    // Whether a record, or what stands behind all, is as the caller left it.
    bool Keeps(std::size_t from, std::size_t size) const {
        return memory_.view().substr(from, size) == std::string_view(before_).substr(from, size);
    }
    bool KeepsAll() const { return memory_.view() == before_; }

  private:
    const Sized& sized_;
    std::uint32_t stride_;
    GuardedBuffer memory_;
    std::string before_;
};

TEST(SizedRecords, AnObjectIsOneRecord) {
    for (const Sized& sized : kSized) {
        SCOPED_TRACE(sized.command);
        const Caller caller(sized, sized.size, 2 * std::size_t{sized.size});
        EXPECT_EQ(caller.Parse(sized.object), (Answer{1, sized.size}));
        EXPECT_EQ(caller.Value(0), sized.value);
        EXPECT_TRUE(caller.Keeps(0, 4));
        EXPECT_TRUE(caller.Keeps(sized.size, sized.size));
    }
}

TEST(SizedRecords, AnArrayFillsAsManyAsFit) {
    for (const Sized& sized : kSized) {
        SCOPED_TRACE(sized.command);
        const std::string object = sized.object;
        const Caller caller(sized, sized.size, 3 * std::size_t{sized.size} + 3);
        // A null one is as the caller left it, and is walked over.
        EXPECT_EQ(caller.Parse("[ " + object + ", null, " + object + ", " + object + " ]"),
                  (Answer{1, 3 * sized.size}));
        EXPECT_EQ(caller.Value(0), sized.value);
        EXPECT_TRUE(caller.Keeps(sized.size, sized.size));
        EXPECT_EQ(caller.Value(2), sized.value);
        EXPECT_TRUE(caller.Keeps(2 * std::size_t{sized.size}, 4)); // the later words are the caller's
        EXPECT_TRUE(caller.Keeps(3 * std::size_t{sized.size}, 3));
        const Caller fewer(sized, sized.size, 3 * std::size_t{sized.size});
        EXPECT_EQ(fewer.Parse("[ " + object + " ]"), (Answer{1, sized.size}));
    }
}

TEST(SizedRecords, WithoutATableOrElementsTheLengthIsZero) {
    for (const Sized& sized : kSized) {
        SCOPED_TRACE(sized.command);
        const Caller caller(sized, sized.size, sized.size);
        EXPECT_EQ(caller.Parse("null"), (Answer{1, 0}));
        EXPECT_EQ(caller.Parse("[ ]"), (Answer{1, 0}));
        EXPECT_EQ(caller.ParseDocument(R"({ "result" : true })"), (Answer{1, 0}));
        EXPECT_TRUE(caller.KeepsAll());
    }
}

TEST(SizedRecords, RefusedCallsTouchNothing) {
    for (const Sized& sized : kSized) {
        SCOPED_TRACE(sized.command);
        const Caller caller(sized, sized.size, sized.size);
        const std::string object = sized.object;
        EXPECT_EQ(caller.ParseDocument(R"({ "result" : false, "params" : { "table" : )" + object + " } }"), kRefused);
        EXPECT_EQ(caller.ParseDocument(R"({ "params" : { "table" : )" + object + " } }"), kRefused);
        EXPECT_EQ(caller.ParseDocument("{"), kRefused);
        for (const char* const table : {"5", "true", "\"x\""})
            EXPECT_EQ(caller.Parse(table), kRefused) << table;
        EXPECT_TRUE(caller.KeepsAll());
    }
}

TEST(SizedRecords, AWordThatIsNoSizeFails) {
    for (const Sized& sized : kSized) {
        SCOPED_TRACE(sized.command);
        Caller caller(sized, sized.size, sized.size);
        for (const std::uint32_t word : {0u, sized.size + 1, UINT32_MAX}) {
            caller.SetWord(word);
            EXPECT_EQ(caller.Parse(sized.object), kRefused) << word;
            EXPECT_TRUE(caller.KeepsAll());
            EXPECT_EQ(caller.Pack(), kNotBegun) << word;
        }
        const Caller none(sized, 3, 3); // not even room for the word
        EXPECT_EQ(none.Parse(sized.object), kRefused);
    }
}

// No record can be so small; who wrote the caller learns of it.
TEST(SizedRecords, AWordBelowItsOwnSizeFailsAndIsTold) {
    const std::string line = "_ParamConvert: invalid dwSize";
    for (const Sized& sized : kSized) {
        SCOPED_TRACE(sized.command);
        Caller caller(sized, sized.size, sized.size);
        for (const std::uint32_t word : {0u, 1u, 2u, 3u}) {
            caller.SetWord(word);
            const LogLines log;
            EXPECT_EQ(caller.Parse(sized.object), kRefused) << word;
            EXPECT_TRUE(caller.KeepsAll()) << word;
            EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, line), word == 0 ? 0 : 1) << word;
            EXPECT_EQ(caller.Pack(), kNotBegun) << word;
            EXPECT_EQ(log.count(E_LOG_LEVEL_ERROR, line), word == 0 ? 0 : 2) << word;
        }
        caller.SetWord(4); // a record of nothing but the word
        EXPECT_EQ(caller.Parse(sized.object), (Answer{1, 4}));
        EXPECT_TRUE(caller.KeepsAll());
    }
}

TEST(SizedRecords, OlderAndNewerCallers) {
    for (const Sized& sized : kSized) {
        SCOPED_TRACE(sized.command);
        const std::string object = sized.object;
        const std::string two = "[ " + object + ", " + object + " ]";
        // Of an older layout, that ends behind the member.
        const auto older = static_cast<std::uint32_t>(sized.offset + sizeof(std::int32_t));
        const Caller old(sized, older, 2 * std::size_t{older} + 1);
        EXPECT_EQ(old.Parse(two), (Answer{1, 2 * older}));
        EXPECT_EQ(old.Value(0), sized.value);
        EXPECT_EQ(old.Value(1), sized.value);
        EXPECT_TRUE(old.Keeps(2 * std::size_t{older}, 1));
        // Of a newer one: what it has more stays.
        const std::uint32_t newer = sized.size + 12;
        const Caller young(sized, newer, 2 * std::size_t{newer});
        EXPECT_EQ(young.Parse(two), (Answer{1, 2 * newer}));
        EXPECT_EQ(young.Value(0), sized.value);
        EXPECT_EQ(young.Value(1), sized.value);
        EXPECT_TRUE(young.Keeps(sized.size, 12));
        EXPECT_TRUE(young.Keeps(newer + std::size_t{sized.size}, 12));
        // Both write what this library's own layout does.
        const Caller own(sized, sized.size, 2 * std::size_t{sized.size});
        EXPECT_EQ(own.Parse(two), (Answer{1, 2 * sized.size}));
        EXPECT_EQ(young.Pack(), own.Pack());
        EXPECT_TRUE(own.Pack().starts_with("[ { ")) << own.Pack();
        EXPECT_EQ(old.Pack().substr(0, 4), "[ { ");
    }
}

TEST(SizedRecords, OneIsWrittenBareAndAPartOfOneNotAtAll) {
    for (const Sized& sized : kSized) {
        SCOPED_TRACE(sized.command);
        const Caller one(sized, sized.size, 2 * std::size_t{sized.size} - 1);
        EXPECT_EQ(one.Parse(sized.object), (Answer{1, sized.size}));
        const std::string text = one.Pack();
        EXPECT_TRUE(text.starts_with("{ ")) << text;
        Caller two(sized, sized.size, 2 * std::size_t{sized.size});
        EXPECT_EQ(two.Parse("[ " + std::string(sized.object) + ", " + sized.object + " ]"),
                  (Answer{1, 2 * sized.size}));
        EXPECT_EQ(two.Pack(), "[ " + text + ", " + text + " ]");
    }
}

} // namespace
} // namespace orrery::test
