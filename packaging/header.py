#!/usr/bin/env python3
"""Writes quillet.h, the published contract for C++ programs, from the lists of src/typelib/: header.py FILE"""
import pathlib
import re
import sys

CONTRACT = pathlib.Path(__file__).resolve().parent.parent / "src/typelib"
CONTROLS = ["qvFlatCommand", "qvImageCommand", "FlatToolButton", "qvFlatOption", "qvFlatCheck"]
OPTION_CHECK = ("qvFlatOption", "qvFlatCheck")  # the others raise the events of command buttons

ROW = re.compile(r'QV_(\w+)\((\w+),\s*(\w+),(?:\s*(\w+),)?\s*L"(.*)"\)$')
POINTER = "short* Button, short* Shift, float* x, float* y"
ARGUMENTS = {"KEY_EVENT": "short* KeyCode, short* Shift", "CHARACTER_EVENT": "short* KeyAscii", "POINTER_EVENT": POINTER}

TOP = """\
// Quillet 1.0, flat buttons for forms: interfaces, identifiers and enumerations for C++ programs.
// Generated; the library's lists of members are its source. C++11 or later: gcc, clang, Visual C++.
//
//     Quillet::_qvFlatCommand* button;                       // what a control can be asked, for ComPtr and __uuidof
//     Quillet::CLSID_qvFlatCommand                           // CoCreateInstance
//     Quillet::DIID___qvFlatCommand                          // its events: FindConnectionPoint, Advise
//     case Quillet::eventid::qvFlatCommand::Click:           // in the sink's Invoke
#pragma once

#ifndef __cplusplus
#error "quillet.h is for C++"
#endif

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>

namespace Quillet {
"""


def text_of(name):
    return (CONTRACT / name).read_text(encoding="ascii")


def members(name):
    """The rows of a list and of what it includes: (kind, name, identifier, type or None, help text)."""
    rows, words = [], {}
    for line in text_of(f"members/{name}.inc").splitlines():
        if define := re.match(r"#define (\w+) (\w+)$", line):
            words[define[1]] = define[2]
        elif include := re.match(r'#include "typelib/members/(\w+)\.inc"', line):
            if include[1] not in ("begin", "end"):
                rows += members(include[1])
        elif row := ROW.match(line):
            rows.append(row.groups())
        elif line.startswith("QV_"):
            sys.exit(f"header: {name}.inc: cannot read {line}")
    return [tuple(words.get(cell, cell) for cell in row) for row in rows]


def functions(kind, name, value):
    if kind in ("VALUE", "DEFAULT_VALUE"):
        return [f"get_{name}({value}* value)", f"put_{name}({value} value)"]
    if kind == "READ_ONLY":
        return [f"get_{name}({value}* value)"]
    if kind == "OBJECT":
        return [f"get_{name}({value}** value)", f"putref_{name}({value}* value)"]
    return [{"METHOD": f"{name}()",
             "FUNCTION": f"{name}({value}* result)",
             "WINDOW_PROCEDURE": f"{name}(LONG hwnd, LONG uMsg, LONG wParam, LONG lParam, LONG* result)"}[kind]]


def guids():
    """(constant in the lists, its eleven numbers), the interface's name left out."""
    found = re.findall(r"^QV_(?:INTERFACE_)?ID\((\w+),(?:\s*_\w+,)?((?:\s*0x\w+,?){11})\)", text_of("Guids.inc"), re.M)
    return {constant: re.findall(r"0x(\w+)", numbers) for constant, numbers in found}


def dashed(numbers):
    tail = "".join(numbers[3:])
    return "-".join([*numbers[:3], tail[:4], tail[4:]])


def braced(numbers):
    words = ["0x" + word for word in numbers]
    return "{" + ", ".join(words[:3]) + ", {" + ", ".join(words[3:]) + "}}"


