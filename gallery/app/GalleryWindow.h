// The gallery's window: a bar to change between forms, the form, and beside it the events.
#pragma once

#include "base/Handles.h"
#include "gallery/app/ControlLibrary.h"
#include "gallery/app/EventLog.h"
#include "gallery/app/EventPane.h"
#include "gallery/app/OpenForm.h"

#include <windows.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillet::gallery {

/// The bar is a form of its own, among the program's resources. A button of its control array tbForm opens
/// the form that its Tag names; tbDesign changes between running and designing, tbSave saves.
class GalleryWindow {
public:
    /// Opens hidden. Components are looked for in the program's folder; the log may be null.
    GalleryWindow(std::wstring programFolder, EventLog* log);
    ~GalleryWindow();
    GalleryWindow(GalleryWindow const&) = delete;
    GalleryWindow& operator=(GalleryWindow const&) = delete;

    /// Opens a form in place of the one before; an empty path is the first form of the bar. Throws FormError
    /// and leaves the old form where it is.
    void open(std::wstring const& path, UserMode mode);
    void show();
    /// Gives the forms their look at a message before it is dispatched; true when it is done.
    bool translate(MSG& message);

    HWND window() const noexcept { return m_window.get(); }
    Form& bar() noexcept { return *m_bar->form(); }
    Form& form() noexcept { return *shownForm(); }
    /// A dialog that a button of the form has opened; null when there is none.
    Form* dialog() noexcept { return m_dialog ? m_dialog->form() : nullptr; }
    HWND events() const noexcept { return m_pane->list(); }

    /// What the window is sent.
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    void makeWindow();
    void makeBar();
    std::unique_ptr<OpenForm> opened(Document document);
    /// Null while none is open.
    Form* shownForm() const noexcept { return m_open ? m_open->form() : nullptr; }
    void showDocument(UserMode mode);
    void showChoice();
    void fit();
    void settle();
    void layOut();

    void heard(FormEvent const& event);
    void barClicked(FormControl& button);
    void openDialog(std::wstring const& file);
    void closeDialog();
    void showPages(FormControl& control);
    void changeMode();
    void openNext(int step);
    std::wstring pathOf(std::wstring const& fileName) const;

    /// Whether nothing is lost when the form goes now; what was designed may be saved first.
    bool mayGo();
    void save();
    void close();

    /// Runs the deed once whatever is running now has returned; a control may be ended by it.
    void later(std::function<void()> deed);
    void runLater();

    std::wstring m_programFolder;
    EventLog* m_log;
    UniqueWindow m_window;
    std::unique_ptr<EventPane> m_pane;
    ControlLibraries m_libraries;
    std::unique_ptr<OpenForm> m_bar;
    std::unique_ptr<OpenForm> m_open;
    std::unique_ptr<OpenForm> m_dialog;
    std::deque<std::function<void()>> m_deeds;
};

} // namespace quillet::gallery
