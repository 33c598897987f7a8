/* The functions of the library. orrery.h includes this header and those of all families; a program that needs few
 * records includes this one and theirs. */
#ifndef ORRERY_CALLS_H
#define ORRERY_CALLS_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A result that says whether there is a record or a text is to be looked at. In C++ a cast to void says that it need
 * not be; compilers of C may want it kept. (Null arguments are an ordinary failure, so no argument is declared as never
 * null: compilers would take the tests away.) */
#if defined(__cplusplus) && __cplusplus >= 201703L
#define ORRERY_MUST_USE [[nodiscard]]
#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 202311L
#define ORRERY_MUST_USE [[nodiscard]]
#elif defined(__GNUC__)
#define ORRERY_MUST_USE __attribute__((__warn_unused_result__))
#else
#define ORRERY_MUST_USE
#endif

/* Records are laid out for 64-bit pointers and for 64-bit numbers at multiples of 8. */
#if defined(__cplusplus)
static_assert(sizeof(void*) == 8 && alignof(int64_t) == 8, "orrery's records want a 64-bit platform");
#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 201112L
_Static_assert(sizeof(void*) == 8 && _Alignof(int64_t) == 8, "orrery's records want a 64-bit platform");
#else
typedef char ORRERY_WANTS_A_64_BIT_PLATFORM[sizeof(void*) == 8 ? 1 : -1];
#endif

/* The version of these headers. Until 1.0 records may grow with each minor version: the library's file name then has
 * both numbers, and a client runs with the minor version that it was compiled for. */
#define ORRERY_VERSION_MAJOR 0
#define ORRERY_VERSION_MINOR 1
#define ORRERY_VERSION_PATCH 0
#define ORRERY_VERSION_NUMBER (ORRERY_VERSION_MAJOR * 10000 + ORRERY_VERSION_MINOR * 100 + ORRERY_VERSION_PATCH)

/* The version of the library that runs, as ORRERY_VERSION_NUMBER. */
uint32_t ORRERY_Version(void);

/* Reads a device's reply into the record, or the array of records, of a command.
 *
 * command         Name of a configuration ("Alarm") or of a remote method whose reply it is ("alarm.getAlarmCaps").
 *                 ASCII letters compare with case folded; nothing is trimmed. Must not be null.
 * text            The reply, { "result" : true, "params" : { "table" : ... } }, terminated, UTF-8. Must not be null.
 *                 What follows the first complete JSON value is ignored.
 * buffer          Takes the record. Need not be aligned. Must not be null. Unless the command's record says otherwise,
 *                 all of it is cleared first and stays so on failure, and what the text leaves out is zero.
 * bufferSize      Bytes at `buffer`, at least one record unless the record's header says otherwise. Records that do not
 *                 fit whole are left out.
 * returnedLength  Bytes of record data. May be null. Some commands add to what it holds, as their headers say: set it
 *                 to 0 first. They take a missing "table" as nothing to read.
 *
 * Text fields are terminated within their capacity and are in the encoding of the locale (LC_CTYPE); under UTF-8, the
 * C locale and a codeset that iconv does not know they are the device's bytes. What the encoding lacks is a '?'. A text
 * that is too long is cut, in the middle of a character if need be.
 *
 * 0 for a null argument, an unknown command, a buffer below one record, text that is no JSON, a call that the device
 * refused, a missing table, or when memory ran out. */
ORRERY_MUST_USE int32_t CLIENT_ParseData(const char* command, const char* text, void* buffer, uint32_t bufferSize,
                                         uint32_t* returnedLength);

/* Writes a record as the text that a device expects: what a client puts under "params"."table" of its own request.
 *
 * command       As above. Must not be null.
 * record        The record, or the array of records. Need not be aligned. Must not be null. Counts above the room of
 *               their array end at the array.
 * recordSize    Bytes at `record`. What is below one record is refused, but for the commands that add to the length
 *               (above): missing bytes read as zero where a text holds one record, and where it may hold several there
 *               is none, `null`.
 * textBuffer    Takes the text, one line with a newline and a terminator. Must not be null. What is behind
 *               the terminator is cleared. A call that is refused before it writes (a null, an unknown command, a
 *               record too small) leaves the buffer alone; every other failure leaves it cleared whole. The record's
 *               header may say otherwise.
 * textCapacity  Bytes at `textBuffer`. The text must be shorter. Where the record's header says so, a text of exactly
 *               that length is taken too and loses its newline or its terminator.
 *
 * 0 for a null argument, an unknown command, a record too small or a text too long, or when memory ran out. */
