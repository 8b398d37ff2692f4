// The property bag, and what of a form's lines reaches a control.
#include "gallery/form/PropertyBag.h"

#include "gallery/form/ControlBag.h"
#include "gallery/form/Fonts.h"

#include <gtest/gtest.h>

namespace quillet::gallery {
namespace {

/// Reads one value in a type, into a variant whose value was never initialised.
HRESULT readAs(PropertyBag& bag, wchar_t const* name, VARTYPE type, VARIANT& out)
{
    out.llVal = 0x5A5A5A5A5A5A5A5A;
    out.vt = type;
    return bag.Read(name, &out, nullptr);
}

FormNode controlOf(std::vector<FormProperty> properties, std::vector<PropertyBlock> blocks = {})
{
    FormNode node;
    node.library = L"Quillet";
    node.className = L"qvFlatCommand";
    node.name = L"Save";
    node.properties = std::move(properties);
    node.blocks = std::move(blocks);
    return node;
}

TEST(PropertyBag, aValueComesInTheTypeThatTheCallerAsksFor)
{
    auto const bag = makeCounted<PropertyBag>();
    bag->set(L"Width", Variant::ofLong(3));
    VARIANT value;
    ASSERT_EQ(readAs(*bag.get(), L"Width", VT_EMPTY, value), S_OK);
    EXPECT_EQ(value.vt, VT_I4);
    EXPECT_EQ(value.lVal, 3);
    ASSERT_EQ(readAs(*bag.get(), L"WIDTH", VT_I2, value), S_OK);
    EXPECT_EQ(value.vt, VT_I2);
    EXPECT_EQ(value.iVal, 3);
    ASSERT_EQ(readAs(*bag.get(), L"Width", VT_BOOL, value), S_OK);
    EXPECT_EQ(value.boolVal, VARIANT_TRUE);
    ASSERT_EQ(readAs(*bag.get(), L"Width", VT_BSTR, value), S_OK);
    EXPECT_EQ(Variant::adopt(value).toString().view(), L"3");
}

TEST(PropertyBag, aMissingNameIsAnInvalidArgumentAndLeavesTheCallersVariantAlone)
{
    auto const bag = makeCounted<PropertyBag>();
    VARIANT value;
    EXPECT_EQ(readAs(*bag.get(), L"Nothing", VT_I4, value), E_INVALIDARG);
    EXPECT_EQ(value.vt, VT_I4);
    EXPECT_EQ(bag->Read(nullptr, &value, nullptr), E_POINTER);
    EXPECT_EQ(bag->Read(L"Nothing", nullptr, nullptr), E_POINTER);
    EXPECT_EQ(bag->Write(nullptr, &value), E_POINTER);
}

TEST(PropertyBag, whatDoesNotConvertFailsAndHandsOutNothing)
{
    auto const bag = makeCounted<PropertyBag>();
    bag->set(L"Text", Variant::ofString(L"frog"));
    VARIANT value;
    EXPECT_TRUE(FAILED(readAs(*bag.get(), L"Text", VT_I4, value)));
    EXPECT_TRUE(FAILED(readAs(*bag.get(), L"Text", VT_UNKNOWN, value)));
}

TEST(PropertyBag, writingTwiceKeepsTheLastValueUnderOneName)
{
    auto const bag = makeCounted<PropertyBag>();
    Variant one = Variant::ofLong(1);
    Variant two = Variant::ofLong(2);
    EXPECT_EQ(bag->Write(L"ForeColor", one.address()), S_OK);
    EXPECT_EQ(bag->Write(L"forecolor", two.address()), S_OK);
    ASSERT_EQ(bag->entries().size(), 1u);
    EXPECT_EQ(bag->entries()[0].value.toLong(), 2);
}

TEST(ControlBag, theExtendersLinesNeverReachTheControl)
{
    std::vector<FormProperty> lines;
    for (wchar_t const* const name : {L"Left", L"Top", L"Width", L"Height", L"TabIndex", L"TabStop",
                                      L"Default", L"Cancel", L"ToolTipText", L"Visible", L"Tag", L"Index"})
        lines.push_back({name, 1L});
    lines.push_back({L"BorderWidth", 3L});
    auto const bag = controlBag(controlOf(lines));
    ASSERT_EQ(bag->entries().size(), 1u);
    EXPECT_EQ(bag->entries()[0].name, L"BorderWidth");
}

TEST(ControlBag, aPropertyWhoseNameTheExtenderHasTakenComesUnderItsOwnName)
{
    auto const bag = controlBag(controlOf({{L"Object.ToolTipText", std::wstring(L"own")}}));
    ASSERT_NE(bag->find(L"ToolTipText"), nullptr);
    EXPECT_EQ(bag->find(L"ToolTipText")->toString().view(), L"own");
}

TEST(ControlBag, valuesKeepTheirKind)
{
    auto const bag = controlBag(controlOf({{L"BackColor", -2147483633L},
                                           {L"Ratio", 0.5},
                                           {L"Caption", std::wstring(L"&Save")},
                                           {L"MouseIcon", ResourceReference{L"a.frx", 0, false}}}));
    EXPECT_EQ(bag->find(L"BackColor")->type(), VT_I4);
    EXPECT_EQ(bag->find(L"BackColor")->toLong(), -2147483633L);
    EXPECT_EQ(bag->find(L"Ratio")->type(), VT_R8);
    EXPECT_EQ(bag->find(L"Caption")->type(), VT_BSTR);
    EXPECT_EQ(bag->find(L"MouseIcon"), nullptr) << "a picture that cannot be read yet must be left out";
}

/// A face that this machine has: a font object answers the name of the face that it got.
std::wstring knownFace()
{
    Bstr name;
    makeFont(FontFace())->get_Name(name.put());
    return std::wstring(name.view());
}

PropertyBlock fontBlock(std::wstring classId)
{
    return {L"Font",
            std::move(classId),
            0,
            {{L"Name", knownFace()},
             {L"Size", 12.75},
             {L"Charset", 0L},
             {L"Weight", 700L},
             {L"Underline", -1L},
             {L"Italic", -1L},
             {L"Strikethrough", -1L}},
            {}};
}

TEST(ControlBag, aFontBlockBecomesAStandardFontWithEveryAttribute)
{
    auto const bag = controlBag(controlOf({}, {fontBlock(L"")}));
    VARIANT value;
    ASSERT_EQ(readAs(*bag.get(), L"Font", VT_UNKNOWN, value), S_OK);
    Variant const owned = Variant::adopt(value);
    auto const font = owned.toObject().as<IFont>();
    ASSERT_TRUE(font);
    Bstr name;
    CY size{};
    font->get_Name(name.put());
    font->get_Size(&size);
    EXPECT_EQ(name.view(), knownFace());
    EXPECT_NEAR(static_cast<double>(size.int64), 127500, 7500); // the system rounds to whole pixels
    for (auto const get : {&IFont::get_Italic, &IFont::get_Underline, &IFont::get_Strikethrough}) {
        BOOL set = FALSE;
        (font.get()->*get)(&set);
        EXPECT_TRUE(set);
    }
    for (auto const& [get, expected] : {std::pair{&IFont::get_Weight, 700}, {&IFont::get_Charset, 0}}) {
        SHORT number = -1;
        (font.get()->*get)(&number);
        EXPECT_EQ(number, expected);
    }
}

TEST(ControlBag, onlyTheStandardFontsIdentifierMakesAFont)
{
    auto const font = controlBag(controlOf({}, {fontBlock(L"{0be35203-8f91-11ce-9de3-00aa004bb851}")}));
    EXPECT_NE(font->find(L"Font"), nullptr);
    auto const other = controlBag(controlOf({}, {fontBlock(L"{00000000-0000-0000-0000-000000000001}")}));
    EXPECT_EQ(other->find(L"Font"), nullptr);
}

} // namespace
} // namespace quillet::gallery
