// A live form: making its controls, finding them, ending them.
#include "gallery/host/Form.h"

#include "base/ComCall.h"
#include "base/RunTimeError.h"
#include "drawing/SystemColours.h"
#include "gallery/form/Fonts.h"
#include "gallery/form/FormValues.h"
#include "gallery/form/Names.h"
#include "gallery/host/Extender.h"
#include "gallery/host/FormObject.h"
#include "gallery/host/HostedControl.h"
#include "gallery/host/InPlaceFrame.h"
#include "gallery/intrinsic/IntrinsicControl.h"

#include <utility>

namespace quillet::gallery {

namespace {

constexpr long kScaleTwips = 1;
constexpr long kScalePoints = 2;
constexpr long kScalePixels = 3;
constexpr double kTwipsPerPoint = 20;

ComPtr<IFont> formFont(FormNode const& node)
{
    PropertyBlock const* const block = FormValues(node).findBlock(L"Font");
    return makeFont(block ? fontFaceOf(*block) : FontFace());
}

double twipsPerUnit(long scaleMode, int dotsPerInch) noexcept
{
    if (scaleMode == kScalePoints)
        return kTwipsPerPoint;
    return scaleMode == kScalePixels ? static_cast<double>(kTwipsPerInch) / dotsPerInch : 1;
}

std::wstring hexOf(HRESULT result)
{
    wchar_t text[16];
    ::wsprintfW(text, L"0x%08lX", result);
    return text;
}

} // namespace

Form::Form(FormTree const& tree, FormOptions options)
    : m_options(std::move(options)), m_name(tree.form.name), m_coding(tree.coding),
      m_scaleMode(FormValues(tree.form).whole(L"ScaleMode", kScaleTwips)),
      m_backColor(FormValues(tree.form).colour(L"BackColor", colour::kButtonFace)),
      m_foreColor(FormValues(tree.form).colour(L"ForeColor", colour::kButtonText)),
      m_font(formFont(tree.form)), m_object(makeCounted<FormObject>(*this)),
      m_frame(makeCounted<InPlaceFrame>(*this)), m_focus(*this), m_keyboard(*this)
{
    makeWindow(tree.form);
    try {
        makeControls(tree.form.children, nullptr);
        keepOneDefault();
        for (auto const& control : m_controls)
            control->activate();
    } catch (...) {
        close(); // controls call back into the form, so they end before any member does
        throw;
    }
    m_focus.update();
}

Form::~Form() { close(); }

void Form::close()
{
    if (std::exchange(m_isClosed, true))
        return;
    m_focus.forget();
    // What stands in a container goes before it.
    for (auto control = m_controls.rbegin(); control != m_controls.rend(); ++control)
        (*control)->close();
    m_object->disconnect();
    m_frame->disconnect();
    m_window.reset();
    if (m_options.onClosed)
        m_options.onClosed();
}

double Form::twipsPerUnitX() const noexcept { return twipsPerUnit(m_scaleMode, m_resolution.x); }
double Form::twipsPerUnitY() const noexcept { return twipsPerUnit(m_scaleMode, m_resolution.y); }

void Form::makeControls(std::vector<FormNode> const& nodes, FormControl* container)
{
    for (FormNode const& node : nodes) {
        m_controls.push_back(makeControl(node, container));
        makeControls(node.children, m_controls.back().get());
    }
}

std::unique_ptr<FormControl> Form::makeControl(FormNode const& node, FormControl* container)
{
    if (sameName(node.library, L"VB"))
        return std::make_unique<IntrinsicControl>(*this, container, node);
    NewControl created;
    if (m_options.factory)
        created = m_options.factory(node.library, node.className);
    try {
        if (!created.object)
            throw RunTimeError(REGDB_E_CLASSNOTREG);
        auto hosted = std::make_unique<HostedControl>(*this, container, node, created.object);
        hosted->load(node, created.classInfo.get());
        return hosted;
    } catch (RunTimeError const& error) {
        if (created.failure.empty())
            created.failure = L"it answers " + hexOf(error.result());
        warn(node.line, node.fullClass() + L" cannot be opened: " + created.failure);
        return std::make_unique<IntrinsicControl>(*this, container, node, IntrinsicKind::Placeholder);
    }
}

/// A form file may say it of several; the first one has it.
void Form::keepOneDefault()
{
    bool hasDefault = false;
    bool hasCancel = false;
    for (auto const& control : m_controls) {
        ExtenderState& state = control->state();
        bool const isDefault = state.isDefault && !hasDefault && control->actsLikeButton();
        bool const isCancel = state.isCancel && !hasCancel && control->actsLikeButton();
        hasDefault = hasDefault || isDefault;
        hasCancel = hasCancel || isCancel;
        state.isDefault = isDefault;
        state.isCancel = isCancel;
    }
}

FormControl* Form::find(std::wstring_view controlName) const noexcept
{
    for (auto const& control : m_controls)
        if (sameName(control->state().name, controlName))
            return control.get();
    return nullptr;
}

FormControl* Form::controlOf(HWND inside) const noexcept
{
    for (HWND window = inside; window && window != m_window.get(); window = ::GetAncestor(window, GA_PARENT))
        for (auto const& control : m_controls)
            if (control->window() == window)
                return control.get();
    return nullptr;
}

void Form::raise(FormControl& control, std::wstring_view name, DISPPARAMS const& arguments)
{
    if (m_options.onEvent && !m_isClosed)
        m_options.onEvent({control, name, arguments});
}

void Form::warn(int line, std::wstring reason) const
{
    if (m_options.onWarning)
        m_options.onWarning({m_options.file, line, std::move(reason)});
}

bool Form::translate(MSG& message)
{
    if (m_isClosed || (message.hwnd != window() && !::IsChild(window(), message.hwnd)))
        return false;
    return isDesign() ? designed(message) : m_keyboard.translate(message);
}

/// A designed control hears nothing of the mouse.
bool Form::designed(MSG const& message)
{
    bool const isMouse = message.message >= WM_MOUSEFIRST && message.message <= WM_MOUSELAST;
    FormControl* const control = isMouse ? controlOf(message.hwnd) : nullptr;
    if (control && message.message == WM_LBUTTONDBLCLK && m_options.onDesign)
        m_options.onDesign(*control);
    return control != nullptr;
}

} // namespace quillet::gallery
