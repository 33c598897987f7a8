"""The package as a program uses it, and round trips of every command."""

import enum
import json
import os
import threading
import time
from random import Random
from typing import Any, Callable, List, Literal

import pytest
from hypothesis import HealthCheck, given, settings
from hypothesis import strategies as st

import orrery
from orrery import _memory as memory
from orrery import enumerations, records
from orrery._commands import COMMANDS, NAMES_OF_CODES, RULES


def reply(table: Any) -> str:
    return json.dumps({"result": True, "params": {"table": table}})


def test_a_reply_becomes_a_record_and_back() -> None:
    alarm = orrery.parse("aLARM", reply({"Enable": True, "Name": "Front door", "SensorType": "NO"}))
    assert isinstance(alarm, records.AlarmInput)
    assert alarm.enable is True
    assert alarm.name == "Front door"
    assert alarm.sensor_type is enumerations.SensorNormallyCode.OPEN
    alarm.enable = False
    alarm.name = "Gate"
    back = json.loads(orrery.pack(alarm))
    assert back["Enable"] is False
    assert back["Name"] == "Gate"
    assert back["SensorType"] == "NO"


def test_what_is_refused_says_why() -> None:
    with pytest.raises(orrery.Refused) as refused:
        orrery.parse("NTP", '{"result": false}')
    assert refused.value.findings[0].kind == "refused"
    assert '"result" is false' in str(refused.value)
    with pytest.raises(orrery.Refused):
        orrery.parse("NoSuchCommand", reply({}))
    with pytest.raises(ValueError):
        orrery.parse("NTP", "{}\0")


def test_records_that_are_refused_say_why_too() -> None:
    groups = orrery.parse_all("StorageGroup", reply([{"Name": "ReadWrite"}, {"Name": "Redundant"}]))
    groups[0]._buffer[:4] = bytes(4)  # its size word
    with pytest.raises(orrery.Refused) as refused:
        orrery.pack(list(groups))
    assert refused.value.findings[0].gravity == 3
    assert refused.value.findings[0].message in str(refused.value)

    alarm = records.AlarmInput(name="Gate", enable=True, sensor_type=99)
    said = orrery.explain_record(alarm, "Alarm")
    assert [(one.kind, one.path) for one in said if one.gravity == 2] == [("out-of-range", "nSensorType")]
    with pytest.raises(ValueError):
        orrery.explain_record(alarm)


def test_reading_costs_little_more_than_json_alone() -> None:
    # The tests may stand apart from the sources.
    examples = os.environ.get("ORRERY_EXAMPLES", os.path.join(os.path.dirname(__file__), "..", "..", "examples"))
    with open(os.path.join(examples, "alarm-reply.json"), encoding="utf-8") as file:
        text = file.read()

    def least(function: Callable[[str], object]) -> float:
        """Of the processor's time, which others on the machine do not take."""
        seconds = []
        for _ in range(40):
            start = time.process_time()
            for _ in range(50):
                function(text)
            seconds.append(time.process_time() - start)
        return min(seconds)

    assert least(lambda one: orrery.parse("Alarm", one)) <= 3 * least(json.loads)


def test_members_take_what_fits_only() -> None:
    ntp = records.Ntp()
    with pytest.raises(ValueError):
        ntp.address = "x" * 1000
    with pytest.raises(ValueError):
        ntp.port = 1 << 40
    with pytest.raises(AttributeError):
        ntp.prot = 123  # type: ignore[attr-defined]
    with pytest.raises(TypeError):
        records.Ntp(prot=123)
    assert records.Ntp(port=123).port == 123
    assert records.Ntp(port=123) == records.Ntp(port=123) != records.Ntp(port=124)
    assert repr(records.Ntp(port=123)) == "Ntp(port=123)"


def test_lists_are_cut_at_their_counts_and_flags_tell_absence() -> None:
    rule = orrery.parse_rules(reply([{"Type": "CrossLineDetection", "Config": {"DetectLine": [[1, 2], [3, 4]]}}]))[0]
    assert isinstance(rule.record, records.RuleCrossline)
    assert [(point.x, point.y) for point in rule.record.detect_line] == [(1, 2), (3, 4)]
    rule.record.detect_line = rule.record.detect_line[:1]
    assert len(rule.record.detect_line) == 1
    door = records.AccessGeneral()
    assert door.access_property is None
    door.access_property = enumerations.AccessPropertyCode(1)
    assert door.access_property == 1
    door.access_property = None
    assert door.access_property is None


