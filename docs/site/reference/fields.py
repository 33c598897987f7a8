"""Tables of fields: a row a member, with all that its words say."""
import re

from . import words
from .markup import esc

MOST_ROWS = 120  # of records inside that stand on a page beside its own
MOST_USERS = 6  # a record that more hold has its page alone
FEW_CODES = 8  # what stands open


def dims_of(row):
    return "".join(f"[{extent}]" for extent in row["dims"])


def anchor_of(prefix, row):
    return prefix + (row.get("name") or "key-" + re.sub(r"[^A-Za-z0-9]+", "-", row["key"]))


def meaning(row):
    """The header's comment, without the key that it begins with."""
    doc = row.get("doc", "")
    key = row.get("key", "").split("/")
    stripped = re.match(r'"([^"]*)"(?:\."[^"]*")*\s*(?:[:;,]\s*|$)', doc)
    if stripped and (stripped.group(1) in key or row.get("key") == ""):
        doc = doc[stripped.end() :]
    # What a column of its own says, or the codes below.
    return "" if doc == row.get("unit") or ("enumeration" in row and re.fullmatch(r"[A-Z0-9_]+_\.\.\.", doc)) else doc


class Fields:
    def __init__(self, model, prose, places):
        self.model, self.prose, self.places = model, prose, places

    def table(self, form, root, here, prefix="", before="", label="Fields"):
        """Rows of a record's form. `prefix` of anchors, `before`: the key path to the record."""
        second = {}
        for row in form.get("secondKeys", []):
            second.setdefault(row["name"], []).append(row)
        rows = [self.row(row, second.pop(row["name"], []), root, here, prefix, before) for row in form["fields"]]
        rest = [row for each in second.values() for row in each] + [
            {"type": "", "dims": [], **row} for row in form.get("otherKeys", [])
        ]
        rows += [self.row(row, [], root, here, prefix + "key-" if "name" in row else prefix, before) for row in rest]
        columns = "".join(
            f'<th scope="col">{each}</th>' for each in ("Member", "Key", "Type", "Unit and range", "Absent", "Meaning")
        )
        return (
            f'<div class="wide" tabindex="0" role="region" aria-label="{esc(label)}"><table class="fields"><thead><tr>{columns}</tr></thead>'
            f"<tbody>{''.join(rows)}</tbody></table></div>"
        )

    def key(self, row, before):
        if "key" not in row:
            return ""
        path = ".".join(part for part in row["key"].split("/") if part)
        if row.get("relativeTo") == "reply":
            return f"<code>{esc(path)}</code> <small>of the reply</small>"
        if not path:
            return "<small>the value</small>"
        lead = f'<span class="lead">{esc(before)}.</span>' if before else ""
        return f"<code>{lead}{esc(path)}</code>"

    def row(self, row, second, root, here, prefix, before):
        anchor = anchor_of(prefix, row)
        name = row.get("name", "")
        first = f'<a class="self" href="#{esc(anchor)}"><code>{esc(name or "no member")}</code></a>'
        keys = [self.key(row, before)] + [f"<small>or</small> {self.key(each, before)}" for each in second]
        kind = f"<code>{self.type_link(row, root, here)}{dims_of(row)}</code>"
        told = words.json_type(row, self.model)
        if told:
            kind += f"<small>{esc(told)}</small>"
        limits = []
        if "unit" in row:
            limits.append(esc(row["unit"]))
        if "range" in row:
            limits.append(f'{row["range"][0]}&nbsp;to&nbsp;{row["range"][1]}')
        cells = (
            ("key", "Key", "<br>".join(keys)),
            ("type", "Type", kind),
            ("limits", "Unit and range", "<br>".join(limits)),
            ("absent", "Absent", esc(words.absent(row))),
            ("says", "Meaning", self.says(row, root, here)),
        )
        return (
            f'<tr id="{esc(anchor)}"><th scope="row">{first}</th>'
            + "".join(
                f'<td class="{css}{"" if content else " none"}" data-label="{label}">{content}</td>'
                for css, label, content in cells
            )
            + "</tr>"
        )

    def type_link(self, row, root, here):
        name = words.c_type(row)
        base = name.rstrip("*")
        to = self.places.get(("record", base))
        return f'<a href="{root}{to}">{esc(base)}</a>{name[len(base):]}' if to and to != here else esc(name)

    def says(self, row, root, here):
        out = []
        doc = meaning(row)
        if doc:
            out.append(f"<p>{self.prose.html(doc, root, here)}</p>")
        codes, rest = words.codes(row)
        if codes:
            terms = "".join(self.code_line(each, row, root) for each in codes)
            listing = f'<ul class="codes">{terms}</ul><p class="rule">{esc(rest)}</p>'
            out.append(
                listing if len(codes) <= FEW_CODES else f"<details><summary>{len(codes)} codes</summary>{listing}</details>"
            )
        elif row.get("enumeration") in self.model.enumerations:
            out.append(f'<p class="rule">codes: {self.list_link(row["enumeration"], root)}</p>')
        rules = words.sentences(row, self.model)
        if rules:
            out.append(f'<p class="rule">{esc("; ".join(rules))}</p>')
        return "".join(out)

    def list_link(self, name, root):
        return f'<a href="{root}{self.places["list", name]}"><code>{esc(name)}</code></a>'

    def code_line(self, code, row, root):
        number, text, constant = code
        name = ""
        if constant in self.model.constants:
            name = f' <a href="{root}{self.places["constant", constant]}"><code>{esc(constant)}</code></a>'
        return f"<li><b>{number}</b> &quot;{esc(text)}&quot;{name}</li>"

    def inside(self, form, root, here):
        """Tables of the records inside, as far as they belong to this page: (anchor, name, html)."""
        found, taken = [], 0
        queue = [(row, "", "") for row in form["fields"]]
        while queue:
            row, prefix, before = queue.pop(0)
            if "record" not in row or row["kind"] == "none" or row.get("items"):
                continue
            known = self.model.records[row["record"]]
            if len(self.model.users_of.get(known["name"], [])) > MOST_USERS or row["record"] == form.get("name"):
                continue
            inner = self.model.form(row)
            if inner["shape"] != "object" or row["kind"] != "record" or taken + len(inner["fields"]) > MOST_ROWS:
                continue
            taken += len(inner["fields"])
            path = ".".join(part for part in row.get("key", "").split("/") if part)
            path = ".".join(part for part in (before, path) if part)
            listed = "[]" if row["dims"] or row.get("pointer", {}).get("elements") == "list" else ""
            anchor = prefix + row["name"] + "."
            title = f'<h3 id="{esc(anchor)}">{esc(prefix + row["name"])}{dims_of(row)}<span>{self.type_link(row, root, here)}</span></h3>'
            doc = f'<p>{self.prose.html(known["doc"], root, here)}</p>' if known.get("doc") else ""
            found.append(title + doc + self.table(inner, root, here, anchor, path + listed, prefix + row["name"]))
            queue += [(each, anchor, path + listed) for each in inner["fields"]]
        return "".join(found)
