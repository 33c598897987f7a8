#include "support/Specimens.h"

#include "alarm/EventHandler.h"
#include "frame/record/Engine.h"
#include "frame/record/SharedRecords.h"

#include <algorithm>

namespace orrery::test {

namespace {

using namespace record;

struct Item {
    char szName[32];
    std::int32_t nValue;
    std::uint8_t bEnable;
    std::int8_t nShort;
    std::uint16_t wWord;
};

struct Inner {
    std::uint32_t dwSize;
    char szText[16];
    std::int32_t nNumber;
};

// One field for each word that a row can say.
struct Everything {
    std::uint32_t dwSize;
    std::int8_t n8;
    std::uint8_t u8;
    std::int16_t n16;
    std::uint16_t u16;
    std::int64_t n64;
    std::uint64_t u64;
    float f32;
    double f64;
    float fDefault;
    std::int32_t nWhole;
    std::int32_t nRoot;
    std::int32_t nDepth;
    std::uint8_t emKind;
    std::uint8_t byReserved[3];
    std::int32_t emKinds[4];
    char szRaw[8];
    char szTexts[3][12];
    std::int32_t nTextCount;
    std::int32_t nMatrix[2][3];
    double dCube[2][2][3];
    std::int32_t nExactly[3];
    std::int32_t nStop[4];
    std::int32_t nStopCount;
    std::int32_t nClose[4];
    std::int32_t nCloseCount;
    std::int32_t nHole[4];
    std::int16_t nHoleCount;
    std::uint16_t wReserved;
    std::int32_t nUncapped[2];
    std::int32_t nUncappedCount;
    std::int32_t nSwitches[20];
    std::uint32_t dwMask[2];
    CFG_TIME_SECTION stuWeek[2][3];
    CFG_TIME_SECTION stuList[3];
    CFG_TIME_SECTION stuOne;
    CFG_TIME_SCHEDULE stuSchedule;
    NET_TIME stuTime;
    NET_TIME_EX stuTimeEx;
    NET_TIME stuClock;
    NET_TIME stuDate;
    std::int32_t nSplit;
    CFG_RECT stuRect;
    CFG_RECT stuLoose;
    Item stuKeyed[3];
    std::int32_t nKeyedCount;
    Inner stuInner[2];
    std::int32_t nOnlyInteger;
    std::int32_t nOnlyBool;
    std::int32_t bPresent;
};

PART(kItem, Item,
     {
         FIELD(szName, nullptr, MemberName),
         FIELD(nValue, "Value", Int),
         FIELD(bEnable, "Enable", Bool),
         FIELD(nShort, "Short", Int),
         FIELD(wWord, "Word", UInt),
     });
PART(kInner, Inner,
     {
         FIELD(dwSize, nullptr, Size),
         FIELD(szText, "Text", Text),
         FIELD(nNumber, "Number", Int).Absent(-1).WriteUnlessNegative(),
     })
    .Guarded();

constexpr TypedTable<CFG_RECT> kLooseRect = kRect.As(Shape::LooseTuple);

constexpr Name kKindRows[] = {{0, "None"}, {1, "First"}, {7, "Seventh"}, {7, "Again"}, {200, "Far", Compare::Exact}};
constexpr NameTable kKinds = FoldedNames(kKindRows).Unknown(1).OutsideWrites("Other");
constexpr NameTable kKindsOrNull = ExactNames(kKindRows).UnknownLeaves().OutsideWritesNull();

TABLE(kEverything, Everything,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(n8, "N8", Int).Always(),
          FIELD(u8, "U8", Bool),
          FIELD(n16, "Numbers/N16", Int).WriteUnless(5),
          FIELD(u16, "Numbers/U16", UInt),
          FIELD(n64, "Numbers/Deep/N64", Int),
          FIELD(u64, "Numbers/Deep/U64", UInt),
          FIELD(f32, "F32", Real),
          FIELD(f64, "F64", Real),
          FIELD(fDefault, "FDefault", Real).Absent(-1),
          FIELD(nWhole, "Whole", UInt).WriteAtMost(50),
          FIELD(nRoot, "params/more/root", Int).FromRoot(),
          FIELD(nDepth, "Depth", Int).WriteOnly(),
          FIELD(emKind, "Kind", Names(kKinds)),
          FIELD(byReserved),
          FIELD(emKinds, "Kinds", Names(kKindsOrNull)).WriteSkipped(Skipped::Hole).WriteEmpty(Empty::Array),
          FIELD(szRaw, "Raw", RawText),
          FIELD(szTexts, "Texts", Text).Count(AT(nTextCount)).WriteEmpty(Empty::Array),
          FIELD(nTextCount),
          FIELD(nMatrix, "Matrix", Int),
          FIELD(dCube, "Cube", Real),
          FIELD(nExactly, "Exactly", Int).Exactly(),
          FIELD(nStop, "Stop", Int).Count(AT(nStopCount)).NullElement(Nulls::Stop).WriteEmpty(Empty::Null),
          FIELD(nStopCount),
          FIELD(nClose, "Close", Int).Count(AT(nCloseCount)).NullElement(Nulls::CloseUp),
          FIELD(nCloseCount),
          FIELD(nHole, "Hole", Int).Count(AT(nHoleCount)).NullElement(Nulls::LeaveHole),
          FIELD(nHoleCount),
          FIELD(wReserved),
          FIELD(nUncapped, "Uncapped", Int).CountUncapped(AT(nUncappedCount)),
          FIELD(nUncappedCount),
          FIELD(nSwitches, "Switches", Switches),
          FIELD(dwMask, "Mask", BitMaskLoose).AnyShape(),
          FIELD(stuWeek, "Week", Schedule),
          FIELD(stuList, "Sections", SectionList),
          FIELD(stuOne, "One", TimeSection),
          FIELD(stuSchedule, "Schedule", HolidaySchedule),
          FIELD(stuTime, "Time", NetTime),
          FIELD(stuTimeEx, "TimeEx", NetTimeEx),
          FIELD(stuClock, "Clock", ClockTime),
          FIELD(stuDate, "Date", Date).ReadOnly(),
          FIELD(nSplit, "Split", SplitMode),
          FIELD(stuRect, "Rect", Record(kRect)),
          FIELD(stuLoose, "Loose", Record(kLooseRect)),
          FIELD(stuKeyed, "Keyed", Record(kItem)).Count(AT(nKeyedCount)).Keyed().WriteEmpty(Empty::Array),
          FIELD(nKeyedCount),
          FIELD(stuInner, "Inner", Record(kInner)),
          FIELD(nOnlyInteger, "OnlyInteger", Int).Only(OnlyType::Integer),
          FIELD(nOnlyBool, "OnlyBool", Bool).Only(OnlyType::Bool),
          FIELD(bPresent, "Group", Presence),
      });

// Arrays of the caller's own.
struct WithPointers {
    std::uint32_t dwSize;
    std::int32_t nMostItems;
    std::int32_t nItems;
    std::int32_t nMostInners;
    Item* pItems;
    Inner* pInners;
    std::int32_t nInners;
    std::int32_t nKeyed;
    Item* pKeyed;
    std::int32_t nMostKeyed;
    std::int32_t bEnable;
};

TABLE(kWithPointers, WithPointers,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(nMostItems),
          FIELD(nItems),
          FIELD(nMostInners),
          FIELD(pItems, "Items", Record(kItem)).Capacity(AT(nMostItems)).Count(AT(nItems)),
          FIELD(pInners, "Inners", Record(kInner)).Capacity(AT(nMostInners)).Count(AT(nInners)).Zeroed(),
          FIELD(nInners),
          FIELD(nKeyed),
          FIELD(pKeyed, "Keyed", Record(kItem)).Capacity(AT(nMostKeyed)).Count(AT(nKeyed)).Keyed(),
          FIELD(nMostKeyed),
          FIELD(bEnable, "Enable", Bool),
      });

