"""tools/replace-developer puts another developer into a copy of the tree: nothing names the old one, and documents,
tables and licences still pass their tests."""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from tree import tracked

root, lupdate = pathlib.Path(sys.argv[1]), sys.argv[2]
IDENTITY = "Sources/Catalogue/DeveloperIdentity.h"
# An ampersand and an apostrophe are written in another way in XML.
NEW = {
    "name": "Mara & Ivo's Works",
    "copyrightHolder": "Mara Holm",
    "privacyPage": "https://www.maraworks.example/privacy",
    "contactPage": "https://www.maraworks.example/write",
    "homePage": "https://www.maraworks.example",
    "supportAddress": "hello@maraworks.example",
    "socialPage": "https://links.example/mara",
    "storeName": "Example Shop",
    "reviewTitle": "Rate in the Example Shop",
    "storeHost": "https://store.example",
    "storeAppPath": "/item/",
    "storeReviewQuery": "?rate=1",
    "storePage": "https://store.example/by/mara",
    "filingPrefix": "ICP-2188000002-",
    "filingSite": "https://filings.example",
}
PASSING = {"documents_test.py": [], "licences_test.py": [], "snippets_test.py": [], "translations_test.py": [lupdate]}
failures = []


def replace(copy, *arguments):
    run = subprocess.run([copy / "tools/replace-developer", *arguments], capture_output=True, text=True, timeout=60)
    return run.returncode, run.stdout + run.stderr


with tempfile.TemporaryDirectory() as folder:
    copy = pathlib.Path(folder) / "tree"
    for path in tracked(root):
        (copy / path).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(root / path, copy / path)
    code, output = replace(copy, root / IDENTITY)
    if code == 0 or "nothing to replace" not in output:
        failures.append(f"without a change: {code}, {output}")

    identity = (copy / IDENTITY).read_text(encoding="utf-8")
    old = {name: re.findall('"(.*?)"', value)[-1]
           for name, value in re.findall(r"const char \*(\w+) =([^;]*);", identity)}
    if set(old) != set(NEW):
        failures.append(f"{IDENTITY}: {sorted(set(old) ^ set(NEW))} is not replaced by this test")
    numbers = re.findall(r'\{"\w+", "(\d+)"', identity)
    changes = {old[name]: text for name, text in NEW.items()} | {number: f"77{number[2:]}" for number in numbers}
    for before, after in changes.items():
        identity = identity.replace(f'"{before}"', f'"{after}"')
    (copy / IDENTITY).write_text(identity, encoding="utf-8")
    code, output = replace(copy, root / IDENTITY)
    if code:
        failures.append(f"replace-developer: {code}, {output}")

    words = r"[\W_]*".join(old["name"].split())
    texts = [text for name, text in old.items() if name not in ("name", "storeAppPath")] + numbers
    texts += [re.search(r"//([^/]+)", old[name])[1] for name in ("homePage", "filingSite", "storeHost")]
    pattern = re.compile("|".join([words, re.search(r"\d+", old["filingPrefix"])[0], *map(re.escape, texts)]), re.IGNORECASE)
    for path in (path for path in copy.rglob("*") if path.is_file() and path.suffix not in (".png", ".qsb")):
        text = f"{path.name}\n{path.read_text(encoding='utf-8', errors='replace')}"
        failures += [f"{path.relative_to(copy)} names {found!r}" for found in set(pattern.findall(text))]
    for test, arguments in PASSING.items():
        run = subprocess.run([sys.executable, copy / "Tests/Project" / test, copy, *arguments], capture_output=True,
                             text=True, timeout=120)
        if run.returncode:
            failures.append(f"{test}: {run.stdout}{run.stderr}")
    table = (copy / "Resources/Translations/TQFoundation_zh_Hans.ts").read_text(encoding="utf-8")
    for expected in ("京ICP备2188000002号-", "https://www.maraworks.example/zh", "在 Example Shop 评分"):
        if f"<translation>{expected}</translation>" not in table:
            failures.append(f"no translation is {expected}")

print("\n".join(failures) or f"{len(changes)} texts of another developer")
sys.exit(bool(failures))
