// Moves and presses the real mouse over the gallery's form or its dialog, from outside: pointer DEED…, where
// a DEED is "move X Y" (pixels of the form's client area), "away" (to the screen's corner), "down", "up",
// "origin" (says where the client area begins on the screen), "dialog" (waits until one shows) or "tooltip"
// (the same, and says where). For scripts that want to see what a user sees.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

using Words = wchar_t**;

constexpr DWORD kPatience = 20000; // milliseconds
constexpr DWORD kBetweenLooks = 20;
// A pixel off the corner: a new display's cursor counts as being in it, so moving there would do nothing.
constexpr POINT kAway{1, 1};

constexpr wchar_t kForm[] = L"QuilletGalleryForm";

/// A dialog where one is open, else the form in the gallery's window.
HWND shownForm() noexcept
{
    HWND const dialog = ::FindWindowW(kForm, nullptr);
    HWND const gallery = ::FindWindowW(L"QuilletGallery", nullptr);
    return dialog || !gallery ? dialog : ::FindWindowExW(gallery, nullptr, kForm, nullptr);
}

int number(wchar_t const* word) noexcept { return static_cast<int>(std::wcstol(word, nullptr, 10)); }

/// Tries until check holds.
template <class Check> bool await(Check const& check)
{
    for (DWORD const start = ::GetTickCount(); ::GetTickCount() - start < kPatience; ::Sleep(kBetweenLooks))
        if (check())
            return true;
    return false;
}

/// The display may not follow at once.
bool moveOnScreen(POINT at)
{
    ::GetDesktopWindow(); // makes the desktop, where this is the first program on it
    return await([at] {
        ::SetCursorPos(at.x, at.y);
        POINT now{};
        return ::GetCursorPos(&now) && now.x == at.x && now.y == at.y;
    });
}

bool move(int x, int y)
{
    POINT at{x, y};
    return ::ClientToScreen(shownForm(), &at) && moveOnScreen(at);
}

bool sayOrigin()
{
    POINT origin{};
    return ::ClientToScreen(shownForm(), &origin) && std::printf("%ld %ld\n", origin.x, origin.y) > 0;
}

bool turnButton(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    return ::SendInput(1, &input, sizeof input) == 1;
}

HWND shownTooltip() noexcept
{
    HWND found = nullptr;
    while ((found = ::FindWindowExW(nullptr, found, L"tooltips_class32", nullptr)) != nullptr)
        if (::IsWindowVisible(found))
            return found;
    return nullptr;
}

bool awaitTooltip()
{
    return await([] {
        RECT at{};
        HWND const tooltip = shownTooltip();
        return tooltip && ::GetWindowRect(tooltip, &at) &&
               std::printf("%ld %ld %ld %ld\n", at.left, at.top, at.right - at.left, at.bottom - at.top) > 0;
    });
}

/// Does the deed that begins at word, which moves on to the next one; whether that was possible.
bool doOne(Words& word, Words end)
{
    std::wstring_view const deed = *word++;
    if (deed == L"move" && end - word >= 2) {
        word += 2;
        return move(number(word[-2]), number(word[-1]));
    }
    if (deed == L"away")
        return moveOnScreen(kAway);
    if (deed == L"dialog")
        return await([] { return ::IsWindowVisible(::FindWindowW(kForm, nullptr)) != FALSE; });
    if (deed == L"origin")
        return sayOrigin();
    if (deed == L"down")
        return turnButton(MOUSEEVENTF_LEFTDOWN);
    if (deed == L"up")
        return turnButton(MOUSEEVENTF_LEFTUP);
    return deed == L"tooltip" && awaitTooltip();
}

} // namespace

int wmain(int count, wchar_t** words)
{
    Words const end = words + count;
    for (Words word = words + 1; word < end;)
        if (!doOne(word, end)) {
            std::fputs("pointer: a deed could not be done; is there a form?\n", stderr);
            return 1;
        }
    return 0;
}
