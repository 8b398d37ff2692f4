// Fuzzes the form files: reading the text, its companion file, and the property bag of every control.
// An input is the form's text, then a zero byte, then the companion file; every file that the form names has
// those bytes.
#include "FormInput.h"
#include "Hold.h"
#include "gallery/form/Companion.h"
#include "gallery/form/ControlBag.h"
#include "gallery/form/FormReader.h"
#include "gallery/form/FormText.h"
#include "gallery/form/FormValue.h"
#include "gallery/form/FormValues.h"
#include "platform/Objects.h"

#include <cmath>

namespace quillet::fuzz {

namespace {

using namespace quillet::gallery;

constexpr int kDeepest = 64;

/// Walks a form that was read, and holds what every form is.
class Walk {
public:
    Walk(std::string_view text, std::string const& companion)
        : m_companion(companion), m_companions(kFormFolder), m_lines(lineCount(text))
    {}

    void node(FormNode const& node, int depth)
    {
        hold(depth <= kDeepest, "objects are not nested too deeply");
        hold(!node.library.empty() && !node.className.empty() && !node.name.empty(),
             "an object has its names");
        lines(node.line, node.endLine);
        properties(node.properties, node.line, node.endLine);
        for (PropertyBlock const& inside : node.blocks) {
            hold(inside.line > node.line && inside.endLine < node.endLine, "a block lies inside its object");
            block(inside, 1);
        }
        bag(node);
        for (FormNode const& child : node.children) {
            hold(child.line > node.line && child.endLine < node.endLine, "an object lies inside its parent");
            this->node(child, depth + 1);
        }
    }

private:
    static int lineCount(std::string_view text) noexcept
    {
        int count = 1;
        for (char const c : text)
            count += c == '\n' || c == '\r';
        return count;
    }

    void lines(int first, int last) const
    {
        hold(first > 1 && last > first && last <= m_lines, "an object has its lines in the file");
    }

    void properties(std::vector<FormProperty> const& all, int first, int last)
    {
        for (FormProperty const& property : all) {
            hold(!property.name.empty(), "a property has a name");
            hold(property.line > first && property.line < last, "a property lies inside its object");
            if (auto const* const real = std::get_if<double>(&property.value))
                hold(std::isfinite(*real), "a number is finite");
            if (auto const* const reference = std::get_if<ResourceReference>(&property.value))
                record(*reference);
        }
    }

    void block(PropertyBlock const& block, int depth)
    {
        hold(depth <= kDeepest, "blocks are not nested too deeply");
        hold(!block.name.empty(), "a block has a name");
        lines(block.line, block.endLine);
        properties(block.properties, block.line, block.endLine);
        for (PropertyBlock const& inside : block.blocks)
            this->block(inside, depth + 1);
    }

    /// Worked out once more: four bytes of length, little-endian, and so many bytes.
    std::optional<std::string_view> expectedRecord(unsigned long offset) const
    {
        std::string_view const bytes = m_companion;
        if (offset > bytes.size() || bytes.size() - offset < 4)
            return std::nullopt;
        unsigned long size = 0;
        for (unsigned long i = 4; i > 0; --i)
            size = size << 8 | static_cast<unsigned char>(bytes[offset + i - 1]);
        if (size > bytes.size() - offset - 4)
            return std::nullopt;
        return bytes.substr(offset + 4, size);
    }

    void record(ResourceReference const& reference)
    {
        auto const expected = expectedRecord(reference.offset);
        try {
            hold(expected == m_companions.record(reference), "a record is the bytes behind its length");
        } catch (ValueFault const& fault) {
            hold(!expected && fault.reason && *fault.reason, "a record that is there is found");
        }
    }

    void bag(FormNode const& node)
    {
        BagSources sources;
        sources.record = [this](ResourceReference const& reference) {
            return m_companions.record(reference);
        };
        sources.onFailure = [&](int line, std::wstring const& reason) {
            hold(line > node.line && line < node.endLine && !reason.empty(), "what is left out is told");
        };
        auto const made = controlBag(node, sources);
        hold(made->entries().size() <= node.properties.size() + node.blocks.size(), "a bag adds nothing");
        for (auto const& entry : made->entries())
            hold(!isExtenderProperty(entry.name) || FormValues(node).find(L"Object." + entry.name) ||
                     FormValues(node).findBlock(entry.name),
                 "a control never sees its extender's properties");
    }

    std::string const& m_companion;
    Companions m_companions;
    int m_lines;
};

void read(FormInput const& input)
{
    std::string_view const text = input.text();
    FormTree tree;
    try {
        tree = readForm(text, L"a.frm");
    } catch (FormError const& error) {
        hold(error.line >= 1 && !error.reason.empty() && error.file == L"a.frm",
             "an error says where and why");
        return;
    }
    setCompanions(tree, input.companion, input.companion);
    Walk(text, input.companion).node(tree.form, 1);
    for (std::wstring const& attribute : tree.attributes)
        hold(!attribute.empty(), "an attribute is a line");
    hold(tree.code.size() <= text.size(), "the code is a part of the text");
}

} // namespace

} // namespace quillet::fuzz

extern "C" int LLVMFuzzerTestOneInput(BYTE const* data, size_t size)
{
    using namespace quillet::fuzz;
    read(FormInput({data, size}));
    files().clear();
    hold(livingObjects() == 0, "no object is left over");
    return 0;
}
