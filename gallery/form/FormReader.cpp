// Reads the text form format: text in, form tree out.
#include "gallery/form/FormReader.h"

#include "gallery/form/FormText.h"
#include "gallery/form/FormValue.h"
#include "gallery/form/Names.h"

#include <windows.h>

#include <algorithm>
#include <utility>

namespace quillet::gallery {

namespace {

/// Real forms nest a few levels deep; the limit keeps a hostile one from using up the stack.
constexpr int kDeepestNesting = 64;

/// Takes the first word off text: everything up to a blank.
std::wstring_view takeWord(std::wstring_view& text) noexcept
{
    std::wstring_view const word = text.substr(0, text.find_first_of(L" \t"));
    text = trimmed(text.substr(word.size()));
    return word;
}

bool isKeyCharacter(wchar_t c) noexcept
{
    return ::IsCharAlphaNumericW(c) || c == L'_' || c == L'.' || c == L'(' || c == L')';
}

bool isKey(std::wstring_view text) noexcept
{
    return !text.empty() && std::all_of(text.begin(), text.end(), isKeyCharacter);
}

class Reader {
public:
    Reader(std::wstring_view text, std::wstring const& fileName) : m_lines(text), m_file(fileName) {}

    FormTree read()
    {
        FormTree tree;
        readVersion(tree);
        readObjects(tree);
        tree.form = readForm();
        readAttributes(tree);
        tree.code = m_lines.rest();
        return tree;
    }

private:
    [[noreturn]] void fail(std::wstring reason) const
    {
        throw FormError{m_file, std::max(m_lines.number(), 1), std::move(reason)};
    }

    /// The next line, or an error that says what is missing at the end of the file.
    FormLine needLine(wchar_t const* missing)
    {
        std::optional<FormLine> const line = m_lines.next();
        if (!line)
            fail(std::wstring(L"the file ends, but ") + missing);
        return *line;
    }

    void readVersion(FormTree& tree)
    {
        std::wstring_view text = needLine(L"its VERSION line is missing").text;
        if (!sameName(takeWord(text), L"VERSION"))
            fail(L"a form begins with a VERSION line");
        tree.version = text;
    }

    void readObjects(FormTree& tree)
    {
        while (true) {
            FormLine const line = needLine(L"its form is missing");
            std::size_t const equals = line.text.find(L'=');
            if (!sameName(trimmed(line.text.substr(0, equals)), L"Object")) {
                m_lines.stepBack();
                return;
            }
            if (equals == std::wstring_view::npos)
                fail(L"an Object line has an equals sign");
            tree.objects.push_back(readObject(line.text.substr(equals + 1), line.number));
        }
    }

    std::wstring readQuoted(std::wstring_view& text) const
    {
        text = trimmed(text);
        if (!text.starts_with(L'"'))
            fail(L"a quoted text is missing");
        std::variant<std::wstring, ValueFault> quoted = takeQuoted(text);
        if (auto const* const fault = std::get_if<ValueFault>(&quoted))
            fail(fault->reason);
        text = trimmed(text);
        return std::get<std::wstring>(std::move(quoted));
    }

    ObjectLine readObject(std::wstring_view text, int number) const
    {
        ObjectLine object{readQuoted(text), {}, number};
        if (text.empty())
            return object;
        if (!text.starts_with(L';'))
            fail(L"a semicolon and the file's name are missing");
        text.remove_prefix(1);
        object.file = readQuoted(text);
        if (!text.empty())
            fail(L"something stands behind the file's name");
        return object;
    }

    FormNode readForm()
    {
        std::wstring_view text = needLine(L"its form is missing").text;
        if (!sameName(takeWord(text), L"Begin"))
            fail(L"only Object lines stand between VERSION and the form");
        FormNode form = readNode(text, 1);
        return form;
    }

