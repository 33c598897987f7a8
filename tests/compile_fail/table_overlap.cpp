// A field has one row; further keys of it are marked as such.
// must not compile: rows_do_not_tile_the_record
#include "frame/record/Table.h"

using namespace orrery::record;

struct Door {
    std::int32_t number;
    std::int32_t floor;
};

#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(number, "Number", Int),
          FIELD(number, "No", Int).Alias(),
          FIELD(floor, "Floor", Int),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(number, "Number", Int),
          FIELD(number, "No", Int),
          FIELD(floor, "Floor", Int),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
