#!/usr/bin/env bash
# The program as a user runs it: exit status, what goes to which stream, files and standard input.
# cli.sh PROGRAM SOURCE_DIR VERSION
set -uo pipefail
program=$1 source=$2 version=$3
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failed=0

# run STATUS [ARGUMENT...]: runs the program on $input; the streams are left in $scratch/out and $scratch/err
input=
run() {
    local status=$1 got=0
    shift
    what="orrery $*"
    printf '%s' "$input" | "$program" "$@" >"$scratch/out" 2>"$scratch/err" || got=$?
    [ "$got" = "$status" ] || fail "exit status $got, not $status"
    input=
}
fail() {
    echo "$what: $1" >&2
    failed=1
}
out_is() { printf '%s' "$1" | cmp -s - "$scratch/out" || fail "printed: $(cat "$scratch/out")"; }
out_has() { grep -Fq -- "$1" "$scratch/out" || fail "did not print: $1"; }
err_has() { grep -Fq -- "$1" "$scratch/err" || fail "did not say: $1; said: $(cat "$scratch/err")"; }
no_out() { [ ! -s "$scratch/out" ] || fail "printed something"; }
no_err() { [ ! -s "$scratch/err" ] || fail "said: $(cat "$scratch/err")"; }

reply=$source/examples/alarm-reply.json

run 0 --version
out_is "orrery $version
"
run 0 --help
for command in parse pack check diff events template commands describe schema layout; do out_has "$command"; done
# A word that no subcommand has.
run 2 evnts "$reply"
no_out
err_has 'A subcommand is required, and "evnts" is none; did you mean events'
run 2 --color never Pasre NTP
err_has '"Pasre" is none; did you mean parse'
run 2 zzzzzzzz
err_has 'A subcommand is required, and "zzzzzzzz" is none'
! grep -q 'did you mean' "$scratch/err" || fail "said: $(cat "$scratch/err")"
run 2
err_has 'A subcommand is required
'
run 2 --evnts
! grep -q 'is none' "$scratch/err" || fail "said: $(cat "$scratch/err")"
run 2 parse
err_has 'COMMAND is required'
run 0 commands
out_has "alarm.getAlarmCaps"
run 0 describe Alarm
out_has 'CFG_ALARM_INPUT_INFO'
run 0 layout
out_has 'irregular: '
run 0 schema
out_has '"code": 516'
no_err
run 0 describe AccessControl
out_has 'event 516'
run 0 commands --events
out_has '516'
run 0 commands --rules --json
python3 -c 'import json, sys
rules = {each["name"]: each for each in json.load(open(sys.argv[1]))}
assert rules["CrossLineDetection"]["code"] == 2 and rules["CrossLineDetection"]["parse"], rules' "$scratch/out" ||
    fail "printed: $(cat "$scratch/out")"
run 0 commands --templates --json
python3 -c 'import json, sys
assert {"VideoInAnalyse.getTemplateGlobal", "VideoInAnalyse.getTemplateRule"} <= {
    each["name"] for each in json.load(open(sys.argv[1]))}' "$scratch/out" || fail "printed: $(cat "$scratch/out")"
run 0 commands --json
python3 -c 'import json, sys
commands = {each["name"]: each for each in json.load(open(sys.argv[1]))}
assert commands["NTP"] == {"name": "NTP", "parse": True, "pack": True, "record": "CFG_NTP_INFO", "frame": "family"}
assert not commands["alarm.getAlarmCaps"]["pack"]' "$scratch/out" || fail "printed: $(cat "$scratch/out")"
run 2 commands --events --rules

# By name: a rule and an event may share one. By code, and by key.
run 0 describe CrossLineDetection
out_has 'event 2,'
out_has 'rule 2,'
out_has 'DEV_EVENT_CROSSLINEDETECTION_INFO'
out_has 'CFG_RULE_CROSSLINE_INFO'
run 0 describe 516
out_has 'event 516'
run 0 describe UpdatePeriod
out_has 'CFG_NTP_INFO.nUpdatePeriod'
run 1 describe UpdatePeriot
err_has 'no command, event, rule, record, code or key "UpdatePeriot"'
run 0 describe NTP
out_has '"result" must be true'

