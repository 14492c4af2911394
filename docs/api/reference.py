#!/usr/bin/env python3
"""Makes of the function lists what Doxygen reads: a page for each family, with a prototype for each function.

    reference.py LISTS OUTPUT    writes the pages of the lists in the folder LISTS to the file OUTPUT
    reference.py --check LISTS   writes nothing, only says which functions are not documented

A list is a heading, then comments and entries. A comment directly above entries is about these, up to a blank line. Any
other is about the families whose names it begins with; where it begins with none, about the entries up to the next one.
"""

import html
import pathlib
import re
import sys
import textwrap
from dataclasses import dataclass, field

# In the order of the reference; what the first list says of its entries holds for those of the others too, but for
# math3d.inc, where the comment above an operation is all there is to say of it.
SUBSYSTEMS = {
    "elementwise": "Element-wise arithmetic",
    "products": "Products",
    "measures": "Measures and vector products",
    "factor": "Factorisation and solving",
    "eigen": "Eigenproblems",
    "math3d": "3D math",
    "movement": "Data movement",
}
PRECISIONS = {"32f": "Single precision", "64f": "Double precision"}
LAYOUTS = {"S": "standard", "L": "list", "P": "pointer"}


@dataclass
class Entry:
    name: str
    parameters: str
    place: str  # file and line
    text: str  # the comment above it
    section: str  # the last comment before it that is not directly above entries

    @property
    def family(self):
        return self.name.split("_")[0]

    def kind(self):
        """Precision and layout in words."""
        shape, precision, layout = re.fullmatch(r"[^_]+_(?:([^_]+)_)?(32f|64f)(?:_(\w+))?", self.name).groups()
        words = [PRECISIONS[precision]]
        if layout:  # "SP" is from one to another
            words.append(" to ".join(LAYOUTS[letter] for letter in layout) + " layout")
        elif shape and not re.search("[234]", shape):
            words.append("standard layout")
        return ", ".join(words) + "."


@dataclass
class FunctionList:
    name: str
    heading: str = ""
    entries: list = field(default_factory=list)
    sections: list = field(default_factory=list)  # the comments that are not directly above entries

    def about(self, family):
        """The sections about a family."""
        before = {entry.section for entry in self.entries if entry.family == family}
        return [
            text
            for text in self.sections
            if family in families_at_head(text) or (text in before and not families_at_head(text))
        ]

    def rules(self):
        """What the heading says of all entries, without what it tells those who include the list."""
        return "\n\n".join(block for block in self.heading.split("\n\n")[1:] if not block.startswith("Whoever"))

    def own_rules(self):
        return "" if self.name == "elementwise" else self.rules()


def families_at_head(text):
    names = re.match(r"(vorm\w+(, )?)*", text)[0]
    return [name.split("_")[0] for name in names.split(", ")] if names else []


def comment_text(lines):
    """The lines of a comment without its frame."""
    return re.sub(r"^/\*\s?| ?\*/$|^ \* ?", "", "\n".join(lines), flags=re.MULTILINE).strip()


def read_list(path):
    found = FunctionList(path.stem)
    comment, above = [], ""
    is_open = False  # inside a comment
    for number, line in enumerate(path.read_text().splitlines() + [""], 1):
        if is_open or line.startswith("/*"):
            if comment and not is_open:
                found.sections.append(comment_text(comment))
                comment = []
            comment.append(line)
            is_open = not line.endswith("*/")
        elif not line:
            if comment and not found.heading:
                found.heading = comment_text(comment)
            elif comment:
                found.sections.append(comment_text(comment))
            comment, above = [], ""
        elif entry := re.fullmatch(r"VORM_FUNCTION\((\w+),\s*\((.*)\)\)", line):
            if comment:
                above, comment = comment_text(comment), []
            found.entries.append(Entry(entry[1], entry[2], f"{path}:{number}", above, (found.sections or [""])[-1]))
        else:
            sys.exit(f"{path}:{number}: neither comment nor VORM_FUNCTION(name, (parameters))")
    return found


def complaints(lists):
    """What is not documented."""
    for listed in lists:
        for entry in listed.entries:
            if not entry.text:
                yield f"{entry.place}: no comment above {entry.name}"
            elif listed.name != "math3d" and "status" not in "".join([*listed.about(entry.family), entry.text]).lower():
                yield f"{entry.place}: nothing about {entry.family} says what statuses {entry.name} has"


def escaped(text):
    text = re.sub(r"[\\@#%]", r"\\\g<0>", html.escape(text, quote=False)).replace('"', '\\"')
    return re.sub(r"docs/(\w+)\.md", r'@ref md_docs_\1 "docs/\1.md"', text)