def test_rules_go_round() -> None:
    rules = orrery.parse_rules(reply([{"Type": "CrossLineDetection", "Name": "Fence", "Id": 3, "Class": "Normal"},
                                      {"Type": "MoveDetection", "Name": "Yard", "Id": 4, "Class": "Traffic"}]))
    assert [(rule.name, rule.id, rule.rule_class) for rule in rules] == [("CrossLineDetection", 3, 1),
                                                                        ("MoveDetection", 4, 2)]
    back = json.loads(orrery.pack_rules(rules))
    assert [(rule["Name"], rule["Id"], rule["Class"]) for rule in back] == [("Fence", 3, "Normal"),
                                                                            ("Yard", 4, "Traffic")]
    assert orrery.parse_rules(reply([])) == []
    assert json.loads(orrery.pack_rules([])) == []
    with pytest.raises(TypeError):
        orrery.pack_rules([orrery.Rule(2, records.Ntp())])
    with pytest.raises(orrery.Refused):
        orrery.parse_rules(reply([{"Type": "NoSuchDetection"}]))
    with pytest.raises(ValueError):
        orrery.parse_rules(reply({"Port": 123}), "NTP")


def test_many_rules_stay_in_memory_while_they_are_packed() -> None:
    # So many bytes that they are returned to the system as soon as nobody has them.
    rules = [orrery.Rule(2, records.RuleCrossline(rule_name="Fence %d" % i), i) for i in range(100)]
    assert sum(rule.record.size_ for rule in rules) > 1 << 20
    assert [rule["Name"] for rule in json.loads(orrery.pack_rules(rules))] == ["Fence %d" % i for i in range(100)]


def test_a_record_of_rules_is_a_record_as_any() -> None:
    channel = orrery.parse("VideoAnalyseRule", reply([{"Type": "CrossLineDetection", "Name": "Fence", "Id": 3},
                                                      {"Type": "MoveDetection", "Name": "Yard"}]))
    fence, yard = channel.rule_buf
    assert (fence.code, fence.id, fence.name) == (2, 3, "CrossLineDetection")
    assert isinstance(fence.record, records.RuleCrossline) and isinstance(yard.record, records.RuleMove)
    fence.record.rule_name = "Wall"  # a view: what is set in it is written
    assert [rule["Name"] for rule in json.loads(orrery.pack(channel, "VideoAnalyseRule"))] == ["Wall", "Yard"]
    channel.rule_buf = [yard]
    assert channel == records.Analyserules(rule_buf=[yard])
    assert channel != records.Analyserules(rule_buf=[yard._replace(id=1)])
    assert channel.as_dict()["rule_buf"][0]["record"]["rule_name"] == "Yard"
    assert [rule["Name"] for rule in json.loads(orrery.pack(channel, "AudioAnalyseRule"))] == ["Yard"]
    with pytest.raises(TypeError):
        channel.rule_buf = [orrery.Rule(2, yard.record)]
    assert channel.rule_buf == [yard]
    channel.rule_buf = []
    assert json.loads(orrery.pack(channel, "VideoAnalyseRule")) == []


def test_events_stay_with_what_their_pointers_lead_to() -> None:
    text = json.dumps({"Event": [
        {"Code": "CrossLineDetection", "Data": {"Object": {"Image": {"FilePath": "/first"}}}},
        {"Code": "NoSuchEvent"},
        {"Code": "MoveDetection", "Data": {"Object": {"Image": {"FilePath": "/second"}}}}]})
    found = list(orrery.events(text))
    assert [event.name for event in found] == ["CrossLineDetection", "MoveDetection"]
    paths = [event.record.object.file_path for event in found]  # type: ignore[attr-defined]
    assert paths == ["/first", "/second"]
    assert list(orrery.events("no JSON")) == []
    objects = list(orrery.typed(json.dumps({"ObjectList": [{"ObjectID": 7}, {"ObjectID": 9}]})))
    assert [event.record.object_id for event in objects] == [7, 9]  # type: ignore[attr-defined]
    with pytest.raises(orrery.Refused):
        orrery.typed("no JSON")


