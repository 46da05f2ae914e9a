"""Mutants of C++ files, found with libclang."""

import os
import re
import shlex

import clang.cindex
from clang.cindex import CursorKind, StorageClass, TokenKind, TranslationUnit, TypeKind

from .mutant import Listing, other_numbers, other_operators

FUNCTIONS = (CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
             CursorKind.FUNCTION_TEMPLATE, CursorKind.CONVERSION_FUNCTION, CursorKind.LAMBDA_EXPR)
SCOPES = (CursorKind.NAMESPACE, CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL, CursorKind.CLASS_TEMPLATE,
          CursorKind.LINKAGE_SPEC, CursorKind.UNEXPOSED_DECL)
EXPRESSIONS = (CursorKind.CALL_EXPR, CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR,
               CursorKind.UNARY_OPERATOR, CursorKind.CXX_DELETE_EXPR, CursorKind.UNEXPOSED_EXPR,
               CursorKind.CXX_STATIC_CAST_EXPR, CursorKind.CSTYLE_CAST_EXPR)
JUMPS = (CursorKind.BREAK_STMT, CursorKind.CONTINUE_STMT)
BLOCKS = (CursorKind.IF_STMT, CursorKind.FOR_STMT, CursorKind.CXX_FOR_RANGE_STMT, CursorKind.WHILE_STMT,
          CursorKind.SWITCH_STMT)


def arguments_of(command):
    """The arguments of a compile command that matter to the parser, and the header that was compiled in advance."""
    words = shlex.split(command)[1:]
    kept, header, skip = [], None, 0
    for word, following in zip(words, [*words[1:], ""]):
        if skip:
            skip -= 1
        elif word in ("-o", "-include"):
            skip = 1
            header = following if word == "-include" else header
        elif word not in ("-c", "-Winvalid-pch") and not word.endswith(".cpp"):
            kept.append(word)
    return [*kept, "-w"], header


def precompile(command, folder):
    """Parses the header of a compile command in advance: most files spend their time there."""
    arguments, header = arguments_of(command)
    if header:
        os.chdir(folder)
        unit = clang.cindex.Index.create().parse(header, args=["-x", "c++-header", *arguments],
                                                 options=TranslationUnit.PARSE_INCOMPLETE)
        unit.save(f"{header}.clang")


