// Edits the text of a form and its companion file: its own lines where nothing changed, new ones where
// something did.
#pragma once

#include "gallery/form/Companion.h"
#include "gallery/form/FormTree.h"
#include "gallery/form/PropertyBag.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillet::gallery {

struct SavedForm {
    std::string text;      ///< of the form file
    std::string companion; ///< of the file beside it; empty where there is nothing to put in
};

/// Whether a record of the companion file is a long text or a picture.
enum class IsText { No, Yes };

/// Puts the values of controls into the lines of the form that they were read from. A line whose value the
/// control still has stays byte for byte, whoever wrote it; so does one of a value that the control never
/// saved, such as a default. One of a value that has become the default goes.
class FormEditor {
public:
    /// original is the form file's bytes, and borrowed; companionName is the name of the file beside it, to
    /// whose end new pictures and long texts are added.
    FormEditor(std::string_view original, Companions& companions, std::wstring companionName);

    /// bag is what the control of that node saves now, before what it would have saved when it was loaded;
    /// null where nobody knows.
    void save(PropertyBag const& bag, PropertyBag const* before, FormNode const& node);

    /// The form with everything that was saved; once, at the end.
    SavedForm finish();

private:
    /// Lines to put in place of a run of the form's own lines, or before one.
    struct Edit {
        int count = 0; ///< how many lines go
        std::vector<std::wstring> lines;
    };

    void replace(int first, int count, std::vector<std::wstring> lines);
    void write(FormNode const& node, FormProperty const* property, std::wstring_view name,
               std::wstring const& value);
    void saveEntry(PropertyBag::Entry const& entry, FormNode const& node, Variant const* before);
    void saveFont(std::wstring const& name, IFont& font, FormNode const& node);
    bool saveLongText(std::wstring const& name, std::wstring_view text, FormNode const& node);
    void savePicture(std::wstring const& name, std::string const& bytes, FormNode const& node);
    void refer(FormNode const& node, FormProperty const* property, std::wstring const& name,
               std::string_view record, IsText isText);
    bool isOwn(ResourceReference const& reference) const noexcept;
    bool isLost(FormProperty const& property) const;
    std::optional<std::string_view> recordOf(FormProperty const* property, IsText isText) const;
    std::wstring indentOf(FormNode const& node) const;

    std::vector<std::string_view> m_lines;
    FormCoding m_coding;
    Companions& m_companions;
    std::wstring m_companionName;
    Companion m_companion;            ///< the one of that name, with what was added
    std::multimap<int, Edit> m_edits; ///< by their first line, from 1
    std::vector<int> m_lost;          ///< lines that refer to nothing in the companion file
};

} // namespace quillet::gallery
