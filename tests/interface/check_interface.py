#!/usr/bin/env python3
"""Compares the headers, the list of exported names, the sources and a built library; every mismatch is one line.

usage: check_interface.py SOURCE_DIR --library LIB --reader NM_OR_OBJDUMP --cc CC --cxx CXX

Headers: each prototype has a complete comment, stands under a section title that names a source file of the room, and that
file defines it, in the header's order. Names: headers, list and library agree exactly, and an alias has
its function's address. Each header compiles alone as C99 and as C++. LIB is a shared library, read with nm, or a DLL,
read with objdump.
"""
import argparse
import pathlib
import re
import subprocess
import sys

VB_ALIAS = re.compile(r"vb[12]?$")
TOKEN = re.compile(r"/\* ---- (?P<section>.+?) ---- \*/|/\*.*?\*/|\bKX_CALL\s+(?P<name>\w+)\s*\([^;]*;", re.S)

faults = []


def fault(where, text):
    faults.append(f"{where}: {text}")


def check_places(source, header, aliases):
    """Each prototype of a header stands under the title of the file that defines it, in the order of that file."""
    text, room = header.read_text(), source / header.stem
    section, position, body, found = None, 0, "", 0
    for token in TOKEN.finditer(text):
        where = f"{header.name}:{text.count(chr(10), 0, token.start()) + 1}"
        if token["section"]:
            section, position = token["section"], 0
            file = room / (section.replace(" ", "_") + ".cpp")
            body = file.read_text() if file.exists() else ""
            if not body:
                fault(where, f"section '{section}' has no source {room.name}/{file.name}")
        elif token["name"]:
            name = token["name"]
            found += 1
            if section is None:
                fault(where, f"{name} stands in no section")
            elif name not in aliases and body:
                definition = re.search(rf"\bKX_CALL {name}\(", body)
                if not definition:
                    fault(where, f"{name} is not defined in {room.name}/{file.name}")
                elif definition.start() < position:
                    fault(where, f"{name} stands elsewhere in the order of {room.name}/{file.name}")
                else:
                    position = definition.start()
    if text.count("KX_API") != found:
        fault(header.name, f"{text.count('KX_API')} times KX_API, but {found} prototypes were read")


def library_names(library, reader):
    """Exported name -> address."""
    if library.suffix.lower() != ".dll":
        out = subprocess.run([reader, "-D", "--defined-only", library], check=True, capture_output=True, text=True).stdout
        return {name: address for address, name in re.findall(r"^(\w+) \w (\S+)$", out, re.M)}
    out = subprocess.run([reader, "-p", library], check=True, capture_output=True, text=True).stdout
    addresses = dict(re.findall(r"\[ *(\d+)\] \+base\[ *\d+\] +(\w+) Export RVA", out))
    names = out[out.index("[Ordinal/Name Pointer] Table"):]
    names = names[:names.index("\n\n")]
    return {name: addresses[number] for number, name in re.findall(r"\[ *(\d+)\].* (\S+)$", names, re.M)}


def compile_alone(source, headers, cc, cxx):
    warnings = ["-pedantic-errors", "-Wall", "-Wextra", "-Werror", "-fsyntax-only", "-I", source / "include", "-"]
    for header in headers:
        name = header.relative_to(source / "include").as_posix()
        for compiler, language, standard in [(cc, "c", "c99"), (cxx, "c++", "c++98"), (cxx, "c++", "c++20")]:
            run = subprocess.run([compiler, "-x", language, f"-std={standard}", *warnings], text=True, capture_output=True,
                                 input=f'#include "{name}"\nextern int not_empty;\n')
            if run.returncode:
                fault(name, f"does not compile alone with {compiler} -std={standard}\n{run.stderr}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("source", type=pathlib.Path)
    parser.add_argument("--library", type=pathlib.Path, required=True)
    for tool in ("--reader", "--cc", "--cxx"):
        parser.add_argument(tool, required=True)
    args = parser.parse_args()
    sys.path.insert(0, str(args.source / "scripts"))
    sys.dont_write_bytecode = True
    from exports import read_names
    from interface import read_interface

    functions, aliases = read_names(args.source / "include" / "kxgeom32.def")
    listed = set(functions) | set(aliases)
    headers = sorted((args.source / "include").rglob("*.h"))
    described, _ = read_interface(args.source / "include")
    declared = [function.name for function in described]
    for function in described:
        for text in function.faults:
            fault(f"{function.header}:{function.line}: {function.name}", text)
    for header in headers:
        if header.parent.name == "kxgeom" and header.stem not in ("export", "types"):
            check_places(args.source, header, aliases)
    exported = library_names(args.library, args.reader)

    for name in sorted({name for name in declared if declared.count(name) > 1}):
        fault(name, "is declared more than once")
    hidden = {alias for alias in aliases if VB_ALIAS.search(alias)}
    for here, names, other, others in [
            ("the headers", set(declared), "kxgeom32.def", listed), ("kxgeom32.def", listed - hidden, "the headers", set(declared)),
            ("kxgeom32.def", listed, args.library.name, set(exported)), (args.library.name, set(exported), "kxgeom32.def", listed)]:
        for name in sorted(names - others):
            fault(name, f"is in {here}, but not in {other}")
    for alias, target in aliases.items():
        if exported.get(alias) != exported.get(target):
            fault(args.library.name, f"{alias} is not at the address of {target}")
    everything = (args.source / "include" / "kxgeom.h").read_text()
    for header in headers:
        if header.parent.name == "kxgeom" and header.stem != "export" and f'"kxgeom/{header.name}"' not in everything:
            fault("kxgeom.h", f"does not include {header.name}")
    compile_alone(args.source, headers, args.cc, args.cxx)

    print("\n".join(faults + [f"{len(declared)} prototypes, {len(listed)} names, {len(headers)} headers: {len(faults)} faults"]))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
