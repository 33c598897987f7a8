// How a serial line is set: [ 9600, 8, "None", "1" ], for every record that names a serial device.
#pragma once

#include "frame/record/Table.h"

#include "orrery/comm_attribute.h"

namespace orrery {

// The text puts its elements in another order than the record, and drops those without a value from its end.
extern const record::CustomCodec kCommAttributeList;

namespace serial {

using namespace record;

PART(kCommAttribute, CFG_COMM_ATTRIBUTE,
     {
         FIELD(byDataBits, "", Custom(kCommAttributeList)),
         FIELD(byStopBits),
         FIELD(byParity),
         FIELD(byBaudRate),
     });

} // namespace serial

using serial::kCommAttribute;

} // namespace orrery
