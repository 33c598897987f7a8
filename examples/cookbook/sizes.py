"""Records that begin with their size: the package sets it."""
import orrery

REPLY = """{ "result" : true, "params" : { "table" : [
  { "SerialNo" : 1, "Name" : "Door" }, { "SerialNo" : 2, "Name" : "Yard" } ] } }"""

titles = orrery.parse_all("ChannelTitle", REPLY)
for title in titles:
    print(f"{title.serial_no} {title.name}, of {title.size_} bytes")
    title.serial_no += 10
print(orrery.pack(titles), end="")
