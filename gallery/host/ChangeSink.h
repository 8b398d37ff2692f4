// Listens to what a control reports of itself: changed properties, a changed look.
#pragma once

#include "base/ComCall.h"
#include "base/Counted.h"

#include <ocidl.h>
#include <windows.h>

#include <objidl.h>

#include <functional>

namespace quillet::gallery {

/// One object for the three subscriptions: property changes, the view, and the object's own news.
class ChangeSink final : public Counted<IPropertyNotifySink, IAdviseSink> {
public:
    struct Handlers {
        std::function<void(DISPID)> propertyChanged;
        std::function<void()> viewChanged;
    };

    explicit ChangeSink(Handlers handlers) : m_handlers(std::move(handlers)) {}
    void disconnect() noexcept { m_handlers = {}; }

    HRESULT STDMETHODCALLTYPE OnChanged(DISPID id) override
    {
        return comCall([&] {
            if (m_handlers.propertyChanged)
                m_handlers.propertyChanged(id);
        });
    }
    HRESULT STDMETHODCALLTYPE OnRequestEdit(DISPID) override { return S_OK; }

    void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {}
    void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override
    {
        ignoringErrors([&] {
            if (m_handlers.viewChanged)
                m_handlers.viewChanged();
        });
    }
    void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
    void STDMETHODCALLTYPE OnSave() override {}
    void STDMETHODCALLTYPE OnClose() override {}

private:
    Handlers m_handlers;
};

} // namespace quillet::gallery
