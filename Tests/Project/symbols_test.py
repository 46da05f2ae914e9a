"""The library exports exactly the symbols of exported_symbols.txt: its public classes and functions.

Arguments are cut, so that a name stands for all its overloads. Weak symbols do not count: they are template instances
and compiler-generated tables, which any binary may contain."""

import pathlib
import re
import subprocess
import sys

library = sys.argv[1]
listed_file = pathlib.Path(__file__).parent / "exported_symbols.txt"
REGISTRATION = "qml_register_types_TQFoundation"


def without_arguments(symbol):
    symbol = re.sub(r"^(non-virtual|virtual) thunk to ", "", symbol)
    start = symbol.find("(")
    return symbol if start < 0 else symbol[:start]


lines = subprocess.run(["nm", "-DC", "--defined-only", library], check=True, capture_output=True, text=True).stdout
exported = set()
for line in lines.splitlines():
    kind, symbol = line[17:].split(" ", 1)
    if kind in "TDBR" and symbol not in ("__bss_start", "_edata", "_end"):
        exported.add(without_arguments(symbol))

if "--update" in sys.argv:
    listed_file.write_text("\n".join(sorted(exported)) + "\n")

failures = [f"{name} is not in namespace TQFoundation" for name in sorted(exported)
            if not name.startswith("TQFoundation::") and name != REGISTRATION]
listed = set(listed_file.read_text().split("\n")) - {""}
failures += [f"+ {name}" for name in sorted(exported - listed)]
failures += [f"- {name}" for name in sorted(listed - exported)]
if exported != listed:
    failures.append("+ is newly exported, - is no longer exported, which breaks hosts. If intended, run "
                    f"{pathlib.Path(__file__).name} {library} --update")

print("\n".join(failures) or f"{len(exported)} names")
sys.exit(bool(failures))