# The manual page and what shells complete are made from what --help says.
run 0 manual
out_has '.TH ORRERY 1'
out_has '\-\-filter'
out_has '.SS describe'
if command -v groff >/dev/null; then
    groff -man -Tutf8 -ww "$scratch/out" >/dev/null 2>"$scratch/err"
    no_err
fi
run 2 completion tcsh
for shell in bash zsh fish; do
    run 0 completion $shell
    out_has 'orrery'
    cp "$scratch/out" "$scratch/completion.$shell"
    if command -v $shell >/dev/null; then $shell -n "$scratch/completion.$shell" || fail "$shell cannot read it"; fi
done
run 0 complete par
out_has $'parse\tPrint devices'
run 0 complete parse nt
out_has $'NTP\tCFG_NTP_INFO'
run 0 complete events --format ''
out_is 'csv
jsonl
pretty
table
'
run 0 complete events --filter name=AccessControl --fields nEventID,szCard
out_has 'nEventID,szCardNo'
run 0 complete events --fields stuObject.nOb
out_has 'stuObject.nObjectID'
run 0 complete parse --st
out_has '--strict'
run 0 complete events x.jsonl y
no_out
what="bash completion"
got=$(PATH="$(dirname "$program"):$PATH" bash -c '. "$1"; COMP_WORDS=(orrery describe CFG_NTP_I); COMP_CWORD=2; _orrery; echo "${COMPREPLY[*]}"' - "$scratch/completion.bash" 2>/dev/null)
[ "$got" = CFG_NTP_INFO ] || fail "completed: $got"

run 0 complete parse NTP --fields nPo
out_has 'nPort'

# Replies of several files, in their order, whoever is done first.
what="parse of several files"
for i in 1 2 3 4 5 6; do
    printf '{"result":true,"params":{"table":{"Port":%d,"Address":"host, %d"}}}' $((i * 10)) $i >"$scratch/ntp$i.json"
done
run 0 parse NTP --no-warn --brief "$scratch"/ntp[12].json
out_is '{ "szAddress": "host, 1", "nPort": 10 }
{ "szAddress": "host, 2", "nPort": 20 }
'
for jobs in 1 4; do
    run 0 parse NTP --no-warn --jobs $jobs --format csv --fields nPort,szAddress "$scratch"/ntp[123456].json
    out_is "file,index,nPort,szAddress
$(for i in 1 2 3 4 5 6; do echo "$scratch/ntp$i.json,0,${i}0,\"host, $i\""; done)
"
done
run 0 parse NTP --no-warn --format jsonl --brief "$scratch/ntp3.json"
out_is "{ \"file\": \"$scratch/ntp3.json\", \"index\": 0, \"record\": { \"szAddress\": \"host, 3\", \"nPort\": 30 } }
"
run 0 parse NTP --no-warn --filter 'nPort>40' --fields nPort --format jsonl "$scratch"/ntp[123456].json
out_is "{ \"file\": \"$scratch/ntp5.json\", \"index\": 0, \"nPort\": 50 }
{ \"file\": \"$scratch/ntp6.json\", \"index\": 0, \"nPort\": 60 }
"
run 0 parse NTP --no-warn --format table --fields nPort "$scratch/ntp1.json"
out_has "nPort"
# One that is not there stops none of the others, and the worst of all is what the program ends with.
run 2 parse NTP --no-warn --brief --jobs 3 "$scratch/ntp1.json" "$scratch/none.json" "$scratch/ntp2.json"
out_is '{ "szAddress": "host, 1", "nPort": 10 }
{ "szAddress": "host, 2", "nPort": 20 }
'
err_has "none.json"
printf '{"result":false}' >"$scratch/refused.json"
run 1 parse NTP --no-warn "$scratch/refused.json" "$scratch/ntp1.json"
out_has '"nPort": 10'
run 2 parse NTP --format csv "$scratch/ntp1.json"
err_has '--fields'
run 2 parse NTP --format jsonl --pack "$scratch/ntp1.json"
err_has '--pack'

# Fields that no record has: refused, unless somebody hears of them.
input='{"nPrt":123}' run 1 pack NTP --no-warn
no_out
err_has 'nPrt: no such field in CFG_NTP_INFO; did you mean nPort'
input='{"nPrt":123,
  "nPort":5}' run 0 pack NTP --warn
