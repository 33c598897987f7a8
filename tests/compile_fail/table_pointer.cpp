// How many records stand behind a caller's pointer is told by the record.
// must not compile: a_pointer_needs_its_capacity
#include "frame/record/Table.h"

using namespace orrery::record;

struct Lock {
    std::int32_t code;
};
struct Door {
    Lock* locks;
    std::int32_t room;
    std::int32_t count;
};

TABLE(kLock, Lock,
      {
          FIELD(code, "Code", Int),
      });
#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(locks, "Locks", Record(kLock)).Count(AT(count)).Capacity(AT(room)),
          FIELD(room),
          FIELD(count),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(locks, "Locks", Record(kLock)).Count(AT(count)),
          FIELD(room),
          FIELD(count),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
