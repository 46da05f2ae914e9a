"""The module's types, as editors and qmllint read them: every member of every type is there and has a known type."""

import pathlib
import re
import subprocess
import sys
import tempfile

qmllint, modules, page = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
# QML has no type for an image: TQAppIcon shows it. A tick is a slot, for the timer alone.
LEFT_OUT = {"icon", "updateTimer"}
# Types of the library's own sheets; qmllint checks their use there.
OWN = {"BrowserPage", "MailDraft", "SheetText"}
# Members that do not exist, one for each type: qmllint refuses them only if it knows the type.
WRONG = ["TQApp.nonsense", "TQMore.nonsense", "app.nonsense", "tint.nonsense", "guide.nonsense", "row.nonsense",
         "one.nonsense", "overlay.nonsense"]
failures = []


def complaints(text):
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / page.name
        copy.write_text(text, encoding="utf-8")
        result = subprocess.run([qmllint, "-I", str(modules), str(copy)], capture_output=True, text=True)
        return result.stdout + result.stderr


text = page.read_text(encoding="utf-8")
if found := complaints(text):
    failures.append(found)
for wrong in WRONG:
    name = f"wrong{WRONG.index(wrong)}"
    line = f"    readonly property string {name}: {wrong}\n"
    if "nonsense" not in complaints(text.replace("    function visit()", line + "    function visit()", 1)):
        failures.append(f"{wrong} passes: its type is not known")

members, exported = set(), set()
for component in (modules / "TQFoundation/TQFoundation.qmltypes").read_text().split("    Component {")[1:]:
    names = set(re.findall(r'exports: \["TQFoundation/(\w+) ', component))
    if not names & OWN:
        exported |= names
        members |= set(re.findall(r'(?:Property|Method|Signal) \{\s*name: "(\w+)"', component))
used = set(re.findall(r"\w+", text))
# A signal is used by its handler.
used |= {word[2].lower() + word[3:] for word in used if re.match(r"on[A-Z]", word)}
if len(members) < 50:
    failures.append(f"only {len(members)} members were found")
failures += [f"{page.name} lacks {name}" for name in sorted((members | exported) - used - LEFT_OUT)]

print("\n".join(failures) or f"{len(exported)} types, {len(members)} members")
sys.exit(bool(failures))
