#include "EditorScreen.h"

#include "controls/InterfaceButton.h"
#include "mask_editor/screen/ViewController.h"
#include "platform/gl/OffscreenGLView.h"

#include <QVariant>

#include <utility>

namespace pelmira {

EditorScreen::EditorScreen(Screen* screen)
{
    if (auto* const editor = qobject_cast<ViewController*>(screen))
        _screen = editor->shared_from_this();
}

EditorScreen::EditorScreen(UserDefaults& defaults, ContextMaker makeContext)
    : _screen(std::make_shared<ViewController>(defaults, std::move(makeContext)))
{
}

std::shared_ptr<Screen> EditorScreen::screen() const
{
    return _screen;
}

TouchResponder& EditorScreen::touches() const
{
    return *_screen;
}

SaveViewControllerDelegate& EditorScreen::delegate() const
{
    return *_screen;
}

void EditorScreen::setImage(QImage image) const
{
    _screen->setImage(std::move(image));
}

void EditorScreen::setResumeWorkHelper(ResumeWorkHelper* work) const
{
    _screen->setResumeWorkHelper(work);
}

void EditorScreen::show(const QImage& photo, OffscreenGLView& view) const
{
    _screen->setImage(photo);
    _screen->setGLView(&view);
    _screen->viewDidLoad();
    _screen->setViewSize({390, 844});
    _screen->viewWillAppear(true);
    view.displayIfNeeded();
    _screen->viewDidAppear(true);
}

std::function<void()>& EditorScreen::popBlock() const
{
    return _screen->popBlock;
}

std::function<void()>& EditorScreen::presentHelpBlock() const
{
    return _screen->presentHelpBlock;
}

std::function<void(std::shared_ptr<SaveViewController>)>& EditorScreen::presentSaveViewBlock() const
{
    return _screen->presentSaveViewBlock;
}

void EditorScreen::press(const char* name) const
{
    const QByteArray operation = QByteArray(name) + "ButtonPressed";
    if (!QMetaObject::invokeMethod(_screen.get(), operation.constData()))
        qFatal("The editor has no button %s", name);
}

InterfaceButton& EditorScreen::button(const char* name) const
{
    const QByteArray property = QByteArray(name) + "Button";
    auto* const button = _screen->property(property.constData()).value<InterfaceButton*>();
    if (!button)
        qFatal("The editor has no button %s", name);
    return *button;
}

void EditorScreen::changeBackgroundViewTapped() const
{
    _screen->changeBackgroundViewTapped();
}

void EditorScreen::stepBrushSize(int steps) const
{
    _screen->stepBrushSize(steps);
}

EditorMode EditorScreen::mode() const
{
    return _screen->mode();
}

MaskEditorEngine* EditorScreen::engine() const
{
    return _screen->engine();
}

ToolBars& EditorScreen::bars() const
{
    return *_screen->bars();
}

ToolTip& EditorScreen::toolTip() const
{
    return *_screen->toolTip();
}

Alert& EditorScreen::alert() const
{
    return *_screen->alert();
}

ZKLScrollDial& EditorScreen::dial() const
{
    return *_screen->dial();
}

KeyboardAim& EditorScreen::keyboardAim() const
{
    return *_screen->keyboardAim();
}

BackgroundPreview& EditorScreen::changeBackgroundView() const
{
    return *_screen->changeBackgroundView();
}

BrushPanelView* EditorScreen::brushAdjustView() const
{
    return _screen->brushAdjustView();
}

QRectF EditorScreen::brushAdjustFrame() const
{
    return _screen->brushAdjustFrame();
}

} // namespace pelmira
