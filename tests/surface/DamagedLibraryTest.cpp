// The component where its type library cannot be read: scripts still find and call every member by name.
#include "kit/ByName.h"
#include "kit/Fonts.h"
#include "kit/Library.h"
#include "kit/NamedObject.h"
#include "kit/NotCopied.h"
#include "typelib/Guids.h"
#include "typelib/Members.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace quillet::hosting {
namespace {

/// A copy of the component in whose type library the system finds nothing.
class DamagedCopy : kit::NotCopied {
public:
    DamagedCopy()
    {
        std::ifstream source(std::filesystem::path(kit::Library::path()), std::ios::binary);
        std::string bytes(std::istreambuf_iterator<char>(source), {});
        std::string const magic("MSFT\x02\0\x01\0", 8);
        std::size_t const at = bytes.find(magic);
        if (at == std::string::npos || bytes.find(magic, at + 1) != std::string::npos)
            throw std::runtime_error("the component does not have one type library");
        bytes.replace(at, magic.size(), magic.size(), '\0');
        std::ofstream(std::filesystem::path(path()), std::ios::binary) << bytes;
    }
    ~DamagedCopy() { ::DeleteFileW(path().c_str()); }

    static std::wstring path() { return kit::Library::path() + L".damaged.ocx"; }
};

struct Control {
    CLSID classId;
    Members members;
};

class DamagedLibrary : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(library.loaded()); }

    ComPtr<IDispatch> create(CLSID const& classId) const
    {
        return query<IDispatch>(library.create(classId).get());
    }

    DamagedCopy const copy;
    kit::Library const library{DamagedCopy::path()};
};

TEST_F(DamagedLibrary, describesNothing)
{
    auto const button = create(kQvFlatCommandClass);
    ASSERT_TRUE(button);
    ComPtr<ITypeInfo> info;
    EXPECT_TRUE(FAILED(button->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put())));
    EXPECT_FALSE(info);
}

TEST_F(DamagedLibrary, leavesEveryMemberToBeFoundAndReadByName)
{
    Control const controls[] = {{kQvFlatCommandClass, kQvFlatCommandMembers},
                                {kQvImageCommandClass, kImageButtonMembers},
                                {kFlatToolButtonClass, kImageButtonMembers},
                                {kQvFlatOptionClass, kQvFlatOptionMembers},
                                {kQvFlatCheckClass, kQvFlatCheckMembers}};
    for (Control const& control : controls) {
        auto const object = create(control.classId);
        ASSERT_TRUE(object);
        for (Member const& member : control.members) {
            std::wstring const name(member.name);
            EXPECT_EQ(kit::idOf(*object.get(), name.c_str()), member.id) << kit::narrow(name);
            if (member.kind == MemberKind::Value || member.kind == MemberKind::Object) {
                EXPECT_EQ(kit::getByName(*object.get(), name.c_str()).result, S_OK) << kit::narrow(name);
            }
        }
    }
}

TEST_F(DamagedLibrary, leavesPropertiesToBeSetAndMethodsToBeCalled)
{
    auto const button = create(kFlatToolButtonClass);
    ASSERT_TRUE(button);
    EXPECT_EQ(kit::putByName(*button.get(), L"Caption", Variant::ofString(L"&Copied")).result, S_OK);
    EXPECT_EQ(kit::getByName(*button.get(), L"Caption").value.toString().view(), L"&Copied");
    EXPECT_EQ(kit::putByName(*button.get(), L"BackColor", Variant::ofString(L"255")).result, S_OK);
    EXPECT_EQ(kit::getByName(*button.get(), L"BackColor").value.toLong(), 255);
    EXPECT_EQ(kit::setByName(*button.get(), L"Font", kit::newFont(L"Tahoma", 12).get()).result, S_OK);
    auto const font = query<IFont>(kit::getByName(*button.get(), L"Font").value.toObject().get());
    ASSERT_TRUE(font);
    EXPECT_NEAR(kit::pointsOf(*font.get()), 12, 1); // fonts take the nearest size that the screen has
    EXPECT_EQ(kit::callByName(*button.get(), L"Refresh").result, S_OK);
    EXPECT_TRUE(kit::callByName(*button.get(), L"InUserMode").value.toBool());
    EXPECT_EQ(kit::putByName(*button.get(), L"Active", Variant::ofBool(false)).result, S_OK);
    EXPECT_FALSE(kit::callByName(*button.get(), L"InUserMode").value.toBool());
    kit::Called const refused = kit::putByName(*button.get(), L"BorderWidth", Variant::ofLong(40000));
    EXPECT_EQ(refused.result, DISP_E_EXCEPTION);
    EXPECT_EQ(refused.description, L"Overflow");
}

} // namespace
} // namespace quillet::hosting
