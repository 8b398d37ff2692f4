// Edits the text of a form: which lines go, stay and come, and how a value is written.
#include "gallery/form/FormEditor.h"

#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "gallery/form/ControlBag.h"
#include "gallery/form/FileBytes.h"
#include "gallery/form/Fonts.h"
#include "gallery/form/FormText.h"
#include "gallery/form/FormValue.h"
#include "gallery/form/Names.h"
#include "gallery/form/Pictures.h"

#include <algorithm>
#include <cwchar>

namespace quillet::gallery {

namespace {

constexpr std::wstring_view kIndent = L"   ";
constexpr std::size_t kNameWidth = 16;

/// The lines of a form file with whatever ends each.
std::vector<std::string_view> linesOf(std::string_view text)
{
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        std::size_t const end = text.find_first_of("\r\n");
        std::size_t size = text.size();
        if (end != std::string_view::npos)
            size = end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
        lines.push_back(text.substr(0, size));
        text.remove_prefix(size);
    }
    return lines;
}

std::wstring assignment(std::wstring_view indent, std::wstring_view name, std::wstring_view value)
{
    std::wstring line(indent);
    line += name;
    line.append(kNameWidth - std::min(name.size(), kNameWidth - 1), L' ');
    return line.append(L"=   ").append(value);
}

std::wstring quoted(std::wstring_view text)
{
    std::wstring result = L"\"";
    for (wchar_t const c : text)
        result.append(c == L'"' ? 2 : 1, c);
    return result += L'"';
}

std::wstring hexadecimal(unsigned long value, int digits)
{
    wchar_t text[16];
    std::swprintf(text, 16, L"%0*lX", digits, value);
    return text;
}

std::wstring scalarText(Variant const& value)
{
    switch (value.type()) {
    case VT_BOOL:
        return value.toBool() ? L"-1  'True" : L"0   'False";
    case VT_I4:
        return L"&H" + hexadecimal(static_cast<unsigned long>(value.toLong()), 8) + L"&";
    case VT_BSTR:
        return quoted(Bstr::viewOf(value.get().bstrVal));
    default:
        return std::wstring(value.toString().view());
    }
}

/// Whether a value is what the control says, in the control's type.
bool sameScalar(Variant const& value, Variant const& saved)
{
    return orFallback(false, [&] {
        Variant const converted = value.convertedTo(saved.type());
        if (saved.type() == VT_BSTR)
            return converted.toString().view() == saved.toString().view();
        return converted.toLong() == saved.toLong();
    });
}

bool sameScalar(FormValue const& inForm, Variant const& saved)
{
    auto const value = variantOf(inForm);
    return value && sameScalar(*value, saved);
}

bool sameFont(PropertyBlock const& block, IFont& saved)
{
    return orFallback(false, [&] {
        auto const inForm = makeFont(fontFaceOf(block));
        HFONT used = nullptr; // a font takes its real name when it is first used
        check(inForm->get_hFont(&used));
        check(saved.get_hFont(&used));
        return inForm->IsEqual(&saved) == S_OK;
    });
}

std::vector<std::wstring> fontLines(std::wstring const& indent, std::wstring_view name, IFont& font)
{
    std::wstring const inner = indent + std::wstring(kIndent);
    Bstr face;
    CY size{};
    SHORT weight = 0;
    SHORT charset = 0;
    BOOL underline = FALSE, italic = FALSE, strikethrough = FALSE;
    check(font.get_Name(face.put()));
    check(font.get_Size(&size));
    check(font.get_Weight(&weight));
    check(font.get_Charset(&charset));
    check(font.get_Underline(&underline));
    check(font.get_Italic(&italic));
    check(font.get_Strikethrough(&strikethrough));
    wchar_t points[32];
    std::swprintf(points, 32, L"%.10g", static_cast<double>(size.int64) / 10000);
    auto const flag = [](BOOL value) { return scalarText(Variant::ofBool(value != FALSE)); };
    return {indent + L"BeginProperty " + std::wstring(name) + L" " + std::wstring(kStandardFont),
            assignment(inner, L"Name", quoted(face.view())),
            assignment(inner, L"Size", points),
            assignment(inner, L"Charset", std::to_wstring(charset)),
            assignment(inner, L"Weight", std::to_wstring(weight)),
            assignment(inner, L"Underline", flag(underline)),
            assignment(inner, L"Italic", flag(italic)),
            assignment(inner, L"Strikethrough", flag(strikethrough)),
            indent + L"EndProperty"};
}

// Of a name that stands twice the last one counts: it is the one that the control was loaded with.

bool isNamed(FormProperty const& property, std::wstring_view name)
{
    auto const own = ownName(property.name);
    return own && sameName(*own, name);
}

FormProperty const* findProperty(FormNode const& node, std::wstring_view name)
{
    auto const found = std::find_if(node.properties.rbegin(), node.properties.rend(),
                                    [&](FormProperty const& each) { return isNamed(each, name); });
    return found == node.properties.rend() ? nullptr : &*found;
}

PropertyBlock const* findFont(FormNode const& node, std::wstring_view name)
{
    auto const found = std::find_if(node.blocks.rbegin(), node.blocks.rend(), [&](PropertyBlock const& each) {
        return isFont(each) && sameName(each.name, name);
    });
    return found == node.blocks.rend() ? nullptr : &*found;
}

std::optional<std::string_view> recordIn(Companion const& companion, unsigned long offset)
{
    try {
        return companion.record(offset);
    } catch (ValueFault const&) {
        return std::nullopt;
    }
}

} // namespace

