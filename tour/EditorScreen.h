#pragma once

#include "export/SaveViewControllerDelegate.h"
#include "mask_editor/tools/EditorMode.h"
#include "platform/screen/Screen.h"
#include "platform/touch/Touches.h"

#include <QImage>
#include <QRectF>

#include <cstddef>
#include <functional>
#include <memory>

namespace pelmira {

class Alert;
class BackgroundPreview;
class BrushPanelView;
class GLContext;
class InterfaceButton;
class KeyboardAim;
class OffscreenGLView;
class ResumeWorkHelper;
class SaveViewController;
class ToolBars;
class ToolTip;
class UserDefaults;
class ViewController;
class ZKLScrollDial;
struct MaskEditorEngine;

/// The mask editor's screen for those who use it from outside: the tour, the tests and the
/// benchmarks. They know its class only through this, so that a change of it compiles one file
/// for all of them. Keeps the screen alive.
class EditorScreen {
public:
    using ContextMaker = std::function<std::shared_ptr<GLContext>()>;

    EditorScreen() = default;
    /// Nothing if that is another screen, or none.
    explicit EditorScreen(Screen* screen);
    /// A new one. Without a context it has no GL.
    EditorScreen(UserDefaults& defaults, ContextMaker makeContext);

    explicit operator bool() const { return _screen != nullptr; }
    bool operator==(std::nullptr_t) const { return _screen == nullptr; }
    std::shared_ptr<Screen> screen() const;
    Screen* operator->() const { return screen().get(); }
    TouchResponder& touches() const;
    SaveViewControllerDelegate& delegate() const;

    void setImage(QImage image) const;
    void setResumeWorkHelper(ResumeWorkHelper* work) const;
    /// On a phone's view, with all that a window would call.
    void show(const QImage& photo, OffscreenGLView& view) const;
    std::function<void()>& popBlock() const;
    std::function<void()>& presentHelpBlock() const;
    std::function<void(std::shared_ptr<SaveViewController>)>& presentSaveViewBlock() const;

    /// By the names that they have in the layout file: `press("undo")`, `button("undo")`.
    void press(const char* name) const;
    InterfaceButton& button(const char* name) const;
    void changeBackgroundViewTapped() const;
    void stepBrushSize(int steps) const;

    EditorMode mode() const;
    MaskEditorEngine* engine() const;
    ToolBars& bars() const;
    ToolTip& toolTip() const;
    Alert& alert() const;
    ZKLScrollDial& dial() const;
    KeyboardAim& keyboardAim() const;
    BackgroundPreview& changeBackgroundView() const;
    /// Nothing while it is closed.
    BrushPanelView* brushAdjustView() const;
    QRectF brushAdjustFrame() const;

private:
    std::shared_ptr<ViewController> _screen;
};

} // namespace pelmira
