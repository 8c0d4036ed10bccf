"""The places of a source where a mutant can stand, found in clang's syntax tree.

`places(source, arguments, texts)` gives the Places of a source and of those headers in `texts` that it
includes. `written(text, places)` is the text with the mutants of the places beside what they replace.
"""
import dataclasses
import re

import clang.cindex
from clang.cindex import CursorKind, TypeKind

ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*"}
COMPARISON = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
    "==": ("!=",), "!=": ("==",),
}
LOGIC = {"&&": "||", "||": "&&", "&": "|", "|": "&"}
ASSIGNMENT = {"+=": "-=", "-=": "+=", "*=": "/=", "/=": "*="}
LEFT_ALONE = {
    CursorKind.STATIC_ASSERT, CursorKind.ENUM_DECL, CursorKind.FIELD_DECL,
    CursorKind.TYPE_ALIAS_DECL, CursorKind.TYPE_ALIAS_TEMPLATE_DECL, CursorKind.TYPEDEF_DECL,
}
FLOATING = {TypeKind.DOUBLE: "", TypeKind.FLOAT: "F"}
FUNCTIONS = {
    CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.FUNCTION_TEMPLATE,
    CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR, CursorKind.CONVERSION_FUNCTION,
}


@dataclasses.dataclass
class Place:
    """One mutant: `old`, from byte `start` to `end`, becomes `new`."""
    file: str
    start: int
    end: int
    line: int
    function: str
    old: str
    new: str
    kind: str  # operator, bound or constant
    at_run_time: bool  # in a constexpr function
    change: str = ""  # what a reader is shown
    key: str = ""  # the same as long as the function stays, wherever it stands
    number: int = 0


def shown(change):
    return re.sub(r"\s+", " ", change).strip()


class _Finder:
    def __init__(self, texts):
        self.texts = texts
        self.found = []

    def text(self, cursor):
        extent = cursor.extent
        if extent.start.file is None or extent.start.file.name != self.file:
            return None
        return self.bytes[extent.start.offset:extent.end.offset].decode()

    def add(self, cursor, new, kind, change=None):
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        old = self.bytes[start:end].decode()
        self.found.append(Place(
            self.file, start, end, cursor.extent.start.line, self.function, old, new, kind,
            self.constexpr, shown(change or f"{old} -> {new}")))

    def binary(self, cursor, table_kind):
        sides = list(cursor.get_children())
        if len(sides) != 2:
            return
        if any(side.type.get_canonical().kind in (TypeKind.POINTER, TypeKind.MEMBERPOINTER)
               for side in sides):
            return
        start = cursor.extent.start.offset
        left_end, right_start = sides[0].extent.end.offset, sides[1].extent.start.offset
        operator = self.bytes[left_end:right_start].decode()
        sign = operator.strip()
        left = self.bytes[start:left_end].decode()
        right = self.bytes[right_start:cursor.extent.end.offset].decode()
        if sides[0].extent.start.offset != start:
            return
        if table_kind == CursorKind.COMPOUND_ASSIGNMENT_OPERATOR:
            others = [(ASSIGNMENT[sign], "operator")] if sign in ASSIGNMENT else []
        elif sign in COMPARISON:
            kinds = ["bound", "operator"] if len(COMPARISON[sign]) == 2 else ["operator"]
            others = list(zip(COMPARISON[sign], kinds))
        elif sign in ARITHMETIC or sign in LOGIC:
            others = [((ARITHMETIC | LOGIC)[sign], "operator")]
        else:
            others = []
        for other, kind in others:
            # The other operator may bind less than its neighbours inside.
            self.add(cursor, f"({left}) {other} ({right})", kind,
                     f"{left} {sign} {right} -> {other}")

    def unary(self, cursor):
        text = self.text(cursor)
        if not text:
            return
        for sign, other in (("++", "--"), ("--", "++"), ("!", "!!"), ("-", "+")):
            if text.startswith(sign) and not (sign == "-" and re.match(r"-\s*[\d.]+F?$", text)):
                self.add(cursor, f"{other}({text[len(sign):]})", "operator", f"{text} -> {other}")
                return
            if sign in ("++", "--") and text.endswith(sign):
                self.add(cursor, f"({text[:-2]}){other}", "operator", f"{text} -> {other}")
                return

    def literal(self, cursor, parent):
        text = self.text(cursor)
        if not text:
            return
        if cursor.kind == CursorKind.CXX_BOOL_LITERAL_EXPR:
            self.add(cursor, {"true": "false", "false": "true"}[text], "constant")
        elif re.fullmatch(r"\d+", text):
            # As the number it becomes: a whole one in braces is no double unless it is a constant.
            suffix = ""
            if parent is not None and parent.kind == CursorKind.UNEXPOSED_EXPR \
                    and parent.extent == cursor.extent:
                kind = parent.type.get_canonical().kind
                suffix = "." + FLOATING[kind] if kind in FLOATING else ""
            self.add(cursor, f"{int(text) + 1}{suffix}", "constant",
                     f"{text} -> {int(text) + 1}")
            self.found[-1].old = text + suffix
        elif re.fullmatch(r"[\d.]+(e[+-]?\d+)?F?", text):
            new = f"1.1F * {text}" if text.endswith("F") else f"1.1 * {text}"
            self.add(cursor, new if float(text.rstrip("F")) else "1.0", "constant")

    def named_constant(self, cursor):
        named = cursor.referenced
        if named is None or named.kind != CursorKind.VAR_DECL:
            return
        kind = cursor.type.get_canonical().kind
        if "constexpr" not in [token.spelling for token in named.get_tokens()][:4]:
            return
        text = self.text(cursor)
        if not text:
            return
        if kind in FLOATING:
            self.add(cursor, f"1.1{FLOATING[kind]} * {text}", "constant")
        elif kind == TypeKind.INT:
            self.add(cursor, f"{text} + 1", "constant")

    def walk(self, cursor, parent=None):
        kind = cursor.kind
        if kind in LEFT_ALONE:
            return
        if kind == CursorKind.VAR_DECL and (parent is None or "constexpr" in [
                token.spelling for token in cursor.get_tokens()][:4]):
            return
        children = list(cursor.get_children())
        if kind == CursorKind.CASE_STMT:
            children = children[1:]
        if kind == CursorKind.IF_STMT and re.match(r"if\s+constexpr", self.text(cursor) or ""):
            children = children[1:]
        outer = self.function, self.constexpr
        if kind in FUNCTIONS:
            self.function = cursor.spelling
            self.constexpr = "constexpr" in (self.text(cursor) or "").split("{")[0]
        if kind in (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR):
            self.binary(cursor, kind)
        elif kind == CursorKind.UNARY_OPERATOR:
            self.unary(cursor)
        elif kind in (CursorKind.INTEGER_LITERAL, CursorKind.FLOATING_LITERAL,
                      CursorKind.CXX_BOOL_LITERAL_EXPR):
            self.literal(cursor, parent)
        elif kind == CursorKind.DECL_REF_EXPR:
            self.named_constant(cursor)
        for child in children:
            self.walk(child, cursor)
        self.function, self.constexpr = outer

    def top(self, cursor):
        for child in cursor.get_children():
            file = child.location.file
            if file is None or file.name not in self.texts:
                continue
            self.file, self.bytes = file.name, self.texts[file.name]
            self.function, self.constexpr = "", False
            if child.kind in (CursorKind.NAMESPACE, CursorKind.LINKAGE_SPEC):
                self.top(child)
            else:
                self.walk(child)


