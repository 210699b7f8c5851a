#!/usr/bin/env python3
"""check_digest.py names NAMES.def SOURCE...     each name is either called in a source or left out in its head comment
check_digest.py compare NATIVE COMMAND...     the native program and the other build's print the same lines (77: no native)
"""
import pathlib
import re
import subprocess
import sys


def names(listed, *sources):
    sys.dont_write_bytecode = True
    sys.path.insert(0, str(pathlib.Path(listed).parent.parent / "scripts"))
    from exports import read_names

    functions, aliases = read_names(listed)
    wanted = set(functions) | {alias for alias in aliases if not re.search("vb[12]?$", alias)}  # those are not declared
    texts = [re.fullmatch(r"((?://[^\n]*\n)*)(.*)", pathlib.Path(source).read_text(), re.S).groups() for source in sources]
    heads, codes = ("\n".join(parts) for parts in zip(*texts))
    left_out, called = (set(re.findall(r"\b(?:kx|ll)_[a-z]\w*", text)) for text in (heads, re.sub("//.*", "", codes)))
    faults = [f"{name}: neither called nor left out" for name in sorted(wanted - left_out - called)]
    faults += [f"{name}: called, yet left out" for name in sorted(left_out & called)]
    faults += [f"{name}: left out, but not in the list" for name in sorted(left_out - wanted)]
    print("\n".join(faults + [f"{len(called & wanted)} called, {len(left_out)} left out, {len(faults)} faults"]))
    return 1 if faults else 0


def compare(native, *other):
    if not pathlib.Path(native).exists():
        print(f"no native build to compare with: {native}")
        return 77
    ours, theirs = (subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
                    for command in ([native], other))
    faults = [f"native {a}\nother  {b}" for a, b in zip(ours, theirs) if a != b]
    print("\n".join(faults or ours))
    return 1 if faults or len(ours) != len(theirs) or len(ours) < 2 else 0


if __name__ == "__main__":
    sys.exit({"names": names, "compare": compare}[sys.argv[1]](*sys.argv[2:]))
