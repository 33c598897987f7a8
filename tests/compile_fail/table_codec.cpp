// A codec reads and writes members of certain types only.
// must not compile: this codec does not fit the member's type
#include "frame/record/Table.h"

using namespace orrery::record;

struct Door {
    char name[16];
    std::int32_t number;
};

#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(name, "Name", Text),
          FIELD(number, "Number", Int),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(name, "Name", Text),
          FIELD(number, "Number", Text),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