out_has '"Port" : 5'
err_has '-:1:2: lost: nPrt (CFG_NTP_INFO): no such field in CFG_NTP_INFO; did you mean nPort? [unknown-key]'
input='{"nServerNum":2,"stuServers":[{"nPort":1},{"nPrt":1}]}' run 3 pack NTP --strict --json
python3 -c 'import json, sys
found = json.loads(open(sys.argv[1]).readline())
assert (found["path"], found["kind"], found["nearest"]) == ("stuServers[1].nPrt", "unknown-key", "nPort"), found' \
    "$scratch/err" || fail "said: $(cat "$scratch/err")"
input='{"nPort":"x","nPrt":1}' run 1 pack NTP --warn
no_out

# What is given without its count: a line for people, an object with its place for programs.
input='{"nPort":5,
  "stuServers":[{"nPort":1}]}' run 0 pack NTP
err_has 'orrery: note: stuServers is given without its count nServerNum'
input='{"nPort":5,
  "stuServers":[{"nPort":1}]}' run 0 pack NTP --json
python3 -c 'import json, sys
found = [json.loads(line) for line in open(sys.argv[1])]
assert [(each["line"], each["column"], each["gravity"], each["path"]) for each in found] == [
    (2, 16, "note", "stuServers")], found
assert found[0]["message"] == "is given without its count nServerNum", found' \
    "$scratch/err" || fail "said: $(cat "$scratch/err")"

# What of a text is passed over.
run 0 check Alarm "$reply" --records 1
no_out
no_err
input='{"result":true,"params":{"table":{"Port":"123","Prot":1}}}' run 3 check ntp
out_is '-:1:42: lost: params.table.Port (CFG_NTP_INFO.nPort): "123" where a number is read: it reads as 0 [wrong-type]
-:1:48: lost: params.table.Prot (CFG_NTP_INFO): nothing reads this key; the nearest that is read is "Port" [unknown-key]
'
input='{"result":true,"params":{"table":{"Prot":1}}}' run 3 check NTP --json
python3 -c 'import json, sys
found = json.load(open(sys.argv[1]))
assert (found["line"], found["column"], found["kind"], found["nearest"]) == (1, 35, "unknown-key", "Port"), found' \
    "$scratch/out" || fail "printed: $(cat "$scratch/out")"
# The same as rows, in part, of several files at a time.
bad='{"result":true,"params":{"table":{"Port":"123","Prot":1}}}'
printf '%s' "$bad" >"$scratch/bad1.json"
printf '{"result":true,"params":{"table":{"Port":5}}}' >"$scratch/good.json"
printf '%s' "$bad" >"$scratch/bad2.json"
for jobs in 1 3; do
    run 3 check NTP --jobs $jobs --format csv --fields file,line,kind,path "$scratch"/{bad1,good,bad2}.json
    out_is "file,line,kind,path
