"""The built library is hardened: reads the ELF file, and the compile commands for options that leave no trace in it."""

import json
import pathlib
import re
import subprocess
import sys

library, build, source = map(pathlib.Path, sys.argv[1:4])


def readelf(*options):
    return subprocess.run(["readelf", "--wide", *options, library], check=True, capture_output=True, text=True).stdout


segments, dynamic, symbols = readelf("--program-headers"), readelf("--dynamic"), readelf("--dyn-syms")
failures = []


def expect(holds, failure):
    if not holds:
        failures.append(failure)


stack = re.search(r"GNU_STACK\s+(?:0x\w+\s+){5}(\S+)", segments)
expect(stack and "E" not in stack[1], "the stack is executable")
expect(not re.search(r"LOAD\s+(?:0x\w+\s+){5}RWE", segments), "a segment is writable and executable")
expect("GNU_RELRO" in segments, "no segment is read-only after relocation (RELRO)")
expect(re.search(r"\((?:FLAGS|FLAGS_1)\).*\b(?:BIND_NOW|NOW)\b", dynamic), "symbols are bound lazily")
expect("TEXTREL" not in dynamic, "code has text relocations")
expect("RPATH" not in dynamic.replace("RUNPATH", ""), "RPATH is searched before LD_LIBRARY_PATH")
expect("__stack_chk_fail" in symbols, "no function has a stack protector")

commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
own = [entry for entry in commands if "CMakeFiles/TQFoundation" in entry.get("output", entry["command"])
       and "TQFoundationTesting" not in entry.get("output", entry["command"])
       and pathlib.Path(entry["file"]).is_relative_to(source / "Sources")]
expect(len(own) > 20, f"only {len(own)} sources in compile_commands.json")
for entry in own:
    for option in ("-fstack-protector-strong", "-D_FORTIFY_SOURCE=2", "-O"):
        expect(option in entry["command"], f"{entry['file']}: not compiled with {option}")

print("\n".join(failures) or f"{library.name} and its {len(own)} sources are hardened")
sys.exit(bool(failures))
