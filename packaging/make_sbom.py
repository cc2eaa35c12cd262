#!/usr/bin/env python3
"""Writes what the packages consist of and need, in CycloneDX 1.6.

Usage: make_sbom.py VERSION FOLDER

FOLDER has the finished packages. The time is taken from SOURCE_DATE_EPOCH, and the serial number from
the packages, so that the same packages have the same list.
"""

import datetime
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys
import uuid

# Debian packages whose code is compiled into ours, by the suffix of the package that has it.
COMPILED_IN = {
    "kxxlate-tools": ["libcli11-dev"],
    ".zip": ["gcc-mingw-w64-x86-64-win32-runtime", "mingw-w64-x86-64-dev", "libcli11-dev"],
}
# What every Windows has, and the library asks for.
OF_WINDOWS = ["KERNEL32.dll", "msvcrt.dll"]
OURS = "kxxlate"


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()


def library(name, **more):
    return {"type": "library", "bom-ref": name, "name": name, **more}


def compiled_in(name):
    version = output("dpkg-query", "-W", "-f=${Version}", name)
    return library(name, version=version, scope="required",
                   purl=f"pkg:deb/debian/{name}@{version.replace('+', '%2B')}",
                   description="compiled into the package")


def needed(relation):
    """A dependency as Debian writes it: "libc6 (>= 2.33)"."""
    name, limit = re.fullmatch(r"(\S+)(?: \((.*)\))?", relation).groups()
    described = f"needed on the system, {limit}" if limit else "needed on the system"
    return library(name, scope="required", purl=f"pkg:deb/debian/{name}", description=described)


def of_package(path):
    """The finished file, and the components that it has or needs besides our own."""
    if path.suffix == ".deb":
        name = output("dpkg-deb", "-f", str(path), "Package")
        depends = output("dpkg-deb", "-f", str(path), "Depends").split(", ")
        others = [needed(one) for one in depends if one and OURS not in one]
    else:
        name = path.suffix
        others = [library(one, scope="required", description="part of Windows")
                  for one in OF_WINDOWS]
    return others + [compiled_in(one) for one in COMPILED_IN.get(name, [])]


def main():
    version, folder = sys.argv[1], pathlib.Path(sys.argv[2])
    time = datetime.datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]),
                                           datetime.timezone.utc)
    components, dependencies, hashes = {}, [], []
    for path in sorted([*folder.glob("*.deb"), *folder.glob("*.zip")]):
        content = hashlib.sha256(path.read_bytes()).hexdigest()
        hashes.append(content)
        others = of_package(path)
        components[path.name] = {"type": "file", "bom-ref": path.name, "name": path.name,
                                 "version": version,
                                 "hashes": [{"alg": "SHA-256", "content": content}]}
        for other in others:
            known = components.setdefault(other["bom-ref"], other)
            if known != other and "version" not in known:
                known["description"] = max(known["description"], other["description"])
        dependencies.append({"ref": path.name,
                             "dependsOn": sorted({other["bom-ref"] for other in others})})
    packages = [one["ref"] for one in dependencies]
    listing = {
        "bomFormat": "CycloneDX",
        "specVersion": "1.6",
        "serialNumber": f"urn:uuid:{uuid.uuid5(uuid.NAMESPACE_OID, ' '.join(hashes))}",
        "version": 1,
        "metadata": {
            "timestamp": time.strftime("%Y-%m-%dT%H:%M:%SZ"),
            "lifecycles": [{"phase": "build"}],
            "component": library("KxXlate", version=version, licenses=[
                {"license": {"name": "none named yet; all rights reserved"}}]),
        },
        "components": list(components.values()),
        "dependencies": [{"ref": "KxXlate", "dependsOn": packages}, *dependencies],
    }
    name = folder / f"kxxlate-{version}.cdx.json"
    name.write_text(json.dumps(listing, indent=2) + "\n", encoding="ascii")


if __name__ == "__main__":
    main()
