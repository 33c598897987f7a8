/* The log header has classes; a C client is told so in plain words. */
/* must not compile: orrery/log.h is C++ */
#ifdef GOOD
#include <orrery/types.h>
#else
#include <orrery/log.h>
#endif

int value;
