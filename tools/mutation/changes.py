"""The places of a source file where the program can be changed, as libclang sees them."""

import dataclasses
import re

from clang.cindex import CursorKind as Kind
from clang.cindex import Index, TranslationUnit

OTHER_OPERATOR = {
    "+": "-",
    "-": "+",
    "*": "/",
    "/": "*",
    "%": "*",
    "<": "<=",
    "<=": "<",
    ">": ">=",
    ">=": ">",
    "==": "!=",
    "!=": "==",
    "&&": "||",
    "||": "&&",
    "&": "|",
    "|": "&",
    "+=": "-=",
    "-=": "+=",
    "*=": "/=",
    "/=": "*=",
}
COMPARISONS = {"<", "<=", ">", ">=", "==", "!="}
# A change that a table of floats shows and a tolerance of a percent would hide.
SCALED = 1.001


@dataclasses.dataclass(frozen=True, order=True)
class Change:
    """Of the file `path`, the characters from `start` to before `end`, in bytes."""

    path: str
    start: int
    end: int
    line: int
    kind: str
    before: str
    after: str

    def __str__(self):
        before, after = (re.sub(r"\s+", " ", text) for text in (self.before, self.after))
        return f"{self.path}:{self.line}: {self.kind}: {before} -> {after or 'nothing'}"


def unwrapped(cursor):
    """What stands inside of conversions and temporaries that the source does not show."""
    while cursor.kind == Kind.UNEXPOSED_EXPR and len(children := list(cursor.get_children())) == 1:
        cursor = children[0]
    return cursor


