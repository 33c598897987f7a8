// What is wrong with a row of a table: found when the table is made, and told by name of mistake and row.
#pragma once

#include "frame/record/Field.h"

#include <cstddef>

namespace orrery::record::build {

enum class Mistake : unsigned char {
    None,
    CountNeedsAList,
    NeighbourIsNoInteger,
    ARowCannotBeItsOwnNeighbour,
    CapacityNeedsAPointer,
    LentNeedsAnArrayOfTheRecord,
    OwnedNeedsAPointer,
    ZeroedNeedsAPointer,
    SingleNeedsAPointerToARecord,
    AllOrNoneNeedsACapacity,
    CountsWithoutArrayNeedsCountAndCapacity,
    WritesCapacityNeedsACapacity,
    ConvertedRoomNeedsAName,
    AbsentNeedsANumber,
    WriteAtMostNeedsANumber,
    WriteUnlessNeedsASingleNumber,
    UntilEmptyNeedsAListOfTexts,
    AnyShapeNeedsAList,
    ExactlyNeedsAList,
    AtLeastNeedsAList,
    KeyedNeedsAListOfRecords,
    AmongKeysNeedsNoKey,
    NullElementNeedsAList,
    NamedNullsNeedAKeyedList,
    RefusedElementNeedsAListOfRecords,
    WriteEmptyNeedsAList,
    WriteSkippedNeedsAList,
    WriteUnlessBareNeedsARecord,
    TrueAtOneNeedsABool,
    FirstBytesNeedsAText,
    OnlyDoesNotFitTheValue,
    KeepsObjectNeedsAnObject,
    WordsOfReadingOnARowThatIsWrittenOnly,
    WordsOfWritingOnARowThatIsReadOnly,
    NeitherReadNorWritten,
    AKeyHasAnEmptyPart,
    TwoRowsWriteOneKey,
    AKeyIsWrittenAsValueAndObject,
    AKeyMustNotBeEscaped,
    ANestedRecordNeedsItsTable,
    APointerNeedsItsCapacity,
    RowsDoNotTileTheRecord,
};

struct RowName {
    char text[48] = {};
};

struct Flaw {
    Mistake mistake = Mistake::None;
    RowName row;
};

constexpr bool IsNumberCell(Cell cell) {
    return cell != Cell::Char && cell != Cell::Pointer && cell != Cell::Record;
}
constexpr bool IsIntegerCell(Cell cell) {
    return IsNumberCell(cell) && cell != Cell::F32 && cell != Cell::F64;
}
// Read and written element by element.
constexpr bool IsList(const Field& row) {
    return !row.wholeMember && !row.single && (row.rank > 0 || row.cell == Cell::Pointer);
}

constexpr bool SaysOfReading(const Field& row) {
    return static_cast<const ReadingWords&>(row) != ReadingWords{};
}
constexpr bool SaysOfWriting(const Field& row) {
    return static_cast<const WritingWords&>(row) != WritingWords{} || row.writtenAs != row.kind;
}

constexpr bool HasEmptyPart(const char* key) {
    if (*key == '\0') return false; // the value itself
    char before = '/';
    for (; *key != '\0'; before = *key++) {
        if (*key == '/' && before == '/') return true;
    }
    return before == '/';
}

// Keys are copied into the text as they stand.
constexpr bool NeedsEscape(const char* key) {
    for (; *key != '\0'; ++key) {
        if (*key == '"' || *key == '\\' || static_cast<unsigned char>(*key) < 32) return true;
    }
    return false;
}

// The words of one row against its own kind, cell and rank. Functions of a row's own may make anything of them.
constexpr Mistake MistakeOfWords(const Field& row) {
    if (row.key != nullptr && HasEmptyPart(row.key)) return Mistake::AKeyHasAnEmptyPart;
    if (row.key != nullptr && NeedsEscape(row.key)) return Mistake::AKeyMustNotBeEscaped;
    const bool isPointer = row.cell == Cell::Pointer;
    const bool isOwnedText = isPointer && row.owned && row.kind == Kind::Custom;
    if ((isPointer || row.cell == Cell::Record) && row.table == nullptr && !isOwnedText)
        return Mistake::ANestedRecordNeedsItsTable;
    if (isPointer && row.kind == Kind::Record && !row.capacity.exists() && !row.owned && !row.single)
        return Mistake::APointerNeedsItsCapacity;
    if (!row.readable && !row.writable) return Mistake::NeitherReadNorWritten;
    if (row.hasDefault && !IsNumberCell(row.cell)) return Mistake::AbsentNeedsANumber;
    if (row.kind == Kind::Custom) return Mistake::None;
    const bool isList = IsList(row);
    const bool isSingleNumber = !isList && !row.wholeMember && IsNumberCell(row.cell);
    if (row.single && (!isPointer || row.owned || row.kind != Kind::Record))
        return Mistake::SingleNeedsAPointerToARecord;
    if (row.count.exists() && !isList && !row.single) return Mistake::CountNeedsAList;
    if (row.lent && (isPointer || !isList)) return Mistake::LentNeedsAnArrayOfTheRecord;
    if (row.capacity.exists() && !row.lent && !isPointer) return Mistake::CapacityNeedsAPointer;
    if (row.owned && !isPointer) return Mistake::OwnedNeedsAPointer;
    if (row.zeroed && !isPointer) return Mistake::ZeroedNeedsAPointer;
    if (row.allOrNone && (!isList || !row.capacity.exists())) return Mistake::AllOrNoneNeedsACapacity;
    if (row.counted && !(isList && isPointer && row.count.exists() && row.capacity.exists()))
        return Mistake::CountsWithoutArrayNeedsCountAndCapacity;
    if (row.fullCapacity && !row.capacity.exists()) return Mistake::WritesCapacityNeedsACapacity;
    if (row.convertedRoom != 0 && row.kind != Kind::MemberName) return Mistake::ConvertedRoomNeedsAName;
    if (row.atMost != Field::kNoLimit && !IsNumberCell(row.cell)) return Mistake::WriteAtMostNeedsANumber;
    if ((row.hasUnless || row.notNegative) && !isSingleNumber) return Mistake::WriteUnlessNeedsASingleNumber;
    if (row.untilEmpty && (row.cell != Cell::Char || row.rank == 0)) return Mistake::UntilEmptyNeedsAListOfTexts;
    if (row.anyShape && !isList && !row.wholeMember) return Mistake::AnyShapeNeedsAList;
    if (row.exactly && !isList) return Mistake::ExactlyNeedsAList;
    if (row.atLeast != 0 && !isList && !row.wholeMember && row.kind != Kind::Record) return Mistake::AtLeastNeedsAList;
    if (row.keyed && (!isList || row.kind != Kind::Record)) return Mistake::KeyedNeedsAListOfRecords;
    if (row.amongKeys && (row.key == nullptr || row.key[0] != '\0')) return Mistake::AmongKeysNeedsNoKey;
    if (row.nulls != Nulls::Count && !isList) return Mistake::NullElementNeedsAList;
    if ((row.nulls == Nulls::Named && (!row.keyed || row.amongKeys)) || row.refused == Nulls::Named)
        return Mistake::NamedNullsNeedAKeyedList;
    if (row.refused != Nulls::Count && (!isList || row.kind != Kind::Record))
        return Mistake::RefusedElementNeedsAListOfRecords;
    if (row.empty != Empty::NoKey && !isList && !row.wholeMember) return Mistake::WriteEmptyNeedsAList;
    if (row.skipped != Skipped::StaysNull && !isList) return Mistake::WriteSkippedNeedsAList;
    if (row.unlessBare && (isList || row.kind != Kind::Record)) return Mistake::WriteUnlessBareNeedsARecord;
    if (row.trueAtOne && row.writtenAs != Kind::Bool) return Mistake::TrueAtOneNeedsABool;
    if (row.firstBytes != 0 && row.cell != Cell::Char && row.cell != Cell::Record) return Mistake::FirstBytesNeedsAText;
    const bool takesArray = isList || row.wholeMember || row.kind == Kind::Record || row.kind == Kind::HolidaySchedule;
    if (row.only == OnlyType::Array ? !takesArray : row.only != OnlyType::Any && isList)
        return Mistake::OnlyDoesNotFitTheValue;
    if (!row.readable && SaysOfReading(row)) return Mistake::WordsOfReadingOnARowThatIsWrittenOnly;
    if (!row.writable && SaysOfWriting(row)) return Mistake::WordsOfWritingOnARowThatIsReadOnly;
    if (row.keepsObject) {
        bool isInside = false;
        for (const char* c = row.key; c != nullptr && *c != '\0'; ++c)
            isInside = isInside || *c == '/';
        if (!isInside) return Mistake::KeepsObjectNeedsAnObject;
    }
    return Mistake::None;
}

// A count, capacity, flag or condition against the row of the member that it names.
constexpr Mistake MistakeOfSlot(const Field& row, const Slot& slot, const Field& other) {
    if (!slot.exists() || other.size == 0 || other.offset != slot.offset) return Mistake::None;
    const bool isTested = &slot == &row.readCondition && other.cell == Cell::Pointer;
    if (!isTested && (other.rank > 0 || !IsIntegerCell(other.cell))) return Mistake::NeighbourIsNoInteger;
    return slot.offset == row.offset && row.size != 0 ? Mistake::ARowCannotBeItsOwnNeighbour : Mistake::None;
}

// Written whenever its record is: two of these under one key would both stand in the text.
constexpr bool IsAlwaysOut(const Field& row) {
    return row.key != nullptr && row.key[0] != '\0' && row.writable && row.kind != Kind::None
           && row.kind != Kind::Presence && row.kind != Kind::Date && row.kind != Kind::UtcTime
           && row.kind != Kind::Custom && row.writtenAs != Kind::Custom && !row.alias && !row.flag.exists()
           && !row.condition.exists() && row.when == nullptr && !row.hasUnless && !row.notNegative
           && !row.count.exists() && row.names == nullptr;
}

constexpr Mistake MistakeOfKeys(const char* left, const char* right) {
    while (*left != '\0' && *left == *right)
        ++left, ++right;
    if (*left == *right) return Mistake::TwoRowsWriteOneKey;
    return (*left == '\0' && *right == '/') || (*right == '\0' && *left == '/') ? Mistake::AKeyIsWrittenAsValueAndObject
                                                                                : Mistake::None;
}

constexpr Flaw FlawOf(Mistake mistake, const Field& row) {
    Flaw flaw{mistake, {}};
    const char* name = row.name[0] == '\0' && row.key != nullptr ? row.key : row.name;
    for (std::size_t i = 0; i + 1 < sizeof flaw.row.text && name[i] != '\0'; ++i)
        flaw.row.text[i] = name[i];
    return flaw;
}

// Where the compiler puts the next member of this alignment.
constexpr std::size_t Aligned(std::size_t end, std::size_t alignment) {
    return (end + alignment - 1) / alignment * alignment;
}

// Every row begins where the compiler puts the next member, so that nothing but padding lies between two rows. Only a
// field that fits into padding, such as a byte in front of a number, can be forgotten unseen. Told of is the row that
// stands where another should: the one behind a gap, or the last.
constexpr Flaw FindGap(const Field* rows, std::size_t count, std::size_t recordSize, std::size_t recordAlignment) {
    std::size_t end = 0;
    const Field* last = nullptr;
    for (std::size_t i = 0; i < count; ++i) {
        const Field& row = rows[i];
        if (row.alias || row.size == 0) continue;
        if (row.offset != Aligned(end, row.alignment)) return FlawOf(Mistake::RowsDoNotTileTheRecord, row);
        end = row.offset + row.size;
        last = &row;
    }
    if (recordSize == Aligned(end, recordAlignment)) return {};
    return FlawOf(Mistake::RowsDoNotTileTheRecord, last == nullptr ? rows[0] : *last);
}

constexpr Flaw FindFlaw(const Field* rows, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const Field& row = rows[i];
        if (const Mistake mistake = MistakeOfWords(row); mistake != Mistake::None) return FlawOf(mistake, row);
        const bool hasSlots = row.count.exists() || row.capacity.exists() || row.flag.exists() || row.condition.exists()
                              || row.readCondition.exists();
        for (std::size_t k = 0; k < count && hasSlots; ++k) {
            for (const Slot* slot : {&row.count, &row.capacity, &row.flag, &row.condition, &row.readCondition}) {
                if (const Mistake mistake = MistakeOfSlot(row, *slot, rows[k]); mistake != Mistake::None) {
                    return FlawOf(mistake, row);
                }
            }
        }
        if (!IsAlwaysOut(row)) continue;
        for (std::size_t k = 0; k < i; ++k) {
            if (rows[k].key == nullptr || rows[k].key[0] != row.key[0]) continue;
            if (const Mistake mistake = MistakeOfKeys(row.key, rows[k].key);
                mistake != Mistake::None && IsAlwaysOut(rows[k])) {
                return FlawOf(mistake, row);
            }
        }
    }
    return {};
}

