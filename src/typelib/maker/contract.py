"""Reads the lists of the published contract, which the C++ sources expand, row by row."""
import pathlib
import re

TYPELIB = pathlib.Path(__file__).resolve().parent.parent

# What rows and constants name without spelling it out.
SYSTEM_CONSTANTS = {"DISPID_VALUE": 0, "DISPID_FONT": -512, "DISPID_ABOUTBOX": -552}

ROW = re.compile(r"QV_(\w+)(?:\((.*)\))?$")
ARGUMENT = re.compile(r'L"([^"\\]*)"|([^",\s]+)')
CONSTANT = re.compile(r'inline constexpr \w+ (\w+)(?:\[\])? = (?:L"(.*)"|(\d+));$')


def value_of(word, macros):
    """A number, or the word itself where it names something."""
    word = macros.get(word, word)
    if word in SYSTEM_CONSTANTS:
        return SYSTEM_CONSTANTS[word]
    return int(word, 0) if re.match(r"-?\d", word) else word


def rows_of(path, macros=None):
    """Yields (kind, arguments) for each row of a list and of the lists that it includes."""
    macros = dict(macros or {})
    for line in (TYPELIB / path).read_text(encoding="ascii").splitlines():
        line = line.strip()
        if not line or line.startswith("//"):
            continue
        if line.startswith("#"):
            if definition := re.match(r"#define (\w+) (\S+)$", line):
                macros[definition[1]] = definition[2]
            elif included := re.match(r'#include "typelib/(members/\w+\.inc)"$', line):
                yield from rows_of(included[1], macros)
            continue
        row = ROW.match(line)
        if not row or ARGUMENT.sub("", row[2] or "").strip(", "):
            raise SystemExit(f"{path}: cannot read the row {line}")
        words = ARGUMENT.findall(row[2] or "")
        yield row[1], [text if not word else value_of(word, macros) for text, word in words]


def members_of(name):
    """The members of an interface or event set, in vtable order: (kind, name, identifier, type, help text)."""
    for kind, arguments in rows_of(f"members/{name}.inc"):
        member, identifier, *types, help_text = arguments
        yield kind, member, identifier, types[0] if types else None, help_text


def enumerations():
    """(name, constant of the identifier, [(name, value), …]) for each, in their order."""
    result = []
    for kind, arguments in rows_of("Enumerations.inc"):
        if kind == "ENUM":
            result.append((*arguments, []))
        elif kind == "ENUM_VALUE":
            result[-1][2].append(tuple(arguments))
    return result


def identifiers():
    """The 16 bytes of each identifier, by the name of its constant."""
    result = {}
    for kind, (constant, *numbers) in rows_of("Guids.inc"):
        first, second, third, *rest = numbers[1:] if kind == "INTERFACE_ID" else numbers
        result[constant] = b"".join(
            (first.to_bytes(4, "little"), second.to_bytes(2, "little"), third.to_bytes(2, "little"), bytes(rest))
        )
    return result


def constants(path):
    """The numbers and texts that a header defines, by name."""
    lines = (TYPELIB / path).read_text(encoding="ascii").splitlines()
    found = filter(None, map(CONSTANT.match, lines))
    return {each[1]: int(each[3]) if each[3] else each[2] for each in found}
