# SPDX-License-Identifier: MIT
"""All single changes of a source file: an operator, a constant, a pair of
arguments, a statement."""

import re

from tokens import closing, tokens_of

BINARY = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+=",
}
STEP = {"++": "--", "--": "++"}
TRUTH = {"true": "false", "false": "true"}
CONTROLS = {"if", "for", "while", "switch", "catch"}
NO_CALL = CONTROLS | {"sizeof", "return", "decltype", "alignas", "noexcept", "static_assert", "connect"}
NO_STATEMENT = CONTROLS | {
    "auto", "bool", "case", "char", "class", "const", "constexpr", "default", "do", "double",
    "else", "enum", "float", "friend", "int", "long", "namespace", "public", "private",
    "protected", "return", "short", "signed", "static", "static_cast", "struct", "template",
    "try", "typedef", "unsigned", "using", "void",
}
DECLARED = re.compile(r"^(?:const\s+)?[\w:]+(?:<.*>)?\s*[&*]*\s+[&*]*\w+(?:\s*=.*)?$", re.S)


class Mutant:
    def __init__(self, path, source, start, end, text, kind):
        self.path, self.start, self.end, self.text, self.kind = path, start, end, text, kind
        self.line = source.count("\n", 0, start) + 1
        first = source.rfind("\n", 0, start) + 1
        last = source.find("\n", end)
        self.before = " ".join(source[first:last].split())
        self.after = " ".join((source[first:start] + text + source[end:last]).split())

    def applied_to(self, source):
        return source[:self.start] + self.text + source[self.end:]


def is_spaced(source, token):
    """A binary operator as the formatter writes it, unlike < of a template or * of
    a pointer."""
    return source[token.start - 1].isspace() and source[token.end].isspace()


def operators(source, tokens):
    for token in tokens:
        if token.kind != "mark":
            continue
        if token.text in BINARY and is_spaced(source, token):
            yield token.start, token.end, BINARY[token.text], "operator"
        elif token.text in STEP:
            yield token.start, token.end, STEP[token.text], "operator"
        elif token.text == "!":
            yield token.start, token.end, "", "operator"


def numbers_beside(text):
    digits = text.replace("'", "")
    if re.fullmatch(r"\d+", digits):
        return [str(int(digits) + by) for by in (1, -1)]
    if re.fullmatch(r"0[xX][0-9a-fA-F]+", digits):
        return [hex(int(digits, 16) + 1)]
    match = re.fullmatch(r"(\d*\.\d*)([fF]?)", digits)
    return [f"{float(match[1]) * 1.25 + 0.125}{match[2]}"] if match else []


def constants(_source, tokens):
    for before, token, after in zip(tokens, tokens[1:], tokens[2:]):
        is_extent = after.text == ">" and before.text in ("<", ",")
        if token.kind == "number" and not is_extent:
            for text in numbers_beside(token.text):
                yield token.start, token.end, text, "constant"
        elif token.text in TRUTH:
            yield token.start, token.end, TRUTH[token.text], "constant"


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


def could_change_places(left, right):
    """Not equal, no parameters of a declaration, and no text beside anything else."""
    declared = DECLARED.match(left) or DECLARED.match(right)
    return left != right and not declared and ('"' in left) == ('"' in right)


def pairs(source, tokens):
    for i in range(1, len(tokens)):
        head = tokens[i - 1]
        if tokens[i].text != "(" or head.kind != "word" or head.text in NO_CALL:
            continue
        found = arguments_of(source, tokens, i)
        for (a, b), (c, d) in zip(found, found[1:]):
            left, right = source[a:b], source[c:d]
            if could_change_places(left, right):
                yield a, d, right + source[b:c] + left, "arguments"


def is_body(tokens, i):
    """Whether the brace at i opens a block of statements."""
    before = tokens[i - 1].text if i else ";"
    return before in (")", "else", "do", "try", "const", "override", "noexcept", ";", "{", "}", ":")


def is_label(tokens, i):
    """Whether the colon at i ends a label, unlike one of a condition."""
    while i and tokens[i - 1].text not in (";", "{", "}", ":"):
        i -= 1
    return tokens[i].text in ("case", "default")


def statement_starts(tokens):
    """Indices at which a statement begins, and whether it is all that a condition
    holds."""
    blocks = [False]
    for i, token in enumerate(tokens[:-1]):
        if token.text in ("(", "[", "{"):
            blocks.append(token.text == "{" and is_body(tokens, i))
        elif token.text in (")", "]", "}"):
            blocks.pop()
        if not blocks[-1]:
            continue
        if token.text in ("{", ";", "}") or (token.text == ":" and is_label(tokens, i)):
            yield i + 1, False
        elif token.text == "else":
            yield i + 1, True
        elif token.text in CONTROLS and tokens[i + 1].text == "(":
            yield closing(tokens, i + 1) + 1, True


def is_declaration(tokens, i):
    """A type and a name: two words in a row, or a word after a template or a
    reference."""
    while tokens[i].kind == "word" and tokens[i + 1].text == "::":
        i += 2
    return tokens[i + 1].kind == "word" or tokens[i + 1].text in ("<", "&", "*")


def statements(_source, tokens):
    seen = set()
    for start, is_only in statement_starts(tokens):
        first = tokens[start]
        removable = first.kind == "word" and first.text not in NO_STATEMENT or \
            first.text in ("++", "--") or (is_only and first.text == "return")
        if start in seen or not removable or (first.text != "return" and
                                              is_declaration(tokens, start)):
            continue
        seen.add(start)
        end = start
        while tokens[end].text not in (";", "}", ":") and end < len(tokens) - 1:
            end = closing(tokens, end) if tokens[end].text in ("(", "[", "{") else end
            end += 1
        if tokens[end].text == ";":
            yield first.start, tokens[end].end, ";", "statement"


def mutants_of(path, source):
    tokens = tokens_of(source)
    for changes in (operators, constants, pairs, statements):
        for start, end, text, kind in changes(source, tokens):
            yield Mutant(path, source, start, end, text, kind)
