"""The rules of a channel: walked, changed, written, and read again."""
import orrery

REPLY = """{ "result" : true, "params" : { "table" : [
  { "Type" : "CrossLineDetection", "Name" : "Fence", "Id" : 1, "Enable" : true },
  { "Type" : "MoveDetection", "Name" : "Yard", "Id" : 2, "Enable" : true } ] } }"""


def walk(text):
    """Shows rules and turns lines off; the text of what they are then."""
    rules = orrery.parse_rules(text)
    for rule in rules:
        if rule.name == "CrossLineDetection":
            print(rule.record.rule_name, "is", "on" if rule.record.rule_enable else "off")
            rule.record.rule_enable = False
        else:
            print(f"rule {rule.id} is of type {rule.code}")
    return orrery.pack_rules(rules)


table = walk(REPLY)
# What was written is the "table" of a reply, too.
walk('{ "result" : true, "params" : { "table" : %s } }' % table)
