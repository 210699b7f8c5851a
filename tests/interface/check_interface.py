#!/usr/bin/env python3
"""Compares the headers, the list of exported names, the sources and a built library; every mismatch is one line.

usage: check_interface.py SOURCE_DIR --library LIB --reader NM_OR_OBJDUMP --cc CC --cxx CXX

Headers: each prototype has a comment of the agreed form, stands under a section title that names a source file of the
room, and that file defines it, in the header's order. Names: headers, list and library agree exactly, and an alias has
its function's address. Each header compiles alone as C99 and as C++. LIB is a shared library, read with nm, or a DLL,
read with objdump.
"""
import argparse
import pathlib
import re
import subprocess
import sys

VB_ALIAS = re.compile(r"vb[12]?$")
TOKEN = re.compile(
    r"/\*\*\n(?P<comment>.*?)\n \*/\n"
    r"|/\* ---- (?P<section>.+?) ---- \*/"
    r"|/\*.*?\*/"
    r"|KX_API\s+(?P<result>[^;()]+?)\s*\bKX_CALL\s+(?P<name>\w+)\s*\((?P<parameters>[^;]*)\);", re.S)

faults = []


def fault(where, text):
    faults.append(f"{where}: {text}")


def parameters(text):
    """Name -> type of each parameter. A comma inside the parentheses of a function pointer separates nothing."""
    found, depth, part = {}, 0, ""
    for char in text + ",":
        depth += (char == "(") - (char == ")")
        if char == "," and depth == 0:
            match = re.fullmatch(r"\s*(.+?)\(\*(\w+)\)\(.*\)\s*|\s*(.+?)(\w+)\s*", part, re.S)
            if match and part.strip() != "void":
                found[match[2] or match[4]] = "function" if match[2] else " ".join(match[3].split())
            part = ""
        else:
            part += char
    return found


def only_read(kind):
    """True for values and for pointers to what is const."""
    pointee = kind[:-1].strip()
    return not kind.endswith("*") or pointee.endswith("const") or (pointee.startswith("const ") and "*" not in pointee)


def check_comment(where, comment, result, declared):
    lines = comment.split("\n")
    if any(not line.startswith(" *") for line in lines):
        return fault(where, "a comment line does not begin with ' *'")
    text = "\n".join(line[2:] for line in lines)
    sentence, *tags = re.split(r"\n (?=@)", text)
    if not re.fullmatch(r"\s*[A-Z].*[.:]", sentence, re.S):
        fault(where, "the comment does not begin with a sentence")
    seen = []
    for number, tag in enumerate(tags):
        match = re.fullmatch(r"@param\[(in|out|in,out)\] (\w+(?:,\w+)*)  \S.*", tag, re.S)
        if match:
            seen += match[2].split(",")
            for name in match[2].split(","):
                if match[1] != "in" and only_read(declared.get(name, "*")):
                    fault(where, f"{name} is only read, yet [{match[1]}]")
        elif not re.match(r"@return \S", tag):
            fault(where, f"not of the agreed form: {tag.splitlines()[0]}")
        elif number != len(tags) - 1:
            fault(where, "@return is not the last")
    for name in sorted(set(seen) | set(declared)):
        if seen.count(name) != 1 or name not in declared:
            fault(where, f"parameter {name} is in the prototype {int(name in declared)} times, in @param {seen.count(name)}")
    if any(tag.startswith("@return") for tag in tags) == (result == "void"):
        fault(where, "@return is for functions that return something, and for all of them")


def read_header(source, header, aliases):
    """Checks one header and gives the names it declares."""
    text, room, names = header.read_text(), source / header.stem, []
    section, comment, position, previous = None, None, 0, 0
    body = ""
    for token in TOKEN.finditer(text):
        between = text[previous:token.start()]
        previous = token.end()
        line = text.count("\n", 0, token.start()) + 1
        if token["section"]:
            section, comment, position = token["section"], None, 0
            file = room / (section.replace(" ", "_") + ".cpp")
            body = file.read_text() if file.exists() else ""
            if not body:
                fault(f"{header.name}:{line}", f"section '{section}' has no source {room.name}/{file.name}")
        elif token["comment"] is not None:
            comment = token["comment"]
        elif token["name"]:
            name = token["name"]
            where = f"{header.name}:{line}: {name}"
            names.append(name)
            if comment is None or between.strip():
                fault(where, "has no comment of its own")
            else:
                check_comment(where, comment, token["result"], parameters(token["parameters"]))
            comment = None
            if section is None:
                fault(where, "stands in no section")
            elif name not in aliases and body:
                found = re.search(rf"\bKX_CALL {name}\(", body)
                if not found:
                    fault(where, f"is not defined in {room.name}/{file.name}")
                elif found.start() < position:
                    fault(where, f"stands elsewhere in the order of {room.name}/{file.name}")
                else:
                    position = found.start()
    if text.count("KX_API") != len(names):
        fault(header.name, f"{text.count('KX_API')} times KX_API, but {len(names)} prototypes were read")
    return names


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

    functions, aliases = read_names(args.source / "include" / "kxgeom32.def")
    listed = set(functions) | set(aliases)
    headers = sorted((args.source / "include").rglob("*.h"))
    declared = [name for header in headers if header.parent.name == "kxgeom" and header.stem not in ("export", "types")
                for name in read_header(args.source, header, aliases)]
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
