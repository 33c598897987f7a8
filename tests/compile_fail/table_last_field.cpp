// The rows reach to the record's end.
// must not compile: rows_do_not_tile_the_record
#include "frame/record/Table.h"

using namespace orrery::record;

struct Door {
    std::int32_t number;
    char name[16];
};

#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(number, "Number", Int),
          FIELD(name, "Name", Text),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(number, "Number", Int),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
