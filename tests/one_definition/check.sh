#!/usr/bin/env bash
# check.sh CHECK_TYPES SCRATCH [COMPILER LINK_FLAG...]: plants what two files of one program may not both define, and sees
# that it is found: by the script, and with a compiler by the link of the tests, too.
set -euo pipefail
check=$1
scratch=$2
shift 2
rm -rf "$scratch"
mkdir -p "$scratch"

fail() {
    echo "one_definition: $1" >&2
    exit 1
}

# Each case is a folder of its own: plant CASE FILE, with the text as input.
plant() {
    mkdir -p "$scratch/$1"
    cat >"$scratch/$1/$2"
}
refused() { # refused CASE PHRASE
    local messages
    if messages=$("$check" "$scratch/$1" 2>&1); then fail "$1 is not refused"; fi
    grep -qF -- "$2" <<<"$messages" || fail "$1 is refused, but not for '$2': $messages"
}
taken() { "$check" "$scratch/$1" || fail "$1 is refused"; }

# ---- Types ----

# What both may have: names of their own, members defined outside, and a name that is only announced.
for file in first second; do
    plant own $file.cpp <<'EOF'
#include <vector>
namespace house {
class Guest;
}
namespace house::test {
namespace {
struct Document {
    int pages;
};
enum class Kind { Short, Long };
} // namespace
struct Reader::Place {
    int line;
};
} // namespace house::test
EOF
done
plant own Types.h <<'EOF'
namespace house::test {
struct Document;
struct Text {
    int size;
};
namespace letters {
struct Text {
    long size;
};
} // namespace letters
template <>
struct Size<int> {};
template <>
struct Size<long> {};
} // namespace house::test
EOF
taken own

plant in_a_source first.cpp <<'EOF'
namespace house::test {
namespace {
struct Letter {};
} // namespace
struct Document {
    int pages;
};
} // namespace house::test
EOF
refused in_a_source 'first.cpp:5: house::test::Document stands in no unnamed namespace'

plant template_in_a_source first.cpp <<'EOF'
template <class T>
class Document : public T {
    int pages;
};
EOF
refused template_in_a_source 'first.cpp:2: Document stands in no unnamed namespace'

plant enumeration_in_a_source first.cpp <<'EOF'
namespace house {
enum class Kind : int { Short, Long };
} // namespace house
EOF
refused enumeration_in_a_source 'first.cpp:2: house::Kind stands in no unnamed namespace'

plant in_two_headers First.h <<'EOF'
namespace house {
namespace test {
class Document final {
    int pages;
};
} // namespace test
} // namespace house
EOF
plant in_two_headers Second.h <<'EOF'
namespace house::test {
struct Document : Paper {
    long pages;
};
} // namespace house::test
EOF
refused in_two_headers 'Second.h:2: house::test::Document stands also in '

plant endless First.h <<'EOF'
namespace house {
struct Document {
    int pages;
};
}
EOF
refused endless 'First.h: a namespace that does not end as the formatter ends it'

[ $# -gt 0 ] || exit 0

# ---- Functions, and types by the functions that they have ----

compiler=$1
shift
link() { # link CASE FLAG...: of its two sources, as the tests are compiled and linked
    local case=$1 file
    shift
    for file in first second; do
        "$compiler" -std=c++20 -O0 -g1 -c "$scratch/$case/$file.cpp" -o "$scratch/$case/$file.o" || fail "$case does not compile"
    done
    "$compiler" "$@" "$scratch/$case/first.o" "$scratch/$case/second.o" -o "$scratch/$case/program" 2>&1
}
linked() {
    local messages
    messages=$(link "$@") || fail "$1 is not linked: $messages"
}
unlinked() {
    local messages
    if messages=$(link "$@"); then fail "$1 is linked"; fi
    grep -q 'ODR violation' <<<"$messages" || fail "$1 is not linked, but for another reason: $messages"
}

plant one_function Function.h <<'EOF'
namespace house::test {
inline int Pages(int lines) {
    return lines / 60;
}
} // namespace house::test
EOF
plant one_function first.cpp <<'EOF'
#include "Function.h"
int Second();
int main() {
    return house::test::Pages(0) + Second();
}
EOF
plant one_function second.cpp <<'EOF'
#include "Function.h"
int Second() {
    return house::test::Pages(1);
}
EOF
linked one_function "$@"

plant two_functions first.cpp <<'EOF'
namespace house::test {
inline int Pages(int lines) {
    return lines / 60;
}
} // namespace house::test
int Second();
int main() {
    return house::test::Pages(0) + Second();
}
EOF
plant two_functions second.cpp <<'EOF'
namespace house::test {

inline int Pages(int lines) {
    return lines + 1;
}
} // namespace house::test
int Second() {
    return house::test::Pages(1);
}
EOF
unlinked two_functions "$@"

plant two_classes first.cpp <<'EOF'
namespace house::test {
struct Document {
    explicit Document(int number) : pages(number) {}
    int pages;
};
} // namespace house::test
int Second();
int main() {
    return house::test::Document(0).pages + Second();
}
EOF
plant two_classes second.cpp <<'EOF'
namespace house::test {

struct Document {
    explicit Document(int number) : first(number), last(number) {}
    long first;
    long last;
};
} // namespace house::test
int Second() {
    return static_cast<int>(house::test::Document(1).last);
}
EOF
unlinked two_classes "$@"
refused two_classes 'first.cpp:2: house::test::Document stands in no unnamed namespace'