def test_rules_among_what_a_text_carries() -> None:
    text = json.dumps({"VideoAnalyseRule": [{"Type": "CrossLineDetection", "Name": "Fence", "Id": 3, "Class": "Traffic"},
                                            {"Type": "MoveDetection", "Name": "Yard", "Class": "Normal"}]})
    tables = [one.record for one in orrery.typed(text)]
    assert [type(table) for table in tables] == [records.EventRuleTable]
    rules: List[orrery.Rule] = getattr(tables[0], "rule_buf")
    assert [(rule.name, rule.id, rule.rule_class) for rule in rules] == [("CrossLineDetection", 3, 2),
                                                                        ("MoveDetection", 0, 1)]
    assert [getattr(rule.record, "rule_name") for rule in rules] == ["Fence", "Yard"]
    with pytest.raises(orrery.Refused):
        orrery.typed(json.dumps({"VideoAnalyseRule": [{"Type": "NoSuchDetection"}]}))


def test_lists_behind_pointers_are_lent_and_grow() -> None:
    plan = orrery.parse("BurnPlan", reply({"Devices": [4, 5, 6]}))
    assert plan.devices == [4, 5, 6]
    many = orrery.parse("BurnPlan", reply({"Devices": list(range(500))}))
    assert many.devices == list(range(500))


def test_lists_inside_and_behind_others_have_room() -> None:
    filters = orrery.parse("CANFilter", reply([{"Filter": {"PID": list(range(40))}}, {"Filter": {"PID": [7]}}, {"Filter": {}}]))
    assert [one.pids for one in filters.filters] == [list(range(40)), [7], []]
    assert [one["Filter"].get("PID") for one in json.loads(orrery.pack(filters))] == [list(range(40)), [7], None]

    source = {"DeviceInfo": {"VideoInputs": [{"Name": "front"}, {"Name": "back"}]},
              "StartTime": "2024-02-03 04:05:06"}
    tasks = orrery.parse("VideoDiagnosisTask", reply({"day": {"Sources": [source] * 9}, "night": {"Sources": [source]}}))
    day, night = tasks.entries
    assert (day.name, len(day.sources), night.name, len(night.sources)) == ("day", 9, "night", 1)
    device, start = day.sources[8].device_info, day.sources[8].start_time
    assert device is not None and [one.name for one in device.video_inputs] == ["front", "back"]
    assert start is not None and start.time.hour == 4
    many = orrery.parse("VideoDiagnosisTask", reply({"task %02d" % i: {"Sources": []} for i in range(40)}))
    assert [entry.name for entry in many.entries] == ["task %02d" % i for i in range(40)]

    profiles = orrery.parse("VideoDiagnosisProfile", reply({"strict": {"VideoLossDetection": {"Enable": True}}}))
    assert profiles.entries[0].video_loss[0].enable is True

    devices = orrery.parse_all("RemoteDevice", reply({"one": {"VideoInputs": [{"Name": str(i)} for i in range(50)]},
                                                      "two": {"VideoInputs": [{"Name": "x"}]}}))
    assert [[one.name for one in device.video_inputs] for device in devices] == [[str(i) for i in range(50)], ["x"]]


def test_groups_of_rules_have_room_for_all_of_them() -> None:
    many = [{"Name": "yard %d" % i, "Id": i} for i in range(100)]
    rules = orrery.parse("VideoInAnalyseRule", reply([
        {"Rules": {"MoveDetection": {"Enable": True, "Rule": many}, "FireDetection": {"Rule": [{"Name": "stove"}]}}},
        {"Rules": {"NoSuchDetection": {"Rule": [{}]}, "LeftDetection": {"Rule": []}}}]))
    fire, move = rules.scenes[0].rule_groups
    assert (fire.rule_type, move.rule_type) == (12, 9)
    assert [type(rule) for rule in fire.rule_buf] == [records.RuleFire]
    assert [getattr(rule, "rule_name") for rule in move.rule_buf] == [one["Name"] for one in many]
    assert [group.rule_buf for group in rules.scenes[1].rule_groups] == [[]]

    # Rules are views: what is set in them is written. Other rules take their place.
    setattr(move.rule_buf[7], "rule_name", "pool")
    fire.rule_buf = [records.RuleFire(rule_name="oven"), records.RuleFire(rule_name="grill")]
    back = json.loads(orrery.pack(rules))[0]["Rules"]
    assert [rule["Name"] for rule in back["FireDetection"]["Rule"]] == ["oven", "grill"]
    assert [rule["Name"] for rule in back["MoveDetection"]["Rule"]][6:9] == ["yard 6", "pool", "yard 8"]
    with pytest.raises(TypeError):
        fire.rule_buf = [records.RuleMove()]
    fire.rule_buf = []
    assert json.loads(orrery.pack(rules))[0]["Rules"]["FireDetection"]["Rule"] == []

    # A record of one's own says the type first.
    scene = records.VideoinanalyseScene(rule_groups=[records.RuleGroup(rule_type=12)])
    scene.rule_groups[0].rule_buf = [records.RuleFire(rule_name="kiln")]
    made = records.VideoinanalyseRules(scenes=[scene])
    assert json.loads(orrery.pack(made))[0]["Rules"]["FireDetection"]["Rule"][0]["Name"] == "kiln"