// Records that stand under a name, in the layout that their caller knows.
struct Named {
    std::uint32_t dwSize;
    char szId[12];
    std::int32_t nLevel;
    std::int32_t abLevel;
    char szTexts[2][5];
    std::uint16_t wTexts;
    Inner stuInner[2];
    std::int32_t nMost;
    Item* pItems;
    std::int32_t nItems;
    std::int32_t nLast;
};

TABLE(kNamed, Named,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(szId, nullptr, MemberName),
          FIELD(nLevel, "Level", Int).Absent(-7).SetsAndNeeds(AT(abLevel)),
          FIELD(abLevel),
          FIELD(szTexts, "Texts", Text).Count(AT(wTexts)),
          FIELD(wTexts),
          FIELD(stuInner, "Inner", Record(kInner)),
          FIELD(nMost),
          FIELD(pItems, "Items", Record(kItem)).Capacity(AT(nMost)).Count(AT(nItems)),
          FIELD(nItems),
          FIELD(nLast, "Last", Int).Absent(-9),
      });

NAMES(kSlots, kExact.Unknown(3),
      {
          {0, "First"},
          {1, "Second"},
          {2, "Other/Third"},
      });

struct Slotted {
    std::int32_t emSlot;
    std::int32_t nValue;
};

PART(kSlotted, Slotted,
     {
         FIELD(emSlot, nullptr, MemberCode(kSlots)),
         FIELD(nValue, "Value", Int),
     });

struct Slots {
    std::int32_t nCount;
    Slotted stuSlots[4];
};

TABLE(kSlotList, Slots,
      {
          FIELD(nCount),
          FIELD(stuSlots, "Slots", Record(kSlotted)).Count(AT(nCount)).Keyed(),
      });

struct WithLinkage {
    std::uint32_t dwSize;
    std::int32_t bEnable;
    CFG_EVENT_HANDLER_V2_INFO stuHandler;
};

TABLE(kWithLinkage, WithLinkage,
      {
          FIELD(dwSize, nullptr, Size),
          FIELD(bEnable, "Enable", Bool),
          FIELD(stuHandler, "EventHandler", Record(kEventHandlerV2)),
      });

struct Numbers {
    std::int32_t nNumber[4];
    std::int32_t nCount;
};

