// Rows as tables name them: a member, its key and a codec. Places, sizes and capacities come from the member and are
// never typed, and a codec that does not fit its type does not compile.
#pragma once

#include "frame/record/Nodes.h"

namespace orrery::record {

// ---- Codecs, by the member types that they take ------------------------------------------------------------------

template <class T>
inline constexpr bool kIsNumber = std::is_arithmetic_v<T> && !std::is_same_v<T, char> && !std::is_same_v<T, bool>;
template <class T>
inline constexpr bool kIsInteger = kIsNumber<T>&& std::is_integral_v<T>;

template <Kind K>
struct Codec {
    static constexpr Kind kind = K;
    // `T` is the member's type without the array levels that the codec takes element by element.
    template <class T>
    static constexpr bool accepts = false;
    static constexpr bool wholeMember = false; // takes the member's arrays at once
};

#define ORRERY_CODEC(name, condition, whole)                                                                           \
    struct name##Codec : Codec<Kind::name> {                                                                           \
        template <class T>                                                                                             \
        static constexpr bool accepts = condition;                                                                     \
        static constexpr bool wholeMember = whole;                                                                     \
    };                                                                                                                 \
    inline constexpr name##Codec name {}

template <class T>
inline constexpr bool kIsText = std::rank_v<T> == 1 && std::is_same_v<std::remove_extent_t<T>, char>;
// A record whose first members are those of a NET_TIME.
template <class T>
inline constexpr bool kBeginsAsNetTime = std::is_same_v<T, NET_TIME>;
template <class T, class Element>
inline constexpr bool kIsArrayOf = std::rank_v<T> >= 1 && std::is_same_v<std::remove_all_extents_t<T>, Element>;

ORRERY_CODEC(Size, (std::is_same_v<T, std::uint32_t>), false);
ORRERY_CODEC(Presence, kIsInteger<T>, false);
ORRERY_CODEC(MemberName, kIsText<T>, false);
ORRERY_CODEC(Bool, kIsInteger<T>, false);
ORRERY_CODEC(Int, kIsNumber<T>, false);
ORRERY_CODEC(UInt, kIsNumber<T>, false);
ORRERY_CODEC(Real, std::is_floating_point_v<T>, false);
ORRERY_CODEC(Text, kIsText<T>, false);
ORRERY_CODEC(RawText, kIsText<T>, false);
ORRERY_CODEC(FullText, kIsText<T>, false);
ORRERY_CODEC(TimeSection, (std::is_same_v<T, CFG_TIME_SECTION>), false);
ORRERY_CODEC(Schedule, (std::rank_v<T> == 2 && kIsArrayOf<T, CFG_TIME_SECTION>), true);
ORRERY_CODEC(HolidaySchedule, (std::is_same_v<T, CFG_TIME_SCHEDULE>), false);
ORRERY_CODEC(SectionList, (std::rank_v<T> == 1 && kIsArrayOf<T, CFG_TIME_SECTION>), true);
ORRERY_CODEC(NetTime, (std::is_same_v<T, NET_TIME>), false);
ORRERY_CODEC(NetTimeEx, (std::is_same_v<T, NET_TIME_EX>), false);
ORRERY_CODEC(ClockTime, (std::is_same_v<T, NET_TIME>), false);
ORRERY_CODEC(Date, (std::is_same_v<T, NET_TIME>), false);
ORRERY_CODEC(UtcTime, kBeginsAsNetTime<T>, false);
ORRERY_CODEC(SplitMode, (std::is_same_v<T, std::int32_t>), false);
ORRERY_CODEC(BitMask, (std::rank_v<T> == 1 && kIsArrayOf<T, std::uint32_t>), true);
ORRERY_CODEC(BitMaskLoose, (std::rank_v<T> == 1 && kIsArrayOf<T, std::uint32_t>), true);
ORRERY_CODEC(Switches, (std::rank_v<T> == 1 && kIsArrayOf<T, std::int32_t>), true);
#undef ORRERY_CODEC

// String through a name table.
struct Names {
    static constexpr Kind kind = Kind::Names;
    static constexpr bool wholeMember = false;
    template <class T>
    static constexpr bool accepts = kIsInteger<T>;
    const NameTable* table;
    constexpr explicit Names(const NameTable& itsTable) : table(&itsTable) {}
    explicit Names(const NameTable&&) = delete; // the row points to the table
};

// The name under which the record itself stands, through a name table. A code that the table writes no text for gives
// the record no member.
struct MemberCode {
    static constexpr Kind kind = Kind::MemberCode;
    static constexpr bool wholeMember = false;
    template <class T>
    static constexpr bool accepts = kIsInteger<T>;
    const NameTable* names;
    constexpr explicit MemberCode(const NameTable& itsNames) : names(&itsNames) {}
    explicit MemberCode(const NameTable&&) = delete; // the row points to the table
};

// Object or tuple through another table. The table's record must be the member's type (or what it points to).
template <class R>
struct Nested {
    static constexpr Kind kind = Kind::Record;
    static constexpr bool wholeMember = false;
    template <class T>
    static constexpr bool accepts = std::is_same_v<T, R> || std::is_same_v<T, R*> || std::is_same_v<T, const R*>;
    const Table* table;
};