def test_several_records_and_size_words() -> None:
    groups = orrery.parse_all("StorageGroup", reply([{"Name": "ReadWrite"}, {"Name": "Redundant"}]))
    assert [group.name for group in groups] == ["ReadWrite", "Redundant"]
    assert [group["Name"] for group in json.loads(orrery.pack(list(groups)))] == ["ReadWrite", "Redundant"]


def test_bits_are_flags() -> None:
    text = json.dumps({"Event": [{"Code": "TrafficJunction", "Data": {"Breaking": ["RunRedLight", "OverLine"]}}]})
    junction = next(orrery.events(text)).record
    assert isinstance(junction, records.TrafficjunctionEvent)
    assert isinstance(junction.breaking_rule, enum.IntFlag)
    assert bin(junction.breaking_rule).count("1") == 2
    one = type(junction.breaking_rule)(1)
    junction.breaking_rule = one | type(one)(1 << 31)  # a bit without a name stays
    assert junction.breaking_rule == 0x80000001
    assert one in junction.breaking_rule


def test_templates() -> None:
    made = orrery.parse_template("VideoInAnalyse.getTemplateGlobal",
                                 '{"result":true,"params":{"Scene":{"Type":"Normal","PtzPresetId":4}}}')
    assert made.ptz_preset_id == 4
    with pytest.raises(orrery.Refused):
        orrery.parse_template("VideoInAnalyse.getTemplateGlobal", "no JSON")


def test_templates_of_rules() -> None:
    def template(rules: Any) -> str:
        return json.dumps({"result": True, "params": {"Normal": rules}})

    method: Literal["VideoInAnalyse.getTemplateRule"] = "VideoInAnalyse.getTemplateRule"
    made = orrery.parse_template(method, template({"A": {"Type": "CrossLineDetection", "Class": "Normal", "Name": "Line"},
                                                   "B": None,
                                                   "C": {"Type": "MoveDetection", "Class": "Normal", "Name": "Move"}}))
    assert [(rule.name, getattr(rule.record, "rule_name")) for rule in made.rule_buf] == [("CrossLineDetection", "Line"),
                                                                                          ("MoveDetection", "Move")]
    assert orrery.parse_template(method, template({}), 1).rule_buf == []
    assert orrery.parse_template(method, template({"A": {"Type": "MoveDetection", "Class": "Normal"}}), 2).rule_buf == []
    # As many as a channel has, of the type with the largest record.
    largest = max(RULES, key=lambda code: RULES[code].size_)
    rule = {"Type": NAMES_OF_CODES[largest], "Class": "Traffic"}
    many = orrery.parse_template(method, template({str(i): rule for i in range(32)}))
    assert [one.code for one in many.rule_buf] == [largest] * 32
    with pytest.raises(orrery.Refused):
        orrery.parse_template(method, template({"A": {"Type": "NoSuchDetection", "Class": "Normal"}}))
    with pytest.raises(orrery.Refused):
        orrery.parse_template(method, template({"A": {"Type": "MoveDetection"}}))


