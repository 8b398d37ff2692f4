// Registering and unregistering: what is there then, and what is not there any more.
#include "RegistrySnapshot.h"
#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "kit/Library.h"
#include "kit/NotCopied.h"
#include "kit/Process.h"
#include "shell/RegistryKey.h"
#include "shell/TypeLibraryRows.h"
#include "typelib/Guids.h"

#include <ole2.h>
#include <windows.h>

#include <gtest/gtest.h>
#include <oleauto.h>
#include <sddl.h>

#include <string_view>

namespace quillet {
namespace {

using kit::regsvr32;
using Lines = std::vector<std::wstring>;
Lines const kNone;

std::wstring const kClass = L"clsid\\{cf82fc21-7b85-4c5d-a482-1bbdba57101f}";
std::wstring const kTypeLib = L"typelib\\{b451fb09-0e80-40cf-b3bd-7cc480918f2f}";
std::wstring const kLibraryFile = kTypeLib + (sizeof(void*) == 8 ? L"\\1.0\\0\\win64" : L"\\1.0\\0\\win32");
wchar_t const* const kProgIds[] = {L"quillet.qvflatcommand", L"quillet.qvflatcommand.1"};

struct PublishedClass {
    wchar_t const* name;
    wchar_t const* text;
    wchar_t const* classId;
    CLSID id;
    wchar_t const* toolboxBitmap;
    wchar_t const* miscStatus; ///< as content
};

wchar_t const* const kButtonStatus = L"135569"; // 0x20000 + 0x1000 + 0x100 + 0x80 + 0x10 + 0x1
wchar_t const* const kBoxStatus = L"131473";    // the same without 0x1000
static_assert(0x21191 == 135569 && 0x20191 == 131473);
static_assert(0x20191 == (OLEMISC_SETCLIENTSITEFIRST | OLEMISC_INSIDEOUT | OLEMISC_ACTIVATEWHENVISIBLE |
                          OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE));
static_assert(0x21191 == (0x20191 | OLEMISC_ACTSLIKEBUTTON));

PublishedClass const kClasses[] = {
    {L"qvFlatCommand", L"Quillet flat command button", L"{CF82FC21-7B85-4C5D-A482-1BBDBA57101F}",
     kQvFlatCommandClass, L"101", kButtonStatus},
    {L"qvImageCommand", L"Quillet image command button", L"{E8F64720-1D71-4A18-8153-6F9D6621C282}",
     kQvImageCommandClass, L"102", kButtonStatus},
    {L"FlatToolButton", L"Quillet flat tool button", L"{0E4FB5B5-7A88-42CB-81F7-6CC85145053E}",
     kFlatToolButtonClass, L"103", kButtonStatus},
    {L"qvFlatOption", L"Quillet flat option button", L"{70BE46FE-6F5D-4F36-9D6A-678F6CA0E998}",
     kQvFlatOptionClass, L"104", kBoxStatus},
    {L"qvFlatCheck", L"Quillet flat check box", L"{5146FACD-92C5-46B9-B393-A67C3669CE63}", kQvFlatCheckClass,
     L"105", kBoxStatus},
};

std::wstring lowered(std::wstring text)
{
    ::CharLowerW(text.data());
    return text;
}

/// The text of a key's own value.
struct PublishedKey {
    wchar_t const* text;
    wchar_t const* key;
};

PublishedKey const kInterfaces[] = {
    {L"_qvFlatCommand", L"interface\\{55b69c8d-98d9-49fc-be01-e4160910134e}"},
    {L"_qvFlatOption", L"interface\\{96ab40c0-f9d7-4e6e-9a75-cd68e0a4553c}"},
    {L"_qvFlatCheck", L"interface\\{8d0b870e-ad1d-4d20-a00f-b1f554ddf54a}"},
    {L"_FlatToolButton", L"interface\\{4e8421c6-6ade-478b-84b4-003257866758}"},
    {L"_qvImageCommand", L"interface\\{0f6cb807-7d82-4ece-8f93-cc516cbce7df}"},
    {L"__qvFlatCommand", L"interface\\{f0249f40-b071-4c35-96ea-a31e15b612fa}"},
    {L"__qvFlatOption", L"interface\\{f5e85e92-55d6-4a6e-827d-e6be7b238c63}"},
    {L"__qvFlatCheck", L"interface\\{6a42653b-f71f-4b3e-8f46-142dbb3a483e}"},
    {L"__FlatToolButton", L"interface\\{fd1e8664-15c3-4ae8-8577-69221f326270}"},
    {L"__qvImageCommand", L"interface\\{060be7b4-306a-49ba-b393-c520427b99e6}"},
};

std::wstring folder()
{
    std::wstring const path = kit::Library::path();
    return path.substr(0, path.rfind(L'\\'));
}

Snapshot ofClass(HKEY root) { return classesBelow(root, {kClass, kProgIds[0], kProgIds[1]}); }

PublishedKey const kPages[] = {
    {L"Quillet general property page", L"clsid\\{a93cb06b-1d25-4d22-87da-a4d1c9cbb239}"},
    {L"Quillet colors property page", L"clsid\\{67b28de2-1278-4efd-b7ff-346e2ba7787f}"},
    {L"Quillet fonts property page", L"clsid\\{72df35ee-5dc8-463b-8c19-3b1544a8db5f}"},
    {L"Quillet pictures property page", L"clsid\\{878fd9ad-b336-49d5-9489-19c3f9ede804}"},
};

Snapshot ofClasses(HKEY root)
{
    Lines keys;
    for (PublishedKey const& page : kPages)
        keys.push_back(page.key);
    for (PublishedClass const& row : kClasses) {
        std::wstring const progId = lowered(std::wstring(L"Quillet.") + row.name);
        keys.insert(keys.end(), {lowered(std::wstring(L"clsid\\") + row.classId), progId, progId + L".1"});
    }
    return classesBelow(root, keys);
}

Snapshot ofTypeLibrary(HKEY root)
{
    Lines keys{kTypeLib};
    for (PublishedKey const& published : kInterfaces)
        keys.push_back(published.key);
    return classesBelow(root, keys);
}

/// Everything about one class, written down from what containers read.
void expectClass(Snapshot& rows, PublishedClass const& row)
{
    std::wstring const key = lowered(std::wstring(L"clsid\\") + row.classId);
    std::wstring const shown = std::wstring(L"Quillet.") + row.name;
    std::wstring const progId = lowered(shown);
    rows.insert({
        {key + L"@", row.text},
        {key + L"\\inprocserver32@", kit::Library::path()},
        {key + L"\\inprocserver32@threadingmodel", L"Apartment"},
        {key + L"\\progid@", shown + L".1"},
        {key + L"\\versionindependentprogid@", shown},
        {key + L"\\miscstatus@", L"0"},
        {key + L"\\miscstatus\\1@", row.miscStatus},
        {key + L"\\toolboxbitmap32@", kit::Library::path() + L", " + row.toolboxBitmap},
        {key + L"\\typelib@", L"{B451FB09-0E80-40CF-B3BD-7CC480918F2F}"},
        {key + L"\\version@", L"1.0"},
        {key + L"\\verb\\0@", L"&Edit,0,2"},
        {progId + L"@", row.text},
        {progId + L"\\clsid@", row.classId},
        {progId + L"\\curver@", shown + L".1"},
        {progId + L".1@", row.text},
        {progId + L".1\\clsid@", row.classId},
    });
    for (wchar_t const* const name :
         {L"", L"\\inprocserver32", L"\\progid", L"\\versionindependentprogid", L"\\miscstatus",
          L"\\miscstatus\\1", L"\\toolboxbitmap32", L"\\typelib", L"\\version", L"\\verb", L"\\verb\\0",
          L"\\control", L"\\programmable", L"\\implemented categories",
          L"\\implemented categories\\{40fc6ed4-2438-11cf-a3db-080036f12502}",
          L"\\implemented categories\\{40fc6ed5-2438-11cf-a3db-080036f12502}",
          L"\\implemented categories\\{0de86a52-2baa-11cf-a229-00aa003d7352}",
          L"\\implemented categories\\{0de86a54-2baa-11cf-a229-00aa003d7352}",
          L"\\implemented categories\\{0de86a57-2baa-11cf-a229-00aa003d7352}"})
        rows[key + name + L"\\"] = L"";
    for (wchar_t const* const name : {L"", L"\\clsid", L"\\curver", L".1", L".1\\clsid"})
        rows[progId + name + L"\\"] = L"";
}

Snapshot expectedClasses()
{
    Snapshot rows;
    for (PublishedClass const& row : kClasses)
        expectClass(rows, row);
    for (auto const& [text, page] : kPages) {
        std::wstring const key = page;
        rows.insert({{key + L"\\", L""},
                     {key + L"@", text},
                     {key + L"\\inprocserver32\\", L""},
                     {key + L"\\inprocserver32@", kit::Library::path()},
                     {key + L"\\inprocserver32@threadingmodel", L"Apartment"}});
    }
    return rows;
}

void expectTypeLibrary(HKEY root)
{
    Snapshot now = ofTypeLibrary(root);
    EXPECT_EQ(now[kTypeLib + L"\\1.0@"], L"Quillet flat buttons");
    EXPECT_EQ(now[kTypeLib + L"\\1.0\\flags@"], L"10"); // control, has a disk image
    EXPECT_EQ(now[kTypeLib + L"\\1.0\\helpdir@"], folder());
    EXPECT_EQ(now[kLibraryFile + L"@"], kit::Library::path());
    for (PublishedKey const& published : kInterfaces) {
        EXPECT_EQ(now[published.key + std::wstring(L"@")], published.text);
        EXPECT_EQ(now[published.key + std::wstring(L"\\typelib@")],
                  L"{B451FB09-0E80-40CF-B3BD-7CC480918F2F}");
        EXPECT_EQ(now[published.key + std::wstring(L"\\typelib@version")], L"1.0");
    }
}

void expectEverything(HKEY root)
{
    EXPECT_EQ(differences(expectedClasses(), ofClasses(root)), kNone);
    expectTypeLibrary(root);
}

void expectNothing(HKEY root)
{
    EXPECT_EQ(differences({}, ofClasses(root)), kNone);
    EXPECT_EQ(differences({}, ofTypeLibrary(root)), kNone);
}

/// Changes the own value of one of the machine's classes' keys.
void setMachineValue(std::wstring const& key, std::wstring const& text)
{
    HKEY opened = nullptr;
    ASSERT_EQ(
        ::RegOpenKeyExW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + key).c_str(), 0, KEY_WRITE, &opened),
        ERROR_SUCCESS);
    UniqueKey const owned(opened);
    ASSERT_EQ(::RegSetValueExW(opened, nullptr, 0, REG_SZ, reinterpret_cast<BYTE const*>(text.c_str()),
                               static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
}

class Registration : public testing::Test {
protected:
    void SetUp() override { expectNothingAnywhere(); }
    void TearDown() override
    {
        EXPECT_EQ(regsvr32(L"/u"), 0u);
        expectNothingAnywhere();
    }
    static void expectNothingAnywhere()
    {
        expectNothing(HKEY_LOCAL_MACHINE);
        expectNothing(HKEY_CURRENT_USER);
    }
};

TEST_F(Registration, forTheMachineWritesClassAndTypeLibraryAndLeavesTheUserAlone)
{
    ASSERT_EQ(regsvr32(L""), 0u);
    expectEverything(HKEY_LOCAL_MACHINE);
    expectNothing(HKEY_CURRENT_USER);
}

TEST_F(Registration, forTheUserWritesTheSameAndLeavesTheMachineAlone)
{
    ASSERT_EQ(regsvr32(L"/n /i:user"), 0u);
    expectEverything(HKEY_CURRENT_USER);
    expectNothing(HKEY_LOCAL_MACHINE);

    EXPECT_EQ(regsvr32(L"/u /n /i:user"), 0u);
    expectNothing(HKEY_CURRENT_USER);
}

TEST_F(Registration, unregisteringForTheUserLeavesTheMachineRegistered)
{
    ASSERT_EQ(regsvr32(L""), 0u);
    ASSERT_EQ(regsvr32(L"/n /i:user"), 0u);
    ASSERT_EQ(regsvr32(L"/u /n /i:user"), 0u);
    expectNothing(HKEY_CURRENT_USER);
    expectEverything(HKEY_LOCAL_MACHINE);
}

TEST_F(Registration, twiceIsTheSameAsOnceAndUnregisteringLeavesTheRegistryAsItWas)
{
    Snapshot const before = allClasses(HKEY_LOCAL_MACHINE);
    ASSERT_EQ(regsvr32(L""), 0u);
    Snapshot const once = allClasses(HKEY_LOCAL_MACHINE);
    EXPECT_GT(once.size(), before.size());
    ASSERT_EQ(regsvr32(L""), 0u);
    EXPECT_EQ(differences(once, allClasses(HKEY_LOCAL_MACHINE)), kNone);
    ASSERT_EQ(regsvr32(L"/u"), 0u);
    EXPECT_EQ(differences(before, allClasses(HKEY_LOCAL_MACHINE)), kNone);
}

/// The rows as they would be found; of keys there is none but those with values.
Snapshot snapshotOf(std::vector<RegistryRow> const& rows)
{
    Snapshot values;
    for (RegistryRow const& row : rows)
        values[lowered(row.key + L"@" + row.name)] = row.text;
    return values;
}

TEST_F(Registration, givesInstallersTheRowsThatTheSystemWritesForTheTypeLibrary)
{
    ASSERT_EQ(regsvr32(L""), 0u);
    ComPtr<ITypeLib> library;
    ASSERT_EQ(::LoadTypeLibEx(kit::Library::path().c_str(), REGKIND_NONE, library.put()), S_OK);
    Snapshot const rows = snapshotOf(typeLibraryRows(*library.get(), kit::Library::path(), folder()));
    Snapshot written = ofTypeLibrary(HKEY_LOCAL_MACHINE);
    // Keys have no text; and some systems write the marshaller a second time, for 16-bit programs.
    std::erase_if(written, [](auto const& each) {
        return each.first.ends_with(L'\\') || each.first.ends_with(L"proxystubclsid@");
    });
    EXPECT_EQ(differences(rows, written), kNone);
}

TEST_F(Registration, letsTheSystemFindEachClassByName)
{
    ASSERT_EQ(regsvr32(L""), 0u);
    for (PublishedClass const& row : kClasses) {
        CLSID classId{};
        for (wchar_t const* const version : {L"", L".1"}) {
            std::wstring const progId = std::wstring(L"Quillet.") + row.name + version;
            ASSERT_EQ(::CLSIDFromProgID(progId.c_str(), &classId), S_OK);
            EXPECT_EQ(classId, row.id);
        }
        DWORD status = 0;
        EXPECT_EQ(::OleRegGetMiscStatus(classId, DVASPECT_CONTENT, &status), S_OK);
        EXPECT_EQ(std::to_wstring(status), row.miscStatus);
        EXPECT_EQ(::OleRegGetMiscStatus(classId, DVASPECT_ICON, &status), S_OK);
        EXPECT_EQ(status, 0u);
    }

    Bstr path;
    EXPECT_EQ(::QueryPathOfRegTypeLib(kLibraryId, 1, 0, LOCALE_NEUTRAL, path.put()), S_OK);
    EXPECT_STREQ(path.get(), kit::Library::path().c_str());
}

TEST_F(Registration, letsTheSystemMakeAnObjectAndUnloadTheComponent)
{
    ASSERT_EQ(regsvr32(L""), 0u);
    for (PublishedClass const& row : kClasses) {
        ComPtr<IUnknown> object;
        EXPECT_EQ(::CoCreateInstance(row.id, nullptr, CLSCTX_INPROC_SERVER, IID_IUnknown,
                                     reinterpret_cast<void**>(object.put())),
                  S_OK);
        EXPECT_NE(::GetModuleHandleW(L"quilbt.ocx"), nullptr);
    }
    ::CoFreeUnusedLibrariesEx(0, 0);
    EXPECT_EQ(::GetModuleHandleW(L"quilbt.ocx"), nullptr);
}

TEST_F(Registration, unregisteringLeavesACopyInAnotherFileAlone)
{
    std::wstring const server = kClass + L"\\InprocServer32";
    ASSERT_EQ(regsvr32(L""), 0u);
    setMachineValue(server, L"C:\\another\\quilbt.ocx");
    setMachineValue(kLibraryFile, L"C:\\another\\quilbt.ocx");
    Snapshot const classOfAnother = ofClass(HKEY_LOCAL_MACHINE);
    Snapshot const libraryOfAnother = ofTypeLibrary(HKEY_LOCAL_MACHINE);

    EXPECT_EQ(regsvr32(L"/u"), 0u);
    EXPECT_EQ(differences(classOfAnother, ofClass(HKEY_LOCAL_MACHINE)), kNone);
    EXPECT_EQ(differences(libraryOfAnother, ofTypeLibrary(HKEY_LOCAL_MACHINE)), kNone);

    setMachineValue(server, kit::Library::path());
    setMachineValue(kLibraryFile, kit::Library::path());
}

/// Stands in for the machine's part of the registry, where the user may read and not write.
class MachineWithoutRights : kit::NotCopied {
public:
    MachineWithoutRights()
    {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kFolder);
        m_root = created(kFolder);
        m_classes = created(std::wstring(kFolder) + L"\\Software\\Classes");
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        // Everyone is denied setting values and making keys (6), and allowed the rest.
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:(D;;0x6;;;WD)(A;;KA;;;WD)",
                                                               SDDL_REVISION_1, &descriptor, nullptr);
        checkStatus(::RegSetKeySecurity(m_classes.get(), DACL_SECURITY_INFORMATION, descriptor));
        ::LocalFree(descriptor);
        checkStatus(::RegOverridePredefKey(HKEY_LOCAL_MACHINE, m_root.get()));
    }
    ~MachineWithoutRights()
    {
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kFolder);
    }

