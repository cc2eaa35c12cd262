#!/usr/bin/env python3
"""Compares the names by which hosts of Microsoft's compiler link with those that a compiler gives
them, with what the DLL exports, and each of them with the function that it stands for.

Usage: check_microsoft_names.py CLANG NM LINKER UNDNAME CXXFILT ROOT LIBRARY

A name has an alias in cmake/KxXlateMicrosoft.def, or in the Xlate.h for these hosts (one that only
what includes that header may link), or stands in the former as one that has none on purpose. LIBRARY is
the import library; a host that needs what has no name there must not link.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

# What a host needs and does not get: it could not use them. Such a host does not link.
REFUSED = {
    "?FormatMessageA@CKxXlate@@SAXPEADKPEBD_KPEBV?$basic_string@DU?$char_traits@D@std@@"
    "V?$allocator@D@2@@std@@@Z",
    "??0CKxXlate@@IEAA@XZ",
    "??0CKxXlate@@QEAA@AEBV0@@Z",
    "??1CKxXlate@@MEAA@XZ",
}


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def probe_of(clang, root, folder):
    """A host's object file that needs whatever the header declares."""
    probe = folder + "/probe.obj"
    output_of(clang, "--target=x86_64-pc-windows-msvc", "-std=c++17", "-nostdinc",
              f"-I{root}/tests/abi/msvc_stubs", f"-I{root}/include", "-c",
              f"{root}/tests/abi/microsoft_names.cpp", "-o", probe)
    return probe


def imported(nm, probe):
    return set(re.findall(r"^ +U __imp_(\S+)$", output_of(nm, probe), re.M))


def unresolved(linker, probe, library):
    """What the linker finds nowhere, of what the library should have."""
    told = subprocess.run([linker, "-dll", "-noentry", "-nodefaultlib", "-errorlimit:0",
                           "-demangle:no", probe, library, f"-out:{probe}.dll"],
                          capture_output=True, text=True, check=False).stderr
    return set(re.findall(r"undefined symbol: __imp_(\S+)", told))


def same_form(demangled):
    """A function's name and parameters, as both demanglers could have written them."""
    text = re.sub(r"^.*?(?=CKxXlate::)", "", demangled)
    text = re.sub(r"\b(class|struct) ", "", text)
    text = text.replace("unsigned __int64", "unsigned long long").replace("(void)", "()")
    return re.sub(r" (?=[*&])", "", text)


def breaches(needed, missing, undname, cxxfilt, root):
    definition = (root / "cmake/KxXlateMicrosoft.def").read_text(encoding="ascii")
    header = (root / "include/microsoft/Xlate.h").read_text(encoding="ascii")
    exported = set((root / "tests/abi/exports_windows.txt").read_text(encoding="ascii").split())
    named = re.findall(r"^(\?\S+)==(\S+)$", definition, re.M)
    by_header = re.findall(r'/alternatename:__imp_(\S+)=__imp_(\S+)"', header)
    named += by_header
    plain = set(re.findall(r"^(\w+)$", definition.split("EXPORTS", 1)[1], re.M))
    none = set(re.findall(r"^; none: (\S+)$", definition, re.M))
    targets = {target for _, target in named} | {"getProductVersion"}
    aliases = {alias for alias, _ in named} | {"getProductVersion"}

    for name in sorted(exported ^ (targets | none)):
        yield f"exported or told of, but not both: {name}"
    for name in sorted(plain ^ targets):
        yield f"listed or the target of an alias, but not both: {name}"
    for name in sorted(needed ^ (aliases | REFUSED)):
        yield f"needed or told of, but not both: {name}"
    for name in sorted(missing ^ (REFUSED | {alias for alias, _ in by_header})):
        yield f"refused by the linker or on purpose, but not both: {name}"
    for alias in sorted({alias for alias, _ in named if sum(alias == a for a, _ in named) > 1}):
        yield f"told of twice, so that what should not link does: {alias}"
    for alias, target in named:
        meant = same_form(output_of(undname, alias).splitlines()[1])
        reached = same_form(output_of(cxxfilt, target).strip())
        if meant != reached:
            yield f"{alias} is {meant}, but reaches {reached}"


def main():
    clang, nm, linker, undname, cxxfilt, root, library = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        probe = probe_of(clang, root, folder)
        needed = imported(nm, probe)
        missing = unresolved(linker, probe, library)
    found = list(breaches(needed, missing, undname, cxxfilt, pathlib.Path(root)))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