// Rows over a table look into it. One that is only declared, as those of other families are, is refused right here: as
// a PART it stands whole in a header.
template <class R>
consteval Nested<R> Record(const TypedTable<R>& table) {
    return {table.size == sizeof(R) ? &table : nullptr};
}

// A member copied from one of the same type in what the call carries along; SUPPLIED makes it.
template <class M>
struct SuppliedFrom {
    static constexpr Kind kind = Kind::Supplied;
    static constexpr bool wholeMember = true;
    template <class T>
    static constexpr bool accepts = std::is_same_v<T, M>;
    std::uint32_t offset;
};

// Functions of the row's own.
struct Custom {
    static constexpr Kind kind = Kind::Custom;
    static constexpr bool wholeMember = true;
    template <class T>
    static constexpr bool accepts = true;
    const CustomCodec* codec;
    constexpr explicit Custom(const CustomCodec& itsCodec) : codec(&itsCodec) {}
};

// The table that lays out a shared record whose codec takes it whole, such as CFG_TIME_SECTION.
template <class R>
inline constexpr const Table* kLayoutOf = nullptr;

// ---- Rows from members -------------------------------------------------------------------------------------------

template <class T>
constexpr Cell CellOf() {
    if constexpr (std::is_pointer_v<T>)
        return Cell::Pointer;
    else if constexpr (std::is_same_v<T, char>)
        return Cell::Char;
    else if constexpr (std::is_same_v<T, float>)
        return Cell::F32;
    else if constexpr (std::is_same_v<T, double>)
        return Cell::F64;
    else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>) {
        constexpr bool isSigned = std::is_signed_v<T>;
        switch (sizeof(T)) {
        case 1:
            return isSigned ? Cell::I8 : Cell::U8;
        case 2:
            return isSigned ? Cell::I16 : Cell::U16;
        case 4:
            return isSigned ? Cell::I32 : Cell::U32;
        default:
            return isSigned ? Cell::I64 : Cell::U64;
        }
    } else
        return Cell::Record;
}

template <class T>
constexpr Field MakePlace(const char* name, std::size_t offset) {
    Field field;
    field.name = name;
    field.offset = static_cast<std::uint32_t>(offset);
    field.size = sizeof(T);
    field.alignment = alignof(T);
    using Innermost = std::remove_all_extents_t<T>;
    constexpr bool isText = std::is_same_v<Innermost, char>;
    field.cell = CellOf<Innermost>();
    field.toBytes = std::is_pointer_v<Innermost> && std::is_convertible_v<Innermost, const std::uint8_t*>;
    if constexpr (std::is_class_v<Innermost>) field.table = kLayoutOf<Innermost>;
    constexpr std::size_t levels = std::rank_v<T> - (isText && std::rank_v < T >> 0 ? 1 : 0);
    static_assert(levels <= Field::kMaxRank);
    field.rank = static_cast<std::uint8_t>(levels);
    std::uint32_t elements = 1;
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        ((I < levels ? (field.dims[I] = static_cast<std::uint32_t>(std::extent_v<T, I>), elements *= field.dims[I], 0)
                     : 0),
         ...);
    }
    (std::make_index_sequence<Field::kMaxRank>());
    field.elementSize = field.size / elements;
    return field;
}

// The member's type without the levels that a codec takes element by element.
template <class T, bool WholeMember>
struct Unit {
    using Innermost = std::remove_all_extents_t<T>;
    using type =
        std::conditional_t<std::is_same_v<Innermost, char> && !WholeMember,
                           char[std::rank_v<T> ? std::extent_v < T, std::rank_v<T> ? std::rank_v<T> - 1 : 0 > : 1],
                           std::conditional_t<WholeMember, T, Innermost>>;
};

// A member without a key.
template <class T>
constexpr Field MakeField(const char* name, std::size_t offset) {
    return MakePlace<T>(name, offset);
}

template <class T, class C>
constexpr Field MakeField(const char* name, std::size_t offset, const char* key, C codec) {
    static_assert(C::template accepts<typename Unit<T, C::wholeMember>::type>,
                  "this codec does not fit the member's type");
    Field field = MakePlace<T>(name, offset);
    field.key = key;
    field.kind = field.writtenAs = C::kind;
    field.wholeMember = C::wholeMember;
    if constexpr (C::kind == Kind::Names) field.names = codec.table;
    if constexpr (requires { codec.names; }) field.names = codec.names;
    if constexpr (requires { C::owned; }) field.owned = C::owned;
    if constexpr (requires { field.table = codec.table; }) field.table = codec.table;
    if constexpr (C::kind == Kind::Custom) field.custom = codec.codec;
    (void)codec;
    return field;
}

template <class T, class M>
constexpr Field MakeField(const char* name, std::size_t offset, SuppliedFrom<M> source) {
    Field field = MakeField<T>(name, offset, nullptr, source);
    field.suppliedFrom = source.offset;
    field.writable = false;
    return field;
}

template <class T>
constexpr Slot MakeSlot(std::size_t offset) {
    static_assert(std::is_integral_v<T> || std::is_pointer_v<T>, "a count, capacity or flag is an integer");
    return {static_cast<std::uint32_t>(offset), CellOf<T>()};
}

// A row that writes a key but stores nothing.
constexpr Field MakeVirtual(const char* key, const Custom& codec) {
    Field field;
    field.key = key;
    field.kind = field.writtenAs = Kind::Custom;
    field.custom = codec.codec;
    return field;
}

} // namespace orrery::record
