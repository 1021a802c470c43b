#include "mask_editor/screen/ViewController.h"

#include "controls/StyleUtil.h"
#include "mask_editor/drawing/MaskInverter.h"
#include "mask_editor/surface/RenderOut.h"
#include "platform/base/Log.h"
#include "platform/pixels/BitmapContext.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <utility>

namespace pelmira {
namespace {

constexpr double brushSizeStep = 0.02; // of the dial's whole way

} // namespace

ViewController::ViewController(UserDefaults& defaults, ContextMaker makeContext)
    : _defaults(defaults), _makeContext(std::move(makeContext))
{
    connect(&_bars, &ToolBars::changed, this, [this] { viewDidLayoutSubviews(); });
    connectTouches();
    connectKeyboardAim();
}

ViewController::~ViewController()
{
    // What the engine holds in GL goes first, with its context still current.
    const std::shared_ptr<GLContext> context = _engine ? _engine->canvas.context() : nullptr;
    _brushControls.reset();
    _workKeeper.reset();
    _engine.reset();
    if (context)
        context->clearCurrent();
    logLine("ViewController dealloc");
}

QUrl ViewController::layoutFile() const
{
    return layoutUrl("EditScreen");
}

void ViewController::setGLView(GLView* view)
{
    _glkView = view;
    if (view || !_engine)
        return;
    _engine->jobs.dropWaiting();
    _engine->canvas.detachView();
}

void ViewController::viewDidLoad()
{
    _undoButton.setEnabled(false);
    _saveButton.setEnabled(false);
    _changeBackgroundView.showNextAfter(BackgroundChecker);
    std::shared_ptr<GLContext> context = _glkView ? _makeContext() : nullptr;
    if (!context) {
        logLine("Failed to create ES context");
        return;
    }
    _engine = std::make_unique<MaskEditorEngine>(*_glkView, std::move(context), _defaults);
    _engine->history.availabilityChanged = [this](bool hasLevels) {
        _undoButton.setEnabled(hasLevels);
    };
    // The undone fill must not come back by a turn of the dial.
    _engine->history.willUndo = [this] { _engine->wand.endFloodFillSession(); };
    _engine->strokes.setShowTools = [this](bool showTools) { setShowTools(showTools); };
    _engine->wand.setShowTools = _engine->strokes.setShowTools;
    _engine->wand.dialValue = [this]() -> std::optional<double> {
        return _floodFillScrollDial ? std::optional(_floodFillScrollDial->value()) : std::nullopt;
    };
    _engine->jobs.owner = weak_from_this();
    _engine->history.clearUndo();

    _brushControls = std::make_unique<BrushControls>(_engine->brush, _engine->canvas,
                                                     _engine->overlays, _bars, _brushAdjustButton);
    _brushControls->setPanelHeight(_brushPanelHeight);
    connect(_brushControls.get(), &BrushControls::panelChanged, this,
            &ViewController::panelChanged);
    _glkView->setNeedsDisplay();
}

void ViewController::viewWillAppear(bool)
{
    if (_brushControls)
        _brushControls->initBrushAdjustView();
}

void ViewController::viewDidAppear(bool)
{
    if (removeCropScreensBlock)
        removeCropScreensBlock();
    if (_mode == ModeNone)
        setMode(ModeWand);
    if (_initialImage.isNull() || !_engine)
        return;
    _engine->canvas.initialiseWithImage(std::exchange(_initialImage, QImage()));
    _saveButton.setEnabled(true);
    // Pushed and popped at once: the saved mask stands, and the history is empty.
    if (auto saved = _resumeWorkHelper ? _resumeWorkHelper->savedWorkUndoEntry() : nullptr) {
        _engine->history.addLevel(std::move(saved));
        _engine->history.undo();
    }
    keepWork();
}

void ViewController::setResumeWorkHelper(ResumeWorkHelper* helper)
{
    _resumeWorkHelper = helper;
    keepWork();
}

void ViewController::keepWork()
{
    _workKeeper.reset();
    if (!_resumeWorkHelper || !_engine || !_engine->canvas.fgMappedTexture)
        return;
    _workKeeper = std::make_unique<WorkKeeper>(*_engine, *_resumeWorkHelper);
    _workKeeper->setFailedBlock([this] { tell(localized("mainscreen.error.maskNotKept")); });
    _workKeeper->setUnwrittenBlock([this] {
        tell(localized("homescreen.error.workIsNotKept").arg(_resumeWorkHelper->folderPath()));
    });
}

// A question that stands comes first.
void ViewController::tell(const QString& message)
{
    if (!_alert.isOpen()) {
        _alert.show({{}, message, localized("generic.done"), QStringList()}, [](const QString&) {});
        return;
    }
    connect(
        &_alert, &Alert::changed, this, [this, message] { tell(message); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void ViewController::applicationWillResignActive()
{
    if (_workKeeper)
        _workKeeper->saveNow();
}

void ViewController::applicationDidEnterBackground()
{
    logLine("appMovedToBackground");
    if (_workKeeper)
        _workKeeper->saveNow();
}

void ViewController::viewDidLayoutSubviews()
{
    _toolTip.setSurroundings(viewSize().width(), viewSize().height() - _bars.bottomBarHeight());
    if (_shownDial) {
        _shownDial->setFrame(_bars.frameForDialAtIndex(0));
        _shownDial->layoutIfNeeded();
    }
    if (_brushControls)
        _brushControls->layoutBrushAdjustView(viewSize());
}

void ViewController::viewWillTransitionToSize(QSizeF)
{
    if (!_engine)
        return;
    _engine->strokes.cancel();
    _engine->canvas.setNeedsDisplay();
}

void ViewController::didReceiveMemoryWarning()
{
    if (_engine && _engine->history.levels() > 0)
        _engine->history.clearUndo();
}

void ViewController::setMode(EditorMode mode)
{
    if (mode == _mode)
        return;
    _keyboardAim.leave();
    _mode = mode;
    for (InterfaceButton* button : {&_wandButton, &_erasorButton, &_replaceButton}) {
        button->setSelected(false);
        button->setTintColor(Qt::white);
    }
    switch (mode) {
    case ModeWand:
        select(_wandButton);
        if (_engine)
            _engine->wand.endFloodFillSession();
        if (!_floodFillScrollDial) {
            _floodFillScrollDial = std::make_unique<ZKLScrollDial>();
            _floodFillScrollDial->setDelegate(this);
            _floodFillScrollDial->setTitle(localized("mainscreen.bottombar.tolerance"));
        }
        showDial(_floodFillScrollDial.get());
        break;
    case ModeErase:
    case ModeReplace:
        // The wand's session lives on: the wand may be chosen again or the brush undone.
        select(mode == ModeErase ? _erasorButton : _replaceButton);
        if (_brushControls)
            showDial(&_brushControls->brushSizeScrollDial(*this));
        break;
    case ModeNone:
        break;
    }
}

void ViewController::select(InterfaceButton& button)
{
    button.setSelected(true);
    button.setTintColor(StyleUtil::selectedTint());
}

void ViewController::showDial(ZKLScrollDial* dial)
{
    _shownDial = dial;
    viewDidLayoutSubviews();
    Q_EMIT dialChanged();
}

void ViewController::zklScrollDial(ZKLScrollDial& dial, double valueChanged)
{
    if (_brushControls && _brushControls->owns(dial))
        _brushControls->handleBrushSizeValue(valueChanged);
    else if (_engine && _engine->canvas.fgMappedTexture)
        _engine->wand.updateFloodFillTolerance(
            WandInteraction::toleranceForDialValue(valueChanged));
}

void ViewController::wandButtonPressed()
{
    hideBrushAdjustView();
    _toolTip.showToolTipWithTitle(localized("mainscreen.tooltip.magicWand"));
    setMode(ModeWand);
}

void ViewController::erasorButtonPressed()
{
    hideBrushAdjustView();
    _toolTip.showToolTipWithTitle(localized("mainscreen.tooltip.erase"));
    setMode(ModeErase);
}

void ViewController::replaceButtonPressed()
{
    hideBrushAdjustView();
    _toolTip.showToolTipWithTitle(localized("mainscreen.tooltip.replace"));
    setMode(ModeReplace);
}

void ViewController::pencilInteractionDidTap()
{
    if (_mode == ModeErase)
        replaceButtonPressed();
    else
        erasorButtonPressed();
}

void ViewController::brushButtonPressed()
{
    if (_brushControls)
        _brushControls->brushButtonPressed();
}

void ViewController::invertMaskButtonPressed()
{
    hideBrushAdjustView();
    _toolTip.showToolTipWithTitle(localized("mainscreen.tooltip.invertMask"));
    if (!_engine)
        return;
    endStroke();
    _engine->jobs.whenReady([engine = _engine.get()] {
        engine->history.saveUndoBuffer();
        maskInvert(engine->canvas, engine->shaders, engine->reader);
    });
}

void ViewController::showMaskButtonPressed()
{
    hideBrushAdjustView();
    const bool isOn = !_showMaskButton.isSelected();
    _showMaskButton.setSelected(isOn);
    _showMaskButton.setTintColor(isOn ? StyleUtil::selectedTint() : QColor(Qt::white));
    _toolTip.showToolTipWithTitle(
        localized(isOn ? "mainscreen.tooltip.redMaskOn" : "mainscreen.tooltip.redMaskOff"));
    if (!_engine)
        return;
    _engine->compositor.showsRedMask = isOn;
    _engine->canvas.setNeedsDisplay();
}

void ViewController::undoButtonPressed()
{
    hideBrushAdjustView();
    _toolTip.showToolTipWithTitle(localized("mainscreen.tooltip.undo"));
    if (!_engine)
        return;
    endStroke();
    _engine->jobs.whenReady([engine = _engine.get()] { engine->history.undo(); });
}

// A press that changes the mask ends a stroke under way. It would go on over another mask than it
// began on, and its level would no longer be the newest.
void ViewController::endStroke()
{
    const EditorMode tool = _router.inProgressInteraction();
    if (tool != ModeErase && tool != ModeReplace)
        return;
    _engine->strokes.end();
    _router.endInteraction();
}

void ViewController::changeBackgroundViewTapped()
{
    if (!_engine)
        return;
    BackgroundMode& mode = _engine->compositor.backgroundMode;
    mode = BackgroundPreview::modeAfter(mode);
    _changeBackgroundView.showNextAfter(mode);
    _engine->canvas.setNeedsDisplay();
    logLine("background mode: %d", mode);
}

void ViewController::backButtonPressed()
{
    _alert.show({localized("startover.title"), localized("startover.message"),
                 localized("generic.no"), localized("generic.yes")},
                [this] {
                    if (popBlock)
                        popBlock();
                    if (_resumeWorkHelper)
                        _resumeWorkHelper->clearSavedWork();
                });
}

void ViewController::helpButtonPressed()
{
    hideBrushAdjustView();
    if (presentHelpBlock)
        presentHelpBlock();
}

void ViewController::stepBrushSize(int steps)
{
    if (_shownDial && (_mode == ModeErase || _mode == ModeReplace))
        _shownDial->stepBy(brushSizeStep * steps);
}

void ViewController::saveButtonPressed()
{
    if (!presentSaveViewBlock || !_saveButton.isEnabled())
        return;
    hideBrushAdjustView();
    const auto saveView = std::make_shared<SaveViewController>(_defaults);
    prepareForSegue(*saveView);
    presentSaveViewBlock(saveView);
}

void ViewController::prepareForSegue(SaveViewController& saveView)
{
    saveView.delegate = weak_from_this();
    saveView.homeBlock = [self = weak_from_this(), screen = saveView.weak_from_this()] {
        const auto editor = self.lock();
        const auto shown = screen.lock();
        if (!editor || !shown)
            return;
        if (shown->dismissBlock)
            shown->dismissBlock([self] {
                if (const auto alive = self.lock())
                    alive->popToPhotoPicker();
            });
        if (editor->_resumeWorkHelper)
            editor->_resumeWorkHelper->clearSavedWork();
    };
    _persistence.incrementNumSaves();
}

void ViewController::popToPhotoPicker()
{
    if (popToPhotoPickerBlock)
        popToPhotoPickerBlock();
}

void ViewController::fullSizeImageWithCompletion(std::function<void(QImage)> completion)
{
    const auto render = [this, completion = std::move(completion)] {
        mainQueue().async(
            [self = weak_from_this(), completion,
             cutOut = renderCutOut(_engine ? _engine->canvas.fgMappedTexture.get() : nullptr)] {
                // Held for the length of the call.
                if (const std::shared_ptr<ViewController> alive = self.lock(); alive && completion)
                    completion(cutOut);
            });
    };
    if (_engine)
        _engine->jobs.whenReady(render);
    else
        render();
}

void ViewController::fullSizeImageRetouchedBy(Retouch retouch,
                                              std::function<void(QImage)> completion)
{
    const auto render = [this, retouch = std::move(retouch), completion = std::move(completion)] {
        // Shared, so that the job changes these very pixels and no copy of them.
        const auto pixels = std::make_shared<QImage>(
            copyStraightPixels(_engine ? _engine->canvas.fgMappedTexture.get() : nullptr));
        globalQueue(QueuePriority::UserInitiated)
            .async([self = weak_from_this(), pixels, retouch, completion] {
                const bool isRetouched = !pixels->isNull() && retouch(imageSpan(*pixels));
                mainQueue().async([self, completion,
                                   cutOut = isRetouched ? cutOutFromStraightPixels(
                                                              std::exchange(*pixels, QImage()))
                                                        : QImage()] {
                    if (const std::shared_ptr<ViewController> alive = self.lock();
                        alive && completion)
                        completion(cutOut);
                });
            });
    };
    if (_engine)
        _engine->jobs.whenReady(render);
    else
        render();
}

void ViewController::setShowTools(bool showTools)
{
    _bars.setShowTools(showTools);
    _changeBackgroundView.setAlpha(showTools ? 1.0 : 0.0);
}

BrushPanelView* ViewController::brushAdjustView() const
{
    return _brushControls ? _brushControls->brushAdjustView() : nullptr;
}

QRectF ViewController::brushAdjustFrame() const
{
    return _brushControls ? _brushControls->brushAdjustFrame() : QRectF();
}

void ViewController::setBrushPanelHeight(double height)
{
    _brushPanelHeight = height;
    if (!_brushControls)
        return;
    _brushControls->setPanelHeight(height);
    viewDidLayoutSubviews();
}

} // namespace pelmira