class CppListing(Listing):
    def __init__(self, file, path):
        super().__init__(file, path.read_bytes())
        self.path = str(path)

    def span(self, cursor):
        """Offsets of a cursor, or null if it comes from another file."""
        start, end = cursor.extent.start, cursor.extent.end
        if not start.file or start.file.name != self.path or end.file.name != self.path or end.offset <= start.offset:
            return None
        return start.offset, end.offset

    def source(self, span):
        return self.text[span[0]:span[1]].decode()

    # Literals, by tokens: macros hide them from the syntax tree.

    def literals(self, unit):
        skipped = [match.span() for match in
                   re.finditer(rb"^[ \t]*#(?:.*\\\n)*.*$|static_assert\((?:[^;]*)\);|//.*$|= 0;$", self.text, re.MULTILINE)]
        whole = unit.get_extent(self.path, (0, len(self.text)))
        for token in unit.get_tokens(extent=whole):
            span = self.span(token)
            if not span or any(start <= span[0] < end for start, end in skipped):
                continue
            text = token.spelling
            if text in ("true", "false"):
                self.add(*span, "false" if text == "true" else "true", "constant")
            elif token.kind == TokenKind.LITERAL and text.endswith("'"):
                self.add(*span, re.sub(r"'.*'", "'x'", text), "text")
            elif token.kind == TokenKind.LITERAL and '"' in text:
                end = text.rindex('"')
                self.add(*span, text[:end] + "x" + text[end:], "text")
                if text.index('"') + 1 < end and not text.startswith("R"):
                    self.add(*span, text[:text.index('"') + 1] + text[end:], "text")
            elif token.kind == TokenKind.LITERAL:
                for number in other_numbers(text):
                    self.add(*span, number, "constant")

    # Declarations and statements.

    def scope(self, cursor):
        for child in cursor.get_children():
            if self.span(child):
                if child.kind in SCOPES:
                    self.scope(child)
                elif child.kind != CursorKind.STATIC_ASSERT:
                    self.node(child)

    def node(self, cursor):
        kind, span = cursor.kind, self.span(cursor)
        if not span:
            return
        children = list(cursor.get_children())
        if kind in FUNCTIONS:
            self.function(cursor, children)
        elif kind == CursorKind.COMPOUND_STMT:
            self.block(children)
        elif kind in (CursorKind.IF_STMT, CursorKind.WHILE_STMT, CursorKind.FOR_STMT, CursorKind.CXX_FOR_RANGE_STMT):
            self.condition(span, kind)
            for child in children[1:]:
                self.statement(child)
        elif kind == CursorKind.CONDITIONAL_OPERATOR:
            self.negate(self.span(children[0]))
        elif kind == CursorKind.RETURN_STMT:
            self.returned(span, children)
        elif kind in (CursorKind.VAR_DECL, CursorKind.PARM_DECL):
            self.variable(cursor, span, children)
        elif kind in (CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR):
            self.binary(children[0], children[-1])
        elif kind == CursorKind.UNARY_OPERATOR:
            self.unary(span)
        elif kind == CursorKind.CALL_EXPR:
            self.call(cursor, span, children)
        elif kind == CursorKind.INIT_LIST_EXPR:
            self.swap_equals(children)
        elif kind == CursorKind.DECL_REF_EXPR:
            self.enumerator(cursor, span)
        for child in children:
            self.node(child)

    def function(self, cursor, children):
        body = next((child for child in children if child.kind == CursorKind.COMPOUND_STMT), None)
        if not body or not self.span(body) or self.source(self.span(body))[1:].strip() == "}":
            return
        inside = self.span(body)[0] + 1
        is_lambda = cursor.kind == CursorKind.LAMBDA_EXPR
        self.declare(*self.span(cursor), "" if is_lambda else cursor.spelling,
                     (cursor.extent.start.line, body.extent.start.line))
        if self.text[inside - 1:inside] != b"{":
            return
        is_void = is_lambda or cursor.result_type.spelling in ("void", "")
        self.add(inside, inside, " return;" if is_void else " return {};", "early return")
        if is_lambda:
            start = self.span(cursor)[0]
            head = self.text[start:inside].split(b"]")[0]
            for match in re.finditer(rb"&(?=\w|$)", head):
                self.add(start + match.start(), start + match.end(), "" if match.end() < len(head) else "=", "reference")

    def block(self, statements):
        previous = None
        for statement in statements:
            span = self.full_span(statement)
            is_plain = span and statement.kind in EXPRESSIONS + BLOCKS
            if previous and is_plain:
                first, second = (self.source(each) for each in (previous, span))
                between = self.source((previous[1], span[0]))
                self.add(previous[0], span[1], second + between + first, "swapped statements")
            previous = span if is_plain else None
            self.statement(statement)

    def full_span(self, statement):
        """A statement with its semicolon."""
        span = self.span(statement)
        if not span:
            return None
        if statement.kind in EXPRESSIONS or self.text[span[1] - 1:span[1]] != b"}":
            match = re.compile(rb"\s*;").match(self.text, span[1])
            # An empty macro before the statement, such as Q_EMIT, belongs to it.
            macro = re.search(rb"\bQ_EMIT $", self.text[:span[0]])
            return (macro.start() if macro else span[0], match.end()) if match else None
        return span

    def statement(self, statement):
        """A statement that can be left out."""
        if statement.kind in JUMPS:
            self.add(*self.span(statement), "", "deleted statement")
        elif statement.kind in EXPRESSIONS and (span := self.full_span(statement)):
            self.add(span[0], span[1] - 1, "", "deleted statement")

    def returned(self, span, children):
        if not children:
            self.add(*span, "", "deleted statement")
            return
        value = self.span(children[0])
        if not value:
            return
        if children[0].type.get_canonical().kind == TypeKind.BOOL:
            self.negate(value)
        if self.can_change(children[0]):
            self.add(*span, f"static auto remembered = {self.source(value)}; return remembered", "remembered value")

    def can_change(self, expression):
        """Whether an expression may have another value when it is read again."""
        for child in expression.walk_preorder():
            read = child.referenced
            if child.kind == CursorKind.CALL_EXPR and read and read.kind != CursorKind.CONSTRUCTOR:
                return True
            if child.kind in (CursorKind.MEMBER_REF_EXPR, CursorKind.CXX_THIS_EXPR):
                return True
            if child.kind == CursorKind.DECL_REF_EXPR and read and (
                    read.kind == CursorKind.PARM_DECL or read.kind == CursorKind.VAR_DECL
                    and read.semantic_parent.kind in FUNCTIONS and read.storage_class != StorageClass.STATIC):
                return True
        return False

    def variable(self, cursor, span, children):
        is_local = cursor.semantic_parent.kind in FUNCTIONS and cursor.kind == CursorKind.VAR_DECL
        text = self.source(span)
        if not is_local:
            self.declare(*span, cursor.spelling)
        if is_local and cursor.storage_class == StorageClass.STATIC and "static " in text:
            at = span[0] + text.encode().index(b"static ")
            self.add(at, at + 7, "", "static")
        elif is_local and "constexpr" not in text and children and self.can_change(children[-1]):
            if re.search(rb"[;{}]\s*$", self.text[:span[0]]):
                self.add(*span, f"static {text}", "remembered value")
        if cursor.type.kind == TypeKind.LVALUEREFERENCE and (is_local or not cursor.type.get_pointee().is_const_qualified()):
            name = cursor.location.offset
            if self.text[name - 1:name] == b"&":
                self.add(name - 1, name, "", "reference")

    # Conditions and expressions.

    def negate(self, span):
        if span:
            self.add(*span, f"!({self.source(span)})", "condition")

    def condition(self, span, kind):
        if kind == CursorKind.CXX_FOR_RANGE_STMT:
            return
        start = self.text.index(b"(", span[0]) + 1
        depth, end, first = 1, start, start
        while depth:
            character = self.text[end:end + 1]
            depth += character in (b"(", b"{", b"[")
            depth -= character in (b")", b"}", b"]")
            if character == b";" and depth == 1:
                if kind == CursorKind.FOR_STMT and first != start:
                    break
                first = end + 1
            end += 1
        stop = end if kind == CursorKind.FOR_STMT else end - 1
        text = self.text[first:stop].decode()
        declared = re.match(r"\s*(?:const )?[\w:<>]+ ?[*&]* ?(\w+) = ", text)
        if declared:
            self.add(first, stop, f"{text}; !{declared[1]}", "condition")
        elif text.strip():
            self.add(first, stop, f"{' ' * text.startswith(' ')}!({text.strip()})", "condition")

    def binary(self, left, right):
        left, right = self.span(left), self.span(right)
        if not left or not right:
            return
        match = re.fullmatch(rb"\s*(\S+)\s*", self.text[left[1]:right[0]])
        if match:
            for new, name in other_operators(match[1].decode()):
                self.add(left[1] + match.start(1), left[1] + match.end(1), new, name)

    def unary(self, span):
        text = self.source(span)
        if text.startswith(("++", "--")):
            self.add(span[0], span[0] + 2, "--" if text[0] == "+" else "++", "arithmetic")
        elif text.startswith("!"):
            self.add(span[0], span[0] + 1, "", "condition")
        elif text.startswith("-"):
            self.add(span[0], span[0] + 1, "", "arithmetic")

    def call(self, cursor, span, children):
        if cursor.spelling.startswith("operator") and len(children) == 3:
            self.binary(children[0], children[-1])
            return
        arguments = [argument for argument in cursor.get_arguments() if argument]
        self.swap_equals(arguments)
        text = self.source(span)
        if text.startswith(("std::max(", "std::min(")):
            self.add(span[0] + 5, span[0] + 8, "min" if text[5:8] == "max" else "max", "arithmetic")
        # A call of a value that leaves its type as it is.
        result = cursor.type.get_canonical().get_declaration().spelling or cursor.type.get_canonical().spelling
        for argument in arguments:
            given = argument.type.get_canonical()
            if self.span(argument) and self.span(argument) != span and given.kind != TypeKind.VOID \
                    and result.replace("const ", "") == (given.get_declaration().spelling or given.spelling).replace("const ", ""):
                self.add(*span, f"({self.source(self.span(argument))})", "deleted call")

    def swap_equals(self, values):
        """Swaps neighbours of one type."""
        for one, other in zip(values, values[1:]):
            spans = self.span(one), self.span(other)
            types = [re.sub(r"\bconst |&| $", "", value.type.get_canonical().spelling).strip() for value in (one, other)]
            if all(spans) and types[0] == types[1] and spans[0][1] <= spans[1][0]:
                first, second = (self.source(span) for span in spans)
                between = self.source((spans[0][1], spans[1][0]))
                if first != second:
                    # With the name of the function, which tells calls on one line apart.
                    name = re.search(rb"\w*[({]?$", self.text[:spans[0][0]])[0].decode()
                    self.add(spans[0][0] - len(name), spans[1][1], name + second + between + first, "swapped arguments")

    def enumerator(self, cursor, span):
        constant = cursor.referenced
        if not constant or constant.kind != CursorKind.ENUM_CONSTANT_DECL:
            return
        constants = [child for child in constant.semantic_parent.get_children()
                     if child.kind == CursorKind.ENUM_CONSTANT_DECL]
        at = next(index for index, child in enumerate(constants) if child == constant)
        text = self.source(span)
        if not text.endswith(constant.spelling):
            return
        later = [child for child in constants[at + 1:] if child.enum_value != constant.enum_value][:1]
        sooner = [child for child in constants[:at] if child.enum_value != constant.enum_value][-1:]
        for other in later + sooner:
            self.add(*span, text[:-len(constant.spelling)] + other.spelling, "enum value")


