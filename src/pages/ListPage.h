// A page that edits properties of one kind: their names in a list, the chosen one's value beside it.
#pragma once

#include "pages/PropertyPage.h"

namespace quillet {

class ListPage : public PropertyPage {
protected:
    ListPage(wchar_t const* title, ValueKind kind) noexcept : PropertyPage(title), m_kind(kind) {}

    /// The place beside the list.
    static constexpr int kBeside = 112;

    bool edits(DescribedProperty const& property) const override { return property.kind == m_kind; }
    void fill(PageWindow& window) final;
    void goTo(size_t property) final;
    void onCommand(WORD control, WORD notification) final;
    void onDraw(DRAWITEMSTRUCT const& item) final;

    /// Adds what stands beside the list.
    virtual void fillBeside(PageWindow& window) = 0;
    /// Another property was chosen, or its value changed.
    virtual void showValue() {}
    /// Lets the user choose another value in one of the system's dialogs.
    virtual void choose() = 0;
    virtual void onOtherCommand(WORD /*control*/, WORD /*notification*/) {}
    /// Draws the sample of the chosen property's value.
    virtual void drawSample(HDC dc, RECT const& place) = 0;

    /// The chosen property. There is one whenever there is any.
    size_t chosen() const;
    void addSample(PageWindow& window, Units const& place);
    /// Adds the button that leads to choose, below the sample.
    void addChooser(PageWindow& window, wchar_t const* label);
    /// The window that a dialog belongs to.
    HWND dialogOwner() const { return ::GetAncestor(window().handle(), GA_ROOT); }
    /// Keeps a change of the chosen property and shows it.
    void changeChosen(Variant value);

private:
    void refresh();

    ValueKind m_kind;
};

} // namespace quillet
