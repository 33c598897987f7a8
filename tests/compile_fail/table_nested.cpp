// A nested record is laid out by its own table.
// must not compile: a_nested_record_needs_its_table
#include "frame/record/Table.h"

using namespace orrery::record;

struct Lock {
    std::int32_t code;
};
struct Door {
    Lock lock;
};

TABLE(kLock, Lock,
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
          FIELD(lock),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
