// Buttons with pictures: their paint, what the mouse does to them, and a form of five hundred.
#include "base/RunTimeError.h"
#include "bench/Container.h"
#include "bench/Places.h"
#include "bench/Rounds.h"
#include "bench/ShownImageButton.h"
#include "kit/Canvas.h"
#include "kit/Fonts.h"
#include "kit/Pump.h"

#include <memory>

namespace quillet::bench {

namespace {

constexpr POINT kBesideIt{ShownImageButton::kSize.cx + 30, ShownImageButton::kMiddle.y};

struct PictureRow {
    char const* name;
    ComPtr<IPictureDisp> picture;
};

std::vector<PictureRow> pictures()
{
    PICTDESC description{};
    description.picType = PICTYPE_ICON;
    description.icon.hicon = static_cast<HICON>(
        ::CopyImage(::LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_WARNING)), IMAGE_ICON, 16, 16, 0));
    return {{"no picture", {}},
            {"a bitmap", kit::newBitmapPicture(16, 16, RGB(10, 120, 200))},
            {"an icon", kit::newPicture(description)}};
}

/// What the button shows, painted by body.
template <class Body> kit::Canvas& painted(ShownImageButton const& button, kit::Canvas& canvas, Body&& body)
{
    RECT const all{0, 0, ShownImageButton::kSize.cx, ShownImageButton::kSize.cy};
    ::FillRect(WindowDc(button.window()).get(), &all, static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)));
    body();
    kit::readWindow(button.window(), canvas);
    return canvas;
}

Row measurePaint(ShownImageButton& button, std::string const& name, Effort effort)
{
    BareImagePainter const bare = button.barePainter();
    BareImageLook const look = button.bareLook(ImageLook::Normal);
    auto const ours = [&] { button.control().DrawButton(); };
    auto const floor = [&] { bare.paint(look); };
    kit::Canvas actual(ShownImageButton::kSize.cx, ShownImageButton::kSize.cy);
    kit::Canvas expected(ShownImageButton::kSize.cx, ShownImageButton::kSize.cy);
    std::string const different =
        differences(painted(button, expected, floor), painted(button, actual, ours));
    require(different.empty(), (name + ": the pictures differ\n" + different).c_str());
    return {"one paint, " + name, compare(effort, 10, ours, floor)};
}

Row measureHover(ShownImageButton& button, std::string const& name, Effort effort)
{
    BareImagePainter const bare = button.barePainter();
    BareImageLook const normal = button.bareLook(ImageLook::Normal);
    BareImageLook const hot = button.bareLook(ImageLook::Hot);
    auto const enteredAndLeft = [&] {
        double const entered = movedTo(button.window(), ShownImageButton::kMiddle);
        require(::GetCapture() == button.window(), "the button does not see the mouse come");
        return entered + movedTo(button.window(), kBesideIt);
    };
    auto const bothPainted = [&] {
        return microsecondsOf([&] {
            bare.paint(hot);
            bare.paint(normal);
        });
    };
    return {"mouse enters and leaves, " + name, compareTimed(effort, enteredAndLeft, bothPainted)};
}

/// Loaded from a property bag and shown in a window; then all closed.
Row measureForm(kit::Library const& library, ImageKind const& kind, IPictureDisp* picture, Effort effort)
{
    int const count = effort == Effort::Full ? 200 : 10;
    Places const places = Places::of(count);
    kit::HostWindow const window{Places::kOrigin, Places::kOrigin, Places::kForm.cx, Places::kForm.cy};
    Frame frame{window.handle()};
    SavedImageButton saved(picture);
    ComPtr<IClassFactory> const factory = library.factory(kind.classId);
    OLE_HANDLE bitmap = 0;
    check(query<IPicture>(picture)->get_Handle(&bitmap));
    auto const ours = [&] {
        std::vector<std::unique_ptr<Hosted>> buttons;
        for (int i = 0; i < count; ++i)
            buttons.push_back(
                std::make_unique<Hosted>(deref(factory.get()), saved, frame, window.handle(), places.at(i)));
    };
    auto const systems = [&] {
        std::vector<UniqueWindow> buttons;
        for (int i = 0; i < count; ++i) {
            RECT const place = places.at(i);
            buttons.emplace_back(::CreateWindowExW(
                0, L"BUTTON", kCaption, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_BITMAP, place.left, place.top,
                places.size.cx, places.size.cy, window.handle(), nullptr, nullptr, nullptr));
            ::SendMessageW(buttons.back().get(), BM_SETIMAGE, IMAGE_BITMAP, static_cast<LPARAM>(bitmap));
        }
    };
    Comparison comparison = compare(effort, 1, ours, systems, &kit::pumpPending);
    comparison.ours /= count;
    comparison.floor /= count;
    return {"one of " + std::to_string(count) + " " + kind.name + "s with pictures in a window", comparison};
}

} // namespace

Rows measurePictures(kit::Library const& library, Effort effort)
{
    Rows rows;
    auto const all = pictures();
    for (ImageKind const& kind : kImageKinds) {
        for (PictureRow const& row : all) {
            ShownImageButton button(library, kind, row.picture.get());
            std::string const name = std::string(kind.name) + " with " + row.name;
            button.enter(ImageLook::Normal);
            rows.push_back(measurePaint(button, name, effort));
            rows.push_back(measureHover(button, name, effort));
            button.enter(ImageLook::Normal);
        }
        rows.push_back(measureForm(library, kind, all[1].picture.get(), effort));
    }
    return rows;
}

} // namespace quillet::bench
