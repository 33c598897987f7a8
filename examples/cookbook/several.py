"""Several records from one reply, and back into one text."""
import orrery

REPLY = """{ "result" : true, "params" : { "table" : [
  { "Name" : "Siren", "Mode" : 1 }, { "Name" : "Lamp" }, { "Name" : "Gate", "Mode" : 1 } ] } }"""

outputs = orrery.parse_all("ExAlarmOut", REPLY)
print(len(outputs), "outputs")
for output in outputs:
    print(f"{output.name}: {output.mode}")
    output.mode = 2  # off
print(orrery.pack(outputs), end="")
