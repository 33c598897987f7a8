"""HTML: texts, code and JSON with colours, and the page around all of it."""
import html
import json
import re

WIDTH = 72  # of a line of JSON

NAVIGATION = (
    ("commands/index.html", "Commands"),
    ("records/index.html", "Records"),
    ("rules/index.html", "Rules"),
    ("events/index.html", "Events"),
    ("codes/index.html", "Codes"),
    ("keys/index.html", "Keys"),
    ("cookbook.html", "Cookbook"),
)
C_WORDS = (
    "static const struct return if for while else switch case default break void char int unsigned size_t sizeof "
    "long double float uint8_t uint16_t uint32_t uint64_t int32_t int64_t auto NULL nullptr class public "
    "override int8_t bool"
).split()
PYTHON_WORDS = "import from for in if else return def class with as not print None True False lambda while yield".split()
TOKENS = {
    "c": re.compile(
        r'(?P<c>/\*.*?\*/|//[^\n]*)|(?P<s>R"\(.*?\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'|<orrery/\w+\.h>)|'
        r"(?P<p>^\#\w+)|(?P<w>\b[A-Za-z_]\w*\b)|(?P<n>\b\d[\w.]*)",
        re.S | re.M,
    ),
    "python": re.compile(
        r'(?P<s>[rf]?""".*?"""|[rf]?"(?:\\.|[^"\\\n])*"|[rf]?\'(?:\\.|[^\'\\\n])*\')|(?P<c>\#[^\n]*)|'
        r"(?P<w>\b[A-Za-z_]\w*\b)|(?P<n>\b\d[\w.]*)",
        re.S,
    ),
}


def esc(text):
    return html.escape(str(text), quote=True)


def code(text, language=""):
    """The lines of a program, coloured."""
    if language not in TOKENS:
        return f'<pre tabindex="0"><code>{esc(text.rstrip())}</code></pre>'
    words = PYTHON_WORDS if language == "python" else C_WORDS

    def span(match):
        kind, what = match.lastgroup, match.group()
        if kind == "w" and what not in words:
            return esc(what)
        return f'<span class="{kind}">{esc(what)}</span>'

    out, at, text = [], 0, text.rstrip()
    for match in TOKENS[language].finditer(text):
        out += [esc(text[at : match.start()]), span(match)]
        at = match.end()
    return f"<pre tabindex=\"0\"><code>{''.join(out)}{esc(text[at:])}</code></pre>"


def json_lines(value, indent=0, before=0):
    """JSON for eyes: what fits into a line stands in one. `before`: columns that its key takes."""
    flat = json.dumps(value, ensure_ascii=False)
    if not isinstance(value, (dict, list)) or not value or len(flat) + indent + before <= WIDTH:
        return flat
    inner = indent + 2
    if isinstance(value, dict):
        rows = []
        for key, each in value.items():
            name = json.dumps(key, ensure_ascii=False) + ": "
            rows.append(" " * inner + name + json_lines(each, inner, len(name)))
        return "{\n" + ",\n".join(rows) + "\n" + " " * indent + "}"
    if all(isinstance(each, (int, float)) for each in value):
        return "[" + filled([json.dumps(each) for each in value], inner) + "\n" + " " * indent + "]"
    return "[\n" + ",\n".join(" " * inner + json_lines(each, inner) for each in value) + "\n" + " " * indent + "]"


def filled(words, indent):
    lines, line = [], ""
    for i, word in enumerate(words):
        word += "," if i + 1 < len(words) else ""
        if len(line) + len(word) + indent > WIDTH:
            lines.append(line)
            line = ""
        line += (" " if line else "") + word
    return "".join("\n" + " " * indent + each for each in lines + [line])


LARGE = 40000  # characters of a text that is shown in part


def in_part(value):
    """Of a large text lists are cut behind their first elements, where it then says how many there are more."""
    return cut(value) if len(json.dumps(value)) > LARGE else value


def cut(value, most=3):
    if isinstance(value, dict):
        return {key: cut(each) for key, each in value.items()}
    if isinstance(value, list):
        more = [f"… {len(value) - most} more"] if len(value) > most + 1 else []
        return [cut(each) for each in (value[:most] if more else value)] + more
    return value


