// Notes the GDI calls of an image by standing in its import table.
#include "drawing/GdiCalls.h"

#include "base/Handles.h"
#include "drawing/ImportTable.h"

#include <algorithm>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <string_view>
#include <utility>

namespace quillet {

namespace {

GdiCalls* g_calls = nullptr; // the one that lives

/// A string as a template argument.
template <std::size_t Size> struct Name {
    constexpr Name(char const (&from)[Size]) { std::copy_n(from, Size, text); }
    char text[Size];
};

/// Puts the arguments of one call into words.
class Words {
public:
    explicit Words(char const* function) { m_text << function; }

    void add(int value) { m_text << ' ' << value; }
    void add(COLORREF value)
    {
        m_text << ' ' << std::hex << std::setw(6) << std::setfill('0') << value << std::dec;
    }
    void add(RECT const* r)
    {
        m_text << " (" << r->left << ',' << r->top << ',' << r->right << ',' << r->bottom << ')';
    }
    void add(char const* characters) { m_characters = characters; } // the count comes next
    void add(UINT value)
    {
        if (m_characters)
            m_text << " '" << std::string_view(std::exchange(m_characters, nullptr), value) << '\'';
        m_text << ' ' << value;
    }
    void add(void const* handle) { m_text << ' ' << g_calls->nameOf(handle); }
    void addResult(void const* handle) { m_text << " -> " << g_calls->nameOf(handle); }

    std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    char const* m_characters = nullptr;
};

char const* kindMadeBy(std::string_view function)
{
    if (function == "CreateCompatibleDC")
        return "dc";
    if (function == "CreateCompatibleBitmap")
        return "bitmap";
    return function == "CreatePen" ? "pen" : nullptr;
}

template <Name kName, class Function> struct Stand;

/// Stands for one function.
template <Name kName, class Result, class... Arguments> struct Stand<kName, Result WINAPI(Arguments...)> {
    static inline Result(WINAPI* original)(Arguments...) = nullptr;

    static Result WINAPI call(Arguments... arguments)
    {
        Words words(kName.text);
        (words.add(arguments), ...);
        Result result{};
        if (!g_calls->isFailing(kName.text))
            result = original(arguments...);
        if constexpr (std::is_pointer_v<Result>) {
            if (char const* const kind = kindMadeBy(kName.text))
                g_calls->nameNew(result, kind);
            words.addResult(result);
        }
        g_calls->note(words.text());
        return result;
    }
};

/// One function: its name in the import table, what stands for it, and where the original is kept.
struct Redirected {
    char const* name;
    void* stand;
    void** original;
};

template <Name kName, class Function> Redirected row()
{
    using S = Stand<kName, Function>;
    return {kName.text, reinterpret_cast<void*>(&S::call), reinterpret_cast<void**>(&S::original)};
}

std::vector<Redirected> const& rows()
{
    static std::vector<Redirected> const all = {
        row<"BitBlt", decltype(::BitBlt)>(),
        row<"CreateCompatibleBitmap", decltype(::CreateCompatibleBitmap)>(),
        row<"CreateCompatibleDC", decltype(::CreateCompatibleDC)>(),
        row<"CreatePen", decltype(::CreatePen)>(),
        row<"DeleteDC", decltype(::DeleteDC)>(),
        row<"DeleteObject", decltype(::DeleteObject)>(),
        row<"ExtTextOutA", decltype(::ExtTextOutA)>(),
        row<"GetBkColor", decltype(::GetBkColor)>(),
        row<"GetStockObject", decltype(::GetStockObject)>(),
        row<"GetTextColor", decltype(::GetTextColor)>(),
        row<"InvertRect", decltype(::InvertRect)>(),
        row<"LineTo", decltype(::LineTo)>(),
        row<"MoveToEx", decltype(::MoveToEx)>(),
        row<"ReleaseDC", decltype(::ReleaseDC)>(),
        row<"SelectObject", decltype(::SelectObject)>(),
        row<"SetBkColor", decltype(::SetBkColor)>(),
        row<"SetROP2", decltype(::SetROP2)>(),
        row<"SetTextColor", decltype(::SetTextColor)>(),
    };
    return all;
}

void standIn(HMODULE caller)
{
    forEachImport(caller, [](char const* name, void** slot) {
        for (Redirected const& row : rows())
            if (std::strcmp(name, row.name) == 0) {
                *row.original = *slot;
                exchangeImport(slot, row.stand);
            }
    });
}

void stepAside(HMODULE caller)
{
    forEachImport(caller, [](char const*, void** slot) {
        for (Redirected const& row : rows())
            if (*slot == row.stand)
                exchangeImport(slot, *row.original);
    });
}

HGDIOBJ bitmapOfAFreshDc()
{
    UniqueMemoryDc const fresh(::CreateCompatibleDC(nullptr));
    return ::GetCurrentObject(fresh.get(), OBJ_BITMAP);
}

} // namespace

GdiCalls::GdiCalls(kit::SharedRecord record, HMODULE caller) : m_record(std::move(record)), m_caller(caller)
{
    name(nullptr, "none");
    name(::GetStockObject(NULL_BRUSH), "NULL_BRUSH");
    name(::GetStockObject(WHITE_BRUSH), "WHITE_BRUSH");
    name(::GetStockObject(BLACK_PEN), "BLACK_PEN");
    name(::GetStockObject(SYSTEM_FONT), "initial font");
    name(bitmapOfAFreshDc(), "initial bitmap");
    g_calls = this;
    standIn(m_caller);
}

GdiCalls::~GdiCalls()
{
    stepAside(m_caller);
    g_calls = nullptr;
}

void* GdiCalls::handle(std::string const& name) const
{
    auto const found = std::ranges::find(m_names, name, &std::pair<void const* const, std::string>::second);
    return found == m_names.end() ? nullptr : const_cast<void*>(found->first);
}

std::string GdiCalls::nameOf(void const* handle) const
{
    auto const found = m_names.find(handle);
    return found == m_names.end() ? "?" : found->second;
}

void GdiCalls::nameNew(void const* handle, std::string const& kind)
{
    if (handle)
        name(handle, kind + std::to_string(++m_made[kind]));
}

} // namespace quillet
