#include "AppVisitor.h"

#include "background_editor/screen/EditBackgroundVC.h"
#include "export/SaveViewController.h"
#include "mask_editor/screen/ToolBars.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "platform/text/LocalizedStrings.h"

#include <QTest>

#include <utility>

namespace pelmira {
namespace {

constexpr int patienceMilliseconds = 20000;

} // namespace

AppVisitor::AppVisitor(AppDelegate& application, QString folder, int firstPicture)
    : Visitor(application.window(), std::move(folder), firstPicture), _application(application)
{
}

void AppVisitor::launch(QSize windowSize)
{
    _application.window().resize(windowSize);
    _application.applicationDidFinishLaunching({});
    expect(QTest::qWaitForWindowExposed(&_application.window()), "the window shows");
    settle();
}

void AppVisitor::tapText(const char* key)
{
    const QByteArray name = localized(key).toUtf8();
    scrollTo(name.constData());
    tapItem(name.constData());
}

void AppVisitor::waitFor(const std::function<bool()>& condition, const char* what)
{
    expect(QTest::qWaitFor(condition, patienceMilliseconds), what);
}

void AppVisitor::waitForEditor()
{
    waitFor([this] { return editor() && editor().engine() && editor().engine()->canvas.isOpen(); },
            "the photo opens in the editor");
}

void AppVisitor::waitForFill()
{
    waitFor([this] { return editor().engine()->canvas.readySurface() != nullptr; },
            "the fill ends");
}

void AppVisitor::openBackgroundEditor()
{
    tapItem("Edit background");
    waitFor(
        [this] {
            return backgroundEditor() && backgroundEditor()->workAreaView()->fgStickerView();
        },
        "the background editor opens");
    settle();
}

void AppVisitor::saveAs(const char* button, const char* resolution)
{
    tapItem(button);
    settle();
    tapItem(resolution);
    waitFor([this] { return saveView()->progressHUD()->isSuccess(); }, "the picture is saved");
}

EditorScreen AppVisitor::editor() const
{
    return EditorScreen(_application.navigation().topScreen());
}

SaveViewController* AppVisitor::saveView() const
{
    return topScreen<SaveViewController>();
}

EditBackgroundVC* AppVisitor::backgroundEditor() const
{
    return topScreen<EditBackgroundVC>();
}

QPointF AppVisitor::onPhoto(double x, double y) const
{
    const EditorCanvas& canvas = editor().engine()->canvas;
    const QSizeF view = canvas.viewSize();
    const QSizeF shown = canvas.fgImage.size * canvas.fgImage.scale / canvas.unitsPerPoint();
    return {view.width() / 2 + (x - 0.5) * shown.width(),
            view.height() / 2 + (y - 0.5) * shown.height()};
}

QPointF AppVisitor::onCanvas(double x, double y) const
{
    const QRectF canvas = backgroundEditor()->workAreaView()->bgImageView()->frame().translated(
        backgroundEditor()->workAreaFrame().topLeft());
    return {canvas.x() + x * canvas.width(), canvas.y() + y * canvas.height()};
}

QPointF AppVisitor::dial() const
{
    const ToolBars& bars = editor().bars();
    const QSizeF window = _application.window().size();
    return {window.width() / 2,
            window.height() - bars.bottomBarHeight() + bars.dialFrame().center().y()};
}

} // namespace pelmira
