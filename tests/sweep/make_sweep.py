#!/usr/bin/env python3
"""Writes what the sweep knows of the interface: every record's fields and every exported function, as the headers say.

usage: make_sweep.py SOURCE_DIR OUT.cpp
"""
import pathlib
import re
import sys


def flat_fields(record, records, base="0"):
    """The place of every double and int32_t of a record as a C expression, those of records in it and of arrays too."""
    for field in record.fields:
        start = f"{base} + offsetof({record.name}, {field.name})"
        for i in range(field.count):
            place = start + (f" + {i} * sizeof({field.type})" if field.count > 1 else "")
            if field.type in ("double", "int32_t"):
                yield place, field.type == "double"
            elif field.type in records:
                yield from flat_fields(records[field.type], records, place)


def length(parameter, names):
    """The number of elements as a function of all integer parameters; *n is the integer that n points to."""
    if not parameter.length:
        return "nullptr"
    values = re.sub(r"(^|[(+*-])\*", r"\1", parameter.length)
    words = re.sub(r"\b(?!max\b)([a-z]\w*)\b", lambda match: f"n[{names.index(match[1])}]", values)
    return f"[](const long *n) -> long {{ (void)n; return {words}; }}"


def main():
    source, out = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    sys.path.insert(0, str(source / "scripts"))
    sys.dont_write_bytecode = True
    from interface import read_interface

    functions, records = read_interface(source / "include")
    by_name = {record.name: record for record in records}
    lines = ['#include "sweep.hpp"', "", "namespace sweep {", ""]
    layouts = {"double": "{0, true}", "int32_t": "{0, false}"}
    for record in records:
        layouts[record.name] = ", ".join(f"{{{place}, {str(real).lower()}}}" for place, real in flat_fields(record, by_name))
    for name, fields in layouts.items():
        lines += ["template <>", f"const std::vector<field> &fields_of<{name}>() {{",
                  f"  static const std::vector<field> all = {{{fields}}};", "  return all;", "}"]
    lines += ["", "const std::vector<function> functions = {"]
    for function in functions:
        names = [p.name for p in function.parameters]
        in_lengths = set(re.findall(r"[a-z]\w*", " ".join(p.length for p in function.parameters)))
        parameters = ", ".join(
            f'{{"{p.name}", {str(p.direction != "in").lower()}, {length(p, names)},'
            f' {str(p.name in in_lengths).lower()}, {str("not checked" in p.text).lower()}}}'
            for p in function.parameters)
        lines.append(f'  describe("{function.name}", "{function.header}:{function.line}", {function.name}, {{{parameters}}},'
                     f" {str(function.result == 'list_hdr *' and 'array' not in function.name).lower()},"
                     f" {str('NaN' in function.returns).lower()}),")
    lines += ["};", "", "}  // namespace sweep", ""]
    text = "\n".join(lines)
    if not out.exists() or out.read_text() != text:
        out.write_text(text)


if __name__ == "__main__":
    main()
