#!/usr/bin/env python3
"""Checks the list of components beside the finished packages: that it is what its schema wants, that it
names every package with its sum, and all that the packages say they depend on.

Usage: check_sbom.py FOLDER SCHEMAS
"""

import hashlib
import json
import pathlib
import re
import subprocess
import sys

import jsonschema


def schema_breaches(listing, schemas):
    loaded = {path.name: json.loads(path.read_text(encoding="utf-8"))
              for path in schemas.glob("*.json")}
    main = next(one for one in loaded.values() if one["$id"].endswith("bom-1.6.schema.json"))
    # They refer to each other by the names of the files, beside the address of the main one.
    base = main["$id"].rpartition("/")[0]
    store = {f"{base}/{name}": schema for name, schema in loaded.items()}
    resolver = jsonschema.RefResolver.from_schema(main, store=store)
    validator = jsonschema.Draft7Validator(main, resolver=resolver,
                                           format_checker=jsonschema.FormatChecker())
    for error in validator.iter_errors(listing):
        yield f"{'/'.join(map(str, error.absolute_path))}: {error.message}"


def time_breaches(listing):
    # The validator knows the shape of a time only with modules that it does not bring.
    time = listing["metadata"]["timestamp"]
    if not re.fullmatch(r"\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ", time):
        yield f"metadata/timestamp: {time} is no time"


def package_breaches(listing, folder):
    named = {one["bom-ref"]: one for one in listing["components"]}
    links = {one["ref"]: one["dependsOn"] for one in listing["dependencies"]}
    files = sorted([*folder.glob("*.deb"), *folder.glob("*.zip")])
    if len(files) < 5:
        yield f"only {len(files)} packages in {folder}"
    for path in files:
        content = hashlib.sha256(path.read_bytes()).hexdigest()
        if named.get(path.name, {}).get("hashes") != [{"alg": "SHA-256", "content": content}]:
            yield f"{path.name}: not listed with its sum"
            continue
        depends = "" if path.suffix != ".deb" else subprocess.run(
            ["dpkg-deb", "-f", path, "Depends"], check=True, capture_output=True, text=True).stdout
        for other in re.findall(r"(?:^|, )([^ ,\n]+)", depends):
            if "kxxlate" not in other and other not in links[path.name]:
                yield f"{path.name}: depends on {other}, which is not listed"
    for ref, others in links.items():
        for other in others:
            if other not in named:
                yield f"{ref}: depends on {other}, which has no entry"
    if len(named) != len(listing["components"]):
        yield "two components have one name"


def main():
    folder, schemas = map(pathlib.Path, sys.argv[1:])
    paths = list(folder.glob("*.cdx.json"))
    if len(paths) != 1:
        sys.exit(f"There are {len(paths)} lists in {folder}.")
    listing = json.loads(paths[0].read_text(encoding="ascii"))
    breaches = [*schema_breaches(listing, schemas), *time_breaches(listing),
                *package_breaches(listing, folder)]
    for breach in breaches:
        print(breach)
    if breaches:
        sys.exit(1)
    print(f"Components: {len(listing['components'])} in {paths[0].name}, as the schema wants.")


if __name__ == "__main__":
    main()
