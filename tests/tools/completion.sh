#!/usr/bin/env bash
# What the completions offer in their shells, as far as these are there: completion.sh PROGRAM
set -uo pipefail
program=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failed=0
ln -s "$program" "$scratch/orrery"
PATH=$scratch:$PATH
mkdir "$scratch/functions"
"$program" completion bash >"$scratch/orrery.bash"
"$program" completion zsh >"$scratch/functions/_orrery"
"$program" completion fish >"$scratch/orrery.fish"

# offers SHELL WORD: of what stands in $got
offers() {
    grep -Eq "(^|[^A-Za-z])$2([^A-Za-z]|$)" <<<"$got" && return
    echo "$1 does not offer $2 but: $got" >&2
    failed=1
}
# silent SHELL: nothing in $scratch/err
silent() {
    [ ! -s "$scratch/err" ] && return
    echo "$1 says: $(cat "$scratch/err")" >&2
    failed=1
}

in_bash() {
    bash --norc -c '. "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _orrery; printf "%s\n" "${COMPREPLY[@]}"' \
        - "$scratch/orrery.bash" "$@" 2>"$scratch/err"
    # Behind a word that is whole, bash is told so by compopt, which only its own completion may call.
    sed -i '/compopt: not currently executing/d' "$scratch/err"
}
got=$(in_bash orrery parse Al) && offers bash Alarm && offers bash AlarmOut && silent bash
got=$(in_bash orrery ev) && offers bash events && silent bash

if command -v fish >/dev/null; then
    in_fish() { HOME=$scratch fish --no-config -c 'source $argv[1]; complete -C$argv[2]' "$scratch/orrery.fish" "$1" 2>"$scratch/err"; }
    got=$(in_fish "orrery parse Al") && offers fish Alarm && offers fish AlarmOut && silent fish
    got=$(in_fish "orrery ev") && offers fish events && silent fish
    got=$(in_fish "orrery events --format ") && offers fish table && silent fish
else
    echo "no fish here"
fi

if command -v zsh >/dev/null; then
    # Sourced, it registers itself; as a file of $fpath it is loaded by compinit.
    got=$(zsh -f -c 'autoload -U compinit; compinit -u -D; source $1; echo ${_comps[orrery]}' - "$scratch/functions/_orrery" 2>"$scratch/err")
    offers zsh _orrery && silent zsh
    # zsh completes only at a terminal, which zpty is for.
    cat >"$scratch/type.zsh" <<'EOF'
zmodload zsh/zpty
zpty shell zsh -f -i
hear() { # until nothing comes any more
    integer quiet=0
    local line
    while (( quiet < 20 )); do
        if zpty -r -t shell line; then print -r -- "$line"; quiet=0; else sleep 0.05; (( ++quiet )); fi
    done
}
zpty -w shell "PS1=; fpath=($1 \$fpath); autoload -U compinit; compinit -u -D; LISTMAX=1000"
hear >/dev/null
zpty -w -n shell "$2"$'\t\t'
hear
zpty -d shell
EOF
    in_zsh() { HOME=$scratch TERM=dumb timeout 60 zsh -f "$scratch/type.zsh" "$scratch/functions" "$1" 2>"$scratch/err"; }
    got=$(in_zsh "orrery parse Al") && offers zsh Alarm && offers zsh AlarmOut && silent zsh
    got=$(in_zsh "orrery describe --") && offers zsh help && silent zsh
else
    echo "no zsh here"
fi
exit $failed
