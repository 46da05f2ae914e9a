"""Mutants of QML files: a plain grammar of objects, bindings, handlers and functions."""

import re

from .mutant import Listing, other_numbers, other_operators

TOKEN = re.compile(rb"""(?P<space>[ \t]+|//[^\n]*|/\*.*?\*/)|(?P<line>\n)|(?P<string>"(?:\\.|[^"\\])*")
    |(?P<number>\d+(?:\.\d+)?)|(?P<word>[A-Za-z_]\w*(?:\.[A-Za-z_]\w*)*)
    |(?P<mark>===|!==|=>|<=|>=|&&|\|\||\+\+|--|\+=|-=|\?\?|\?\.|.)""", re.DOTALL | re.VERBOSE)

# Enumerators and another one of the same enumeration. Those not listed name a state of the library or a key.
ENUMERATORS = {
    "PlainText": "RichText", "RichText": "PlainText", "Wrap": "NoWrap", "WrapAnywhere": "NoWrap",
    "AlignHCenter": "AlignRight", "AlignLeft": "AlignRight", "AlignVCenter": "AlignBottom",
    "StopAtBounds": "DragAndOvershootBounds", "DragAndOvershootBounds": "StopAtBounds", "ElideRight": "ElideLeft",
    "ElideLeft": "ElideRight", "HorizontalFit": "FixedSize", "StaticText": "Button", "Dialog": "Button",
    "AlertMessage": "StaticText", "ProgressBar": "StaticText", "Heading": "StaticText", "Graphic": "StaticText",
    "Button": "StaticText", "DemiBold": "Normal", "Medium": "Normal", "Normal": "Bold", "TabFocusReason": "OtherFocusReason",
    "BacktabFocusReason": "OtherFocusReason", "OtherFocusReason": "TabFocusReason", "StrongFocus": "NoFocus",
    "CloseOnEscape": "NoAutoClose", "NoAutoClose": "CloseOnEscape", "BeforeItem": "AfterItem", "NoButton": "LeftButton",
    "MiddleButton": "LeftButton", "HorizontalFlick": "VerticalFlick", "WithinBounds": "DragThreshold",
    "RightToLeft": "LeftToRight", "Key_Home": "Key_End", "Key_End": "Key_Home", "Key_PageUp": "Key_PageDown",
    "Key_PageDown": "Key_PageUp", "Paste": "Copy", "LoadFailedStatus": "LoadStoppedStatus",
    "LoadStoppedStatus": "LoadFailedStatus", "LoadStartedStatus": "LoadSucceededStatus",
    "ApplicationWorld": "MainWorld", "DisallowUnknownUrlSchemes": "AllowAllUnknownUrlSchemes",
    "NoProblem": "Unreachable", "Unreachable": "NoProblem", "Crashed": "TimedOut", "TimedOut": "Crashed",
    "Insecure": "Unreachable",
}


