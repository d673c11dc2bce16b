#!/usr/bin/env python3
"""clang-tidy over the sources of each room in one go.

Most of the time of a run goes into the toolkit's headers, and a room's sources share them: they are
joined to one text and looked at together. Sources that can not stand in one text, since they name
two things alike, are parted. A room that says nothing new since the last good look is not looked at
again.

  script/tidy.py BUILD   the build folder whose compile_commands.json tells how sources are compiled
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

ROOT = pathlib.Path(__file__).resolve().parent.parent


def tracked(*patterns):
    listed = subprocess.run(["git", "ls-files", *patterns], cwd=ROOT, check=True,
                            capture_output=True, text=True).stdout
    return [ROOT / name for name in listed.splitlines()]


def commands(build):
    """The compiler's arguments for each source, without the source and the object."""
    for entry in json.loads((build / "compile_commands.json").read_text()):
        words = shlex.split(entry["command"])
        yield pathlib.Path(entry["file"]), tuple(words[1:words.index("-o")])


def rooms(build):
    """Sources that are compiled alike and lie in one folder."""
    wanted = set(tracked("src/*.cpp"))
    groups = {}
    for source, arguments in commands(build):
        if source in wanted:
            wanted.discard(source)
            groups.setdefault((source.parent, arguments), []).append(source)
    if wanted:
        sys.exit("not in the build: " + ", ".join(sorted(map(str, wanted))))
    return [(sorted(sources), arguments) for (_, arguments), sources in groups.items()]


def tidy(path, arguments):
    return subprocess.run(
        ["clang-tidy", "--quiet", f"--config-file={ROOT / '.clang-tidy'}", str(path), "--",
         *arguments], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)


def join(sources, folder):
    joined = folder / (hashlib.sha256(str(sources).encode()).hexdigest()[:16] + ".cpp")
    joined.write_text("".join(f'#line 1 "{source}"\n{source.read_text()}\n' for source in sources))
    return joined


def groups(sources, arguments, folder):
    """The sources in groups that can each stand in one text."""
    if len(sources) == 1:
        return [sources]
    compiled = subprocess.run(
        ["clang++", "-fsyntax-only", "-ferror-limit=0", "-fno-caret-diagnostics", *arguments,
         str(join(sources, folder))], stderr=subprocess.PIPE, text=True, check=False)
    if compiled.returncode == 0:
        return [sources]
    at_odds = set(re.findall(r"^(.+?):\d+:\d+: (?:fatal )?error:", compiled.stderr, re.MULTILINE))
    others = [source for source in sources if str(source) in at_odds]
    if not others or len(others) == len(sources):
        others = sources[len(sources) // 2:]
    rest = [source for source in sources if source not in others]
    return groups(rest, arguments, folder) + groups(others, arguments, folder)


def look(sources, arguments, folder):
    """What is wrong with the sources, in words; nothing if all is well."""
    findings = ""
    for group in groups(sources, arguments, folder):
        if len(group) == 1 or tidy(join(group, folder), arguments).returncode != 0:
            results = [tidy(source, arguments) for source in group]
            findings += "".join(result.stdout or "clang-tidy failed\n"
                                for result in results if result.returncode != 0)
    return findings


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    folder = build / "tidy"
    folder.mkdir(exist_ok=True)
    common = b"".join(path.read_bytes() for path in tracked("src/*.h", ".clang-tidy"))

    def stamp(sources, arguments):
        state = hashlib.sha256(common + str(arguments).encode())
        for source in sources:
            state.update(source.read_bytes())
        return folder / state.hexdigest()[:32]

    def check(room):
        sources, arguments = room
        mark = stamp(sources, arguments)
        if mark.exists():
            return ""
        findings = look(sources, arguments, folder)
        if not findings:
            mark.touch()
        return findings

    largest_first = sorted(rooms(build), key=lambda room: -len(room[0]))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        findings = "".join(pool.map(check, largest_first))
    print(findings, end="")
    sys.exit(1 if findings else 0)


if __name__ == "__main__":
    main()
