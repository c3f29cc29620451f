"""Counts the test cases of one build: count_tests.py BUILD_FOLDER RESULT_FILE.

A GoogleTest program counts with each of its cases (test_results/<name>.json), every other test as one. A program
that failed without telling a failed case (a crash, a time-out) counts as one failure more.
"""
import json
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def case_counts(path):
    """(passed, failed, skipped) of one GoogleTest result file."""
    suites = json.loads(path.read_text(encoding="utf-8", errors="replace"))["testsuites"]
    cases = [case for suite in suites for case in suite["testsuite"]]
    failed = sum(1 for case in cases if case.get("failures"))
    skipped = sum(1 for case in cases if case["result"] == "SKIPPED")
    return len(cases) - failed - skipped, failed, skipped


def program_counts(element, results):
    """(passed, failed, skipped) of one entry of the test driver's list."""
    succeeded = element.get("status") == "run"
    path = results / (element.get("name") + ".json")
    if not path.exists():
        return (1, 0, 0) if succeeded else (0, 1, 0)
    try:
        passed, failed, skipped = case_counts(path)
    except (ValueError, KeyError):
        return 0, 1, 0
    if not succeeded and failed == 0:
        failed = 1
    return passed, failed, skipped


def main():
    build = pathlib.Path(sys.argv[1])
    totals = [0, 0, 0]
    root = ElementTree.parse(build / "junit.xml").getroot()
    for element in root.iter("testcase"):
        counts = program_counts(element, build / "test_results")
        totals = [total + count for total, count in zip(totals, counts)]
        if counts[1]:
            print(f"failed: {element.get('name')}: {counts[1]} of {sum(counts)}")
    print(f"{build.name}: {totals[0]} passed, {totals[1]} failed, {totals[2]} skipped")
    pathlib.Path(sys.argv[2]).write_text(" ".join(map(str, totals)) + "\n")
    sys.exit(1 if totals[1] or not totals[0] else 0)


main()
