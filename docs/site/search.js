// Search over names, keys and codes. The index is a script of its own, so that it also loads from a folder; it is asked
// for when the search is.
(function () {
    "use strict";
    const root = document.currentScript.dataset.root;
    const MOST = 40;
    // How much a kind weighs where names fit alike.
    const WEIGHT = { command: 0, event: 1, rule: 1, text: 1, template: 1, page: 1, record: 2, key: 3, list: 4, code: 4, constant: 5 };
    let rows = null, asked = false, chosen = -1;

    const box = document.getElementById("search"), input = document.getElementById("q");
    const hits = document.getElementById("hits"), told = document.getElementById("told");
    box.hidden = false;

    function load() {
        if (asked) return;
        asked = true;
        const script = document.createElement("script");
        script.src = root + "search-index.js";
        script.onload = function () { prepare(window.orreryIndex); show(); };
        document.head.append(script);
    }

    // Every entry as { kind, name, href, says, low }; a key once, with the members that it becomes.
    function prepare(data) {
        rows = data.entries.map(([kind, name, href, says]) => ({ kind: data.kinds[kind], name, href, says, low: name.toLowerCase() }));
        for (const [key, members] of Object.entries(data.keys)) {
            for (let i = 0; i < members.length; i += 2) {
                const record = data.records[members[i]], member = members[i + 1].replace(/^key-/, ""), user = data.users[members[i]];
                rows.push({ kind: "key", name: key, href: "records/" + record.replace(/[^A-Za-z0-9_.-]/g, "_") + ".html#" + members[i + 1],
                            says: record + "." + member + (user ? " · " + user : ""), low: key.toLowerCase(), member: member.toLowerCase() });
            }
        }
    }

    // Smaller is better; no number: it does not fit.
    function fit(row, word) {
        const at = row.low.indexOf(word);
        if (row.low === word) return 0;
        if (row.says.split(" ", 1)[0] === word) return 1; // the number of a code
        if (at === 0) return 2;
        if (row.member === word) return 2;
        if (at > 0 && /[._-]/.test(row.low[at - 1])) return 3;
        if (at > 0 && /[A-Z]/.test(row.name[at])) return 3.5;
        if (at > 0) return 5;
        if (row.member && row.member.includes(word)) return 6;
        return row.says.toLowerCase().includes(word) ? 8 : undefined;
    }

    function found(text) {
        const words = text.toLowerCase().replaceAll('"', "").split(/\s+/).filter(Boolean), all = [];
        for (const row of rows) {
            let score = 0;
            for (const word of words) {
                const one = fit(row, word);
                if (one === undefined) { score = undefined; break; }
                score += one;
            }
            if (score !== undefined) all.push([score * 10 + WEIGHT[row.kind] + row.name.length / 100, row]);
        }
        all.sort((a, b) => a[0] - b[0]);
        return all.map((pair) => pair[1]);
    }

    function show() {
        const text = input.value.trim();
        chosen = -1;
        input.removeAttribute("aria-activedescendant");
        if (!text || !rows) return close();
        const all = found(text);
        hits.replaceChildren(...all.slice(0, MOST).map((row, i) => {
            const item = document.createElement("li"), link = document.createElement("a");
            item.id = "hit" + i;
            item.setAttribute("role", "option");
            item.setAttribute("aria-selected", "false");
            link.href = root + row.href;
            link.tabIndex = -1;
            for (const [tag, words] of [["i", row.kind], ["b", row.name], ["small", row.says]]) {
                const part = document.createElement(tag);
                part.textContent = words;
                link.append(part);
            }
            item.append(link);
            return item;
        }));
        if (!all.length) {
            const none = document.createElement("li");
            none.className = "none";
            none.textContent = "Nothing is called " + text + ".";
            hits.append(none);
        } else choose(0);
        told.textContent = all.length + " found";
        hits.hidden = false;
        input.setAttribute("aria-expanded", "true");
    }

    function close() {
        hits.hidden = true;
        input.setAttribute("aria-expanded", "false");
        told.textContent = "";
    }

    function choose(number) {
        const items = hits.querySelectorAll("[role=option]");
        if (!items.length) return;
        if (chosen >= 0) items[chosen].setAttribute("aria-selected", "false");
        chosen = (number + items.length) % items.length;
        items[chosen].setAttribute("aria-selected", "true");
        items[chosen].scrollIntoView({ block: "nearest" });
        input.setAttribute("aria-activedescendant", items[chosen].id);
    }

    input.addEventListener("focus", load);
    input.addEventListener("input", show);
    input.addEventListener("keydown", function (event) {
        if (event.key === "ArrowDown") choose(chosen + 1);
        else if (event.key === "ArrowUp") choose(chosen - 1);
        else if (event.key === "Enter" && chosen >= 0) hits.querySelectorAll("[role=option] a")[chosen].click();
        else if (event.key === "Escape") { input.value = ""; close(); input.blur(); }
        else return;
        event.preventDefault();
    });
    document.addEventListener("keydown", function (event) {
        const typing = /^(INPUT|TEXTAREA|SELECT)$/.test(event.target.tagName);
        if (event.key === "/" && !typing && !event.ctrlKey && !event.metaKey && !event.altKey) {
            event.preventDefault();
            input.focus();
            input.select();
        }
    });
    document.addEventListener("click", function (event) { if (!box.contains(event.target)) close(); });
    input.addEventListener("search", show);
    // The link of a hit leads to the page that is shown, too.
    hits.addEventListener("click", function (event) { if (event.target.closest("a")) close(); });
})();
