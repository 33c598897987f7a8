"""Why a reply does not do what was meant: the findings of liborrery-explain."""
import orrery

REPLY = """{ "result" : true,
  "params" : { "table" : { "Enable" : true, "Prot" : 123, "TimeZone" : "8" } } }"""

findings = orrery.explain("NTP", REPLY)
for finding in findings:
    print(f"line {finding.line}, {finding.path}: {finding.kind}")
print(len(findings), "findings")
