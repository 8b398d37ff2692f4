#!/usr/bin/env python3
"""Writes quillet.h, the published contract for C++ programs, from the lists of src/typelib/: header.py FILE"""
import pathlib
import sys
import uuid

sys.dont_write_bytecode = True  # the sources stay as they are
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "src/typelib/maker"))
import contract  # noqa: E402

CONTROLS = ["qvFlatCommand", "qvImageCommand", "FlatToolButton", "qvFlatOption", "qvFlatCheck"]
OPTION_CHECK = ("qvFlatOption", "qvFlatCheck")  # the others raise the events of command buttons

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


def braced(identifier):
    first, second, third, *_ = identifier.fields
    rest = ", ".join(f"0x{byte:02x}" for byte in identifier.bytes[8:])
    return f"{{0x{first:08x}, 0x{second:04x}, 0x{third:04x}, {{{rest}}}}}"


def number_of(identifier):
    return f"0x{identifier:08X}" if identifier > 0xFFFF else str(identifier)


def enumerations():
    for name, _, values in contract.enumerations():
        yield f"enum class {name} : long {{ " + ", ".join(f"{word} = {value}" for word, value in values) + " };"


def identifiers(control, rows):
    lines = [f"namespace {control} {{"]
    lines += [f"constexpr DISPID {name} = {number_of(number)};" for _, name, number, _, _ in rows]
    return [*lines, "}"]


def events(control, rows):
    lines = [f"namespace {control} {{"]
    for kind, name, number, _, help_text in rows:
        told = f"{name}({ARGUMENTS.get(kind, '')})" + (f": {help_text}" if help_text else "")
        lines += [f"// {told}", f"constexpr DISPID {name} = {number_of(number)};"]
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
    ids = {constant: uuid.UUID(bytes_le=data) for constant, data in contract.identifiers().items()}
    classes = {each: list(contract.members_of(each)) for each in CONTROLS}
    raised = {each: list(contract.members_of("optionCheckEvents" if each in OPTION_CHECK else "commandEvents"))
              for each in CONTROLS}
    texts = contract.constants("Texts.h")

    types = []  # (name, its identifier): what has a __uuidof
    lines = [f"constexpr GUID LIBID_Quillet = {braced(ids['kLibraryId'])};", ""]
    for each in CONTROLS:
        key = constant_of(each)
        types += [(each, ids[key + "Class"]), ("_" + each, ids[key + "Interface"]), ("__" + each, ids[key + "Events"])]
        lines += [f"// {texts[key + 'Text']}: \"Quillet.{each}\"",
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
        lines += interface("_" + each, ids[constant_of(each) + "Interface"], classes[each])
    lines += ["// The event interfaces are called through Invoke alone."]
    lines += [f'struct DECLSPEC_UUID("{number}") DECLSPEC_NOVTABLE {name} : IDispatch {{}};'
              for name, number in types if name.startswith("__")]
    lines += ["", "// The classes, for __uuidof."]
    lines += [f'struct DECLSPEC_UUID("{number}") {name};' for name, number in types if name[0] != "_"]
    lines += ["", "} // namespace Quillet", "", "#ifdef __CRT_UUID_DECL // how mingw-w64 learns what __uuidof answers"]
    for name, number in types:
        lines.append(f"__CRT_UUID_DECL(Quillet::{name}, {braced(number).replace('{', '').replace('}', '')})")
    return TOP + "\n".join([*lines, "#endif", ""])


file = pathlib.Path(sys.argv[1])
file.parent.mkdir(parents=True, exist_ok=True)
file.write_text(header(), encoding="ascii")
