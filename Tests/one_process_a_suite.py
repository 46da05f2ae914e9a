"""one_process_a_suite.py PROGRAM LEFT_OUT: runs the test cases of PROGRAM that do not match the filter LEFT_OUT, those of a
suite in one process.

For an emulator, which takes seconds to start a program. A suite that fails runs a second time, since the emulator may
have been too slow."""

import concurrent.futures
import os
import subprocess
import sys

program, left_out = sys.argv[1:]


def run(*options):
    return subprocess.run([program, *options], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)


def run_suite(suite):
    """The output of a suite that failed twice, else an empty text."""
    for _ in range(2):
        result = run("--gtest_brief=1", f"--gtest_filter={suite}*-{left_out}")
        if result.returncode == 0:
            return ""
    return f"{suite} ended with {result.returncode}:\n{result.stdout}"


listed = run("--gtest_list_tests", f"--gtest_filter=-{left_out}").stdout.splitlines()
suites = [line.split()[0] for line in listed if line.endswith(".") or ".  #" in line]
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    failures = [output for output in pool.map(run_suite, suites) if output]
print("\n".join(failures) or f"{len(suites)} suites")
sys.exit(bool(failures) or not suites)