def test_threads_parse_at_once() -> None:
    failures: List[str] = []

    def work(number: int) -> None:
        for _ in range(200):
            if orrery.parse("NTP", reply({"Port": number})).port != number:
                failures.append(str(number))

    threads = [threading.Thread(target=work, args=(number,)) for number in range(1, 5)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not failures


def value_for(draw: Any, codec: Any) -> Any:
    if isinstance(codec, memory.Text):
        most = codec._most
        return draw(st.text(st.characters(min_codepoint=32, max_codepoint=126), max_size=min(most, 12)))
    if isinstance(codec, memory.Bool):
        return draw(st.booleans())
    if isinstance(codec, memory.Code):
        return draw(st.sampled_from(sorted(codec._members.values())))
    if isinstance(codec, memory.Number):
        return draw(st.integers(0, 100))
    return None


# Lists hold hundreds of values: they come of one seed.
def element_for(random: Random, codec: Any, depth: int = 0) -> Any:
    if isinstance(codec, memory.Text):
        return "".join(random.choice("abcdefgh 123") for _ in range(random.randint(0, min(codec._most, 12))))
    if isinstance(codec, memory.Bool):
        return random.random() < 0.5
    if isinstance(codec, memory.Code):
        return random.choice(sorted(codec._members.values()))
    if isinstance(codec, memory.Mask):
        return codec._enumeration(random.randint(0, 3))
    if isinstance(codec, memory.Number):
        return random.randint(0, 100)
    if isinstance(codec, memory.Array):
        return [element_for(random, codec._of, depth) for _ in range(codec._length)]
    record = codec._of()
    if depth < 3:
        fill_lists(random, record, depth + 1)
        for name in record.fields_:
            field = getattr(type(record), name)
            if type(field) is memory.Field and not isinstance(field._codec, memory.Inside):
                setattr(record, name, element_for(random, field._codec, depth))
    return record


def fill_lists(random: Random, record: memory.Record, depth: int = 0) -> int:
    """Sets lists with counts, and looks whether they say what was set; how many there were with elements."""
    lists = 0
    for name in record.fields_:
        field = getattr(type(record), name)
        if type(field) is memory.Field and isinstance(field._codec, memory.Inside):
            lists += fill_lists(random, getattr(record, name), depth + 1)
        elif type(field) is memory.Listed:
            of = field._codec._of
            length = random.randint(0, min(field._codec._length, 3 if of.size < 10000 else 1))
            value = [element_for(random, of, depth) for _ in range(length)]
            setattr(record, name, value)
            assert getattr(record, name) == value, name
            lists += length > 0
    return lists


WENT_ROUND = set()
WITH_LISTS = set()
READ_ONLY = {name for name, (_, kind) in COMMANDS.items() if not kind.is_written_}


def fill(draw: Any, record: memory.Record) -> None:
    """Sets members, and looks whether they say what was set."""
    for name in record.fields_:
        field = getattr(type(record), name)
        if type(field) is not memory.Field:
            continue
        if isinstance(field._codec, memory.Inside):
            fill(draw, getattr(record, name))
            continue
        value = value_for(draw, field._codec)
        if value is None:
            continue
        setattr(record, name, value)
        assert getattr(record, name) == value, name


@pytest.mark.parametrize("command", sorted(COMMANDS))
@settings(max_examples=2, deadline=None, suppress_health_check=list(HealthCheck))
@given(data=st.data())
def test_every_command_takes_its_record(command: str, data: Any) -> None:
    """What was set comes back, and what is written is JSON that the command itself reads to the same text."""
    name, kind = COMMANDS[command]
    record = kind()
    fill(data.draw, record)
    lists = fill_lists(data.draw(st.randoms(use_true_random=True)), record)
    try:
        text = orrery.pack(record, name)
    except orrery.Refused:
        return  # a method that is only read, or a record that says of itself that it is none
    table = json.loads(text) if text.strip().startswith(("{", "[")) else None
    if table is None:
        return
    try:
        again = orrery.parse(name, reply(table))
        first = orrery.pack(again, name)
        second = orrery.pack(orrery.parse(name, reply(json.loads(first))), name)
    except (orrery.Refused, json.JSONDecodeError):
        return
    assert json.loads(second) == json.loads(first)
    WENT_ROUND.add(command)
    if lists > 0:
        WITH_LISTS.add(command)


def test_most_commands_went_round() -> None:
    """Behind the test above: it passes what a command refuses, but not when that is all it meets."""
    both = [name for name in COMMANDS if name not in READ_ONLY]
    assert len(WENT_ROUND) > 0.75 * len(both), sorted(set(both) - WENT_ROUND)
    assert len(WITH_LISTS) > 100, sorted(WITH_LISTS)