def mutants_of_unit(root, path, command, folder):
    """The mutants of a source file and of the headers of Sources that it includes, by file."""
    os.chdir(folder)
    arguments, header = arguments_of(command)
    if header:
        arguments += ["-include-pch", f"{header}.clang"]
    unit = clang.cindex.Index.create(excludeDecls=True).parse(str(path), args=arguments)
    listings = {}
    for cursor in unit.cursor.get_children():
        name = cursor.location.file.name if cursor.location.file else ""
        if not name.startswith(f"{root}/Sources/"):
            continue
        if name not in listings:
            file = name[len(str(root)) + 1:]
            listings[name] = CppListing(file, root / file)
            listings[name].literals(unit)
        listing = listings[name]
        if cursor.kind in SCOPES:
            listing.scope(cursor)
        elif cursor.kind != CursorKind.STATIC_ASSERT:
            listing.node(cursor)
    # Errors of system headers, which this version of Clang may not know, do not matter.
    errors = [str(each) for each in unit.diagnostics if each.severity >= clang.cindex.Diagnostic.Error
              and each.location.file and each.location.file.name.startswith(str(root))]
    if errors:
        raise SystemExit(f"libclang cannot parse {path}: {errors[0]}")
    return {listing.file: listing.all() for listing in listings.values()}
