"""Every link of the pages leads to a page and an anchor that are there."""
import html
import html.parser
import os
import re
import urllib.parse


class Reader(html.parser.HTMLParser):
    """Whether all elements of a page are closed in their order."""

    VOID = {"meta", "link", "img", "br", "input", "hr"}

    def __init__(self):
        super().__init__(convert_charrefs=True)
        self.stack, self.unclosed = [], []

    def handle_starttag(self, tag, attrs):
        if tag not in self.VOID:
            self.stack.append(tag)

    def handle_endtag(self, tag):
        if not self.stack or self.stack.pop() != tag:
            self.unclosed.append(tag)


ANCHOR = re.compile(r'<[a-z0-9]+(?: [^<>]*)? id="([^"]*)"')
LINK = re.compile(r'<[a-z0-9]+(?: [^<>]*)? (?:href|src)="([^"]*)"')


def wrong_links(folder, parsed_of=15):
    """(pages, links, what is wrong): links without an end, anchors that stand twice, and of every so many pages elements
    that are not closed."""
    anchors, links, wrong = {}, set(), []
    files = sorted(
        os.path.relpath(os.path.join(path, name), folder)
        for path, _, names in os.walk(folder)
        for name in names
        if name.endswith(".html")
    )
    count = 0
    for i, file in enumerate(files):
        with open(os.path.join(folder, file), encoding="utf-8") as opened:
            text = opened.read()
        found = [html.unescape(each) for each in ANCHOR.findall(text)]
        anchors[file] = set(found)
        wrong += (
            [f"{file}: id {each} stands twice" for each in anchors[file] if found.count(each) > 1]
            if len(found) > len(anchors[file])
            else []
        )
        told = LINK.findall(text)
        count += len(told)
        links.update((file, html.unescape(each)) for each in told)
        if i % parsed_of == 0 or "/" not in file:
            reader = Reader()
            reader.feed(text)
            reader.close()
            wrong += [f"{file}: <{each}> is not closed in its order" for each in reader.unclosed + reader.stack]
    for file, link in sorted(links):
        split = urllib.parse.urlsplit(link)
        if split.scheme or split.netloc:
            wrong.append(f"{file}: {link} leads outside")
            continue
        to = (
            file
            if not split.path
            else os.path.normpath(os.path.join(os.path.dirname(file), urllib.parse.unquote(split.path)))
        )
        if to not in anchors:
            if to.endswith(".html") or not os.path.exists(os.path.join(folder, to)):
                wrong.append(f"{file}: no page {link}")
        elif split.fragment and urllib.parse.unquote(split.fragment) not in anchors[to]:
            wrong.append(f"{file}: no anchor {link}")
    return len(anchors), count, wrong
