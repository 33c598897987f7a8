// Words that do not fit their row, and keys that two rows share: one mistake a case.
#include "frame/record/Table.h"

using namespace orrery::record;

struct Lock {
    std::int32_t nCode;
};
struct Door {
    char szName[16];
    std::int32_t nNumber;
    std::int32_t nDays[7];
    Lock stuLocks[3];
    Lock stuLock;
    std::int32_t nFloor;
    float fLevel;
};

PART(kLock, Lock,
     {
         FIELD(nCode, "Code", Int),
     });

#if CASE == 0 // must not compile 0: count_needs_a_list
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int)
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).Count(AT(nFloor))
#endif
#elif CASE == 1 // must not compile 1: a_count_capacity_or_flag_must_be_one_integer
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).Count(AT(nFloor))
#else
#define ROW_nDays FIELD(nDays, "Days", Int).Count(Slot{offsetof(R, fLevel), Cell::I32})
#endif
#elif CASE == 2 // must not compile 2: a_row_cannot_be_its_own_count_or_flag
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int).SetsAndNeeds(AT(nFloor))
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).SetsAndNeeds(AT(nNumber))
#endif
#elif CASE == 3 // must not compile 3: capacity_needs_a_pointer
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).Count(AT(nFloor))
#else
#define ROW_nDays FIELD(nDays, "Days", Int).Capacity(AT(nFloor))
#endif
#elif CASE == 31 // must not compile 31: lent_needs_an_array_of_the_record
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).Lent(AT(nFloor))
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).Lent(AT(nFloor))
#endif
#elif CASE == 4 // must not compile 4: owned_needs_a_pointer
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int)
#else
#define ROW_nDays FIELD(nDays, "Days", Int).Owned()
#endif
#elif CASE == 5 // must not compile 5: zeroed_needs_a_pointer
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int)
#else
#define ROW_nDays FIELD(nDays, "Days", Int).Zeroed()
#endif
#elif CASE == 6 // must not compile 6: writes_capacity_needs_a_capacity
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int)
#else
#define ROW_nDays FIELD(nDays, "Days", Int).WritesCapacity()
#endif
#elif CASE == 7 // must not compile 7: absent_needs_a_number
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int).Absent(-1)
#else
#define ROW_szName FIELD(szName, "Name", Text).Absent(-1)
#endif
#elif CASE == 8 // must not compile 8: write_at_most_needs_a_number
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int).WriteAtMost(5)
#else
#define ROW_szName FIELD(szName, "Name", Text).WriteAtMost(5)
#endif
#elif CASE == 9 // must not compile 9: write_unless_needs_a_single_number
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int).WriteUnless(5)
#else
#define ROW_nDays FIELD(nDays, "Days", Int).WriteUnless(5)
#endif
#elif CASE == 10 // must not compile 10: until_empty_needs_a_list_of_texts
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int)
#else
#define ROW_nDays FIELD(nDays, "Days", Int).UntilEmpty()
#endif
#elif CASE == 11 // must not compile 11: any_shape_needs_a_list
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).AnyShape()
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).AnyShape()
#endif
#elif CASE == 12 // must not compile 12: exactly_needs_a_list
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).Exactly()
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).Exactly()
#endif
#elif CASE == 13 // must not compile 13: at_least_needs_a_list
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).AtLeast(2)
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).AtLeast(2)
#endif
#elif CASE == 14 // must not compile 14: keyed_needs_a_list_of_records
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int)
#else
#define ROW_nDays FIELD(nDays, "Days", Int).Keyed()
#endif
#elif CASE == 15 // must not compile 15: among_keys_needs_no_key
#ifdef GOOD
#define ROW_stuLocks FIELD(stuLocks, "", Record(kLock)).AmongKeys()
#else
#define ROW_stuLocks FIELD(stuLocks, "Locks", Record(kLock)).AmongKeys()
#endif
#elif CASE == 16 // must not compile 16: null_element_needs_a_list
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).NullElement(Nulls::Stop)
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).NullElement(Nulls::Stop)
#endif
#elif CASE == 32 // must not compile 32: named_nulls_need_a_keyed_list
#ifdef GOOD
#define ROW_stuLocks FIELD(stuLocks, "Locks", Record(kLock)).Keyed().NullElement(Nulls::Named)
#else
#define ROW_stuLocks FIELD(stuLocks, "Locks", Record(kLock)).NullElement(Nulls::Named)
#endif
#elif CASE == 17 // must not compile 17: refused_element_needs_a_list_of_records
#ifdef GOOD
#define ROW_stuLocks FIELD(stuLocks, "Locks", Record(kLock)).RefusedElement(Nulls::Stop)
#else
#define ROW_nDays FIELD(nDays, "Days", Int).RefusedElement(Nulls::Stop)
#endif
#elif CASE == 18 // must not compile 18: write_empty_needs_a_list
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).WriteEmpty(Empty::Array)
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).WriteEmpty(Empty::Array)
#endif
#elif CASE == 19 // must not compile 19: write_skipped_needs_a_list
#ifdef GOOD
#define ROW_stuLocks FIELD(stuLocks, "Locks", Record(kLock)).WriteSkipped(Skipped::Hole)
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).WriteSkipped(Skipped::Hole)
#endif
#elif CASE == 20 // must not compile 20: write_unless_bare_needs_a_record
#ifdef GOOD
#define ROW_stuLock FIELD(stuLock, "Lock", Record(kLock)).WriteUnlessBare()
#else
#define ROW_stuLocks FIELD(stuLocks, "Locks", Record(kLock)).WriteUnlessBare()
#endif
#elif CASE == 21 // must not compile 21: true_at_one_needs_a_bool
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Bool).TrueAtOne()
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).TrueAtOne()
#endif
#elif CASE == 22 // must not compile 22: first_bytes_needs_a_text
#ifdef GOOD
#define ROW_szName FIELD(szName, "Name", Text).FirstBytes(5)
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).FirstBytes(5)
#endif
#elif CASE == 23 // must not compile 23: only_does_not_fit_the_value
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).Only(OnlyType::Array)
#else
#define ROW_szName FIELD(szName, "Name", Text).Only(OnlyType::Array)
#endif
#elif CASE == 24 // must not compile 24: keeps_object_needs_an_object
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "A/Number", Int).KeepsObject()
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).KeepsObject()
#endif
#elif CASE == 25 // must not compile 25: words_of_reading_on_a_row_that_is_written_only
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int).WriteOnly()
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).WriteOnly().Always()
#endif
#elif CASE == 26 // must not compile 26: words_of_writing_on_a_row_that_is_read_only
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int).ReadOnly()
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).ReadOnly().WriteAtMost(5)
#endif
#elif CASE == 27 // must not compile 27: a_row_is_neither_read_nor_written
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int).ReadOnly()
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).ReadOnly().WriteOnly()
#endif
#elif CASE == 28 // must not compile 28: a_key_has_an_empty_part
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "A/Number", Int)
#else
#define ROW_nNumber FIELD(nNumber, "A//Number", Int)
#endif
#elif CASE == 29 // must not compile 29: two_rows_write_one_key
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int)
#else
#define ROW_nNumber FIELD(nNumber, "Level", Int)
#endif
#elif CASE == 30 // must not compile 30: a_key_is_written_as_value_and_object
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int)
#else
#define ROW_nNumber FIELD(nNumber, "Level/Number", Int)
#endif
#elif CASE == 33 // must not compile 33: single_needs_a_pointer_to_a_record
#ifdef GOOD
#define ROW_nNumber FIELD(nNumber, "Number", Int)
#else
#define ROW_nNumber FIELD(nNumber, "Number", Int).Single()
#endif
#elif CASE == 34 // must not compile 34: all_or_none_needs_a_capacity
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).Lent(AT(nFloor)).AllOrNone()
#else
#define ROW_nDays FIELD(nDays, "Days", Int).AllOrNone()
#endif
#elif CASE == 35 // must not compile 35: counts_without_array_needs_count_and_capacity
#ifdef GOOD
#define ROW_nDays FIELD(nDays, "Days", Int).Count(AT(nFloor))
#else
#define ROW_nDays FIELD(nDays, "Days", Int).Count(AT(nFloor)).CountsWithoutArray()
#endif
#elif CASE == 36 // must not compile 36: converted_room_needs_a_name
#ifdef GOOD
#define ROW_szName FIELD(szName, nullptr, MemberName).ConvertedRoom(31)
#else
#define ROW_szName FIELD(szName, "Name", Text).ConvertedRoom(31)
#endif
#endif

#ifndef ROW_szName
#define ROW_szName FIELD(szName)
#endif
#ifndef ROW_nNumber
#define ROW_nNumber FIELD(nNumber)
#endif
#ifndef ROW_nDays
#define ROW_nDays FIELD(nDays)
#endif
#ifndef ROW_stuLocks
#define ROW_stuLocks FIELD(stuLocks, nullptr, Record(kLock))
#endif
#ifndef ROW_stuLock
#define ROW_stuLock FIELD(stuLock, nullptr, Record(kLock))
#endif

TABLE(kDoor, Door,
      {
          ROW_szName,
          ROW_nNumber,
          ROW_nDays,
          ROW_stuLocks,
          ROW_stuLock,
          FIELD(nFloor),
          FIELD(fLevel, "Level", Real),
      });
static_assert(kDoor.size == sizeof(Door));