    /// The head of a node: Library.Class Name
    FormNode nodeHead(std::wstring_view text) const
    {
        FormNode node;
        node.line = m_lines.number();
        std::wstring_view const fullClass = takeWord(text);
        std::size_t const dot = fullClass.find(L'.');
        if (!isKey(fullClass) || dot == std::wstring_view::npos || dot == 0 || dot + 1 == fullClass.size())
            fail(L"Begin is followed by a class, as Library.Class");
        if (!isKey(text))
            fail(L"the object has no name");
        node.library = fullClass.substr(0, dot);
        node.className = fullClass.substr(dot + 1);
        node.name = text;
        return node;
    }

    FormNode readNode(std::wstring_view head, int depth)
    {
        if (depth > kDeepestNesting)
            fail(L"objects are nested too deeply");
        FormNode node = nodeHead(head);
        node.endLine = readUntil(L"End", L"an End is missing", [&](auto line, auto word, auto rest) {
            if (sameName(word, L"Begin"))
                node.children.push_back(readNode(rest, depth + 1));
            else if (sameName(word, L"BeginProperty"))
                node.blocks.push_back(readBlock(rest, 1));
            else
                node.properties.push_back(readProperty(line));
        });
        return node;
    }

    PropertyBlock readBlock(std::wstring_view head, int depth)
    {
        if (depth > kDeepestNesting)
            fail(L"properties are nested too deeply");
        PropertyBlock block;
        block.line = m_lines.number();
        block.name = takeWord(head);
        block.classId = head;
        if (!isKey(block.name))
            fail(L"BeginProperty is followed by a name");
        block.endLine =
            readUntil(L"EndProperty", L"an EndProperty is missing", [&](auto line, auto word, auto rest) {
                if (sameName(word, L"BeginProperty"))
                    block.blocks.push_back(readBlock(rest, depth + 1));
                else
                    block.properties.push_back(readProperty(line));
            });
        return block;
    }

    /// Gives each line to take, with its first word and what is behind that, until one that is the end alone;
    /// answers that line's number.
    template <class Take> int readUntil(wchar_t const* end, wchar_t const* missing, Take const& take)
    {
        while (true) {
            std::wstring_view const line = needLine(missing).text;
            std::wstring_view rest = line;
            std::wstring_view const word = takeWord(rest);
            if (sameName(word, end) && rest.empty())
                return m_lines.number();
            take(line, word, rest);
        }
    }

    FormProperty readProperty(std::wstring_view line) const
    {
        std::size_t const equals = line.find(L'=');
        if (equals == std::wstring_view::npos)
            fail(L"this is no property: it has no equals sign");
        std::wstring_view const name = trimmed(line.substr(0, equals));
        if (!isKey(name))
            fail(L"this is no name of a property");
        std::variant<FormValue, ValueFault> value = readFormValue(line.substr(equals + 1));
        if (auto const* const fault = std::get_if<ValueFault>(&value))
            fail(fault->reason);
        return {std::wstring(name), std::get<FormValue>(std::move(value)), m_lines.number()};
    }

    void readAttributes(FormTree& tree)
    {
        while (std::optional<FormLine> const line = m_lines.next()) {
            std::wstring_view text = line->text;
            if (!sameName(takeWord(text), L"Attribute")) {
                m_lines.stepBack();
                return;
            }
            tree.attributes.emplace_back(line->text);
        }
    }

    FormLines m_lines;
    std::wstring const& m_file;
};

} // namespace

std::wstring FormError::text() const
{
    std::wstring const place = line > 0 ? file + L":" + std::to_wstring(line) : file;
    return place + L": " + reason;
}

FormTree readForm(std::string_view bytes, std::wstring const& fileName)
{
    std::wstring const text = decodedForm(bytes);
    FormTree tree = Reader(text, fileName).read();
    tree.coding = codingOf(bytes);
    if (!sameName(tree.form.fullClass(), L"VB.Form"))
        throw FormError{fileName, tree.form.line, L"the outermost object is no VB.Form"};
    return tree;
}

} // namespace quillet::gallery
