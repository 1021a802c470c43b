#include "mask_editor/screen/ViewController.h"

#include "controls/Alert.h"
#include "controls/InterfaceButton.h"
#include "controls/StyleUtil.h"
#include "controls/ZKLScrollDial.h"
#include "export/SaveViewController.h"
#include "mask_editor/screen/BackgroundPreview.h"
#include "mask_editor/screen/KeyboardAim.h"
#include "mask_editor/screen/ToolBars.h"
#include "mask_editor/screen/ToolTip.h"
#include "mask_editor/screen/WorkKeeper.h"
#include "mask_editor/surface/RenderOut.h"
#include "mask_editor/tools/EditorTools.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "persistence/preferences/PerstistenceHelper.h"
#include "platform/base/Log.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <utility>

namespace pelmira {
namespace {

constexpr double brushSizeStep = 0.02; // of the dial's whole way

void highlight(InterfaceButton& button, bool isSelected)
{
    button.setSelected(isSelected);
    button.setTintColor(isSelected ? StyleUtil::selectedTint() : QColor(Qt::white));
}

} // namespace

ViewController::ViewController()
    : ViewController(UserDefaults::standardUserDefaults(),
                     [this] { return _glkView->makeContext(); })
{
}

ViewController::ViewController(UserDefaults& defaults, ContextMaker makeContext)
    : _defaults(defaults), _makeContext(std::move(makeContext)), _bars(new ToolBars(this)),
      _wandButton(new InterfaceButton(this)), _erasorButton(new InterfaceButton(this)),
      _replaceButton(new InterfaceButton(this)), _brushAdjustButton(new InterfaceButton(this)),
      _invertMaskButton(new InterfaceButton(this)), _showMaskButton(new InterfaceButton(this)),
      _undoButton(new InterfaceButton(this)), _saveButton(new InterfaceButton(this)),
      _backButton(new InterfaceButton(this)), _helpButton(new InterfaceButton(this)),
      _changeBackgroundView(new BackgroundPreview(this)), _toolTip(new ToolTip(this)),
      _alert(new Alert(this)),
      _workKeeper(std::make_unique<WorkKeeper>(
          [this](const QString& message) { _alert->showMessageInTurn(message); })),
      _keyboardAim(std::make_unique<KeyboardAim>(*this))
{
    connect(_bars, &ToolBars::changed, this, &ViewController::viewDidLayoutSubviews);
    _keyboardAim->viewSize = [this] { return viewSize(); };
}

ViewController::~ViewController()
{
    // What the engine holds in GL goes first, with its context still current.
    const std::shared_ptr<GLContext> context = _engine ? _engine->canvas.context() : nullptr;
    _tool = nullptr;
    _tools.reset();
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
    _undoButton->setEnabled(false);
    _saveButton->setEnabled(false);
    _changeBackgroundView->showNextAfter(BackgroundChecker);
    std::shared_ptr<GLContext> context = _glkView ? _makeContext() : nullptr;
    if (!context) {
        logLine("Failed to create ES context");
        return;
    }
    _engine = std::make_unique<MaskEditorEngine>(*_glkView, std::move(context), _defaults);
    _engine->history.availabilityChanged = [this](bool hasLevels) {
        _undoButton->setEnabled(hasLevels);
    };
    _engine->jobs.owner = weak_from_this();
    _engine->history.clearUndo();
    const auto tell = [this](const char* line) { _alert->showMessageInTurn(localized(line)); };
    _engine->wand.noMemoryBlock = [tell] { tell("mainscreen.error.memory"); };
    _engine->outdatedBlock = [tell] { tell("mainscreen.error.graphicsMemory"); };
    _tools = std::make_unique<EditorTools>(*_engine, *_brushAdjustButton, [this](bool showTools) {
        _bars->setShowTools(showTools);
        _changeBackgroundView->setAlpha(showTools ? 1.0 : 0.0);
    });
    connect(&_tools->brushControls, &BrushControls::panelChanged, this,
            &ViewController::panelChanged);
    _glkView->setNeedsDisplay();
    _engine->setupGLSoon(); // neither with the screen nor with the photo
}

void ViewController::viewWillAppear(bool)
{
    if (_tools)
        _tools->brushControls.initBrushAdjustView();
}

void ViewController::viewDidAppear(bool)
{
    if (_engine)
        _engine->setSeen(true); // the motion is over, and the screen that covered this one gone
    if (_mode == ModeNone)
        setMode(ModeWand);
    if (!removeCropScreensBlock) {
        openPhoto();
        return;
    }
    removeCropScreensBlock();
    // Once they have gone, with the photo as it was before it was cropped.
    mainQueue().async([self = weak_from_this()] {
        if (const auto screen = self.lock())
            screen->openPhoto();
    });
}

void ViewController::viewDidDisappear()
{
    if (_engine)
        _engine->setSeen(false);
}

void ViewController::openPhoto()
{
    if (_initialImage.isNull() || !_engine)
        return;
    _workKeeper->open(*_engine, std::exchange(_initialImage, QImage()));
    _saveButton->setEnabled(true);
}

void ViewController::setResumeWorkHelper(ResumeWorkHelper* helper)
{
    _workKeeper->setWork(helper);
}

void ViewController::applicationWillResignActive()
{
    _workKeeper->saveNow();
}

void ViewController::applicationDidEnterBackground()
{
    logLine("appMovedToBackground");
    _workKeeper->saveNow();
}

bool ViewController::hasUnfinishedWork() const
{
    return _workKeeper->isSaveDue();
}

void ViewController::viewDidLayoutSubviews()
{
    const double width = viewSize().width();
    const double top = _bars->topBarBottom();
    const double bottom = viewSize().height() - _bars->bottomBarHeight();
    _toolTip->setSurroundings(width, bottom);
    if (_tool) {
        _tool->dial().setFrame(_bars->frameForDialAtIndex(0));
        _tool->dial().layoutIfNeeded();
    }
    if (_tools)
        _tools->brushControls.layoutBrushAdjustView({0, top, width, bottom - top},
                                                    _brushPanelHeight);
}

void ViewController::viewWillTransitionToSize(QSizeF)
{
    _keyboardAim->leave();
    if (!_tools)
        return;
    _tools->router.viewWillTransitionToSize();
    _engine->canvas.setNeedsDisplay();
}

void ViewController::didReceiveMemoryWarning()
{
    if (!_engine)
        return;
    _engine->wand.releaseMemory();
    if (_engine->history.levels() > 0)
        _engine->history.clearUndo();
}

void ViewController::touchesBegan(const TouchEvent& withEvent)
{
    if (!_tools || _tools->router.isPalm(withEvent))
        return;
    if (withEvent.anyTouch().kind != TouchKind::Keys) {
        _keyboardAim->leave();
        _keyboardAim->goOnFrom(withEvent.anyTouch().location);
    }
    _workKeeper->touched(withEvent);
    _tools->router.touchesBegan(withEvent);
}

void ViewController::touchesMoved(const TouchEvent& withEvent)
{
    if (_tools)
        _tools->router.touchesMoved(withEvent);
}

void ViewController::touchesEnded(const TouchEvent& withEvent)
{
    if (!_tools || _tools->router.isPalm(withEvent))
        return;
    _tools->router.touchesEnded(withEvent);
    _workKeeper->touched(withEvent);
}

void ViewController::touchesCancelled(const TouchEvent& withEvent)
{
    if (!_tools || _tools->router.isPalm(withEvent))
        return;
    _tools->router.touchesCancelled(withEvent);
    _workKeeper->touchesCancelled();
}

void ViewController::viewStepped(const ViewStep& step)
{
    _keyboardAim->leave(); // its finger would hold the view
    if (_tools)
        _tools->router.viewStepped(step);
}

void ViewController::penIsNear(bool isNear)
{
    if (_tools)
        _tools->router.penIsNear(isNear);
}

void ViewController::pencilInteractionDidTap()
{
    if (_alert->isOpen())
        return;
    if (_mode == ModeErase)
        replaceButtonPressed();
    else
        erasorButtonPressed();
}

void ViewController::setMode(EditorMode mode)
{
    if (mode == _mode)
        return;
    _keyboardAim->leave();
    _mode = mode;
    highlight(*_wandButton, mode == ModeWand);
    highlight(*_erasorButton, mode == ModeErase);
    highlight(*_replaceButton, mode == ModeReplace);
    _tool = _tools ? _tools->select(mode) : nullptr;
    _keyboardAim->setTool(_tool);
    viewDidLayoutSubviews();
    Q_EMIT dialChanged();
}

void ViewController::press(EditorMode mode, const char* toolTip)
{
    pressed(toolTip);
    setMode(mode);
}

void ViewController::wandButtonPressed()
{
    press(ModeWand, "mainscreen.tooltip.magicWand");
}

void ViewController::erasorButtonPressed()
{
    press(ModeErase, "mainscreen.tooltip.erase");
}

void ViewController::replaceButtonPressed()
{
    press(ModeReplace, "mainscreen.tooltip.replace");
}

void ViewController::stepBrushSize(int steps)
{
    if (_tool && _tool->paints())
        _tool->dial().stepBy(brushSizeStep * steps);
}

void ViewController::brushButtonPressed()
{
    _keyboardAim->leave();
    if (_tools)
        _tools->brushControls.brushButtonPressed();
}

bool ViewController::clearPhoto()
{
    _keyboardAim->leave();
    return _tools && _tools->brushControls.hideBrushAdjustView();
}

void ViewController::pressed(const char* toolTip)
{
    clearPhoto();
    _toolTip->showToolTipWithTitle(localized(toolTip));
}

void ViewController::invertMaskButtonPressed()
{
    pressed("mainscreen.tooltip.invertMask");
    if (_tools)
        _tools->invertMask();
}

void ViewController::undoButtonPressed()
{
    pressed("mainscreen.tooltip.undo");
    if (_tools)
        _tools->undo();
}

void ViewController::showMaskButtonPressed()
{
    const bool isOn = !_showMaskButton->isSelected();
    pressed(isOn ? "mainscreen.tooltip.redMaskOn" : "mainscreen.tooltip.redMaskOff");
    highlight(*_showMaskButton, isOn);
    if (!_engine)
        return;
    _engine->compositor.showsRedMask = isOn;
    _engine->canvas.setNeedsDisplay();
}

void ViewController::changeBackgroundViewTapped()
{
    if (clearPhoto() || !_engine) // beside an open panel, a tap closes that
        return;
    BackgroundMode& mode = _engine->compositor.backgroundMode;
    mode = BackgroundPreview::modeAfter(mode);
    _changeBackgroundView->showNextAfter(mode);
    _engine->canvas.setNeedsDisplay();
    logLine("background mode: %d", mode);
}

void ViewController::backButtonPressed()
{
    _alert->show({localized("startover.title"), localized("startover.message"),
                  localized("generic.no"), localized("generic.yes")},
                 [this] {
                     popBlock();
                     _workKeeper->clearSavedWork();
                 });
}

void ViewController::helpButtonPressed()
{
    clearPhoto();
    if (presentHelpBlock)
        presentHelpBlock();
}

void ViewController::saveButtonPressed()
{
    if (!presentSaveViewBlock || !_saveButton->isEnabled())
        return;
    clearPhoto();
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
                    alive->popBlock();
            });
        editor->_workKeeper->clearSavedWork();
    };
    PerstistenceHelper(_defaults).incrementNumSaves();
}

void ViewController::fullSizeImageWithCompletion(std::function<void(QImage)> completion)
{
    if (_engine)
        renderCutOut(_engine->jobs, std::move(completion));
    else
        completion(QImage());
}

void ViewController::fullSizeImageRetouchedBy(Retouch retouch,
                                              std::function<void(QImage)> completion)
{
    if (_engine)
        renderCutOut(_engine->jobs, std::move(retouch), std::move(completion));
    else
        completion(QImage());
}

ZKLScrollDial* ViewController::dial() const
{
    return _tool ? &_tool->dial() : nullptr;
}

BrushPanelView* ViewController::brushAdjustView() const
{
    return _tools ? _tools->brushControls.brushAdjustView() : nullptr;
}

QRectF ViewController::brushAdjustFrame() const
{
    return _tools ? _tools->brushControls.brushAdjustFrame() : QRectF();
}

void ViewController::setBrushPanelHeight(double height)
{
    _brushPanelHeight = height;
    viewDidLayoutSubviews();
}

} // namespace pelmira

// Here, where the types of its properties are known; the header only names them.
#include "moc_ViewController.cpp"
