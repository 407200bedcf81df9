# SPDX-License-Identifier: MIT
"""Changes of statements: one that is left out, a guard without its object, two that
change places."""

from tokens import CONTROLS, closing

NO_STATEMENT = CONTROLS | {
    "auto", "bool", "case", "char", "class", "const", "constexpr", "default", "do", "double",
    "else", "enum", "float", "friend", "int", "long", "namespace", "public", "private",
    "protected", "return", "short", "signed", "static", "static_cast", "struct", "template",
    "try", "typedef", "unsigned", "using", "void",
}
ACTING = {"Q_EMIT", "delete", "new"}  # with a word behind, and no declaration


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
    if tokens[i].text in ACTING:
        return False
    while tokens[i].kind == "word" and tokens[i + 1].text == "::":
        i += 2
    return tokens[i + 1].kind == "word" or tokens[i + 1].text in ("<", "&", "*")


def end_of(tokens, start):
    """Index of the semicolon that ends the statement at start, None when a block
    does."""
    end = start
    while tokens[end].text not in (";", "}", ":") and end < len(tokens) - 1:
        end = closing(tokens, end) if tokens[end].text in ("(", "[", "{") else end
        end += 1
    return end if tokens[end].text == ";" else None


def removable(tokens):
    """Start, end and whether a condition holds nothing else, of each statement that
    declares nothing."""
    seen = set()
    for start, is_only in statement_starts(tokens):
        first = tokens[start]
        acts = first.kind == "word" and first.text not in NO_STATEMENT and \
            not is_declaration(tokens, start) or first.text in ("++", "--")
        end = end_of(tokens, start)
        if start not in seen and end and (acts or is_only and first.text == "return"):
            seen.add(start)
            yield start, end, is_only


def left_out(_source, tokens):
    for start, end, _ in removable(tokens):
        yield tokens[start].start, tokens[end].end, ";", "statement"


def exchanged(source, tokens):
    found = list(removable(tokens))
    for (start, end, held), (next_start, next_end, _) in zip(found, found[1:]):
        first, second = (tokens[start].start, tokens[end].end), \
            (tokens[next_start].start, tokens[next_end].end)
        texts = source[slice(*first)], source[slice(*second)]
        if next_start == end + 1 and not held and texts[0] != texts[1]:
            yield first[0], second[1], texts[1] + source[first[1]:second[0]] + texts[0], "order"


def is_named_again(tokens, i):
    """Whether the name at i stands once more before its block ends."""
    depth = 0
    for token in tokens[i + 1:]:
        depth += (token.text == "{") - (token.text == "}")
        if depth < 0 or token.text == tokens[i].text:
            return depth >= 0
    return False


def guards(_source, tokens):
    """Objects that nobody names again: they act by being there."""
    for start, _ in statement_starts(tokens):
        i = start + (tokens[start].text == "const")
        while i + 2 < len(tokens) and tokens[i].kind == "word" and tokens[i + 1].text == "::":
            i += 2
        if i + 2 >= len(tokens) or tokens[i].kind != "word" or \
                tokens[i].text in ACTING | NO_STATEMENT - {"auto"}:
            continue
        name, after, end = tokens[i + 1], tokens[i + 2].text, end_of(tokens, start)
        if end and name.kind == "word" and after in (";", "(", "{", "=") and \
                not is_named_again(tokens, i + 1):
            yield tokens[start].start, tokens[end].end, ";", "guard"


def changes(source, tokens):
    for kind in (left_out, exchanged, guards):
        yield from kind(source, tokens)
