#pragma once

#include "export/SaveViewControllerDelegate.h"
#include "mask_editor/tools/EditorMode.h"
#include "platform/screen/Screen.h"
#include "platform/touch/Touches.h"

#include <QImage>
#include <QRectF>

#include <functional>
#include <memory>

namespace pelmira {

class Alert;
class BackgroundPreview;
class BrushPanelView;
class GLContext;
class InterfaceButton;
class KeyboardAim;
class ResumeWorkHelper;
class SaveViewController;
class Tool;
class ToolBars;
class ToolTip;
class UserDefaults;
class WorkKeeper;
class ZKLScrollDial;
struct EditorTools;
struct MaskEditorEngine;

/// The mask editor's screen: one photo, its mask and the tools that change it. This class only
/// conducts: it tells the tools of touches and buttons, and the layout file what to show.
class ViewController final : public Screen,
                             public TouchResponder,
                             public SaveViewControllerDelegate,
                             public std::enable_shared_from_this<ViewController> {
    Q_OBJECT
    Q_PROPERTY(pelmira::ToolBars* bars READ bars CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* wandButton READ wandButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* erasorButton READ erasorButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* replaceButton READ replaceButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* brushAdjustButton READ brushAdjustButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* invertMaskButton READ invertMaskButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* showMaskButton READ showMaskButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* undoButton READ undoButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* saveButton READ saveButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* backButton READ backButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* helpButton READ helpButton CONSTANT)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)
    Q_PROPERTY(pelmira::BrushPanelView* brushAdjustView READ brushAdjustView NOTIFY panelChanged)
    Q_PROPERTY(QRectF brushAdjustFrame READ brushAdjustFrame NOTIFY panelChanged)
    Q_PROPERTY(
        double brushPanelHeight READ brushPanelHeight WRITE setBrushPanelHeight NOTIFY panelChanged)
    Q_PROPERTY(pelmira::BackgroundPreview* changeBackgroundView READ changeBackgroundView CONSTANT)
    Q_PROPERTY(pelmira::ToolTip* toolTip READ toolTip CONSTANT)
    Q_PROPERTY(pelmira::ZKLScrollDial* dial READ dial NOTIFY dialChanged)
    Q_PROPERTY(pelmira::KeyboardAim* keyboardAim READ keyboardAim CONSTANT)

public:
    using ContextMaker = std::function<std::shared_ptr<GLContext>()>;

    /// With the user's preferences, and a context that shares with Qt Quick's.
    ViewController();
    /// The preferences outlive the screen.
    ViewController(UserDefaults& defaults, ContextMaker makeContext);
    ~ViewController() override;

    /// The photo to open, upright, at its working size. To be set before the screen is shown.
    void setImage(QImage image) { _initialImage = std::move(image); }
    /// Selects a tool.
    void setMode(EditorMode mode);
    EditorMode mode() const { return _mode; }
    void fullSizeImageWithCompletion(std::function<void(QImage)> completion) override;
    void fullSizeImageRetouchedBy(Retouch retouch, std::function<void(QImage)> completion) override;

    /// Keeps the work across the end of the process; without one it is not kept. Not owned.
    void setResumeWorkHelper(ResumeWorkHelper* helper);

    /// Presents the help screen.
    std::function<void()> presentHelpBlock;
    /// Presents the save screen.
    std::function<void(std::shared_ptr<SaveViewController>)> presentSaveViewBlock;
    /// Leaves this screen for the one below, where the photo was picked.
    std::function<void()> popBlock = [] {};
    /// Called when the screen has appeared: takes the crop tool out from under it.
    std::function<void()> removeCropScreensBlock;

    Q_INVOKABLE void wandButtonPressed();
    Q_INVOKABLE void erasorButtonPressed();
    Q_INVOKABLE void replaceButtonPressed();
    Q_INVOKABLE void brushButtonPressed();
    Q_INVOKABLE void invertMaskButtonPressed();
    Q_INVOKABLE void showMaskButtonPressed();
    Q_INVOKABLE void undoButtonPressed();
    Q_INVOKABLE void saveButtonPressed();
    Q_INVOKABLE void backButtonPressed();
    Q_INVOKABLE void helpButtonPressed();
    Q_INVOKABLE void changeBackgroundViewTapped();
    /// Turns the brush's size by steps of a fiftieth; with the wand in hand it does nothing.
    Q_INVOKABLE void stepBrushSize(int steps);

