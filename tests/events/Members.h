// What a record `r` of the event `name` holds, where it has the member at all: in templates over many records.
#pragma once

#include <gtest/gtest.h>

#define HAS(member, value)                                                                                             \
    if constexpr (requires { r.member; }) {                                                                            \
        EXPECT_EQ(r.member, value) << name;                                                                            \
    }                                                                                                                  \
    static_assert(true)
#define HAS_TEXT(member, value)                                                                                        \
    if constexpr (requires { r.member; }) {                                                                            \
        EXPECT_STREQ(r.member, value) << name;                                                                         \
    }                                                                                                                  \
    static_assert(true)
