/* What programs would otherwise work out themselves: size words, the room that rules need, events that outlive their
 * callback. */
#ifndef ORRERY_HELPERS_H
#define ORRERY_HELPERS_H

#include "orrery/calls.h"

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Sets the size words, dwSize, of a command's record and of all records inside it (of those behind pointers not), as
 * reading and writing want them. Everything else stays: clear the record first.
 *
 * command     Name of a configuration or method, or of a method of CLIENT_ParseVideoInAnalyse, as these take it.
 * record      The record, or the array of records. Need not be aligned.
 * recordSize  Bytes at `record`; where a command takes either of two records it tells which. A rest that is no whole
 *             record is left alone.
 *
 * 0 for a null, an unknown command, or less than one record; 1 also for a record without size words. */
ORRERY_MUST_USE int32_t ORRERY_SetSizeWords(const char* command, void* record, uint32_t recordSize);

/* Bytes that the rules of a reply take in a rule buffer (analyse_rules.h): the least nRuleLen with which
 * CLIENT_ParseData reads them. `command` is "VideoAnalyseRule", "AudioAnalyseRule" or "IVSFramRule"; of other commands,
 * and for texts that hold no rules or rules of types without a record, it is 0. So it is for a null, for text that is
 * no JSON, and when memory ran out. */
ORRERY_MUST_USE uint32_t ORRERY_RuleBytes(const char* command, const char* text);

/* Copies the record that an ORRERY_EVENT_CALLBACK was handed, and all that its pointers lead to, into one buffer, which
 * then is that record for as long as it is kept: the pointers of the copy lead into the same buffer. Call it from the
 * callback, once to learn the size and once to copy.
 *
 * eventType, record, recordSize   As the callback has them.
 * buffer                          Takes the copy; aligned as malloc gives it. May be null with bufferSize 0.
 * bufferSize                      Bytes at `buffer`. When they are too few, nothing is written.
 *
 * The bytes that the copy takes; 0 for a null record, a code of no event, and a copy of 4 GB or more. */
ORRERY_MUST_USE uint32_t ORRERY_CopyEvent(uint32_t eventType, const void* record, uint32_t recordSize, void* buffer,
                                          uint32_t bufferSize);

#ifdef __cplusplus
}
#endif

#endif
