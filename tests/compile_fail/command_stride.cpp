// Records at the caller's stride begin with the caller's size.
// must not compile, as a note tells: a_stride_needs_a_record_that_begins_with_its_size_word
#include "CommandWords.h"

using namespace orrery;

struct Door {
#ifdef GOOD
    std::uint32_t dwSize;
    std::int32_t nNumber;
#else
    std::int32_t nNumber;
    std::uint32_t dwSize;
#endif
};
extern const record::TypedTable<Door> kDoor;

constexpr PackFrame kFrame = words::kPack.Strides(Stride::SizeWord);
constexpr Command kDoors = words::Both("Door", kDoor, words::kParse, kFrame);
static_assert(kDoors.packFrame.stride == Stride::SizeWord);