    QUrl layoutFile() const override;
    void setGLView(GLView* view) override;
    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void viewDidAppear(bool animated) override;
    void viewDidDisappear() override;
    void viewDidLayoutSubviews() override;
    void viewWillTransitionToSize(QSizeF size) override;
    void applicationWillResignActive() override;
    void applicationDidEnterBackground() override;
    bool hasUnfinishedWork() const override;
    void didReceiveMemoryWarning() override;

    void touchesBegan(const TouchEvent& withEvent) override;
    void touchesMoved(const TouchEvent& withEvent) override;
    void touchesEnded(const TouchEvent& withEvent) override;
    void touchesCancelled(const TouchEvent& withEvent) override;
    void viewStepped(const ViewStep& step) override;
    void penIsNear(bool isNear) override;
    void pencilInteractionDidTap() override;

    ToolBars* bars() const { return _bars; }
    InterfaceButton* wandButton() const { return _wandButton; }
    InterfaceButton* erasorButton() const { return _erasorButton; }
    InterfaceButton* replaceButton() const { return _replaceButton; }
    InterfaceButton* brushAdjustButton() const { return _brushAdjustButton; }
    InterfaceButton* invertMaskButton() const { return _invertMaskButton; }
    InterfaceButton* showMaskButton() const { return _showMaskButton; }
    InterfaceButton* undoButton() const { return _undoButton; }
    InterfaceButton* saveButton() const { return _saveButton; }
    InterfaceButton* backButton() const { return _backButton; }
    InterfaceButton* helpButton() const { return _helpButton; }
    BackgroundPreview* changeBackgroundView() const { return _changeBackgroundView; }
    ToolTip* toolTip() const { return _toolTip; }
    Alert* alert() const { return _alert; }
    BrushPanelView* brushAdjustView() const;
    QRectF brushAdjustFrame() const;
    double brushPanelHeight() const { return _brushPanelHeight; }
    void setBrushPanelHeight(double height);
    ZKLScrollDial* dial() const;
    KeyboardAim* keyboardAim() const { return _keyboardAim.get(); }
    /// The pixels' side of the screen; nothing before it has loaded, or without GL.
    MaskEditorEngine* engine() const { return _engine.get(); }

Q_SIGNALS:
    void dialChanged();
    void panelChanged();

private:
    void press(EditorMode mode, const char* toolTip);
    void prepareForSegue(SaveViewController& saveView);
    void pressed(const char* toolTip);
    /// Takes the keyboard's aim and the brush panel away; true if the panel was open.
    bool clearPhoto();
    void openPhoto();

    UserDefaults& _defaults;
    ContextMaker _makeContext;
    GLView* _glkView = nullptr;
    QImage _initialImage;
    EditorMode _mode = ModeNone;

    // Children of this screen.
    ToolBars* const _bars;
    InterfaceButton* const _wandButton;
    InterfaceButton* const _erasorButton;
    InterfaceButton* const _replaceButton;
    InterfaceButton* const _brushAdjustButton;
    InterfaceButton* const _invertMaskButton;
    InterfaceButton* const _showMaskButton;
    InterfaceButton* const _undoButton;
    InterfaceButton* const _saveButton;
    InterfaceButton* const _backButton;
    InterfaceButton* const _helpButton;
    BackgroundPreview* const _changeBackgroundView;
    ToolTip* const _toolTip;
    Alert* const _alert;
    double _brushPanelHeight = 0.0;

    // Once the screen has loaded, with GL.
    std::unique_ptr<MaskEditorEngine> _engine;
    std::unique_ptr<EditorTools> _tools;
    Tool* _tool = nullptr; ///< in hand; one of those above

    std::unique_ptr<WorkKeeper> _workKeeper;
    std::unique_ptr<KeyboardAim> _keyboardAim;
};

} // namespace pelmira
