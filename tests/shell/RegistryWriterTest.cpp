// Writing to the registry all or nothing.
#include "shell/RegistryWriter.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

constexpr wchar_t kFolder[] = L"Software\\QuilletTest";

class RegistryWriterTest : public testing::Test {
protected:
    RegistryWriterTest()
    {
        HKEY key = nullptr;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kFolder);
        checkStatus(::RegCreateKeyExW(HKEY_CURRENT_USER, kFolder, 0, nullptr, REG_OPTION_NON_VOLATILE,
                                      KEY_ALL_ACCESS, nullptr, &key, nullptr));
        root.reset(key);
    }
    ~RegistryWriterTest() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, kFolder); }

    bool hasKey(wchar_t const* path) const
    {
        HKEY key = nullptr;
        bool const found = ::RegOpenKeyExW(root.get(), path, 0, KEY_READ, &key) == ERROR_SUCCESS;
        UniqueKey const owned(key);
        return found;
    }

    std::wstring value(wchar_t const* path, wchar_t const* name) const
    {
        wchar_t text[64] = L"";
        DWORD size = sizeof text;
        LSTATUS const status = ::RegGetValueW(root.get(), path, name, RRF_RT_REG_SZ, nullptr, text, &size);
        return status == ERROR_SUCCESS ? text : L"none";
    }

    void commit(std::vector<RegistryRow> const& rows) const
    {
        RegistryWriter writer(root.get());
        for (RegistryRow const& row : rows)
            writer.write(row);
        writer.commit();
    }

    UniqueKey root;
};

/// No key's name may be longer than 255 characters.
RegistryRow refusedRow() { return {L"A\\" + std::wstring(300, L'x'), L"", L"never"}; }

TEST_F(RegistryWriterTest, whatIsCommittedStays)
{
    commit({{L"A\\B", L"", L"own"}, {L"A\\B", L"Name", L"named"}, {L"A\\Empty", L"", L"", false}});
    EXPECT_EQ(value(L"A\\B", nullptr), L"own");
    EXPECT_EQ(value(L"A\\B", L"Name"), L"named");
    EXPECT_TRUE(hasKey(L"A\\Empty"));
    EXPECT_EQ(value(L"A\\Empty", nullptr), L"none");
}

TEST_F(RegistryWriterTest, aFailureHalfwayTakesEverythingBack)
{
    commit({{L"A", L"", L"before"}});
    try {
        RegistryWriter writer(root.get());
        writer.write({L"A", L"", L"after"});
        writer.write({L"A", L"New", L"value"});
        writer.write({L"A\\B\\C", L"", L"deep"});
        writer.write({L"D", L"", L"beside"});
        EXPECT_EQ(value(L"A", nullptr), L"after");
        writer.write(refusedRow());
        FAIL() << "a key with a name of 300 characters was written";
    } catch (RunTimeError const&) {
        EXPECT_EQ(value(L"A", nullptr), L"before");
        EXPECT_EQ(value(L"A", L"New"), L"none");
        EXPECT_FALSE(hasKey(L"A\\B"));
        EXPECT_FALSE(hasKey(L"D"));
    }
}

TEST_F(RegistryWriterTest, aKeyThatSomebodyElseFilledMeanwhileIsNotTakenAlong)
{
    {
        RegistryWriter writer(root.get());
        writer.write({L"A\\B", L"", L"ours"});
        HKEY key = nullptr;
        checkStatus(::RegCreateKeyExW(root.get(), L"A\\B\\Theirs", 0, nullptr, REG_OPTION_NON_VOLATILE,
                                      KEY_READ, nullptr, &key, nullptr));
        UniqueKey const owned(key);
    }
    EXPECT_TRUE(hasKey(L"A\\B\\Theirs"));
}

} // namespace
} // namespace quillet
