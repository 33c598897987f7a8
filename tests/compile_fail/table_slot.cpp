// So is one that a word names.
// must not compile: nCuont
#include "frame/record/Table.h"

using namespace orrery::record;

struct Lock {
    std::int32_t nCode;
};
struct Door {
    char szName[16];
    std::int32_t nNumber;
    std::int32_t nCount;
    Lock stuLocks[3];
};

PART(kLock, Lock,
     {
         FIELD(nCode, "Code", Int),
     });
#ifdef GOOD
TABLE(kDoor, Door,
      {
          FIELD(szName, "Name", Text),
          FIELD(nNumber, "Number", Int),
          FIELD(nCount),
          FIELD(stuLocks, "Locks", Record(kLock)).Count(AT(nCount)),
      });
#else
TABLE(kDoor, Door,
      {
          FIELD(szName, "Name", Text),
          FIELD(nNumber, "Number", Int),
          FIELD(nCount),
          FIELD(stuLocks, "Locks", Record(kLock)).Count(AT(nCuont)),
      });
#endif
static_assert(kDoor.size == sizeof(Door));
