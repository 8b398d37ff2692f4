// Another party's eyes on a control's windows: found by class, subclassed like anybody may do.
#include "WindowWatch.h"

#include "Life.h"

#include <iterator>
#include <map>
#include <string>

namespace quillet::hostile {

namespace {

struct Watch {
    WNDPROC previous;
    Life* life;
};

/// By the 32 bits of a handle that count: after some 32,000 windows, systems differ in the others from call
/// to call.
std::map<LONG, Watch>& watches()
{
    static std::map<LONG, Watch> all;
    return all;
}

LRESULT CALLBACK watching(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto const found = watches().find(HandleToLong(window));
    if (found == watches().end())
        return ::DefWindowProcA(window, message, wParam, lParam);
    Watch const watch = found->second;
    std::string const number = '(' + std::to_string(message) + ')';
    watch.life->noted("Before" + number);
    LRESULT const result = ::CallWindowProcA(watch.previous, window, message, wParam, lParam);
    watch.life->noted("After" + number);
    return result;
}

} // namespace

HWND surfaceIn(HWND form)
{
    for (HWND child = ::GetWindow(form, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        char name[32] = {};
        ::GetClassNameA(child, name, static_cast<int>(std::size(name)));
        if (std::string(name).starts_with("QuilletSurface"))
            return child;
    }
    return nullptr;
}

void watchMessages(HWND window, Life& life)
{
    if (!window || watches().contains(HandleToLong(window)))
        return;
    auto const previous = ::GetWindowLongPtrA(window, GWLP_WNDPROC);
    watches()[HandleToLong(window)] = {reinterpret_cast<WNDPROC>(previous), &life};
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&watching));
}

void forgetWatches()
{
    std::erase_if(watches(),
                  [](auto const& each) { return !::IsWindow(static_cast<HWND>(LongToHandle(each.first))); });
}

} // namespace quillet::hostile
