# SPDX-License-Identifier: MIT
"""All single changes of a source file."""

import expressions
import names
import statements
from tokens import tokens_of


class Mutant:
    def __init__(self, path, source, start, end, text, kind):
        self.name = ""  # by which it is known when it has moved; of a whole file's changes only
        self.path, self.start, self.end, self.text, self.kind = path, start, end, text, kind
        self.line = source.count("\n", 0, start) + 1
        first = source.rfind("\n", 0, start) + 1
        last = source.find("\n", end)
        self.before = " ".join(source[first:last].split())
        self.after = " ".join((source[first:start] + text + source[end:last]).split())

    def applied_to(self, source):
        return source[:self.start] + self.text + source[self.end:]


def mutants_of(path, source):
    tokens = tokens_of(source)
    for module in (expressions, statements, names):
        for start, end, text, kind in module.changes(source, tokens):
            yield Mutant(path, source, start, end, text, kind)