$scratch/bad1.json,1,wrong-type,params.table.Port
$scratch/bad1.json,1,unknown-key,params.table.Prot
$scratch/bad2.json,1,wrong-type,params.table.Port
$scratch/bad2.json,1,unknown-key,params.table.Prot
"
done
input=$bad run 3 check NTP --filter kind=unknown-key
out_is '-:1:48: lost: params.table.Prot (CFG_NTP_INFO): nothing reads this key; the nearest that is read is "Port" [unknown-key]
'
input=$bad run 3 check NTP --filter 'path~port' --format jsonl --fields kind,nearest,column
out_is '{ "kind": "wrong-type", "nearest": null, "column": 42 }
'
input=$bad run 3 check NTP --format table --filter 'column>42'
out_has 'unknown-key'
input=$bad run 0 check NTP --filter gravity=refused
no_out
input=$bad run 2 check NTP --filter kinds=unknown-key
err_has 'no member "kinds" of a finding; there are file, line,'
input=$bad run 2 check NTP --fields kind
err_has 'name a --format'
run 2 check NTP "$scratch/bad1.json" "$scratch/none.json" "$scratch/bad2.json"
[ "$(wc -l <"$scratch/out")" = 4 ] || fail "printed: $(cat "$scratch/out")"
err_has 'none.json'
err_has "can't read"
# A first word that is neither a name nor a file is most likely a name: nothing is checked as another.
run 2 check NPT "$scratch/bad1.json"
no_out
err_has 'orrery: "NPT" is neither a command nor a file; did you mean NTP'
run 2 check evnts --table "$scratch/bad1.json"
err_has '"evnts" is neither a command nor a file; did you mean events'
run 2 check alarm.getAlarmCap
err_has '; did you mean alarm.getAlarmCaps'
# A path is no name, and what stands there is a file whatever it is called.
run 2 check "$scratch/NPT" "$scratch/bad1.json"
err_has "can't read $scratch/NPT"
what="orrery check of a file NPT"
cp "$scratch/bad1.json" "$scratch/NPT"
whole=$(realpath "$program")
(cd "$scratch" && "$whole" check NPT) >"$scratch/out" 2>"$scratch/err"
err_has 'NPT: checked as'

input='{"result":true,"params":{"table":{"TCPPort":37777,"SSLPort":443,"StreamPolicy":"None"}}}' run 0 check
err_has 'checked as DVRIP: '
input='{"result":true' run 1 check
err_has 'line 1, column 15'
input='{"Event":[{"Code":"AccessControl","Data":{"CardNo":7}}]}' run 3 check events -
out_has 'Event[0].Data.CardNo'
# Many texts of events in a file, each in its place.
one='{"Event":[{"Code":"AccessControl","Data":{"CardNo":"7"}}]}'
input="$one"$'\n'"$one $one"$'\n' run 0 check events
no_out
input=$one$'\n'$one'{"Event":[{"Code":"AccessControl","Data":{"CardNo":7}}]}'$'\n''{"Event":['$'\n'$one run 3 check events
out_is '-:2:110: lost: Event[0].Data.CardNo (DEV_EVENT_ACCESSCONTROL_INFO.szCardNo): 7 where a text is read: the field stays empty [wrong-type]
-:3:11: lost: expected a value: an object, a list, a text in quotes, a number, true, false or null; the text ends here [not-json]
'
input='{}' run 2 check /nonexistent/reply
input='{"result":true,"params":{"table":{"Port":"1"}}}' run 0 parse NTP --warn
err_has 'params.table.Port'
input='{"result":true,"params":{"table":{"Port":"1"}}}' run 0 parse NTP
no_err
input='{"result":true,"params":{"table":{"Port":"1"}}}' run 3 parse NTP --strict
out_has '"nPort": 0'
input='{"result":true,"params":{"table":{"Port":1}}}' run 0 parse NTP --strict
no_err

# Events of streams: one a line, one behind the other, several files, each with its place.
line='{"Event":[{"Code":"Nothing"},{"Code":"AccessControl","Action":"Stop","Data":{"CardNo":"47"}}]}'
input="$line"$'\n'"$line$line"$'\n' run 0 events --fields szCardNo,stuObject.nObjectID,szNone
python3 -c 'import json, sys
found = [json.loads(line) for line in open(sys.argv[1])]
names = ("code", "action", "index", "file", "line", "szCardNo", "stuObject.nObjectID", "szNone")
assert [tuple(each[name] for name in names) for each in found] == [
    (516, "Stop", 1, "-", line, "47", 0, None) for line in (1, 2, 2)], found' "$scratch/out" ||
    fail "printed: $(cat "$scratch/out")"
