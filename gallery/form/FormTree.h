// What a form file says, as plain data: the form, its controls and their properties.
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace quillet::gallery {

/// A value that lies in the form's companion binary file: "buttons.frx":0000
struct ResourceReference {
    std::wstring file;
    unsigned long offset = 0;
    bool isText = false; ///< written with a leading $: a long text instead of a picture

    bool operator==(ResourceReference const&) const = default;
};

/// A value that is kept as it stands, such as the shortcut of a menu: ^S
struct Unquoted {
    std::wstring text;

    bool operator==(Unquoted const&) const = default;
};

using FormValue = std::variant<long, double, std::wstring, ResourceReference, Unquoted>;

struct FormProperty {
    std::wstring name;
    FormValue value;
    int line = 0;
};

/// BeginProperty … EndProperty: a property that is an object of its own, such as a font.
struct PropertyBlock {
    std::wstring name;
    std::wstring classId; ///< with its braces; empty when the line names none
    int line = 0;
    std::vector<FormProperty> properties;
    std::vector<PropertyBlock> blocks;
    int endLine = 0; ///< of EndProperty
};

/// Begin … End: the form or one of its controls.
struct FormNode {
    std::wstring library;
    std::wstring className;
    std::wstring name;
    int line = 0;
    std::vector<FormProperty> properties;
    std::vector<PropertyBlock> blocks;
    std::vector<FormNode> children;
    int endLine = 0; ///< of End

    /// The class as the form file writes it, such as VB.Form.
    std::wstring fullClass() const { return library + L"." + className; }
};

/// Object = "{library}#1.0#0"; "quilbt.ocx"
struct ObjectLine {
    std::wstring reference; ///< library, version and locale, as written
    std::wstring file;      ///< empty for a reference to a project instead of a file
    int line = 0;
};

/// How the texts of a form and its companion file are coded.
enum class FormCoding { Windows1252, Utf8 };

struct FormTree {
    FormCoding coding = FormCoding::Windows1252;
    std::wstring version;
    std::vector<ObjectLine> objects;
    FormNode form;
    std::vector<std::wstring> attributes; ///< the Attribute lines, as written
    std::wstring code;                    ///< everything after them, as written
};

} // namespace quillet::gallery
