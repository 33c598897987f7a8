// What the lists of video diagnosis share.
#pragma once

#include "frame/record/Table.h"

#include "orrery/diagnosis.h"

// The rows of a descriptor whose entries are members of an object, each under its name. What an entry's table holds
// back has no place in the text.
#define ENTRIES_BY_NAME(table)                                                                                         \
    FIELD(nMax), FIELD(nReturned),                                                                                     \
        FIELD(pEntries, "", Record(table))                                                                             \
            .Keyed()                                                                                                   \
            .AnyShape()                                                                                                \
            .AllOrNone()                                                                                               \
            .NullElement(Nulls::Named)                                                                                 \
            .Capacity(AT(nMax))                                                                                        \
            .Count(AT(nReturned))                                                                                      \
            .WriteSkipped(Skipped::ClosesUp)