ORRERY_MUST_USE int32_t CLIENT_PacketData(const char* command, const void* record, uint32_t recordSize,
                                          char* textBuffer, uint32_t textCapacity);

/* Takes one decoded event. `eventType` is its code, ORRERY_EVENT_... of event_codes.h, and tells which record `record`
 * is: DEV_EVENT_<NAME>_INFO of the events_... headers. `recordSize` is the record's size, unless its header says
 * otherwise. The record and all that its pointers lead to live only during the call. `reserved` and `sequence` are 0.
 * The result is ignored.
 *
 * It must return: an exception that leaves it, or a thread that ends in it, ends the program, and a longjmp out of it
 * leaves behind all memory of the call. */
typedef int32_t (*ORRERY_EVENT_CALLBACK)(uint32_t eventType, const void* record, uint32_t recordSize, void* reserved,
                                         int32_t sequence, void* user);

/* Decodes the text of analyzer events, { "Event" : [ { "Code", "Action", "Data" }, ... ] } or "EventList" when there is
 * no "Event", and hands each to the callback, in the order of the text, on the calling thread: at most 128, those whose
 * "Code" is known. The callback may call into the library again.
 *
 * 0 when `data` or `callback` is null, otherwise 1, also when the text is no JSON and nothing is handed over. `data`
 * must be terminated; `length` is not looked at. An event for whose record there is no memory is left out; what a
 * pointer would lead to is null then, with a count of 0, and a text that could not be converted is empty. All else of
 * the event is delivered. The events of one call take at most 64 MB and 64 bytes for each byte of text: what goes
 * beyond finds no memory. */
int32_t CLIENT_ParseAnalyzerEventData(const char* data, uint32_t length, ORRERY_EVENT_CALLBACK callback, void* user);

/* Decodes a text whose top-level keys name what it carries, and hands each to the callback with a code of its own:
 * events_typed.h has the codes and records. Arguments as above; data that is no JSON gives 0.
 *
 * "VideoAnalyseRule" comes first, then the others in the order of their names; "Event" and "EventList" each hand over
 * the events of the whole text as CLIENT_ParseAnalyzerEventData does. Case counts in names, and a name that is none of
 * those is passed over. The result is that of the last name that was worked on, 0 when there was none: 1, but 0 for a
 * null, when memory ran out, and for rules that are none or of types without a record; an empty list gives 1 and is not
 * handed over. Records take memory as events do, each name for itself. */
int32_t CLIENT_ParseDataByCallback(const char* data, uint32_t length, ORRERY_EVENT_CALLBACK callback, void* user);

/* Reads a reply with a template of analysis settings: analyse_templates.h has the methods and their records.
 *
 * command     Name of the method, in the case shown. Another one gives 1 and leaves the output alone.
 * classType   Class whose template is asked for, CFG_RULE_CLASS_... of analyse_rules.h. Devices have none of
 *             "CrowdDistriMap". A number of no class looks for the name "".
 * text        The reply, as for CLIENT_ParseData. An absent "result" does not refuse.
 * reserved    Must not be null; not used.
 * output      Takes the record. Need not be aligned. All of it is cleared first but for a rule descriptor, which keeps
 *             what it holds until all rules are read.
 * outputSize  Bytes at `output`, at least one record.
 *
 * 0 when an argument other than `classType` is null or zero, for an output below one record, text that is no JSON, a
 * call that the device refused, rules that do not fit or are of types without a record, or when memory ran out. */
ORRERY_MUST_USE int32_t CLIENT_ParseVideoInAnalyse(const char* command, int32_t classType, const char* text,
                                                   const void* reserved, void* output, uint32_t outputSize);

#ifdef __cplusplus
}
#endif

#endif
