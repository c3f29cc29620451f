"""Checks what a compiler doesn't: lint.py RESULT_FILE [CHECK...].

Each check prints what it finds and counts as one test: format, tidy, words, layers, sizes, messages.
"""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys

LAYERS = ["platform/base", "platform/device", "platform/window", "foundation", "geometry", "units", "dxf", "graphs",
          "drawing", "views2d", "views3d", "services", "controls"]
LONGEST_FILE = 600  # lines
# One class can't be split over headers.
LONG_FILES_WITH_REASON = {"geometry/mathematics.h"}
# Words that have no place in sources, documents or messages. Letters in brackets keep this list from finding itself.
FORBIDDEN = re.compile(
    r"\b[s]pecification\b|\bthe [s]pec\b|\b[s]pec\.md\b|\bas [s]pecified\b|\b[P]art \d+\.\d+|"
    r"\bthe [o]riginal (program|library|implementation|code)\b|\b[M]FC\b|\b[T]ODO\b|\b[F]IXME\b|\b[X]XX\b")


def git_files(*patterns):
    """Tracked files and those that are about to be."""
    command = ["git", "ls-files", "--cached", "--others", "--exclude-standard", "--", *patterns]
    listed = subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()
    return sorted({name for name in listed if os.path.isfile(name)})


def sources():
    return git_files("*.h", "*.cpp")


def check_format():
    run = subprocess.run(["clang-format", "--dry-run", "--Werror", *sources()], capture_output=True, text=True)
    return [line for line in run.stderr.splitlines() if "error:" in line] if run.returncode else []


def check_words():
    found = []
    for name in git_files():
        if name.endswith((".dxf", ".png", ".bmp", ".pdf")) or name.startswith("fuzz/corpus/"):
            continue
        text = pathlib.Path(name).read_bytes().decode("utf-8", errors="replace")
        for number, line in enumerate(text.splitlines(), 1):
            if FORBIDDEN.search(line):
                found.append(f"{name}:{number}: {line.strip()[:120]}")
    return found


def check_messages():
    log = subprocess.run(["git", "log", "--format=%h %s%n%b"], capture_output=True, text=True).stdout
    return [line for line in log.splitlines() if FORBIDDEN.search(line)]


def layer_of(name):
    for index, folder in enumerate(LAYERS):
        if name.startswith(folder + "/"):
            return index
    return None


def check_layers():
    found = []
    for name in sources():
        own = layer_of(name)
        if own is None:
            continue
        for number, line in enumerate(pathlib.Path(name).read_text(encoding="utf-8").splitlines(), 1):
            included = re.match(r'\s*#\s*include\s+["<]([^">]+)[">]', line)
            used = layer_of(included.group(1)) if included else None
            if used is not None and used > own:
                found.append(f"{name}:{number}: {LAYERS[own]} must not use {LAYERS[used]}")
    return found


def check_sizes():
    found = []
    for name in sources():
        lines = len(pathlib.Path(name).read_text(encoding="utf-8").splitlines())
        if lines > LONGEST_FILE and name not in LONG_FILES_WITH_REASON:
            found.append(f"{name}: {lines} lines, more than {LONGEST_FILE}")
    return found


def preprocessed_key(entry, settings):
    """Hash of what the compiler sees, so that a file is looked at again only when that changed."""
    command = shlex.split(entry["command"])
    if command[0].endswith("ccache"):
        command = command[1:]
    out = command.index("-o")
    del command[out:out + 2]
    command[command.index("-c")] = "-E"
    text = subprocess.run(command, cwd=entry["directory"], capture_output=True).stdout
    return hashlib.sha256(settings + text).hexdigest()


def tidy_one(entry, settings, cache):
    key = preprocessed_key(entry, settings)
    stamp = cache / key
    if stamp.exists():
        return []
    name = os.path.relpath(entry["file"])
    run = subprocess.run(["clang-tidy", "--quiet", "-p", "build/native", name], capture_output=True, text=True)
    found = [line for line in run.stdout.splitlines() if re.search(r"(error|warning):", line)]
    if run.returncode == 0 and not found:
        stamp.touch()
        return []
    return found or [f"{name}: clang-tidy ended with {run.returncode}: {run.stderr.strip()[-200:]}"]


def check_tidy():
    """Every library source of the native build."""
    if not os.path.exists("build/native/compile_commands.json"):
        subprocess.run(["cmake", "--preset", "native"], check=True, capture_output=True)
    entries = json.loads(pathlib.Path("build/native/compile_commands.json").read_text())
    entries = [entry for entry in entries if layer_of(os.path.relpath(entry["file"])) is not None]
    settings = pathlib.Path(".clang-tidy").read_bytes()
    cache = pathlib.Path("build/tidy_cache")
    cache.mkdir(parents=True, exist_ok=True)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = list(pool.map(lambda entry: tidy_one(entry, settings, cache), entries))
    return sorted({line for result in results for line in result})


CHECKS = {"format": check_format, "words": check_words, "messages": check_messages, "layers": check_layers,
          "sizes": check_sizes, "tidy": check_tidy}


def main():
    os.chdir(pathlib.Path(__file__).resolve().parent.parent)
    wanted = sys.argv[2:] or list(CHECKS)
    failed = 0
    for name in wanted:
        found = CHECKS[name]()
        print(f"{name}: {'ok' if not found else str(len(found)) + ' found'}")
        for line in found[:60]:
            print("  " + line)
        failed += bool(found)
    pathlib.Path(sys.argv[1]).write_text(f"{len(wanted) - failed} {failed} 0\n")
    sys.exit(1 if failed else 0)


main()
