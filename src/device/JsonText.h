// An object that a client keeps on a device, or that a device words as it likes: the record has it as its text.
#pragma once

#include "frame/record/Field.h"

namespace orrery {

// Reads an object as its own text in UTF-8, which is empty when there is no room for all of it: half an object would
// be none. Writes the object that the text holds, and no key when it holds none.
extern const record::CustomCodec kJsonText;

} // namespace orrery
