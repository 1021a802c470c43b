#pragma once

#include "controls/InterfaceButton.h"
#include "controls/ZKLScrollDial.h"
#include "controls/ZKLScrollDialDelegate.h"
#include "mask_editor/BackgroundPreview.h"
#include "mask_editor/MaskEditorEngine.h"
#include "mask_editor/ToolBars.h"
#include "mask_editor/ToolTip.h"
#include "mask_editor/TouchRouter.h"
#include "platform/Screen.h"
#include "platform/Touches.h"

#include <QImage>
#include <QString>

#include <functional>
#include <memory>

namespace pelmira {

/// The mask editor's screen: one photo, its mask and the tools that change it. This class only
/// conducts: it tells the tools of touches and buttons, and the layout file what to show.
class ViewController final : public Screen,
                             public TouchResponder,
                             public ZKLScrollDialDelegate,
                             public std::enable_shared_from_this<ViewController> {
    Q_OBJECT
    Q_PROPERTY(pelmira::ToolBars* bars READ bars CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* wandButton READ wandButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* showMaskButton READ showMaskButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* undoButton READ undoButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* saveButton READ saveButton CONSTANT)
    Q_PROPERTY(pelmira::BackgroundPreview* changeBackgroundView READ changeBackgroundView CONSTANT)
    Q_PROPERTY(pelmira::ToolTip* toolTip READ toolTip CONSTANT)
    Q_PROPERTY(pelmira::ZKLScrollDial* dial READ dial NOTIFY dialChanged)
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)

public:
    using ContextMaker = std::function<std::shared_ptr<GLContext>()>;
    using ImageCompletion = std::function<void(QImage)>;

    explicit ViewController(ContextMaker makeContext = [] {
        return GLContext::sharedWithQtQuick();
    });
    ~ViewController() override;

    /// The photo to open, upright, at its working size. To be set before the screen is shown.
    void setImage(QImage image) { _initialImage = std::move(image); }
    /// Selects a tool.
    void setMode(EditorMode mode);
    EditorMode mode() const { return _mode; }
    /// Gives the cut-out to the completion, on the main thread, at a later turn of the run loop.
    void fullSizeImageWithCompletion(ImageCompletion completion);

    /// Saves a cut-out and calls the completion on the main thread with one line for the user.
    std::function<void(QImage, std::function<void(QString)>)> saveBlock;

    Q_INVOKABLE void wandButtonPressed();
    Q_INVOKABLE void showMaskButtonPressed();
    Q_INVOKABLE void undoButtonPressed();
    Q_INVOKABLE void saveButtonPressed();
    Q_INVOKABLE void changeBackgroundViewTapped();

    QUrl layoutFile() const override;
    void setGLView(GLView* view) override;
    void viewDidLoad() override;
    void viewDidAppear(bool animated) override;
    void viewDidLayoutSubviews() override;
    void viewWillTransitionToSize(QSizeF size) override;
    void didReceiveMemoryWarning() override;

    void touchesBegan(const TouchEvent& withEvent) override { _router.touchesBegan(withEvent); }
    void touchesMoved(const TouchEvent& withEvent) override { _router.touchesMoved(withEvent); }
    void touchesEnded(const TouchEvent& withEvent) override { _router.touchesEnded(withEvent); }
    void touchesCancelled(const TouchEvent& withEvent) override
    {
        _router.touchesCancelled(withEvent);
    }

    void zklScrollDial(ZKLScrollDial& dial, double valueChanged) override;

    ToolBars* bars() { return &_bars; }
    InterfaceButton* wandButton() { return &_wandButton; }
    InterfaceButton* showMaskButton() { return &_showMaskButton; }
    InterfaceButton* undoButton() { return &_undoButton; }
    InterfaceButton* saveButton() { return &_saveButton; }
    BackgroundPreview* changeBackgroundView() { return &_changeBackgroundView; }
    ToolTip* toolTip() { return &_toolTip; }
    ZKLScrollDial* dial() const { return _shownDial; }
    QString notice() const { return _notice; }
    /// The pixels' side of the screen; nothing before it has loaded, or without GL.
    MaskEditorEngine* engine() { return _engine.get(); }

Q_SIGNALS:
    void dialChanged();
    void noticeChanged();

private:
    void setShowTools(bool showTools);
    void showNotice(const QString& text);
    void showDial(ZKLScrollDial* dial);

    ContextMaker _makeContext;
    GLView* _glkView = nullptr;
    std::unique_ptr<MaskEditorEngine> _engine;
    QImage _initialImage;

    EditorMode _mode = ModeNone;
    TouchRouter _router;

    ToolBars _bars;
    InterfaceButton _wandButton;
    InterfaceButton _showMaskButton;
    InterfaceButton _undoButton;
    InterfaceButton _saveButton;
    BackgroundPreview _changeBackgroundView;
    ToolTip _toolTip;
    std::unique_ptr<ZKLScrollDial> _floodFillScrollDial;
    ZKLScrollDial* _shownDial = nullptr;
    QString _notice;
    Timer _noticeTimer;
};

} // namespace pelmira
