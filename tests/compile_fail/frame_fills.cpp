// What a function fills is left out when the buffer is cleared, so it must be filled by each call that succeeds.
// must not compile, as a note tells: words_of_a_frame_that_contradict_each_other
#include "frame/Command.h"

using namespace orrery;

constexpr ParseFrame kFills = ParseFrame().Null(NullValue::OneRecord).Fills(8, 64);
#ifdef GOOD
constexpr ParseFrame kFrame = Consistent(kFills);
#else
constexpr ParseFrame kFrame = Consistent(kFills.Null(NullValue::LengthZero));
#endif
static_assert(kFrame.filledSize == 64);
