"""docs/qml-reference.md documents every member of the QML types that apps use, with its type, and no other member. Its
examples pass qmllint.

Members come from the generated .qmltypes, and for a type written in QML from its file. A notify signal is documented by
its property."""

import pathlib
import re
import subprocess
import sys
import tempfile

root, qmllint, modules = pathlib.Path(sys.argv[1]), sys.argv[2], pathlib.Path(sys.argv[3])
page = (root / "docs/qml-reference.md").read_text(encoding="utf-8")
failures = []

NAMES = {"QString": "string", "QStringList": "list<string>", "QVariant": "var", "QColor": "color", "QImage": "image", "QUrl": "url",
         "TQFoundation::Color": "tqColor", "TQFoundation::TQApp": "tqApp", "QQuickWindow": "Window",
         "QQuickItem": "Item", "QObject": "QtObject", "": ""}


class Type:
    def __init__(self, kind):
        self.kind = kind  # "Singleton", "Value type" or "Inherits `BASE`"
        self.properties = {}  # name: (type, access)
        self.methods = set()  # (name, parameters, returned type)
        self.signals = set()


def qml_name(name, is_list=False):
    name = NAMES.get(name, name)
    return f"list<{name}>" if is_list else name


def objects_in(text):
    """The objects of a .qmltypes file as nested pairs of a name and its entries."""
    tokens = iter(re.findall(r'"[^"]*"|\[|\]|\w+|[{}:]', re.sub(r"//.*|^import.*", "", text, flags=re.MULTILINE)))

    def value(token):
        if token != "[":
            return token.strip('"')
        return [item.strip('"') for item in iter(lambda: next(tokens), "]")]

    def entries():
        found = []
        for name in iter(lambda: next(tokens), "}"):
            found.append((name, entries() if next(tokens) == "{" else value(next(tokens))))
        return found

    next(tokens), next(tokens)
    return entries()


def add_members(found, component):
    notified = {dict(entry).get("notify") for kind, entry in component if kind == "Property"}
    for kind, entry in component:
        if kind not in ("Property", "Method", "Signal"):
            continue
        fields = dict(entry)
        if kind == "Property":
            access = ("required" if "isRequired" in fields else "read-only" if "isReadonly" in fields else "writable")
            found.properties[fields["name"]] = (qml_name(fields["type"], "isList" in fields), access)
        elif kind == "Signal":
            found.signals |= {fields["name"]} - notified
        else:
            parameters = [dict(parameter) for name, parameter in entry if name == "Parameter"]
            parameters = tuple(f"{each['name']}: {qml_name(each['type'])}" for each in parameters)
            found.methods.add((fields["name"], parameters, qml_name(fields.get("type", ""))))


def types_of_the_module():
    components = [entry for _, entry in objects_in((modules / "TQFoundation/TQFoundation.qmltypes").read_text())]
    by_name = {dict(component)["name"]: component for component in components}
    found = {}
    for component in components:
        fields = dict(component)
        if "exports" not in fields:
            continue
        kind = f"Inherits `{qml_name(fields.get('prototype', ''))}`"
        kind = "Singleton" if "isSingleton" in fields else "Value type" if fields["accessSemantics"] == "value" else kind
        each = Type(kind)
        for part in (component, by_name.get(fields.get("extension"), [])):
            add_members(each, part)
        found[re.search(r"/(\w+) ", fields["exports"][0])[1]] = each
    for path in (root / "Sources").rglob("TQ*.qml"):
        text = path.read_text(encoding="utf-8")
        base = re.search(r"^(\w+) {", text, re.MULTILINE)[1]
        each = Type(f"Inherits `{base}`")
        for words, type_name, name in re.findall(r"^    ((?:\w+ )*)property (\S+) (\w+)", text, re.MULTILINE):
            each.properties[name] = (type_name, "required" if "required" in words else
                                     "read-only" if "readonly" in words else "writable")
        for name in re.findall(r"^    function (\w+)\(", text, re.MULTILINE):
            each.methods.add((name, (), ""))
        each.signals |= set(re.findall(r"^    signal (\w+)", text, re.MULTILINE))
        found[path.stem] = each
    return found


