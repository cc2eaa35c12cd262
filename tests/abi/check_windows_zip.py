#!/usr/bin/env python3
"""Makes the zip for Windows twice, in two zones, and checks that both have the same bytes, that its
files stand in the order of their names and have the time that was asked for, that it tells whose code
is in it, and that what can be loaded is protected and has nothing for debuggers.

Usage: check_windows_zip.py BUILD_DIRECTORY PROTECTION_SCRIPT
"""

import glob
import os
import subprocess
import sys
import tempfile
import zipfile

# Even, as all times in a zip.
TIME = 1700000000
TIME_IN_ZIP = (2023, 11, 14, 22, 13, 20)


def made_in_zone(build, folder, zone):
    """The path of a new zip."""
    environment = {**os.environ, "TZ": zone, "SOURCE_DATE_EPOCH": str(TIME)}
    subprocess.run(["cpack", "-B", folder], cwd=build, env=environment, check=True,
                   stdout=subprocess.DEVNULL)
    found, = glob.glob(folder + "/*.zip")
    return found


def content(path):
    with open(path, "rb") as file:
        return file.read()


def breaches(build, protection, scratch):
    first = made_in_zone(build, scratch + "/one", "UTC-7")
    second = made_in_zone(build, scratch + "/other", "UTC+5")
    if content(first) != content(second):
        yield "the second zip has other bytes than the first"
    with zipfile.ZipFile(first) as packed:
        packed.extractall(scratch + "/unpacked")
        entries = packed.infolist()
    names = [entry.filename for entry in entries]
    if names != sorted(names):
        yield "the files are not in the order of their names"
    if not any(name.endswith("/copyright") for name in names):
        yield "nobody is told whose code is in it"
    for entry in entries:
        if entry.date_time != TIME_IN_ZIP:
            yield f"{entry.filename} has the time {entry.date_time}"
    loaded = glob.glob(scratch + "/unpacked/*/bin/*")
    if sorted(map(os.path.basename, loaded)) != ["KxXlate.dll", "kxxlate.exe"]:
        yield f"what can be loaded is not what was agreed: {loaded}"
    checked = subprocess.run([sys.executable, protection, "--packed", *loaded],
                             capture_output=True, text=True, check=False)
    if checked.returncode != 0:
        yield checked.stdout + checked.stderr


def main():
    build, protection = sys.argv[1:]
    with tempfile.TemporaryDirectory() as scratch:
        found = list(breaches(build, protection, scratch))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
