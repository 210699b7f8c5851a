#!/usr/bin/env python3
"""check_digest.py names NAMES.def SOURCE...     each name is either called in a source or left out in its head comment
check_digest.py compare NATIVE COMMAND...     the native program and the other build's print the same lines (77: no native);
                                              lines that begin with ~ hold numbers, which may differ in their last places
"""
import math
import pathlib
import re
import subprocess
import sys

# With the systems' own sines and logarithms, which are right to within one of these, and what they go into.
MOST_ULPS = 4.0


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


def ulps(ours, theirs):
    """How far two printed lines are apart at most, in units of the last place of the larger of the number compared and
    the largest that went in; infinite when they differ in a whole number or where one of them ends."""
    (_, name, scale, *a), (_, other_name, _, *b) = (line.replace(":", "").split() for line in (ours, theirs))
    if name != other_name or len(a) != len(b):
        return math.inf
    scale, most = float.fromhex(scale), 0.0
    for one, other in zip(a, b):
        if one == other:
            continue
        if "." not in one and "x" not in one:  # a whole number, infinity or not a number
            return math.inf
        x, y = float.fromhex(one), float.fromhex(other)
        most = max(most, abs(x - y) / math.ulp(max(scale, abs(x))))
    return most


def compare(native, *other):
    if not pathlib.Path(native).exists():
        print(f"no native build to compare with: {native}")
        return 77
    ours, theirs = (subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()
                    for command in ([native], other))
    worst, faults = {}, []
    for a, b in zip(ours, theirs):
        if a.startswith("~"):
            apart = ulps(a, b)
            worst[a.split()[1]] = max(worst.get(a.split()[1], 0.0), apart)
            if apart > MOST_ULPS:
                faults.append(f"native {a}\nother  {b}")
        elif a != b:
            faults.append(f"native {a}\nother  {b}")
    print("\n".join(faults or [line for line in ours if not line.startswith("~")]))
    apart = sorted(worst.items(), key=lambda each: -each[1])
    print(f"{len(worst)} functions within {MOST_ULPS} units of the last place, the farthest:",
          ", ".join(f"{name} {most:.2f}" for name, most in apart[:5]))
    return 1 if faults or len(ours) != len(theirs) or len(ours) < 2 else 0


if __name__ == "__main__":
    sys.exit({"names": names, "compare": compare}[sys.argv[1]](*sys.argv[2:]))
