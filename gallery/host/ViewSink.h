// Listens to a changed look of a control that has no window.
#pragma once

#include "base/ComCall.h"
#include "base/Counted.h"

#include <windows.h>

#include <objidl.h>

#include <functional>

namespace quillet::gallery {

class ViewSink final : public Counted<IAdviseSink> {
public:
    explicit ViewSink(std::function<void()> changed) : m_changed(std::move(changed)) {}
    void disconnect() noexcept { m_changed = nullptr; }

    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {}
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override
    {
        ignoringErrors([&] {
            if (m_changed)
                m_changed();
        });
    }
    void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
    void STDMETHODCALLTYPE OnSave() override {}
    void STDMETHODCALLTYPE OnClose() override {}

private:
    std::function<void()> m_changed;
};

} // namespace quillet::gallery
