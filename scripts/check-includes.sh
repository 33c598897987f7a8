#!/usr/bin/env bash
# check-includes.sh [SRC]: fails when an include of the library's sources runs upward. From the bottom:
#
#   json         the document
#   codecs       frame/*.h that stand on it alone: memory, text, log, names
#   record       tables and their engine
#   frame        frames and commands; knows no family, nor the public records of one
#   families     every other folder; they may use each other
#   map          files of src/ itself: the command map, its words, the exports
set -euo pipefail
src=${1:-$(dirname "$0")/../src}

level() { # of a file, by its path below src
    case $1 in
    frame/json/*) echo 1 ;;
    frame/Arena.* | frame/JsonParser*.* | frame/LocalText*.* | frame/Lock*.* | frame/Log.* | frame/NameHash.h | frame/With.h) echo 2 ;;
    frame/record/*) echo 3 ;;
    frame/*) echo 4 ;;
    */*) echo 5 ;;
    *) echo 6 ;;
    esac
}

# What json may use of the level above it, as it stands on nothing.
below_json=' frame/Arena.h '
# Public headers that belong to no family.
public=' orrery/types.h orrery/log.h '

bad=0
complain() {
    echo "$1: includes \"$2\": $3" >&2
    bad=1
}

while IFS=: read -r file line; do
    file=${file#./}
    included=${line#*\"}
    included=${included%%\"*}
    own=$(level "$file")
    if [[ $included == orrery/* ]]; then
        if ((own <= 4)) && [[ $public != *" $included "* ]]; then complain "$file" "$included" "the record of a family"; fi
        continue
    fi
    if ((own == 1)) && [[ $below_json == *" $included "* ]]; then continue; fi
    if (($(level "$included") > own)); then complain "$file" "$included" "it stands above"; fi
done < <(cd "$src" && grep -rE '^ *# *include *"' --include='*.h' --include='*.cpp' .)
exit $bad