class QmlListing(Listing):
    def __init__(self, file, text):
        super().__init__(file, text)
        self.tokens = [match for match in TOKEN.finditer(text) if match.lastgroup != "space"]
        self.at = 0

    def run(self):
        while self.at < len(self.tokens):
            if self.kind() == "line":
                self.at += 1
            elif self.word() in ("import", "pragma"):
                self.skip_line()
            else:
                self.member()
        return self.all()

    # The token that is read next.

    def kind(self, ahead=0):
        return self.tokens[self.at + ahead].lastgroup if self.at + ahead < len(self.tokens) else "end"

    def word(self, ahead=0):
        return self.tokens[self.at + ahead][0].decode() if self.at + ahead < len(self.tokens) else ""

    def skip_line(self):
        while self.kind() not in ("line", "end"):
            self.at += 1

    # The members of an object.

    def member(self):
        is_component = self.word() == "component"
        while self.word() in ("required", "readonly", "default", "component", "property"):
            is_property = self.word() == "property"
            self.at += 1
            if is_property:
                while self.kind(1) == "word" or self.word(1) in "<>":
                    self.at += 1  # the type
        if self.word() == "signal":
            self.skip_line()
        elif self.word() == "function":
            while self.word() != "{":
                self.at += 1
            self.block()
        elif self.kind() == "word":
            self.named_member(is_component)
        else:
            self.at += 1

    def named_member(self, is_component):
        name, start = self.word(), self.tokens[self.at].start()
        self.at += 1
        if self.word() == "on":
            self.at += 2
        if self.word() == "{":
            self.object()
        elif self.word() == ":":
            self.at += 1
            if name == "id":
                self.skip_line()
                return
            while self.kind() == "line":
                self.at += 1
            self.value()
            if is_component:
                return
            is_declared = re.search(rb"property [\w<>. ]+$", self.text[:start])
            end = self.tokens[self.at - 1].end()
            self.add(start, end, f"{name}: undefined" if is_declared else "", "deleted binding")

    def object(self):
        self.at += 1
        while self.word() != "}" and self.kind() != "end":
            if self.kind() == "line" or self.word() in ";,":
                self.at += 1
            else:
                self.member()
        self.at += 1

    def value(self):
        if self.word() == "{":
            self.block()
        elif self.kind() == "word" and self.word(1) == "{":
            self.at += 1
            self.object()
        elif self.word() == "[" and self.kind(1) == "line":
            self.at += 1
            while self.word() != "]":
                self.member() if self.kind() == "word" else self.next()
            self.at += 1
        else:
            first = self.at
            self.at = self.end_of_value()
            self.expression(first, self.at)

    def next(self):
        self.at += 1

    def end_of_value(self):
        """The token after an expression: a line's end outside brackets, unless an operator continues it."""
        depth, at = 0, self.at
        while at < len(self.tokens):
            text = self.tokens[at][0]
            if text in (b"(", b"[", b"{"):
                depth += 1
            elif text in (b")", b"]", b"}"):
                if depth == 0:
                    return at
                depth -= 1
            elif depth == 0 and text == b";":
                return at
            elif depth == 0 and text == b"\n" and not (
                    re.search(rb"(?:[-+*/<>=?:(]|&&|\|\||\))$", self.tokens[at - 1][0])
                    and self.tokens[at - 1][0] != b")" or re.match(rb"\s*(?:[?:+]|&&|\|\||\*)", self.text[self.tokens[at].end():])):
                before = self.text[self.tokens[self.at].start():self.tokens[at].start()]
                if not re.match(rb"if \(.*\)\s*$|else$", before):
                    return at
            at += 1
        return at

    # JavaScript.

    def block(self):
        """A block in braces: each statement can be left out, and a function can end at once."""
        begin = self.tokens[self.at].end()
        self.add(begin, begin, " return;", "early return")
        first, depth = self.at + 1, 0
        while True:
            text = self.word()
            depth += text in ("{", "(", "[")
            depth -= text in ("}", ")", "]")
            self.at += 1
            if depth == 0:
                break
        self.expression(first, self.at - 1)
        body = self.text[begin:self.tokens[self.at - 1].start()]
        statement = re.compile(rb"^[ \t]*(?=\S)((?!const |let |return [^;]|if |else|for |\}|//|.*=>)[^\n{};]+);$", re.MULTILINE)
        for match in statement.finditer(body):
            self.add(begin + match.start(1), begin + match.end(1), "", "deleted statement")
        two = re.compile(rb"^([ \t]*)((?!const |let |return|if |else|for )\w[^\n{}]*;)(\n\1)(?=((?!const |let |return|if |else|for )\w[^\n{}]*;)$)",
                         re.MULTILINE)
        for match in two.finditer(body):
            start = begin + match.start(2)
            second = match[4].decode()
            self.add(start, start + len(match[2] + match[3] + match[4]),
                     second + match[3].decode() + match[2].decode(), "swapped statements")

    def expression(self, first, last):
        """Changes of each token, each condition and each list of arguments."""
        previous = b""
        for index in range(first, last):
            token = self.tokens[index]
            text, span = token[0].decode(), token.span()
            is_operand = re.search(rb'[\w")\]]$', previous)
            if token.lastgroup == "number":
                for number in other_numbers(text):
                    self.add(*span, f"({number})" if number.startswith("-") else number, "constant")
            elif token.lastgroup == "string":
                self.add(*span, '"x"' if text == '""' else text[:-1] + 'x"', "text")
            elif text in ("true", "false"):
                self.add(*span, "false" if text == "true" else "true", "constant")
            elif text in ("===", "!=="):
                self.add(*span, "!==" if text == "===" else "===", "condition")
            elif text in ("!", "-") and not is_operand:
                self.add(*span, "", "condition" if text == "!" else "arithmetic")
            elif token.lastgroup == "mark" and is_operand:
                for new, name in other_operators(text):
                    self.add(*span, new, name)
            elif token.lastgroup == "word":
                self.name(index, text, span)
            if text == "?" and self.tokens[index + 1][0] != b".":
                self.choice(first, index)
            previous = token[0]

    def name(self, index, text, span):
        last = text.split(".")[-1]
        if "." in text and last in ENUMERATORS:
            self.add(*span, text[:-len(last)] + ENUMERATORS[last], "enum value")
        elif text in ("Math.max", "Math.min"):
            self.add(*span, "Math.min" if text == "Math.max" else "Math.max", "arithmetic")
        if self.tokens[index + 1][0] != b"(":
            return
        parts, depth, start, at = [], 0, index + 2, index + 1
        while True:
            token = self.tokens[at][0]
            depth += token in (b"(", b"[", b"{")
            depth -= token in (b")", b"]", b"}")
            if token == b"," and depth == 1 or depth == 0:
                parts.append((self.tokens[start].start(), self.tokens[at - 1].end()))
                start = at + 1
            if depth == 0:
                break
            at += 1
        sources = [self.text[begin:end].decode() for begin, end in parts]
        if text == "if":
            self.add(*parts[0], f"!({sources[0]})", "condition")
        elif not text.startswith("Math.m"):
            for (one, other), (first, second) in zip(zip(parts, parts[1:]), zip(sources, sources[1:])):
                self.add(one[0], other[1], second + self.text[one[1]:other[0]].decode() + first, "swapped arguments")

    def choice(self, first, question):
        """Negates the condition before a question mark."""
        depth, at = 0, question - 1
        while at >= first:
            text = self.tokens[at][0]
            depth += text in (b")", b"]", b"}")
            depth -= text in (b"(", b"[", b"{")
            if depth < 0 or depth == 0 and text in (b",", b":", b"=", b"return", b";", b"\n", b"{", b"?", b"+", b"-", b"*"):
                break
            at -= 1
        start, end = self.tokens[at + 1].start(), self.tokens[question - 1].end()
        self.add(start, end, f"!({self.text[start:end].decode()})", "condition")


def mutants_of_qml(root, file):
    return QmlListing(file, (root / file).read_bytes()).run()
