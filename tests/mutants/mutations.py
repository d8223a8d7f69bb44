"""Finds the places of a source that can be changed into small bugs, and the changes."""

import dataclasses
import re

SOURCES = ("*.cpp", "*.h")

# Patterns of code, and the code that may replace them.
REPLACEMENTS = [
    (r"(?<= )==(?= )", ["!="]),
    (r"(?<= )!=(?= )", ["=="]),
    (r"(?<= )<(?= )", ["<=", ">="]),
    (r"(?<= )<=(?= )", ["<", ">"]),
    (r"(?<= )>(?= )", [">=", "<="]),
    (r"(?<= )>=(?= )", [">", "<"]),
    (r"(?<= )&&(?= )", ["||"]),
    (r"(?<= )\|\|(?= )", ["&&"]),
    (r"(?<= )\+(?= )", ["-"]),
    (r"(?<= )-(?= )", ["+"]),
    (r"\btrue\b", ["false"]),
    (r"\bfalse\b", ["true"]),
    (r"(?<=\()!(?=[\w(])", [""]),
    (r"(?<=\bif \()(?=[\w*.:]+(?:\([^()]*\))?\))", ["!"]),
]
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d+)(?![\w.'])")
# A statement in one line that is a call, an assignment or a jump, but not a declaration.
STATEMENT = re.compile(r"^\s*(?:if \(.*\) |else |for \(.*\) |while \(.*\) )?"
                       r"((?:\+\+|--|\*)?[\w:.\[\]]+(?:->\w+|\(\*?\w*\)\.\w+)*"
                       r"(?:<[\w:]+>)?(?:\(.*\)|\+\+|--|\s[-+|&^]?=\s.*)?;)\s*$")
KEPT = re.compile(r"^\s*(#|static_assert|using |namespace|template|\[\[|extern|friend)")


@dataclasses.dataclass(frozen=True)
class Mutation:
    path: str
    line: int  # from 1
    begin: int  # in the line
    end: int
    instead: str
    before: str

    @property
    def after(self):
        return self.before[:self.begin] + self.instead + self.before[self.end:]

    def applied_to(self, text):
        lines = text.split("\n")
        lines[self.line - 1] = self.after
        return "\n".join(lines)

    def __str__(self):
        return f"{self.path}:{self.line}\n- {self.before.strip()}\n+ {self.after.strip()}"


def blank(match):
    return " " * len(match.group())


def without_texts(line):
    """Returns the line with blanks in place of its text literals and comments."""
    line = re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])+\'', lambda m: '"' + " " * (len(m.group()) - 2) + '"', line)
    return re.sub(r"//.*", blank, line)


def in_line(path, number, line):
    code = without_texts(line)
    if KEPT.match(code):
        return
    for pattern, others in REPLACEMENTS:
        for match in re.finditer(pattern, code):
            for other in others:
                yield Mutation(path, number, match.start(), match.end(), other, line)
    for match in NUMBER.finditer(code):
        value = int(match.group(), 0)
        for other in {value + 1, max(value - 1, 0)} - {value}:
            yield Mutation(path, number, match.start(), match.end(), str(other), line)
    statement = STATEMENT.match(code)
    if statement and not statement.group(1).startswith(("return ", "public", "default")):
        yield Mutation(path, number, statement.start(1), statement.end(1), ";", line)


def random_mutations(tree, folders, generator):
    """Returns one mutation for each line in the folders that can have one, in random order."""
    files = set()
    for folder in folders:
        place = tree / folder
        files.update([place] if place.is_file() else [file for kind in SOURCES for file in place.rglob(kind)])
    of_lines = [list(in_line(str(file.relative_to(tree)), number, line))
                for file in sorted(files)
                for number, line in enumerate(file.read_text().split("\n"), 1)]
    mutations = [generator.choice(of_line) for of_line in of_lines if of_line]
    generator.shuffle(mutations)
    return mutations
