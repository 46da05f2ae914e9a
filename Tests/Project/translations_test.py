"""Every translation table has exactly the keys of the code, each with a finished translation that fits its place. Every
text that the library shows is marked for translation, and lupdate finds every mark."""

import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

root, lupdate = pathlib.Path(sys.argv[1]), sys.argv[2]
PAGES = {"zh_Hans", "zh_Hant"}
failures = []


def entries(path):
    found = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            translation = message.find("translation")
            finished = translation.get("type") is None
            found[name, message.findtext("source")] = (translation.text or "") if finished else None
            if name.startswith("TQFoundation") and not message.findtext("extracomment"):
                failures.append(f"{path.name}: {message.findtext('source')[:40]!r} has no comment for translators")
    return found


def keys_of(sources, folder):
    table = pathlib.Path(folder) / "keys.ts"
    subprocess.run([lupdate, "-silent", "-locations", "none", *map(str, sources), "-ts", str(table)],
                   check=True, capture_output=True)
    return set(entries(table))


def marked_in(text, where):
    """Context and text of each QT_TRANSLATE_NOOP, found without lupdate."""
    literal = r'"((?:[^"\\]|\\.)*)"'
    found = re.findall(rf"QT_TRANSLATE_NOOP\(\s*{literal},\s*((?:{literal}\s*)+)\)", text)
    if len(found) != len(re.findall(r"\bQT_TRANSLATE_NOOP\(", text)):
        failures.append(f"{where} marks something other than a string literal")
    escapes = {"\\n": "\n", '\\"': '"', "\\\\": "\\"}
    return {(context, re.sub(r"\\.", lambda match: escapes[match[0]], "".join(re.findall(literal, texts))))
            for context, texts, _ in found}


def check_sources(sources, keys):
    marked = set()
    for path in sources:
        text = path.read_text(encoding="utf-8")
        marked |= marked_in(text, path.name)
        for call in re.findall(r'(?:localizedInLibrary|interfaceString)\((?:QStringLiteral|QLatin1String|u)?\(?".*', text):
            failures.append(f"{path.name} translates an unmarked text: {call}")
        if re.search(r"\b(?:qsTr|qsTrId|qsTranslate|tr)\(", text):
            failures.append(f"{path.name} uses the host's translators instead of the library's tables")
    for context, key in sorted(marked ^ keys):
        failures.append(f"lupdate and the code differ in {key!r} of {context}")


def check(tables, keys, languages):
    found = {path.stem.split("_", 1)[1]: path for path in tables}
    if set(found) != languages:
        failures.append(f"tables of {sorted(set(found) ^ languages)} are missing or not listed in CMakeLists.txt")
    for language, path in sorted(found.items()):
        table = entries(path)
        for context, key in sorted(keys - set(table)):
            failures.append(f"{path.name} lacks {key!r} in {context}")
        for context, key in sorted(set(table) - keys):
            failures.append(f"{path.name} has {key!r} in {context}, which the code lacks")
        for (context, key), text in table.items():
            where = f"{path.name}, {key[:40]!r}:"
            if not text:
                failures.append(f"{where} no finished translation")
                continue
            if language == "en" and text != key:
                failures.append(f"{where} the English text has to equal the key")
            if key.startswith("https://"):
                if not text.startswith("https://tqstudio.example") or text != key and language not in PAGES:
                    failures.append(f"{where} the website has no pages in this language")
            elif text.count("\n\n") != key.count("\n\n"):
                failures.append(f"{where} differs in the number of paragraphs")
            # A full-width colon contains its blank.
            expects_blank = key.endswith(" ") and not text.endswith("：")
            if expects_blank != text.endswith(" ") or text.endswith("  ") or text != text.lstrip() or "： " in text:
                failures.append(f"{where} leading or trailing blanks differ")
            if key == "ICP-2099000001-" and text != ("京ICP备2099000001号-" if language.startswith("zh_") else key):
                failures.append(f"{where} a filing number is not translated, and its suffix follows directly")
            if language == "fr" and not key.startswith("https://") and re.search("[^\u00a0\u202f][;:?!]", text):
                failures.append(f"{where} French has a no-break space before ; : ? !")
            if "Hazel Grid" in key and "Hazel Grid" not in text:
                failures.append(f"{where} the name of an app is not translated")


listed = next(line for line in (root / "CMakeLists.txt").read_text().splitlines() if line.startswith("set(languages "))
languages = set(listed.removeprefix("set(languages ").rstrip(")").split())
with tempfile.TemporaryDirectory() as folder:
    sources = [path for folder_name in ("Sources", "Resources") for path in (root / folder_name).rglob("*")
               if path.suffix in (".h", ".cpp", ".qml")]
    keys = keys_of(sources, folder)
check_sources(sources, keys)
with tempfile.TemporaryDirectory() as folder:
    example_keys = keys_of((root / "Example").glob("*.qml"), folder)

if len(keys) < 23:
    failures.append(f"only {len(keys)} keys were found in the code")
check((root / "Resources/Translations").glob("*.ts"), keys, languages)
check((root / "Example/Translations").glob("*.ts"), example_keys, languages)

print("\n".join(failures) or f"{len(keys)} keys in {len(languages)} tables")
sys.exit(bool(failures))
