// What every control of a form has in common, whoever made it.
#include "gallery/host/FormControl.h"

#include "gallery/form/FormValues.h"
#include "gallery/host/Extender.h"
#include "gallery/host/Form.h"

#include <algorithm>
#include <cmath>

namespace quillet::gallery {

namespace {

/// Far off every screen, and small enough for every conversion.
constexpr double kFarthest = 1'000'000;

constexpr double kControlWidth = 1215;
constexpr double kControlHeight = 375;

long twips(double value, double perUnit) noexcept
{
    double const scaled = value * perUnit;
    return std::isfinite(scaled) ? std::lround(std::clamp(scaled, -kFarthest, kFarthest)) : 0;
}

/// What stands on the form itself is measured in the form's scale, everything deeper in twips.
Place placeOf(FormValues const& values, Form const& form, bool isOnForm)
{
    double const unitX = isOnForm ? form.twipsPerUnitX() : 1;
    double const unitY = isOnForm ? form.twipsPerUnitY() : 1;
    return {twips(values.number(L"Left", 0), unitX), twips(values.number(L"Top", 0), unitY),
            std::max(twips(values.number(L"Width", kControlWidth / unitX), unitX), 0L),
            std::max(twips(values.number(L"Height", kControlHeight / unitY), unitY), 0L)};
}

ExtenderState stateOf(FormNode const& node, Form const& form, bool isOnForm)
{
    FormValues const values(node);
    ExtenderState state;
    state.name = node.name;
    state.tag = values.text(L"Tag");
    state.toolTipText = values.text(L"ToolTipText");
    if (values.find(L"Index"))
        state.index = values.whole(L"Index", 0);
    state.place = placeOf(values, form, isOnForm);
    state.tabIndex = values.whole(L"TabIndex", static_cast<long>(form.controls().size()));
    state.tabStop = values.flag(L"TabStop", true);
    state.visible = values.flag(L"Visible", true);
    state.isDefault = values.flag(L"Default", false);
    state.isCancel = values.flag(L"Cancel", false);
    return state;
}

} // namespace

FormControl::FormControl(Form& form, FormControl* container, FormNode const& node)
    : m_form(form), m_container(container), m_className(node.fullClass()),
      m_state(stateOf(node, form, container == nullptr)), m_extender(makeCounted<Extender>(*this))
{}

FormControl::~FormControl() { m_extender->disconnect(); }

void FormControl::moveTo(Place const& place)
{
    if (m_state.place == place)
        return;
    m_state.place = place;
    placeChanged();
}

void FormControl::setVisible(bool visible)
{
    if (m_state.visible == visible)
        return;
    m_state.visible = visible;
    visibleChanged();
}

void FormControl::setDefault(bool isDefault)
{
    if (isDefault)
        for (auto const& other : m_form.controls())
            other->m_state.isDefault = false;
    m_state.isDefault = isDefault;
    m_form.focus().update();
}

void FormControl::setCancel(bool isCancel)
{
    if (isCancel)
        for (auto const& other : m_form.controls())
            other->m_state.isCancel = false;
    m_state.isCancel = isCancel;
}

HWND FormControl::parentWindow() const noexcept
{
    for (FormControl const* outer = m_container; outer; outer = outer->m_container)
        if (HWND const window = outer->childrenWindow())
            return window;
    return m_form.window();
}

RECT FormControl::pixels() const noexcept
{
    Resolution const& resolution = m_form.resolution();
    Place const& place = m_state.place;
    RECT rect{};
    rect.left = resolution.pixelsX(place.left);
    rect.top = resolution.pixelsY(place.top);
    rect.right = resolution.pixelsX(place.left + place.width);
    rect.bottom = resolution.pixelsY(place.top + place.height);
    return rect;
}

bool FormControl::isShown() const noexcept
{
    return m_state.visible && (!m_container || m_container->isShown());
}

void FormControl::focus()
{
    if (window())
        ::SetFocus(window());
}

} // namespace quillet::gallery
