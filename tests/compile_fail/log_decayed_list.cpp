// A va_list that came as a parameter is a pointer already; its address would be no argument list.
// must not compile, as a note tells: LogOne_ArgumentList
#include <orrery/log.h>

void Forward(const char* format, va_list list) {
#ifdef GOOD
    va_list own;
    va_copy(own, list);
    char* arguments = LogOne_ArgumentList(own);
    LogOneTraceOutAll(E_LOG_LEVEL_ERROR, 0, "Door", 1, format, arguments);
    va_end(own);
#else
    char* arguments = LogOne_ArgumentList(list);
    LogOneTraceOutAll(E_LOG_LEVEL_ERROR, 0, "Door", 1, format, arguments);
#endif
}
