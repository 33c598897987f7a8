// A row points to its name table, which must outlive it.
// must not compile: deleted
#include "frame/record/Table.h"

using namespace orrery::record;

struct Door {
    std::int32_t state;
};

NAMES(kStates, kFolded,
      {
          {0, "Open"},
          {1, "Closed"},
      });
#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(state, "State", Names(kStates)),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(state, "State", Names(kStates.Unknown(1))),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