def enumerations():
    lines = []
    for name, values in re.findall(r"QV_ENUM\((\w+), \w+\)(.*?)QV_ENUM_END", text_of("Enumerations.inc"), re.S):
        pairs = re.findall(r"QV_ENUM_VALUE\((\w+),\s*(\w+)\)", values)
        lines.append(f"enum class {name} : long {{ " + ", ".join(f"{word} = {value}" for word, value in pairs) + " };")
    return lines


def identifiers(control, rows):
    lines = [f"namespace {control} {{"]
    lines += [f"constexpr DISPID {name} = {number};" for _, name, number, _, _ in rows]
    return [*lines, "}"]


def events(control, rows):
    lines = [f"namespace {control} {{"]
    for kind, name, number, _, help_text in rows:
        told = f"{name}({ARGUMENTS.get(kind, '')})" + (f": {help_text}" if help_text else "")
        lines += [f"// {told}", f"constexpr DISPID {name} = {number};"]
    return [*lines, "}"]


def interface(name, identifier, rows):
    lines = [f'struct DECLSPEC_UUID("{identifier}") DECLSPEC_NOVTABLE {name} : IDispatch {{']
    for kind, member, _, value, help_text in rows:
        lines += [f"    // {help_text}"] if help_text else []
        lines += [f"    virtual HRESULT STDMETHODCALLTYPE {each} = 0;" for each in functions(kind, member, value)]
    return [*lines, "};", ""]


def constant_of(control):
    return "k" + control[0].upper() + control[1:]


def header():
    ids = guids()
    classes = {each: members(each) for each in CONTROLS}
    raised = {each: members("optionCheckEvents" if each in OPTION_CHECK else "commandEvents") for each in CONTROLS}
    texts = dict(re.findall(r'(k\w+)Text\[\] = L"(.*)";', text_of("Texts.h")))

    types = []  # (name, its identifier): what has a __uuidof
    lines = [f"constexpr GUID LIBID_Quillet = {braced(ids['kLibraryId'])};", ""]
    for each in CONTROLS:
        key = constant_of(each)
        types += [(each, ids[key + "Class"]), ("_" + each, ids[key + "Interface"]), ("__" + each, ids[key + "Events"])]
        lines += [f"// {texts[key]}: \"Quillet.{each}\"",
                  f"constexpr CLSID CLSID_{each} = {braced(ids[key + 'Class'])};",
                  f"constexpr IID IID__{each} = {braced(ids[key + 'Interface'])};",
                  f"constexpr IID DIID___{each} = {braced(ids[key + 'Events'])};", ""]
    lines += [*enumerations(), ""]

    lines += ["// The dispatch identifiers of properties and methods.", "namespace dispid {"]
    for each in CONTROLS:
        lines += identifiers(each, classes[each])
    lines += ["}", "", "// The dispatch identifiers of events, with their arguments: a sink's Invoke gets these, the last first.",
              "namespace eventid {"]
    for each in CONTROLS:
        lines += events(each, raised[each])
    lines += ["}", ""]

    for each in CONTROLS:
        identifier = dashed(ids[constant_of(each) + "Interface"])
        lines += interface("_" + each, identifier, classes[each])
    lines += ["// The event interfaces are called through Invoke alone."]
    lines += [f'struct DECLSPEC_UUID("{dashed(number)}") DECLSPEC_NOVTABLE {name} : IDispatch {{}};'
              for name, number in types if name.startswith("__")]
    lines += ["", "// The classes, for __uuidof."]
    lines += [f'struct DECLSPEC_UUID("{dashed(number)}") {name};' for name, number in types if name[0] != "_"]
    lines += ["", "} // namespace Quillet", "", "#ifdef __CRT_UUID_DECL // how mingw-w64 learns what __uuidof answers"]
    for name, number in types:
        lines.append(f"__CRT_UUID_DECL(Quillet::{name}, {', '.join('0x' + word for word in number)})")
    return TOP + "\n".join([*lines, "#endif", ""])


file = pathlib.Path(sys.argv[1])
file.parent.mkdir(parents=True, exist_ok=True)
file.write_text(header(), encoding="ascii")