FormEditor::FormEditor(std::string_view original, Companions& companions, std::wstring companionName)
    : m_lines(linesOf(original)), m_coding(codingOf(original)), m_companions(companions),
      m_companionName(std::move(companionName)), m_companion(companions.file(m_companionName))
{}

void FormEditor::save(PropertyBag const& bag, PropertyBag const* before, FormNode const& node)
{
    for (PropertyBag::Entry const& entry : bag.entries())
        saveEntry(entry, node, before ? before->find(entry.name) : nullptr);
    auto const becameDefault = [&](std::wstring_view name) {
        return before && before->find(name) && !bag.find(name);
    };
    for (FormProperty const& property : node.properties) {
        auto const name = ownName(property.name);
        if (name && becameDefault(*name))
            replace(property.line, 1, {});
        else if ((!name || !bag.find(*name)) && isLost(property))
            m_lost.push_back(property.line);
    }
    for (PropertyBlock const& block : node.blocks)
        if (isFont(block) && becameDefault(block.name))
            replace(block.line, block.endLine - block.line + 1, {});
}

SavedForm FormEditor::finish()
{
    // A new record may lie where such a line would find it.
    if (m_companion.bytes().size() > m_companions.file(m_companionName).bytes().size())
        for (int const line : m_lost)
            replace(line, 1, {});
    std::string text;
    for (int line = 1; line <= static_cast<int>(m_lines.size()) + 1; ++line) {
        auto const [first, last] = m_edits.equal_range(line);
        int gone = 0;
        for (auto each = first; each != last; ++each) {
            gone = std::max(gone, each->second.count);
            for (std::wstring const& added : each->second.lines)
                text += encoded(added, m_coding) + "\r\n";
        }
        if (gone > 0)
            line += gone - 1;
        else if (line <= static_cast<int>(m_lines.size()))
            text += m_lines[static_cast<std::size_t>(line) - 1];
    }
    return {text, m_companion.bytes()};
}

std::wstring FormEditor::indentOf(FormNode const& node) const
{
    std::string_view const line = m_lines.at(static_cast<std::size_t>(node.line) - 1);
    std::size_t const blanks = std::min(line.find_first_not_of(" \t"), line.size());
    return std::wstring(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(blanks)) +
           std::wstring(kIndent);
}

void FormEditor::replace(int first, int count, std::vector<std::wstring> lines)
{
    m_edits.emplace(first, Edit{count, std::move(lines)});
}

