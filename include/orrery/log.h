/* The log front: lets a host see what the library says about texts and records that it refuses.
   The library has no logger. It forwards every line to a sink that the host installs, and says nothing while there is
   none. One lock covers installing a sink and every call into it, so a sink never runs twice at once; it may call back
   into these functions on the same thread, but must not wait for another thread that does. */
#ifndef ORRERY_LOG_H
#define ORRERY_LOG_H

#ifndef __cplusplus
#error "orrery/log.h is C++: a sink is a class, and the functions carry C++ names"
#endif

#include <cstdarg>
#include <cstdint>

#ifndef ORRERY_API
#ifdef _WIN32
#define ORRERY_API
#else
#define ORRERY_API __attribute__((visibility("default")))
#endif
#endif

/* The weight of a line. Values are handed to the sink as they come; the library itself uses the two named here. */
enum E_LOG_LEVEL : std::int32_t {
    E_LOG_LEVEL_ERROR = 0,  /* a call was refused */
    E_LOG_LEVEL_DETAIL = 2, /* a value was passed over, the call goes on */
};

/* Codes of the library's own lines, as the sink sees them in `code`. */
enum E_LOG_CODE : std::uint32_t {
    E_LOG_CODE_NONE = 0,
    E_LOG_CODE_BAD_ARGUMENT = 0x90000001u, /* a null pointer or an impossible value from the caller */
    E_LOG_CODE_NO_MEMORY = 0x90000002u,    /* there is no memory for what the call needs */
    E_LOG_CODE_RECORD_SIZE = 0x9000001eu,  /* the dwSize of a versioned record is none that is known */
    E_LOG_CODE_WRONG_SHAPE = 0x90003002u,  /* JSON of another shape than the command has */
};

/* Argument lists. A `char*` argument list is the address of a `va_list`; it is passed by reference and forwarded
   unchanged. Turn one into the other with these two functions only:

       void Log(const char* format, ...) {
           va_list list;
           va_start(list, format);
           char* arguments = LogOne_ArgumentList(list);
           LogOneTraceOutAll(E_LOG_LEVEL_ERROR, 0, "Door", 12, format, arguments);
           va_end(list);
       }

       void MySink::TraceOutAll(E_LOG_LEVEL, int, const char*, int, const char* format, char*& arguments) {
           std::vfprintf(stderr, format, LogOne_VaList(arguments));
       }

   A sink that reads a list twice makes a va_copy first. The list is dead once the call returns. A `va_list` that came
   as a function's parameter may have decayed to a pointer and then does not compile here: va_copy it to a local. */
inline char* LogOne_ArgumentList(va_list& list) {
    return reinterpret_cast<char*>(&list);
}
inline va_list& LogOne_VaList(char* arguments) {
    return *reinterpret_cast<va_list*>(arguments);
}

/* What a host implements. The operations stand in the order of their slots (numbers in front). The reserved ones keep
   the later operations in place and are never called. A destructor takes two entries of the virtual table in this
   platform's C++ ABI, so entry k of the table, counted from 0, holds slot k + 1 up to slot 10, then both forms of the
   destructor (slot 11), then slot k from slot 12 on.

   Operations must return. An exception that leaves one, or a thread that ends in one, ends the program, since the log's
   lock would never be given back; a longjmp out of one does keep it.

   A code is the E_LOG_CODE of the line, or the host's own. The first argument of TraceOut and TraceOutW is always 0. */
class LogSink {
  public:
    /*  1 */ virtual void TraceOutAllW(E_LOG_LEVEL level, int code, const char* file, int line, const wchar_t* format,
                                       char*& arguments) = 0;
    /*  2 */ virtual void TraceOutAll(E_LOG_LEVEL level, int code, const char* file, int line, const char* format,
                                      char*& arguments) = 0;
    /*  3 */ virtual void Reserved3() {}
    /*  4 */ virtual void Reserved4() {}
    /*  5 */ virtual void TraceOutW(int zero, int code, const wchar_t* format, char*& arguments) = 0;
    /*  6 */ virtual void Reserved6() {}
    /*  7 */ virtual void TraceOut(int zero, int code, const char* format, char*& arguments) = 0;
    /*  8 */ virtual void Reserved8() {}
    /*  9 */ virtual void Reserved9() {}
    /* 10 */ virtual void Reserved10() {}
    /* 11 */ virtual ~LogSink() {}
    /* 12 */ virtual void Reserved12() {}
    /* 13 */ virtual void Reserved13() {}
    /* 14 */ virtual void SetMaxSizeKB(int sizeKB) = 0;
    /* 15 */ virtual void SetFileCount(int count) = 0;
    /* 16 */ virtual void SetPrintLevel(E_LOG_LEVEL level) = 0;
    /* 17 */ virtual void Reserved17() {}
    /* 18 */ virtual void SetPrintStrategy(int strategy) = 0;
    /* 19 */ virtual void SetPosition(const char* file, int line, E_LOG_LEVEL level) = 0;
};

/* Installs `sink`, or none when it is null, and returns the one that was installed. The host keeps ownership. Once this
   returns, no thread is inside the former sink any more (but for the caller, when a sink calls this itself), so the
   host may then destroy it. */
ORRERY_API LogSink* LogOne_SetSink(LogSink* sink);

/* Settings, handed to the sink. What they do is the sink's business. */
ORRERY_API void LogOne_SetMaxSizeKB(int sizeKB);
ORRERY_API void LogOne_SetFileCount(int count);
ORRERY_API void LogOne_SetPrintLevel(E_LOG_LEVEL level);
ORRERY_API void LogOne_SetPrintStrategy(int strategy);

/* A line with its source position, printf-style, in narrow or wide characters. The file name is narrow in both. */
ORRERY_API void LogOneTraceOutAll(E_LOG_LEVEL level, int code, const char* file, int line, const char* format,
                                  char*& arguments);
ORRERY_API void LogOneTraceOutAllW(E_LOG_LEVEL level, int code, const char* file, int line, const wchar_t* format,
                                   char*& arguments);

/* A wide line without a position. */
ORRERY_API void LogOneTraceOutW(int code, const wchar_t* format, char*& arguments);

#endif