TABLE(kNumbers, Numbers,
      {
          FIELD(nNumber, "", Int).Count(AT(nCount)),
          FIELD(nCount),
      });

Command Both(std::string_view name, const Table& table, ParseFrame parse, PackFrame pack) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = command.pack = Command::Frame::Family;
    command.parseFrame = parse;
    command.packFrame = pack;
    return command;
}

Command Generic(std::string_view name, const Table& table, GenericFrame frame) {
    Command command;
    command.name = name;
    command.table = &table;
    command.parse = command.pack = Command::Frame::Generic;
    command.genericFrame = frame;
    return command;
}

} // namespace

const std::vector<Command>& Specimens() {
    constexpr ParseFrame parse;
    constexpr PackFrame pack;
    static const std::vector<Command> specimens = {
        Both("specimen.everything", kEverything, parse, pack),
        Both("specimen.oneOrMany", kEverything,
             parse.From(Source::CapsOrParams)
                 .Takes(Take::OneOrMany)
                 .Null(NullValue::LengthZero)
                 .Length(ReplyLength::PerRecord),
             pack.As(Form::BareIfOne).Fits(Capacity::Raw)),
        Both("specimen.anyOrMany", kItem,
             parse.From(Source::Params, "list")
                 .Takes(Take::AnyOrMany)
                 .Clears(Clearing::Record)
                 .Result(ResultTest::FalseRefuses),
             pack.As(Form::BareIfExact).Fits(Capacity::OneBefore)),
        Both("specimen.many", kItem,
             parse.From(Source::Top, "list").Takes(Take::Many).Result(ResultTest::IntegerNonZero),
             pack.As(Form::Array).KeepsText()),
        Both("specimen.list", kNumbers, parse.Takes(Take::List).Length(ReplyLength::None), pack.Under("\"List\" : ")),
        Both("specimen.byMember", kItem,
             parse.Takes(Take::ByMember).Length(ReplyLength::PerRecord).Result(ResultTest::ExactBool),
             pack.As(Form::ByMember).Fits(Capacity::Loose)),
        Both("specimen.byMemberOrNone", kItem, parse.Takes(Take::ByMemberOrNone).Null(NullValue::LengthUntouched),
             pack.As(Form::ByMember)),
        Both("specimen.pointers", kWithPointers, parse.Clears(Clearing::Kept), pack.ExactSize()),
        Both("specimen.memberCodes", kSlotList, parse, pack),
        Both("specimen.slots", kSlotted, parse.Takes(Take::ByMember).Length(ReplyLength::PerRecord),
             pack.As(Form::ByMember)),
        Both("specimen.block", kEverything,
             parse.Takes(Take::ManyOrNone).Strides(Stride::SizeWord).Length(ReplyLength::PerRecord),
             pack.As(Form::Array).Strides(Stride::SizeWord)),
        Both("specimen.byField", kWithPointers, parse.Strides(Stride::SizeWordByField),
             pack.Strides(Stride::SizeWordByField)),
        Both("specimen.blocks", kNamed,
             parse.Takes(Take::OneOrMany)
                 .Null(NullValue::LengthZero)
                 .Strides(Stride::SizeWord)
                 .Length(ReplyLength::PerRecord),
             pack.As(Form::BareIfOne).Strides(Stride::SizeWord)),
        Both("specimen.blocksByName", kNamed,
             parse.Takes(Take::ByMember).Strides(Stride::SizeWord).Length(ReplyLength::PerRecord),
             pack.As(Form::ByMember).Strides(Stride::SizeWord)),
        Both("specimen.fieldsByName", kNamed,
             parse.Takes(Take::ByMember).Strides(Stride::SizeWordByField).Length(ReplyLength::PerRecord),
             pack.As(Form::ByMember).Strides(Stride::SizeWordByField)),
        Both("specimen.linkage", kWithLinkage, parse.ExactSize(), pack),
        Generic("specimen.table", kEverything, {.arrayForm = true, .zeroBuffer = true, .alwaysArray = true}),
        Generic("specimen.tableOfLists", kNumbers, {.arrayForm = true, .dimension = 1}),
        Generic("specimen.kept", kItem, {}),
    };
    return specimens;
}

std::vector<Command> AllCommands() {
    std::vector<Command> all(Commands().begin(), Commands().end());
    all.insert(all.end(), Specimens().begin(), Specimens().end());
    return all;
}

const std::vector<Command>& DistinctCommands() {
    static const std::vector<Command> distinct = [] {
        std::vector<Command> commands;
        for (const Command& command : AllCommands()) {
            const bool known = std::any_of(commands.begin(), commands.end(), [&](const Command& other) {
                return other.table == command.table && other.parse == command.parse && other.pack == command.pack
                       && other.genericFrame == command.genericFrame && other.parseFrame == command.parseFrame
                       && other.packFrame == command.packFrame && other.ownParse == command.ownParse
                       && other.ownPack == command.ownPack;
            });
            if (!known) commands.push_back(command);
        }
        return commands;
    }();
    return distinct;
}

} // namespace orrery::test