printf '%s\n' "$line" >"$scratch/one.jsonl"
run 0 events --fields szCardNo "$scratch/one.jsonl"
out_has '"line": 1, "szCardNo": "47" }'
printf '%s\n%s\n' '{"Event":[' "$line" >"$scratch/bad.jsonl"
run 1 events "$scratch/one.jsonl" "$scratch/bad.jsonl"
[ "$(wc -l <"$scratch/out")" = 2 ] || fail "printed: $(cat "$scratch/out")"
err_has "$scratch/bad.jsonl, text at line 1: line 1, column 11"
out_has "\"file\": \"$scratch/bad.jsonl\", \"line\": 2"
input='{"Events":[]}' run 1 events
err_has 'orrery: -, text at line 1: '
err_has 'neither "Event" nor "EventList"'
# Each note tells of which text it is, the first one's too.
input='{"Events":[]}'$'\n''{"Events":[]}{"Events":[]}' run 1 events
[ "$(cut -d: -f1-2 "$scratch/err" | tr '\n' ' ')" = \
    'orrery: -, text at line 1 orrery: -, text at line 2 orrery: -, text at line 2 ' ] ||
    fail "said: $(cat "$scratch/err")"
input='{"Event":['$'\n''{"Event":[' run 1 events
[ "$(grep -c 'orrery: -, text at line [12]: line 1, column 11' "$scratch/err")" = 2 ] || fail "said: $(cat "$scratch/err")"
# Whole lines are read as one text each, unless they are several or have something behind.
printf '%s\n' "$line" "$line$line" "$line}" "$line {}" '{"Event":[}' "$line" "$line" >"$scratch/lines.jsonl"
for jobs in 1 2; do
    run 1 events --jobs $jobs --fields line "$scratch/lines.jsonl"
    lines=$(jq -r .line "$scratch/out" | tr '\n' ' ')
    [ "$lines" = '1 2 2 3 4 6 7 ' ] || fail "events of the lines $lines"
    for bad in 3 4 5; do err_has "$scratch/lines.jsonl, text at line $bad: "; done
done
# Each event comes as soon as its text is there, though the pipe stays open.
mkfifo "$scratch/pipe"
"$program" events <"$scratch/pipe" >"$scratch/out" 2>"$scratch/err" &
reader=$!
exec 3>"$scratch/pipe"
printf '%s\n' "$line" >&3
for _ in $(seq 100); do [ -s "$scratch/out" ] && break; sleep 0.1; done
out_has '"name": "AccessControl"'
exec 3>&-
wait $reader || fail "exit status $?"
# A file that grows.
printf '%s\n' "$line" >"$scratch/grows"
"$program" events --follow "$scratch/grows" >"$scratch/out" 2>"$scratch/err" &
reader=$!
for _ in $(seq 100); do [ "$(wc -l <"$scratch/out")" = 1 ] && break; sleep 0.1; done
printf '%s\n' "$line" >>"$scratch/grows"
for _ in $(seq 100); do [ "$(wc -l <"$scratch/out")" = 2 ] && break; sleep 0.1; done
kill $reader
wait $reader 2>/dev/null
[ "$(wc -l <"$scratch/out")" = 2 ] || fail "printed: $(cat "$scratch/out")"
# Rows, columns, and what passes.
input="$line"$'\n''{"Event":[{"Code":"VideoBlind"},{"Code":"AccessControl","Action":"Start","Index":2,"Data":{"CardNo":"4,8\"x"}}]}' \
    run 0 events --format csv --fields szCardNo,nChannelID
printf '%s\n' 'code,name,action,index,file,line,szCardNo,nChannelID' '516,AccessControl,Stop,1,-,1,47,-1' \
    '339,VideoBlind,,0,-,2,,-1' '516,AccessControl,Start,1,-,2,"4,8""x",2' | cmp -s - "$scratch/out" ||
    fail "printed: $(cat "$scratch/out")"
input="$line" run 0 events --format table --fields szCardNo
printf '%s\n' 'code   name                          action  index  file          line   szCardNo' \
    '516    AccessControl                 Stop    1      -             1      47' | cmp -s - "$scratch/out" ||
    fail "printed: $(cat "$scratch/out")"
