# SPDX-License-Identifier: MIT
"""C++ as a row of tokens, as far as changing a program needs it."""

import re

PATTERN = re.compile(
    r"""
    (?P<directive>^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*)
  | (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<text>u?R"\((?:.|\n)*?\)"|(?:u8|[uUL])?"(?:\\.|[^"\\\n])*"|(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
  | (?P<number>(?:0[xX][0-9a-fA-F']+|(?:\d[\d']*)?\.?\d[\d']*(?:[eE][+-]?\d+)?)[a-zA-Z]*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<mark><=>|<<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
  | (?P<space>\s+)
    """,
    re.M | re.S | re.X)


class Token:
    def __init__(self, kind, text, start):
        self.kind, self.text, self.start = kind, text, start
        self.end = start + len(text)


def tokens_of(source):
    """The tokens that the compiler acts on: no comments, directives and spaces."""
    found = []
    for match in PATTERN.finditer(source):
        if match.lastgroup not in ("directive", "comment", "space") and not match[0].isspace():
            found.append(Token(match.lastgroup, match[0], match.start()))
    return found


def closing(tokens, opening):
    """Index of the bracket that closes the one at index opening."""
    depth = 0
    for i in range(opening, len(tokens)):
        if tokens[i].text in ("(", "[", "{"):
            depth += 1
        elif tokens[i].text in (")", "]", "}"):
            depth -= 1
            if depth == 0:
                return i
    return len(tokens) - 1
