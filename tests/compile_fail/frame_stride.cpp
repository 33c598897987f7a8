// Records at the caller's stride are not the library's own: words that reach into the buffer do not go with them.
// must not compile, as a note tells: a_word_that_does_not_go_with_a_size_word
#include "frame/Command.h"

using namespace orrery;

constexpr ParseFrame kVersioned = ParseFrame().Strides(Stride::SizeWord).Length(ReplyLength::PerRecord);
#ifdef GOOD
constexpr ParseFrame kFrame = Consistent(kVersioned);
#else
constexpr ParseFrame kFrame = Consistent(kVersioned.RootKeysFirst());
#endif
static_assert(kFrame.stride == Stride::SizeWord);