def parse(source, arguments, texts):
    """The syntax tree of a source; `texts` (name: bytes) stand for the files of these names."""
    unsaved = [(name, text.decode()) for name, text in texts.items()]
    return clang.cindex.Index.create().parse(source, args=arguments, unsaved_files=unsaved)


def places(source, arguments, texts):
    """Every place of the source and of the headers in `texts`: name of a file, its bytes."""
    finder = _Finder(texts)
    finder.top(parse(source, arguments, texts).cursor)
    return finder.found


def name_keys(found):
    """Gives each place its key: file, function, kind of change, and its number among its likes."""
    seen = {}
    for place in sorted(found, key=lambda place: (place.file, place.start, -place.end, place.new)):
        stem = f"{place.file}: {place.function}: {place.change}"
        seen[stem] = seen.get(stem, 0) + 1
        place.key = stem if seen[stem] == 1 else f"{stem} ({seen[stem]})"


def written(text, chosen):
    """The text with the chosen places as schemata, and where each of them stands in it."""
    stands = {}

    def render(start, end, inside, at):
        """The text from start to end with the places inside it; `at` is where it will begin."""
        out = b""
        position = start
        while inside:
            first = inside[0]
            same = [p for p in inside if (p.start, p.end) == (first.start, first.end)]
            within = [p for p in inside if first.start <= p.start and p.end <= first.end
                      and p not in same]
            inside = [p for p in inside if p.start >= first.end]
            out += text[position:first.start]
            begun = at + len(out)
            out += b"("
            for place in same:
                asks = "mutatedAtRunTime" if place.at_run_time else "mutated"
                out += f"::ferna::mutation::{asks}({place.number}) ? ({place.new}) : ".encode()
            out += b"("
            if within:
                out += render(first.start, first.end, within, at + len(out))
            else:
                out += first.old.encode()
            out += b"))"
            for place in same:
                stands[place.number] = (begun, at + len(out))
            position = first.end
        return out + text[position:end]

    ordered = sorted(chosen, key=lambda place: (place.start, -place.end, place.number))
    include = b'#include "../mutated.h"\n'
    head = text.find(b"#pragma once\n")
    prefix = include if head < 0 else b"#pragma once\n#pragma GCC system_header\n" + include
    body = head + len(b"#pragma once\n") if head >= 0 else 0
    return prefix + render(body, len(text), ordered, len(prefix)), stands
