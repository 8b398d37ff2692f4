// A form of a hundred mixed controls, ours and the system's: what a user does to either.
#pragma once

#include "bench/Container.h"
#include "bench/Places.h"
#include "kit/HostWindow.h"
#include "kit/Library.h"

#include <windows.h>

#include <array>
#include <memory>
#include <vector>

namespace quillet::bench {

/// What both forms have: a window, and child windows in it that can be moved and given the focus.
class MixedForm {
public:
    static constexpr int kControls = 100;
    static constexpr Places kPlaces = Places::of(kControls);

    virtual ~MixedForm() = default;
    MixedForm(MixedForm const&) = delete;
    MixedForm& operator=(MixedForm const&) = delete;

    HWND window() const noexcept { return m_window.handle(); }
    virtual void fill() = 0;
    virtual void empty() = 0;
    virtual void place(int index, RECT const& at) = 0;
    virtual HWND focusWindow(int index) const = 0;

protected:
    MixedForm() = default;

private:
    kit::HostWindow m_window{Places::kOrigin, Places::kOrigin, 800, 600};
};

/// Twenty each of the five classes, loaded from a property bag; they find each other as siblings.
class OurMixedForm final : public MixedForm {
public:
    explicit OurMixedForm(kit::Library const& library);

    void fill() override;
    void empty() override;
    void place(int index, RECT const& at) override;
    HWND focusWindow(int index) const override;

private:
    Siblings m_siblings;
    Frame m_frame{window(), &m_siblings};
    SavedButton m_saved;
    std::array<ComPtr<IClassFactory>, 5> m_factories;
    std::vector<std::unique_ptr<Hosted>> m_controls;
};

/// Three push buttons to one option button and one check box of the system's.
class SystemMixedForm final : public MixedForm {
public:
    void fill() override;
    void empty() override { m_controls.clear(); }
    void place(int index, RECT const& at) override;
    HWND focusWindow(int index) const override { return m_controls[static_cast<size_t>(index)].get(); }

private:
    std::vector<UniqueWindow> m_controls;
};

} // namespace quillet::bench