def documented_types():
    found, examples = {}, {}
    for section in re.split(r"^## ", page, flags=re.MULTILINE)[1:]:
        name = re.match(r"\w+", section)[0]
        kind = re.search(r"^(Singleton|Value type|Inherits `\w+`)\.", section, re.MULTILINE)
        each = found[name] = Type(kind[1] if kind else "")
        examples[name] = []
        header = ""
        for line in section.splitlines():
            cells = [cell.strip() for cell in line.strip("|").split("|")] if line.startswith("|") else []
            if not cells or set(line) <= set("|-:"):
                continue
            if cells[0] in ("property", "method", "signal"):
                header = cells[0]
                continue
            if cells[-1]:
                examples[name].append(cells[-1].strip("`"))
            if header == "property":
                for property_name in re.findall(r"`(\w+)`", cells[0]):
                    each.properties[property_name] = (cells[1].strip("`"), cells[2])
            elif header == "signal":
                each.signals.add(cells[0].strip("`").split("(")[0])
            else:
                method, arguments = re.match(r"`(\w+)\((.*)\)`", cells[0]).groups()
                parameters = [part for part in arguments.split(", ") if part]
                required = [part for part in parameters if " = " not in part]
                for count in range(len(required), len(parameters) + 1):
                    short = tuple(part.split(" = ")[0] for part in parameters[:count])
                    each.methods.add((method, short, cells[1].strip("`")))
    return found, examples


def check_examples(examples):
    """Every example of the page, as one QML file."""
    ids = {"TQGuide": "guide", "TQAppView": "row", "TQAppIcon": "icon", "TQRandomBackgroundView": "background"}
    lines, functions = [], []
    for name, texts in examples.items():
        bindings = [text for text in texts if re.match(r"[\w.]+: ", text)]
        functions += [text for text in texts if text not in bindings]
        if name in ids:
            lines.append(f"    {name} {{ id: {ids[name]}; {'; '.join(bindings)} }}")
        elif bindings:
            failures.append(f"{name} is not an object: {bindings}")
    text = "\n".join(["import QtQuick", "import TQFoundation", "Window {", "    id: window",
                      "    readonly property tqApp app: TQApp.hazel", "    readonly property tqColor tint: app.tintColor",
                      *lines, "    function examples(): list<var> {", f"        return [{', '.join(functions)}];", "    }",
                      "}", ""])
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "Examples.qml"
        path.write_text(text, encoding="utf-8")
        result = subprocess.run([qmllint, "-I", str(modules), str(path)], capture_output=True, text=True)
        if result.returncode or result.stdout or result.stderr:
            failures.append(f"qmllint on the examples: {result.stdout}{result.stderr}\n{text}")
    return sum(map(len, examples.values()))


actual, (documented, examples) = types_of_the_module(), documented_types()
# Other types are for the library's own QML files, as the page says.
for_apps = {name for name in actual if name.startswith(("TQ", "tq"))} - {"TQGuideView"}
internal = set(re.findall(r"`(\w+)`", re.search(r"^Editors offer more types.*?:(.*?)\.", page, re.MULTILINE)[1]))
if internal != actual.keys() - for_apps:
    failures.append(f"types that are not for apps: the page names {sorted(internal)}, not {sorted(actual.keys() - for_apps)}")
for name in sorted(for_apps - documented.keys()):
    failures.append(f"{name} is not documented")
for name in sorted(documented.keys() - actual.keys()):
    failures.append(f"{name} is documented but is not exported")
for name in sorted(actual.keys() & documented.keys()):
    has, says = actual[name], documented[name]
    if has.kind != says.kind:
        failures.append(f"{name}: the page says '{says.kind}', the module '{has.kind}'")
    for what in ("properties", "methods", "signals"):
        has_all, says_all = getattr(has, what), getattr(says, what)
        if what == "properties":
            has_all, says_all = set(has_all.items()), set(says_all.items())
        failures += [f"{name}: {member} is not documented" for member in sorted(has_all - says_all, key=str)]
        failures += [f"{name}: {member} is documented but does not exist" for member in sorted(says_all - has_all, key=str)]
count = check_examples(examples)
members = sum(len(each.properties) + len(each.methods) + len(each.signals) for each in documented.values())
if members < 50 or count < 40:
    failures.append(f"only {members} members and {count} examples were found")

print("\n".join(failures) or f"{len(documented)} types, {members} members, {count} examples")
sys.exit(bool(failures))
