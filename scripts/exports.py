#!/usr/bin/env python3
"""Turns the list of exported names into what the linkers read.

usage: exports.py elf     NAMES.def OUTDIR OBJECT...
       exports.py windows --nm NM NAMES.def OUTDIR OBJECT...

NAMES.def holds one name a line, or `alias = name` for a second name of the same function. Written into OUTDIR:

  aliases.ld    linker script that defines each alias at its function's address
  exports.map   (elf) version script: exactly the listed names are visible
  exports.def   (windows) the DLL's names, undecorated
  import.def    (windows) the decorated names, for the import library
"""
import argparse
import pathlib
import re
import subprocess
import sys


def read_names(path):
    """The functions, and the aliases with the function each one names."""
    functions, aliases = [], {}
    for number, line in enumerate(pathlib.Path(path).read_text().splitlines(), 1):
        line = line.split(";")[0].strip()
        if not line or line == "EXPORTS" or line.startswith("LIBRARY"):
            continue
        match = re.fullmatch(r"(\w+)(?:\s*=\s*(\w+))?", line)
        if not match:
            sys.exit(f"{path}:{number}: not a name: {line}")
        name, target = match.groups()
        if name in aliases or name in functions:
            sys.exit(f"{path}:{number}: {name} is listed twice")
        if target:
            aliases[name] = target
        else:
            functions.append(name)
    for alias, target in aliases.items():
        if target not in functions:
            sys.exit(f"{path}: {alias} names {target}, which is no function of the list")
    return functions, aliases


def write(path, lines):
    """Writes only what changed, so that an unchanged list does not link everything anew."""
    text = "\n".join(lines) + "\n"
    if not path.exists() or path.read_text() != text:
        path.write_text(text)
    else:
        path.touch()


def stack_sizes(nm, objects, functions):
    """Each function's decorated name, as the objects define it: kx_name@8."""
    wanted, found = set(functions), {}
    out = subprocess.run([nm, "--defined-only", *objects], check=True, capture_output=True, text=True).stdout
    for symbol in re.findall(r" T _(\S+)", out):
        name = symbol.split("@")[0]
        if name in wanted:
            found[name] = symbol
    missing = sorted(wanted - found.keys())
    if missing:
        sys.exit("listed but not defined: " + ", ".join(missing))
    return found


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("mode", choices=["elf", "windows"])
    parser.add_argument("--nm", default="nm")
    parser.add_argument("names")
    parser.add_argument("outdir", type=pathlib.Path)
    parser.add_argument("objects", nargs="*")
    args = parser.parse_args()
    functions, aliases = read_names(args.names)
    if args.mode == "elf":
        write(args.outdir / "aliases.ld", [f"{a} = {t};" for a, t in aliases.items()])
        listed = "".join(f" {n};" for n in functions + list(aliases))
        write(args.outdir / "exports.map", [f"{{ global:{listed} local: *; }};"])
        return
    decorated = stack_sizes(args.nm, args.objects, functions)
    decorated.update({a: a + decorated[t][len(t):] for a, t in aliases.items()})
    write(args.outdir / "aliases.ld", [f'"_{decorated[a]}" = "_{decorated[t]}";' for a, t in aliases.items()])
    exported = [f"  {n} = {decorated[aliases.get(n, n)]}" for n in functions + list(aliases)]
    write(args.outdir / "exports.def", ["LIBRARY KXGEOM32.dll", "EXPORTS", *exported])
    write(args.outdir / "import.def", ["LIBRARY KXGEOM32.dll", "EXPORTS", *[f"  {d}" for d in decorated.values()]])


if __name__ == "__main__":
    main()