input="$line" run 0 events --format pretty --brief
[ "$(wc -l <"$scratch/out")" -gt 5 ] || fail "printed: $(cat "$scratch/out")"
input="$line"'{"Event":[{"Code":"AccessControl","Index":3,"Data":{}},{"Code":"VideoBlind"}]}' \
    run 0 events --filter name=AccessControl --filter 'nChannelID>2' --fields nChannelID
out_has '"nChannelID": 3'
[ "$(wc -l <"$scratch/out")" = 1 ] || fail "printed: $(cat "$scratch/out")"
input="$line" run 0 events --filter 'szCardNo!=47'
no_out
input="$line" run 2 events --filter '=47'
err_has 'a member expected'
input="$line" run 2 events --filter 'nEventID>many'
err_has 'no number to compare with'
# What is a list stands one record a line then.
input='{"ObjectList":[{"ObjectID":4},{"ObjectID":5}]}' run 0 events --fields nObjectID --filter nObjectID=5
[ "$(wc -l <"$scratch/out")" = 1 ] || fail "printed: $(cat "$scratch/out")"
out_has '"nObjectID": 5'
# Several at a time, and the same all the same.
for i in $(seq 400); do printf '{"Event":[{"Code":"AccessControl","Data":{"CardNo":"%s"}}]}\n' "$i"; done >"$scratch/many.jsonl"
printf '{"Event":[\n' >>"$scratch/many.jsonl"
run 2 events "$scratch/many.jsonl" "$scratch/one.jsonl" "$scratch/none" "$scratch/many.jsonl"
mv "$scratch/out" "$scratch/one-job"
mv "$scratch/err" "$scratch/one-job-said"
run 2 events --jobs 4 "$scratch/many.jsonl" "$scratch/one.jsonl" "$scratch/none" "$scratch/many.jsonl"
cmp -s "$scratch/out" "$scratch/one-job" || fail "four jobs print something else"
cmp -s "$scratch/err" "$scratch/one-job-said" || fail "four jobs say something else"
[ "$(wc -l <"$scratch/out")" = 801 ] || fail "printed $(wc -l <"$scratch/out") lines"
# Behind real pipes, in a locale of another encoding too: what is printed is UTF-8 there as well.
mkdir "$scratch/locales"
localedef -c -i zh_CN -f GBK "$scratch/locales/zh_CN.GBK" >"$scratch/err" 2>&1 || true
for locale in C zh_CN.GBK; do
    what="orrery events | jq in $locale"
    got=$(printf '%s\n' '{"Event":[{"Code":"AccessControl","Data":{"CardNo":"47","CardName":"\u95e8"}}]}' |
        LOCPATH="$scratch/locales" LC_ALL=$locale "$program" events --fields szCardName | jq -r '.szCardName')
    [ "$got" = $'\xe9\x97\xa8' ] || fail "got $got"
    got=$(cat "$scratch/many.jsonl" 2>/dev/null | LOCPATH="$scratch/locales" LC_ALL=$locale "$program" events --jobs 2 2>/dev/null |
        jq -s 'map(.record.szCardNo | tonumber) | add')
    [ "$got" = 80200 ] || fail "the sum of the cards is $got"
done
what="orrery events | head"
"$program" events "$scratch/many.jsonl" 2>/dev/null | head -n 1 >"$scratch/out"
out_has '"szCardNo": "1"'
# For eyes: colours on a terminal alone, lines that fit it, a bar while a long file is read.
python3 "$source/tests/tools/terminal.py" "$program" "$scratch" || fail "on a terminal (see above)"
input="$line" run 0 events --color always --fields szCardNo
out_has $'\033[36m"code"\033[0m: \033[33m516\033[0m'

# What was told, without the zeros.
input='{"result":true,"params":{"table":{"Port":124,"ServerList":[{"Port":5}]}}}' run 0 parse NTP --brief
python3 -c 'import json, sys
assert json.load(open(sys.argv[1])) == {"nPort": 124, "nServerNum": 1, "stuServers": [{"nPort": 5}]}' "$scratch/out" ||
    fail "printed: $(cat "$scratch/out")"