private:
    static constexpr wchar_t kFolder[] = L"Software\\QuilletTestMachine";

    static UniqueKey created(std::wstring const& path)
    {
        HKEY key = nullptr;
        checkStatus(::RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                      KEY_ALL_ACCESS, nullptr, &key, nullptr));
        return UniqueKey(key);
    }

    UniqueKey m_root;
    UniqueKey m_classes;
};

TEST_F(Registration, withoutTheRightsForTheMachineIsForTheUser)
{
    kit::Library const library;
    using EntryPoint = HRESULT STDMETHODCALLTYPE();
    {
        MachineWithoutRights const machine;
        EXPECT_EQ(library.entry<EntryPoint>("DllRegisterServer")(), S_OK);
        expectNothing(HKEY_LOCAL_MACHINE);
        expectEverything(HKEY_CURRENT_USER);
        EXPECT_EQ(library.entry<EntryPoint>("DllUnregisterServer")(), S_OK);
    }
    expectNothing(HKEY_CURRENT_USER);
}

// 64-bit Windows has the classes of both architectures, each in a view of its own.
constexpr REGSAM kSistersView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

bool hasBothViews()
{
    BOOL isGuest = FALSE;
    return sizeof(void*) == 8 || (::IsWow64Process(::GetCurrentProcess(), &isGuest) && isGuest);
}

