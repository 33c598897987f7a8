"""Pages of the documents, and the cookbook with its programs."""
import os
import posixpath
import re

import markdown

from .markup import code, page
from .recipes import PARAGRAPH, programs_of

# Documents and their pages.
PAGES = {
    "docs/cookbook.md": "cookbook.html",
    "docs/platforms.md": "platforms.html",
    "docs/schema.md": "schema.html",
    "python/README.md": "python.html",
    "CHANGELOG.md": "changes.html",
}
LANGUAGES = {".c": ("C", "c"), ".cpp": ("C++", "c"), ".py": ("Python", "python")}
LINK = re.compile(r"\[([^\]]+)\]\(([^)#:]+)(#[^)]*)?\)")
FENCE = re.compile(r"^```(\w*)\n(.*?)^```$", re.S | re.M)


def slug(text):
    return re.sub(r"[^a-z0-9]+", "-", text.lower()).strip("-")


def rendered(source, document, root_path):
    """HTML of a document, and its sections. Links to documents that have pages lead there, others become plain words."""
    base = posixpath.dirname(document)
    kept = []

    def keep(html_text):
        kept.append(html_text)
        return f"\n\nKEPT{len(kept) - 1}KEPT\n\n"

    def programs(match):
        names = programs_of(match.group())
        if not names:
            return match.group()
        parts = []
        for name in names:
            path = posixpath.normpath(posixpath.join(base, name))
            with open(os.path.join(root_path, path), encoding="utf-8") as file:
                language, colours = LANGUAGES[os.path.splitext(name)[1]]
                open_now = " open" if language == "C" or len(names) == 1 else ""
                parts.append(
                    f'<details class="source"{open_now}><summary>{language} <code>{path}</code></summary>{code(file.read(), colours)}</details>'
                )
        return keep(
            f'<div class="sources">{"".join(parts)}</div><p class="prints">{"prints" if len(names) == 1 else "each prints"}</p>'
        )

    def link(match):
        text, to, anchor = match.groups()
        path = posixpath.normpath(posixpath.join(base, to))
        return (
            f"[{text}]({PAGES[path]}{anchor or ''})"
            if path in PAGES
            else f"{text} (`{path}`)"
            if text != to
            else f"`{path}`"
        )

    source = FENCE.sub(
        lambda match: keep(code(match.group(2), {"c": "c", "cpp": "c", "python": "python"}.get(match.group(1), ""))), source
    )
    source = PARAGRAPH.sub(programs, source)
    source = LINK.sub(link, source)
    html_text = markdown.markdown(source, extensions=["tables"])
    html_text = re.sub(r"<p>KEPT(\d+)KEPT</p>", lambda match: kept[int(match.group(1))], html_text)
    html_text = (
        html_text.replace("<pre><code>", '<pre tabindex="0"><code>')
        .replace("<table>", '<div class="wide" tabindex="0" role="region" aria-label="Table"><table class="list">')
        .replace("</table>", "</table></div>")
    )
    contents = []

    def heading(match):
        level, text = match.groups()
        anchor = slug(re.sub(r"<[^>]+>", "", text))
        if level == "2":
            contents.append((anchor, re.sub(r"<[^>]+>", "", text)))
        return f'<h{level} id="{anchor}">{text}</h{level}>'

    html_text = re.sub(r"<h([23])>(.*?)</h\1>", heading, html_text)
    return html_text, contents


def documents(_pages, source):
    files = {}
    for document, name in PAGES.items():
        path = os.path.join(source, document)
        if not os.path.exists(path):
            continue
        with open(path, encoding="utf-8") as file:
            text = file.read()
        body, contents = rendered(text, document, source)
        title = re.search(r"^# (.*)$", text, re.M).group(1)
        files[name] = page(
            title,
            f'<article class="prose">{body}</article>',
            "",
            "Cookbook" if name == "cookbook.html" else "",
            "",
            (),
            contents,
        )
    return files