def rendered(text):
    """A comment for Doxygen: paragraphs and items of lists flow, other indented lines stand as they were laid out."""
    out, paragraph, layout, item = [], [], [], 0

    def close_paragraph():
        if paragraph:
            out.append(escaped(" ".join(paragraph)))
            paragraph.clear()

    def close_layout():
        while layout and not layout[-1]:
            layout.pop()
        if layout:
            margin = min(len(line) - len(line.lstrip()) for line in layout if line)
            out.append("@verbatim\n" + "\n".join(line[margin:] for line in layout) + "\n@endverbatim")
            layout.clear()

    for line in text.split("\n") + [""]:
        indent = len(line) - len(line.lstrip())
        bullet = re.match(r" *- ", line)
        if not line:
            if layout:
                layout.append("")  # a gap in a table, unless prose follows
            close_paragraph()
            if not layout:
                out.append("")
        elif bullet and not (layout and indent > 4):
            close_layout(), close_paragraph()
            if not item:
                out.append("<ul>")
            out.append("<li>")
            item = indent + 2
            paragraph.append(line.strip()[2:])
        elif item and indent == item and not layout:
            paragraph.append(line.strip())
        elif indent > (item or 1):
            close_paragraph()
            layout.append(line)
        else:
            close_layout()
            if item and indent < item:
                close_paragraph()
                out.append("</ul>")
                item = 0
            paragraph.append(line.strip())
    close_layout(), close_paragraph()
    if item:
        out.append("</ul>")
    return "\n".join(out).strip("\n")


def sentence(text, ends):
    return " ".join(re.split(rf"(?<=[^A-Z]{ends})\s|\n\n|:\n", text, maxsplit=1)[0].split())


def brief(sections, entry):
    """The first sentence of each text about a family, or of the comment above its first member where there is none."""
    heads = [re.match(r"vorm\w+(, \w+)*( and their array shapes)?:\s+", text) for text in sections]
    told = [sentence(text[head.end() :], "[.]").rstrip(".") for text, head in zip(sections, heads) if head]
    told = told or [sentence(re.sub(r"^vorm\w+: ", "", entry.text), "[.:]").rstrip(".:")]
    return f"&zwnj;{escaped('; '.join(told))}."  # not a capital at the head of a formula


def page(family, members):
    lists = list({listed.name: listed for listed, _ in members}.values())
    sections = [text for listed in lists for text in listed.about(family)]
    out = [f"/** @defgroup {family} {family}", f"@brief {brief(sections, members[0][1])}", ""]
    out += [rendered(text) + "\n" for text in sections]
    links = ['@ref rules "the general functions"'] if members[0][0].name != "math3d" else []
    links += [f'@ref {listed.name} "{SUBSYSTEMS[listed.name]}"' for listed in lists if listed.own_rules()]
    out += [f"What holds for all of them stands in the rules of {' and '.join(links)}.", ""]
    out += [f"@ingroup {listed.name}" for listed in lists]
    out.append("@{ */")
    text = None
    for _, entry in members:
        if entry.text != text:
            if text is not None:
                out.append("/** @} */")
            text = entry.text
            out.append(f"/** @name {escaped(sentence(text, '[.]'))}\n@{{ */")
        out.append(f"/** @brief {entry.kind()}\n\n{entry.kind()}\n\n{rendered(entry.text)} */")
        out.append(f"VormStatus {entry.name}({entry.parameters});")
    out.append("/** @} */\n/** @} */\n")
    return "\n".join(out)


def rules_and_version(folder, lists):
    """What the first list says of all functions, the statuses, and the one function that is in no list."""
    status, version = ((folder / name).read_text() for name in ("status.h", "version.h"))
    record, text = re.findall(r"^/\*.*?\*/", version, re.MULTILINE | re.DOTALL)[1:3]
    struct = re.search(r"typedef struct.*?VersionRecord;", version, re.DOTALL)[0]
    statuses = re.search(r"StatusOk.*(?=\n};)", status, re.DOTALL)[0]
    return f"""/** @page rules Rules of the general functions
{rendered(lists[0].rules())}

{rendered(comment_text(status.split(chr(10))[:1]))}
@verbatim
{textwrap.dedent("    " + re.sub(r"/[*] | +[*]/", "", statuses))}
@endverbatim */
/** @defgroup vormGetLibVersion vormGetLibVersion
@brief The record of the target chosen when the library was loaded.

{rendered(comment_text(record.split(chr(10))))}
@verbatim
{re.sub(r"/[*] | +[*]/", "", struct)}
@endverbatim
@{{ */
/** {rendered(comment_text(text.split(chr(10))))} */
const VersionRecord* vormGetLibVersion(void);
/** @}} */
"""


def main(arguments):
    is_check = arguments[:1] == ["--check"]
    folder = pathlib.Path(arguments[1] if is_check else arguments[0])
    lists = [read_list(path) for path in folder.glob("*.inc")]
    if unknown := [listed.name for listed in lists if listed.name not in SUBSYSTEMS]:
        sys.exit(f"{folder}: no subsystem {', '.join(unknown)} in {__file__}")
    lists.sort(key=lambda listed: list(SUBSYSTEMS).index(listed.name))
    wrong = list(complaints(lists))
    if wrong:
        sys.exit("\n".join(wrong))
    families = {}
    for listed in lists:
        for entry in listed.entries:
            families.setdefault(entry.family, []).append((listed, entry))
    print(f"{sum(len(listed.entries) for listed in lists)} functions of {len(families)} families, all documented")
    if is_check:
        return
    out = [rules_and_version(folder, lists)]
    for listed in lists:
        out.append(f"/** @defgroup {listed.name} {SUBSYSTEMS[listed.name]}\n{rendered(listed.own_rules())} */")
    out += [page(family, members) for family, members in sorted(families.items())]
    pathlib.Path(arguments[1]).write_text("\n".join(out))


if __name__ == "__main__":
    main(sys.argv[1:])