# Two replies as records.
printf '%s' '{"result":true,"params":{"table":{"Port":123,"ServerList":[{"Port":1}]}}}' >"$scratch/a"
printf '%s' '{"params":{"table":{"ServerList":[{"Port":2}],"Port":124}},"result":true,"id":3}' >"$scratch/b"
run 3 diff NTP "$scratch/a" "$scratch/b"
out_is 'nPort: 123 -> 124
stuServers[0].nPort: 1 -> 2
'
run 0 diff NTP "$scratch/a" "$scratch/a"
no_out
printf '%s' '{"result":true,"params":{"channel":1,"table":{}}}' >"$scratch/a"
printf '%s' '{"result":true,"params":{"channel":2,"table":{}}}' >"$scratch/b"
run 3 diff Alarm "$scratch/a" "$scratch/b"
out_is 'nChannel: 1 -> 2  (no device would notice)
'
run 1 diff NTP "$scratch/a" "$scratch/one.jsonl"
err_has 'the second: '

# What of a record leaves no trace in its text.
input='{"nChannel":3,"szName":"door"}' run 3 pack Alarm --strict
err_has '-:1:13: lost: nChannel (CFG_ALARM_INPUT_INFO.nChannel): writes nothing [writes-nothing]'
out_has '"Name" : "door"'
input='{"szName":"door"}' run 0 pack Alarm --strict
no_err
input='[{"nPort":1},{"nPort":2}]' run 3 pack NTP --strict
err_has '2 records, of which the text holds the first only'

input='{"nServerNum":1,"stuServers":[{"nPort":1},
 {"nPort":2}]}' run 3 pack NTP --strict --json
python3 -c 'import json, sys
found = json.load(open(sys.argv[1]))
assert (found["line"], found["column"], found["kind"], found["path"], found["field"]) == (
    2, 2, "writes-nothing", "stuServers[1]", "CFG_NTP_INFO.stuServers"), found' \
    "$scratch/err" || fail "said: $(cat "$scratch/err")"
input='[{"nPort":1},{"nPort":2}]' run 0 pack NTP
err_has '2 records, of which the text holds the first only'
# The whole request.
input='{"nPort":123}' run 0 pack NTP --request --id 7
python3 -c 'import json, sys
request = json.load(open(sys.argv[1]))
assert (request["id"], request["method"], request["params"]["name"], request["params"]["table"]["Port"]) == (
    7, "configManager.setConfig", "NTP", 123), request' "$scratch/out" || fail "printed: $(cat "$scratch/out")"
# A bare value, without the reply around it.
input='{"Port":124}' run 0 parse NTP --table
out_has '"nPort": 124'
input='{"Port":124,
"Prot":1}' run 3 check NTP --table
out_is '-:2:1: lost: params.table.Prot (CFG_NTP_INFO): nothing reads this key; the nearest that is read is "Port" [unknown-key]
'
input='{"Port":"1"}' run 3 check NTP --table
out_has '-:1:9: lost: params.table.Port'
input='{"Port":' run 1 parse NTP --table
err_has 'line 1, column 9'
input='{}' run 2 check --table
err_has 'name the one that it is of'

# What editors and other systems leave.
input=$'\xEF\xBB\xBF{"result":true,"params":{"table":{"Port":124}}}' run 0 parse NTP
out_has '"nPort": 124'
err_has 'begins with a byte order mark, which is skipped'
printf '%s' '{"result":true}' | iconv -f UTF-8 -t UTF-16 >"$scratch/utf16"
run 2 parse NTP "$scratch/utf16"
no_out
err_has "$scratch/utf16: the text is UTF-16"
printf '%s\n' "$line" | iconv -f UTF-8 -t UTF-16LE >"$scratch/utf16"
run 1 events "$scratch/utf16" "$scratch/one.jsonl"
err_has "$scratch/utf16: the text is UTF-16"
out_has '"name": "AccessControl"'
input=$'\xEF\xBB\xBF'"$line" run 0 events
err_has 'byte order mark'
out_has '"line": 1'

