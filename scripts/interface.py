#!/usr/bin/env python3
"""Describes the exported functions and the records as the headers declare them.

usage: interface.py [INCLUDE_DIR]      prints the description as JSON

A C parser reads the prototypes, and the comment above each one says the rest: what every parameter is for, whether it
is read or written, and what comes back. In a comment, name[n] is an array of n elements, n a number or an expression
of other parameters: *count is what count points to, a list stands for the number of its items. A pointer without
brackets is to one record, or to what its text says.
"""
import dataclasses
import json
import pathlib
import re
import subprocess
import sys

from pycparser import c_ast, c_parser

# What parses a comment: the text up to the first tag, then one tag after the other.
TAG = re.compile(r"@param\[(?P<direction>in|out|in,out)\] (?P<names>\w+(?:\[[^\]]*\])?(?:,\w+(?:\[[^\]]*\])?)*)  (?P<text>\S.*)"
                 r"|@return (?P<result>\S.*)", re.S)
COMMENT = re.compile(r"/\*\*\n(?P<comment>(?:(?!\*/).)*?)\n \*/\nKX_API\s[^;(]*\bKX_CALL\s+(?P<name>\w+)\s*\(", re.S)
# Just enough of the compiler's own words for a parser of plain C.
PLAIN_C = ["-D__attribute__(x)=", "-D__extension__="]


@dataclasses.dataclass
class Parameter:
    name: str
    type: str
    direction: str = ""
    length: str = ""  # of an array
    text: str = ""


@dataclasses.dataclass
class Field:
    name: str
    type: str
    count: int = 1  # of an array; rows times columns


@dataclasses.dataclass
class Record:
    name: str
    fields: list


@dataclasses.dataclass
class Function:
    name: str
    header: str
    line: int
    result: str
    parameters: list
    summary: str = ""
    returns: str = ""
    faults: list = dataclasses.field(default_factory=list)


def type_name(node, declared=""):
    """The C spelling of a type; functions keep theirs around the name."""
    if isinstance(node, c_ast.PtrDecl):
        if isinstance(node.type, c_ast.FuncDecl):
            arguments = ", ".join(type_name(p.type) for p in node.type.args.params) if node.type.args else "void"
            return f"{type_name(node.type.type)} (*{declared})({arguments})"
        return type_name(node.type).rstrip() + (" *" if not type_name(node.type).endswith("*") else "*") + (
            " const" if "const" in node.quals else "")
    if isinstance(node, c_ast.TypeDecl):
        return " ".join([*node.quals, *getattr(node.type, "names", ["struct", getattr(node.type, "name", "")])])
    raise ValueError(f"no type for a parameter: {node}")


def read_comment(function, comment):
    """Fills in what the comment says, and notes what it lacks."""
    lines = comment.split("\n")
    if any(not line.startswith(" *") for line in lines):
        return function.faults.append("a comment line does not begin with ' *'")
    text = "\n".join(line[2:] for line in lines)
    sentence, *tags = re.split(r"\n (?=@)", text)
    function.summary = " ".join(sentence.split())
    if not re.fullmatch(r"[A-Z].*[.:]", function.summary):
        function.faults.append("the comment does not begin with a sentence")
    by_name = {p.name: p for p in function.parameters}
    for number, tag in enumerate(tags):
        match = TAG.fullmatch(tag)
        if not match:
            function.faults.append(f"not of the agreed form: {tag.splitlines()[0]}")
        elif match["result"]:
            function.returns = " ".join(match["result"].split())
            if number != len(tags) - 1:
                function.faults.append("@return is not the last")
        else:
            for name, _, length in re.findall(r"(\w+)(\[([^\]]*)\])?", match["names"]):
                parameter = by_name.get(name)
                if parameter is None:
                    function.faults.append(f"{name} is described, but no parameter")
                elif parameter.direction:
                    function.faults.append(f"{name} is described twice")
                else:
                    parameter.direction, parameter.length = match["direction"], length
                    parameter.text = " ".join(match["text"].split())
    for p in function.parameters:
        if not p.direction:
            function.faults.append(f"{p.name} is not described")
        elif p.direction != "in" and only_read(p.type):
            function.faults.append(f"{p.name} is only read, yet [{p.direction}]")
    if bool(function.returns) == (function.result == "void"):
        function.faults.append("@return is for functions that return something, and for all of them")


def only_read(kind):
    """True for values and for pointers to what is const."""
    pointee = kind[:-1].strip()
    return not kind.endswith("*") or pointee.endswith("const") or (pointee.startswith("const ") and "*" not in pointee)


def field(declaration):
    node, count = declaration.type, 1
    while isinstance(node, c_ast.ArrayDecl):
        node, count = node.type, count * int(node.dim.value)
    if isinstance(node, c_ast.TypeDecl) and isinstance(node.type, c_ast.Struct):
        return Field(declaration.name, f"struct {node.type.name}", count)
    return Field(declaration.name, type_name(node, declaration.name), count)


def read_interface(include):
    """All exported functions and all records, in the order of the headers."""
    include = pathlib.Path(include)
    text = subprocess.run(["cpp", "-ffreestanding", "-I", include, *PLAIN_C, include / "kxgeom.h"], check=True,
                          capture_output=True, text=True).stdout
    text = re.sub(r"^#pragma.*$", "", text, flags=re.M)
    functions, records = [], []
    for node in c_parser.CParser().parse(text, "kxgeom.h").ext:
        if isinstance(node, c_ast.Decl) and isinstance(node.type, c_ast.FuncDecl):
            given = node.type.args.params if node.type.args else []
            parameters = [Parameter(p.name, type_name(p.type, p.name)) for p in given if p.name]
            functions.append(Function(node.name, pathlib.Path(node.coord.file).name, node.coord.line,
                                      type_name(node.type.type), parameters))
        elif isinstance(node, c_ast.Typedef) and isinstance(getattr(node.type, "type", None), c_ast.Struct):
            records.append(Record(node.name, [field(each) for each in node.type.type.decls]))
    comments = {match["name"]: match["comment"] for header in sorted((include / "kxgeom").glob("*.h"))
                for match in COMMENT.finditer(header.read_text())}
    for function in functions:
        if function.name in comments:
            read_comment(function, comments[function.name])
        else:
            function.faults.append("has no comment of its own")
    return functions, records


if __name__ == "__main__":
    here = pathlib.Path(__file__).resolve().parent.parent
    found = read_interface(sys.argv[1] if len(sys.argv) > 1 else here / "include")
    print(json.dumps([[dataclasses.asdict(each) for each in part] for part in found], indent=1))
