# SPDX-License-Identifier: MIT
"""C++ as a row of tokens, as far as changing a program needs it."""

import re

CONTROLS = {"if", "for", "while", "switch", "catch"}
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


def arguments_of(source, tokens, opening):
    """Start and end of each argument between the bracket at opening and its own."""
    end = closing(tokens, opening)
    found, depth, start = [], 0, opening + 1
    for i in range(opening + 1, end + 1):
        text = tokens[i].text
        if depth == 0 and (text == "," or i == end):
            if i > start:
                found.append((tokens[start].start, tokens[i - 1].end))
            start = i + 1
        opens_template = text == "<" and not source[tokens[i].end].isspace()
        closes_template = text == ">" and not source[tokens[i].start - 1].isspace()
        depth += (text in ("(", "[", "{")) + opens_template
        depth -= (text in (")", "]", "}")) + closes_template
    return found
