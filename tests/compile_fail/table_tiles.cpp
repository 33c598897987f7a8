// Every field of a record has its row; a forgotten one is found.
// must not compile: rows_do_not_tile_the_record
#include "frame/record/Table.h"

using namespace orrery::record;

struct Door {
    char name[16];
    std::int32_t number;
    std::int32_t floor;
    std::int32_t side;
};

#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(name, "Name", Text),
          FIELD(number, "Number", Int),
          FIELD(floor),
          FIELD(side),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(name, "Name", Text),
          FIELD(number, "Number", Int),
          FIELD(side),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