/// Puts the value into the property's own line, or into a new one before the node's End.
void FormEditor::write(FormNode const& node, FormProperty const* property, std::wstring_view name,
                       std::wstring const& value)
{
    std::wstring const written = property ? property->name : writtenName(name);
    replace(property ? property->line : node.endLine, property ? 1 : 0,
            {assignment(indentOf(node), written, value)});
}

void FormEditor::saveEntry(PropertyBag::Entry const& entry, FormNode const& node, Variant const* before)
{
    bool const isObject = entry.value.type() == VT_UNKNOWN || entry.value.type() == VT_DISPATCH;
    ComPtr<IUnknown> const object = isObject ? entry.value.toObject() : ComPtr<IUnknown>();
    if (auto const font = query<IFont>(object.get()))
        return saveFont(entry.name, *font.get(), node);
    if (query<IPicture>(object.get()))
        return savePicture(entry.name, bytesOfPicture(object.get()), node);
    if (isObject)
        return;
    if (entry.value.type() == VT_BSTR &&
        saveLongText(entry.name, Bstr::viewOf(entry.value.get().bstrVal), node))
        return;
    FormProperty const* const property = findProperty(node, entry.name);
    // A value that the form left out and nobody changed stays out, though the control writes it.
    bool const unchanged =
        property ? sameScalar(property->value, entry.value) : before && sameScalar(*before, entry.value);
    if (unchanged)
        return;
    write(node, property, entry.name, scalarText(entry.value));
}

void FormEditor::saveFont(std::wstring const& name, IFont& font, FormNode const& node)
{
    PropertyBlock const* const block = findFont(node, name);
    if (block && sameFont(*block, font))
        return;
    replace(block ? block->line : node.endLine, block ? block->endLine - block->line + 1 : 0,
            fontLines(indentOf(node), name, font));
}

/// A text in the companion file stays there while it is the same, whatever its bytes; a new one goes there
/// when it has no place in a line. False for every other text.
bool FormEditor::saveLongText(std::wstring const& name, std::wstring_view text, FormNode const& node)
{
    FormProperty const* const property = findProperty(node, name);
    auto const record = recordOf(property, IsText::Yes);
    if (record && decoded(*record, m_coding) == text)
        return true;
    if (text.find_first_of(L"\r\n") == std::wstring_view::npos)
        return false;
    refer(node, property, name, encoded(text, m_coding), IsText::Yes);
    return true;
}

void FormEditor::savePicture(std::wstring const& name, std::string const& bytes, FormNode const& node)
{
    FormProperty const* const property = findProperty(node, name);
    if (recordOf(property, IsText::No) != bytes)
        refer(node, property, name, bytes, IsText::No);
}

void FormEditor::refer(FormNode const& node, FormProperty const* property, std::wstring const& name,
                       std::string_view record, IsText isText)
{
    wchar_t const* const mark = isText == IsText::Yes ? L"$" : L"";
    write(node, property, name,
          mark + quoted(m_companionName) + L":" + hexadecimal(m_companion.add(record), 4));
}

bool FormEditor::isOwn(ResourceReference const& reference) const noexcept
{
    return sameName(fileNameOf(reference.file), m_companionName);
}

/// What a companion file has for a property; nothing where the form does not refer to one, or to nowhere.
std::optional<std::string_view> FormEditor::recordOf(FormProperty const* property, IsText isText) const
{
    auto const* const reference = property ? std::get_if<ResourceReference>(&property->value) : nullptr;
    if (!reference || reference->isText != (isText == IsText::Yes))
        return std::nullopt;
    Companion const& companion = isOwn(*reference) ? m_companion : m_companions.file(reference->file);
    return recordIn(companion, reference->offset);
}

/// Whether a property refers to nothing in the companion file as it was read: a record that was added since
/// is another's.
bool FormEditor::isLost(FormProperty const& property) const
{
    auto const* const reference = std::get_if<ResourceReference>(&property.value);
    return reference && isOwn(*reference) && !recordIn(m_companions.file(m_companionName), reference->offset);
}

} // namespace quillet::gallery
