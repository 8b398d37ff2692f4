// The component used by its manifest alone, with nothing in the registry.
#include "base/Bstr.h"
#include "base/ComPtr.h"
#include "kit/Library.h"
#include "pages/PageClass.h"
#include "shell/ClassTable.h"
#include "shell/RegistryRows.h"
#include "typelib/Guids.h"

#include <ocidl.h>
#include <ole2.h>

#include <gtest/gtest.h>

namespace quillet {
namespace {

class Manifest : public testing::Test {
protected:
    Manifest()
    {
        std::wstring path = kit::Library::path();
        path = path.substr(0, path.find_last_of(L'.')) + L".manifest";
        ACTCTXW description{};
        description.cbSize = sizeof(description);
        description.lpSource = path.c_str();
        m_context = ::CreateActCtxW(&description);
        EXPECT_NE(m_context, INVALID_HANDLE_VALUE);
        EXPECT_TRUE(::ActivateActCtx(m_context, &m_cookie));
        ::OleInitialize(nullptr);
    }
    ~Manifest() override
    {
        ::CoFreeUnusedLibraries();
        ::OleUninitialize();
        ::DeactivateActCtx(0, m_cookie);
        ::ReleaseActCtx(m_context);
    }

private:
    HANDLE m_context;
    ULONG_PTR m_cookie = 0;
};

TEST_F(Manifest, namesEveryClassByBothOfItsNames)
{
    for (ClassRow const& row : classTable())
        for (std::wstring const& name : {currentProgId(row), versionedProgId(row)}) {
            // A name in a manifest stands for an identifier of the context's own, which leads to the class.
            CLSID found{};
            ASSERT_EQ(::CLSIDFromProgID(name.c_str(), &found), S_OK);
            ComPtr<IPersist> object;
            ASSERT_EQ(::CoCreateInstance(found, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IPersistStreamInit),
                                         reinterpret_cast<void**>(object.put())),
                      S_OK);
            CLSID own{};
            EXPECT_EQ(object->GetClassID(&own), S_OK);
            EXPECT_EQ(own, row.controlClass.classId);
        }
}

TEST_F(Manifest, makesEveryControlWithItsStatus)
{
    for (ClassRow const& row : classTable()) {
        ControlClass const& known = row.controlClass;
        ComPtr<IOleObject> object;
        ASSERT_EQ(::CoCreateInstance(known.classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IOleObject),
                                     reinterpret_cast<void**>(object.put())),
                  S_OK);
        DWORD status = 0;
        EXPECT_EQ(::OleRegGetMiscStatus(known.classId, DVASPECT_CONTENT, &status), S_OK);
        EXPECT_EQ(status, known.miscStatus);
    }
}

TEST_F(Manifest, makesEveryPropertyPage)
{
    for (PageClass const* const known : kPageClasses) {
        ComPtr<IPropertyPage> page;
        EXPECT_EQ(::CoCreateInstance(known->classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IPropertyPage),
                                     reinterpret_cast<void**>(page.put())),
                  S_OK);
    }
}

TEST_F(Manifest, leadsToTheTypeLibrary)
{
    Bstr path;
    EXPECT_EQ(::QueryPathOfRegTypeLib(kLibraryId, 1, 0, LOCALE_NEUTRAL, path.put()), S_OK);
    EXPECT_TRUE(path.view().ends_with(L"quilbt.ocx"));
}

} // namespace
} // namespace quillet