# There and back, through a file and through standard input.
run 0 parse Alarm "$reply"
no_err
cp "$scratch/out" "$scratch/record.json"
run 0 pack Alarm "$scratch/record.json"
cp "$scratch/out" "$scratch/text"
input=$(cat "$scratch/record.json") run 0 pack alarm
cmp -s "$scratch/out" "$scratch/text" || fail "standard input differs from a file"
run 0 parse Alarm "$reply" --pack
cat "$scratch/record.json" "$scratch/text" | cmp -s - "$scratch/out" || fail "--pack is not what pack gives"
run 0 parse Alarm "$reply" --all
[ "$(wc -c <"$scratch/out")" -gt "$(wc -c <"$scratch/record.json")" ] || fail "--all printed no more"

# Events: a line each, or several with --pretty.
events='{"Event":[{"Code":"AccessControl","Index":2,"Data":{"CardNo":"4711"}},{"Code":"VideoBlind"},{"Code":"Nothing"}]}'
input=$events run 0 events
[ "$(wc -l <"$scratch/out")" = 2 ] || fail "not two lines"
out_has '{ "code": 516, "name": "AccessControl", "size": '
out_has '"szCardNo": "4711"'
out_has '{ "code": 339, "name": "VideoBlind", "size": '
err_has 'Event[2] was passed over: no event is named "Nothing"'
printf '%s' "$events" >"$scratch/events.json"
run 0 events "$scratch/events.json" --pretty
[ "$(wc -l <"$scratch/out")" -gt 50 ] || fail "--pretty printed too few lines"
input='{"Event":[}' run 1 events
no_out
err_has 'line 1, column 11'

# Texts that tell by their keys what they carry.
input='{"ObjectList":[{"ObjectID":4},{"ObjectID":5}],"VideoStatSummary":{"Channel":3}}' run 0 events
[ "$(wc -l <"$scratch/out")" = 2 ] || fail "not two lines"
out_has '"name": "ObjectList"'
out_has '"nObjectID": 5'
out_has '{ "code": 16777216, "name": "VideoStatSummary", "size": '
no_err
run 0 describe VideoSynopsisAnalyseRule
out_has 'typed text 16777221'

# Templates of analysis settings.
input='{"result":true,"params":{"Traffic":{"ObjectType":"Car"}}}' run 0 template VideoInAnalyse.getTemplateModule --class Traffic
out_has '"szObjectType": "Car"'
no_err
input='{"result":false}' run 1 template VideoInAnalyse.getTemplateGlobal
no_out
err_has 'the device refused the call'
input='{}' run 1 template VideoInAnalyse.getTemplateRule --class Trafic
err_has 'Traffic'

# Refusals: status 1, nothing on standard output.
input='{ "result" : tru }' run 1 parse PwdReset
no_out
err_has 'line 1, column 14: expected a value'
input='{ "result" : false }' run 1 parse PwdReset -
no_out
err_has '"result" is false'
run 1 parse Alrm "$reply"
no_out
err_has 'did you mean Alarm?'
input='{"bEnabl": 1}' run 1 pack PwdReset
no_out
err_has 'bEnabl: no such field in CFG_ENABLE_INFO; did you mean bEnable?'
input='{}' run 1 pack alarm.getAlarmCaps
no_out
run 1 parse Alarm "$reply" --bytes 100
no_out
err_has 'needs 336496 bytes, it has 100'
run 1 describe CFG_ALARM_CAP
no_out
err_has 'did you mean CFG_ALARM_CAPS'
if [ -e /dev/full ]; then
    what="orrery layout on a full disk"
    "$program" layout >/dev/full 2>"$scratch/err" && fail "succeeded"
    err_has "can't write"
fi

# Wrong arguments: status 2.
run 2
run 2 prase Alarm
run 2 parse
run 2 parse Alarm "$reply" --recods 2
run 2 parse Alarm "$reply" --records many
run 2 parse Alarm "$reply" --records 1 --bytes 4
run 2 events --many
run 2 parse Alarm "$scratch/none.json"
no_out
err_has "can't read"

exit $failed
