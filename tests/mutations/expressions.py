# SPDX-License-Identifier: MIT
"""Changes within an expression: an operator, a constant, a pair of arguments, a call
that is left out around its argument."""

import re

from tokens import CONTROLS, arguments_of

BINARY = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+=",
}
STEP = {"++": "--", "--": "++"}
TRUTH = {"true": "false", "false": "true"}
NO_CALL = CONTROLS | {"sizeof", "return", "decltype", "alignas", "noexcept", "static_assert", "connect",
                      "move", "QStringLiteral", "QByteArrayLiteral"}
INSIDE = {"(", ",", "=", "+", "-", "/", "<", "==", "!=", "&&", "||", "?", "<<", "return"}
DECLARED = re.compile(r"^(?:const\s+)?[\w:]+(?:<.*>)?\s*[&*]*\s+[&*]*\w+(?:\s*=.*)?$", re.S)


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


def first_of_call(tokens, i):
    """Index at which the name of what is called at i begins, with all before it."""
    while i >= 2 and tokens[i - 1].text in ("::", ".", "->") and tokens[i - 2].kind == "word":
        i -= 2
    return i


def calls(source, tokens):
    """f(x) inside an expression becomes (x)."""
    for i in range(1, len(tokens) - 1):
        name = tokens[i - 1]
        if tokens[i].text != "(" or name.kind != "word" or name.text in NO_CALL:
            continue
        found, first = arguments_of(source, tokens, i), first_of_call(tokens, i - 1)
        before = tokens[first - 1]
        # Elsewhere a name and a bracket declare something or are a whole statement.
        is_inside = before.text in INSIDE
        if len(found) == 1 and is_inside and not DECLARED.match(source[slice(*found[0])]):
            yield tokens[first].start, tokens[i].start, "", "call"


def changes(source, tokens):
    for kind in (operators, constants, pairs, calls):
        yield from kind(source, tokens)