// Deleted: a table with such a mistake does not compile, and the first line of the error names it and the row.
#define ORRERY_MISTAKE(which, name)                                                                                    \
    template <RowName row>                                                                                             \
    void name() = delete;                                                                                              \
    template <Flaw flaw>                                                                                               \
    requires(flaw.mistake == Mistake::which) constexpr void Tell() {                                                   \
        name<flaw.row>();                                                                                              \
    }

ORRERY_MISTAKE(CountNeedsAList, count_needs_a_list)
ORRERY_MISTAKE(NeighbourIsNoInteger, a_count_capacity_or_flag_must_be_one_integer)
ORRERY_MISTAKE(ARowCannotBeItsOwnNeighbour, a_row_cannot_be_its_own_count_or_flag)
ORRERY_MISTAKE(CapacityNeedsAPointer, capacity_needs_a_pointer)
ORRERY_MISTAKE(LentNeedsAnArrayOfTheRecord, lent_needs_an_array_of_the_record)
ORRERY_MISTAKE(OwnedNeedsAPointer, owned_needs_a_pointer)
ORRERY_MISTAKE(ZeroedNeedsAPointer, zeroed_needs_a_pointer)
ORRERY_MISTAKE(SingleNeedsAPointerToARecord, single_needs_a_pointer_to_a_record)
ORRERY_MISTAKE(AllOrNoneNeedsACapacity, all_or_none_needs_a_capacity)
ORRERY_MISTAKE(CountsWithoutArrayNeedsCountAndCapacity, counts_without_array_needs_count_and_capacity)
ORRERY_MISTAKE(WritesCapacityNeedsACapacity, writes_capacity_needs_a_capacity)
ORRERY_MISTAKE(ConvertedRoomNeedsAName, converted_room_needs_a_name)
ORRERY_MISTAKE(AbsentNeedsANumber, absent_needs_a_number)
ORRERY_MISTAKE(WriteAtMostNeedsANumber, write_at_most_needs_a_number)
ORRERY_MISTAKE(WriteUnlessNeedsASingleNumber, write_unless_needs_a_single_number)
ORRERY_MISTAKE(UntilEmptyNeedsAListOfTexts, until_empty_needs_a_list_of_texts)
ORRERY_MISTAKE(AnyShapeNeedsAList, any_shape_needs_a_list)
ORRERY_MISTAKE(ExactlyNeedsAList, exactly_needs_a_list)
ORRERY_MISTAKE(AtLeastNeedsAList, at_least_needs_a_list)
ORRERY_MISTAKE(KeyedNeedsAListOfRecords, keyed_needs_a_list_of_records)
ORRERY_MISTAKE(AmongKeysNeedsNoKey, among_keys_needs_no_key)
ORRERY_MISTAKE(NullElementNeedsAList, null_element_needs_a_list)
ORRERY_MISTAKE(NamedNullsNeedAKeyedList, named_nulls_need_a_keyed_list)
ORRERY_MISTAKE(RefusedElementNeedsAListOfRecords, refused_element_needs_a_list_of_records)
ORRERY_MISTAKE(WriteEmptyNeedsAList, write_empty_needs_a_list)
ORRERY_MISTAKE(WriteSkippedNeedsAList, write_skipped_needs_a_list)
ORRERY_MISTAKE(WriteUnlessBareNeedsARecord, write_unless_bare_needs_a_record)
ORRERY_MISTAKE(TrueAtOneNeedsABool, true_at_one_needs_a_bool)
ORRERY_MISTAKE(FirstBytesNeedsAText, first_bytes_needs_a_text)
ORRERY_MISTAKE(OnlyDoesNotFitTheValue, only_does_not_fit_the_value)
ORRERY_MISTAKE(KeepsObjectNeedsAnObject, keeps_object_needs_an_object)
ORRERY_MISTAKE(WordsOfReadingOnARowThatIsWrittenOnly, words_of_reading_on_a_row_that_is_written_only)
ORRERY_MISTAKE(WordsOfWritingOnARowThatIsReadOnly, words_of_writing_on_a_row_that_is_read_only)
ORRERY_MISTAKE(NeitherReadNorWritten, a_row_is_neither_read_nor_written)
ORRERY_MISTAKE(AKeyHasAnEmptyPart, a_key_has_an_empty_part)
ORRERY_MISTAKE(TwoRowsWriteOneKey, two_rows_write_one_key)
ORRERY_MISTAKE(AKeyIsWrittenAsValueAndObject, a_key_is_written_as_value_and_object)
ORRERY_MISTAKE(AKeyMustNotBeEscaped, a_key_must_not_be_escaped)
ORRERY_MISTAKE(ANestedRecordNeedsItsTable, a_nested_record_needs_its_table)
ORRERY_MISTAKE(APointerNeedsItsCapacity, a_pointer_needs_its_capacity)
ORRERY_MISTAKE(RowsDoNotTileTheRecord, rows_do_not_tile_the_record)
#undef ORRERY_MISTAKE

template <class Rows>
inline constexpr Flaw kFlaw = [] {
    constexpr std::size_t count = sizeof(Rows::rows) / sizeof(Rows::rows[0]);
    using R = typename Rows::R;
    const Flaw flaw = FindFlaw(Rows::rows, count);
    return flaw.mistake != Mistake::None ? flaw : FindGap(Rows::rows, count, sizeof(R), alignof(R));
}();

} // namespace orrery::record::build
