// A record inside another has its rows where both are seen; the error stands in the row that names it.
// must not compile: constant expression
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

#ifdef GOOD
PART(kLock, Lock,
     {
         FIELD(nCode, "Code", Int),
     });
#else
extern const TypedTable<Lock> kLock; // its rows are those of another file
#endif
TABLE(kDoor, Door,
      {
          FIELD(szName, "Name", Text),
          FIELD(nNumber, "Number", Int),
          FIELD(nCount),
          FIELD(stuLocks, "Locks", Record(kLock)).Count(AT(nCount)),
      });
static_assert(kDoor.size == sizeof(Door));