TEST_F(Registration, unregisteringKeepsTheNamesThatTheOtherArchitectureUses)
{
    if (!hasBothViews())
        GTEST_SKIP() << "of 64-bit Windows";
    ASSERT_EQ(regsvr32(L""), 0u);
    HKEY opened = nullptr;
    ASSERT_EQ(::RegCreateKeyExW(HKEY_LOCAL_MACHINE,
                                (L"Software\\Classes\\" + kClass + L"\\InprocServer32").c_str(), 0, nullptr,
                                REG_OPTION_NON_VOLATILE, KEY_WRITE | kSistersView, nullptr, &opened, nullptr),
              ERROR_SUCCESS);
    UniqueKey const sister(opened);
    wchar_t const path[] = L"C:\\sister\\quilbt.ocx";
    ASSERT_EQ(::RegSetValueExW(opened, nullptr, 0, REG_SZ, reinterpret_cast<BYTE const*>(path), sizeof path),
              ERROR_SUCCESS);

    EXPECT_EQ(regsvr32(L"/u"), 0u);
    EXPECT_EQ(differences({}, classesBelow(HKEY_LOCAL_MACHINE, {kClass})), kNone);
    EXPECT_EQ(classesBelow(HKEY_LOCAL_MACHINE, {kProgIds[0]})[L"quillet.qvflatcommand@"],
              L"Quillet flat command button");

    ASSERT_EQ(regsvr32(L""), 0u);
    HKEY classes = nullptr;
    ASSERT_EQ(::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\CLSID", 0,
                              KEY_ALL_ACCESS | kSistersView, &classes),
              ERROR_SUCCESS);
    UniqueKey const owned(classes);
    EXPECT_EQ(::RegDeleteTreeW(classes, kClass.substr(kClass.find(L'\\') + 1).c_str()), ERROR_SUCCESS);
}

TEST_F(Registration, unregisteringWhatIsNotRegisteredSucceeds) { EXPECT_EQ(regsvr32(L"/u"), 0u); }

TEST_F(Registration, refusesACommandLineThatItDoesNotKnow)
{
    kit::Library const library;
    using Install = HRESULT STDMETHODCALLTYPE(BOOL, LPCWSTR);
    auto* const install = library.entry<Install>("DllInstall");
    ASSERT_NE(install, nullptr);
    EXPECT_EQ(install(TRUE, L"everybody"), E_INVALIDARG);
    EXPECT_EQ(install(FALSE, L"everybody"), E_INVALIDARG);
}

} // namespace
} // namespace quillet
