// Texts of sensors and defence areas, which alarm inputs and capability replies share.
#pragma once

#include "frame/record/Names.h"

namespace orrery {

extern const record::NameTable kSenseMethods;
extern const record::NameTable kDefenceAreaTypes;

} // namespace orrery