JSON_TOKEN = re.compile(
    r'(?P<k>"(?:\\.|[^"\\])*")(?=\s*:)|(?P<s>"(?:\\.|[^"\\])*")|(?P<n>-?\b\d[\d.eE+-]*|\btrue\b|\bfalse\b|\bnull\b)'
)


def json_text(value):
    text = value if isinstance(value, str) else json_lines(in_part(value))
    out, at = [], 0
    for match in JSON_TOKEN.finditer(text):
        out += [esc(text[at : match.start()]), f'<span class="{match.lastgroup}">{esc(match.group())}</span>']
        at = match.end()
    return f"<pre tabindex=\"0\"><code>{''.join(out)}{esc(text[at:])}</code></pre>"


class Prose:
    """Words of the headers, with links where they name what has a page."""

    NAMES = re.compile(r'"([A-Za-z][\w.&-]*)"|`([^`]+)`|\b((?:CFG|DEV_EVENT|EVENT|NET|ORRERY|EM|CLIENT)_\w+)\b')

    def __init__(self, model, places):
        self.model, self.places = model, places

    def html(self, text, root, here=""):
        def link(match):
            quoted, ticked, name = match.groups()
            if ticked:
                return f"<code>{esc(ticked)}</code>"
            if quoted:
                to = self.places.get(("command", quoted)) or self.places.get(("event", quoted))
                return (
                    f'<a href="{root}{to}">&quot;{esc(quoted)}&quot;</a>'
                    if to and to != here
                    else f"&quot;{esc(quoted)}&quot;"
                )
            to = self.places.get(("name", name))
            if to and to != here:
                return f'<a href="{root}{to}"><code>{esc(name)}</code></a>'
            return f"<code>{esc(name)}</code>"

        out, at = [], 0
        for match in self.NAMES.finditer(text):
            out += [esc(text[at : match.start()]), link(match)]
            at = match.end()
        return "".join(out) + esc(text[at:])


def page(title, body, root, kind, summary="", trail=(), contents=()):
    """A whole page. `root`: the way up to the site's folder. `trail`: pairs of address and name of the pages above.
    `contents`: pairs of anchor and name of the sections."""
    navigation = "".join(
        f'<li><a href="{root}{to}"{" aria-current=page" if kind == name else ""}>{name}</a></li>' for to, name in NAVIGATION
    )
    crumbs = "".join(f'<li><a href="{root}{to}">{esc(name)}</a></li>' for to, name in trail)
    crumbs = (
        f'<nav class="trail" aria-label="Where this stands"><ol>{crumbs}<li aria-current="page">{esc(title)}</li></ol></nav>'
        if trail
        else ""
    )
    inside = "".join(f'<li><a href="#{esc(anchor)}">{esc(name)}</a></li>' for anchor, name in contents)
    inside = f'<nav class="contents" aria-label="On this page"><ul>{inside}</ul></nav>' if len(contents) > 2 else ""
    described = f'<meta name="description" content="{esc(summary[:300])}">\n' if summary else ""
    return f"""<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<meta name="color-scheme" content="light dark">
{described}<title>{esc(title)} · Orrery</title>
<link rel="icon" href="{root}icon.svg" type="image/svg+xml">
<link rel="stylesheet" href="{root}style.css">
<script src="{root}search.js" data-root="{root}" defer></script>
</head>
<body>
<a class="skip" href="#main">Skip to the content</a>
<header class="top">
<a class="brand" href="{root}index.html"><img src="{root}icon.svg" alt="" width="22" height="22">Orrery</a>
<nav aria-label="Reference"><ul>{navigation}</ul></nav>
<div class="search" id="search" hidden>
<label class="hidden" for="q">Search names, keys and codes</label>
<input id="q" type="search" role="combobox" aria-expanded="false" aria-controls="hits" aria-autocomplete="list" autocomplete="off" spellcheck="false" placeholder="Search names, keys, codes"><kbd aria-hidden="true">/</kbd>
<ul id="hits" role="listbox" aria-label="Found" hidden></ul>
<p class="hidden" id="told" role="status"></p>
</div>
</header>
<main id="main" tabindex="-1">
{crumbs}
{inside}
{body}
</main>
<footer><p>Orrery VERSION. Made from <code>orrery schema</code> and the headers. <a href="{root}schema.html">Schema</a> · <a href="{root}platforms.html">Platforms and compatibility</a> · <a href="{root}python.html">Python</a> · <a href="{root}changes.html">Changes</a></p></footer>
</body>
</html>
"""