class Places:
    """Collects the changes of one file's part of a translation unit."""

    def __init__(self, path, text):
        self.path = path
        self.text = text
        self.changes = set()

    def visit(self, cursor):
        for child in cursor.get_children():
            self.visit(child)
        self.operators(cursor)
        self.constants(cursor)
        self.conditions(cursor)
        self.statements(cursor)
        self.exchanges(cursor)

    def source(self, start, end):
        return self.text[start:end].decode()

    def add(self, kind, start, end, after):
        before = self.source(start, end)
        if before != after:
            line = self.text.count(b"\n", 0, start) + 1
            self.changes.add(Change(self.path, start, end, line, kind, before, after))

    def operators(self, cursor):
        operands = []
        if cursor.kind in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR):
            operands = list(cursor.get_children())
        elif cursor.kind == Kind.CALL_EXPR and cursor.spelling.startswith("operator"):
            operands = list(cursor.get_arguments())
        if len(operands) == 2:
            self.binary(operands[0].extent.end.offset, operands[1].extent.start.offset)
        if cursor.kind == Kind.UNARY_OPERATOR:
            start, end = cursor.extent.start.offset, cursor.extent.end.offset
            for operator, after in (("++", "--"), ("--", "++"), ("-", ""), ("!", "")):
                if self.source(start, end).startswith(operator):
                    self.add("operator", start, start + len(operator), after)
                    break

    def binary(self, start, end):
        between = self.source(start, end) if start < end else ""
        operator = between.strip()
        if operator in OTHER_OPERATOR:
            start += between.index(operator)
            kind = "comparison" if operator in COMPARISONS else "operator"
            self.add(kind, start, start + len(operator), OTHER_OPERATOR[operator])

    def constants(self, cursor):
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        written = self.source(start, end)
        after = None
        if cursor.kind == Kind.INTEGER_LITERAL and re.fullmatch(r"\d+", written):
            after = str(int(written) + 1)
        elif cursor.kind == Kind.FLOATING_LITERAL:
            number = re.fullmatch(r"([\d.]+(?:[eE][-+]?\d+)?)([fF]?)", written)
            after = number and f"{float(number[1]) * SCALED or SCALED - 1:#.9g}{number[2]}"
        elif cursor.kind == Kind.CXX_BOOL_LITERAL_EXPR:
            after = {"true": "false", "false": "true"}.get(written)
        elif cursor.kind == Kind.STRING_LITERAL and re.fullmatch(r'"[^"]*"', written):
            after = written[:-1] + 'x"'
        if after:
            self.add("constant", start, end, after)

    def conditions(self, cursor):
        if cursor.kind in (Kind.IF_STMT, Kind.WHILE_STMT, Kind.CONDITIONAL_OPERATOR):
            condition = next(cursor.get_children())
            if condition.kind.is_expression():
                start, end = condition.extent.start.offset, condition.extent.end.offset
                self.add("condition", start, end, f"!({self.source(start, end)})")

    def statements(self, cursor):
        """Calls and assignments that stand alone, and returns that something follows."""
        children = list(cursor.get_children())
        if cursor.kind == Kind.COMPOUND_STMT:
            statements = children
        elif cursor.kind == Kind.IF_STMT:
            statements = children[1:]
        elif cursor.kind in (Kind.FOR_STMT, Kind.WHILE_STMT, Kind.CXX_FOR_RANGE_STMT):
            statements = children[-1:]
        else:
            return
        for statement in statements:
            self.dropped(statement)
            if cursor.kind == Kind.IF_STMT and statement.kind == Kind.COMPOUND_STMT:
                self.early_return(list(statement.get_children()))
        if cursor.kind == Kind.IF_STMT:
            self.early_return(statements)

    def dropped(self, statement):
        start, end = statement.extent.start.offset, statement.extent.end.offset
        # What does not end with a semicolon of its own is a block.
        if not re.match(rb"\s*;", self.text[end:]):
            return
        inner = unwrapped(statement)
        if inner.kind == Kind.CALL_EXPR:
            self.add("dropped call", start, end, "")
        elif inner.kind in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR):
            self.add("dropped assignment", start, end, "")

    def early_return(self, statements):
        if statements and statements[-1].kind == Kind.RETURN_STMT:
            extent = statements[-1].extent
            self.add("dropped return", extent.start.offset, extent.end.offset, "")

    def exchanges(self, cursor):
        if cursor.kind == Kind.CALL_EXPR and not cursor.spelling.startswith("operator"):
            values = list(cursor.get_arguments())
        elif cursor.kind == Kind.INIT_LIST_EXPR:
            values = list(cursor.get_children())
        else:
            return
        for first, second in zip(values, values[1:]):
            start, between = first.extent.start.offset, first.extent.end.offset
            follows, end = second.extent.start.offset, second.extent.end.offset
            if start < between <= follows < end and self.plain_type(first) == self.plain_type(
                second
            ):
                comma = self.source(between, follows)
                exchanged = self.source(follows, end) + comma + self.source(start, between)
                if comma.strip() == ",":
                    self.add("exchanged", start, end, exchanged)

    @staticmethod
    def plain_type(cursor):
        return unwrapped(cursor).type.get_canonical().spelling.replace("const ", "").rstrip(" &")


def changes_of(tree, commands, layers):
    """Every change of the sources and headers in the folders `layers` of the tree.

    `commands` are the compile commands: pairs of a source's path and its arguments. A header is read
    through the first source that includes it.
    """
    index = Index.create()
    read = set()
    changes = set()
    for source, arguments in commands:
        unit = index.parse(str(source), args=arguments, options=TranslationUnit.PARSE_INCOMPLETE)
        found = {}
        for cursor in unit.cursor.get_children():
            file = cursor.location.file
            if file is None or file.name in read:
                continue
            if file.name not in found:
                found[file.name] = places_in(tree, file.name, layers)
            if found[file.name]:
                found[file.name].visit(cursor)
        read.update(found)
        changes.update(change for places in found.values() if places for change in places.changes)
    return sorted(changes)


def places_in(tree, name, layers):
    path = (tree / name).resolve()
    if not path.is_relative_to(tree) or path.relative_to(tree).parts[0] not in layers:
        return None
    return Places(str(path.relative_to(tree)), path.read_bytes())
