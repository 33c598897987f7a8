// The table of a nested record is that of its own type.
// must not compile: this codec does not fit the member's type
#include "frame/record/Table.h"

using namespace orrery::record;

struct Lock {
    std::int32_t code;
};
struct Bell {
    std::int32_t code;
};
struct Door {
    Lock lock;
};

TABLE(kLock, Lock,
      {
          FIELD(code, "Code", Int),
      });
TABLE(kBell, Bell,
      {
          FIELD(code, "Code", Int),
      });
#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(lock, "Lock", Record(kLock)),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(lock, "Lock", Record(kBell)),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
static_assert(kBell.size == sizeof(Bell));
