"""Events that outlive the text: each is a copy, with all that its pointers lead to."""
import orrery

TEXT = """{ "Event" : [
  { "Code" : "TrafficOverSpeed", "Action" : "Pulse",
    "Data" : { "Lane" : 2, "Speed" : 88, "TrafficCar" : { "PlateNumber" : "A12345" } } },
  { "Code" : "AccessControl", "Index" : 1, "Action" : "Pulse", "Data" : { "CardNo" : "4711" } } ] }"""

events = list(orrery.events(TEXT))
print(len(events), "events")
for event in events:
    if event.name == "TrafficOverSpeed":
        car = event.record.traffic_car
        print(f"{car.plate_number} drives {event.record.speed} km/h on lane {event.record.lane}")
    elif event.name == "AccessControl":
        print("card", event.record.card_no)
