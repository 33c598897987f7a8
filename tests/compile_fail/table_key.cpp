// Keys are copied into the text as they stand.
// must not compile: a_key_must_not_be_escaped
#include "frame/record/Table.h"

using namespace orrery::record;

struct Door {
    std::int32_t number;
};

#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(number, "Number", Int),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(number, "Num\"ber", Int),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
