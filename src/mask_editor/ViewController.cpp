#include "mask_editor/ViewController.h"

#include "mask_editor/RenderOut.h"
#include "platform/LocalizedStrings.h"
#include "platform/Log.h"
#include "platform/RunLoop.h"

#include <QColor>

#include <utility>

namespace pelmira {
namespace {

constexpr double secondsNoticeShown = 6.0;
const QColor selectedTint(0xFF, 0x95, 0x00);

} // namespace

ViewController::ViewController(ContextMaker makeContext) : _makeContext(std::move(makeContext))
{
    connect(&_bars, &ToolBars::changed, this, [this] { viewDidLayoutSubviews(); });
    _router.mode = [this] { return _mode; };
    _router.hideBrushAdjustView = [] { return false; };
    _router.handleWandEvent = [this](const TouchEvent& event, TouchPhase phase) {
        if (_engine)
            _engine->wand.handleWandEvent(event, phase);
    };
}

ViewController::~ViewController()
{
    if (_engine)
        _engine->canvas.context()->clearCurrent();
    logLine("ViewController dealloc");
}

QUrl ViewController::layoutFile() const
{
    return QUrl(QStringLiteral("qrc:/qt-project.org/imports/Pelmira/Ui/EditScreen.qml"));
}

void ViewController::setGLView(GLView* view)
{
    _glkView = view;
    if (!view && _engine)
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
    _engine = std::make_unique<MaskEditorEngine>(*_glkView, std::move(context));
    _engine->history.availabilityChanged = [this](bool hasLevels) {
        _undoButton.setEnabled(hasLevels);
    };
    // The undone fill must not come back by a turn of the dial.
    _engine->history.willUndo = [this] { _engine->wand.endFloodFillSession(); };
    _engine->wand.setShowTools = [this](bool showTools) { setShowTools(showTools); };
    _engine->wand.dialValue = [this]() -> std::optional<double> {
        return _floodFillScrollDial ? std::optional(_floodFillScrollDial->value()) : std::nullopt;
    };
    _engine->wand.owner = weak_from_this();
    _engine->history.clearUndo();
    _glkView->setNeedsDisplay();
}

void ViewController::viewDidAppear(bool)
{
    if (_mode == ModeNone)
        setMode(ModeWand);
    if (_initialImage.isNull() || !_engine)
        return;
    _engine->canvas.initialiseWithImage(std::exchange(_initialImage, QImage()));
    _saveButton.setEnabled(true);
}

void ViewController::viewDidLayoutSubviews()
{
    _toolTip.setSurroundings(viewSize().width(), viewSize().height() - _bars.bottomBarHeight());
    if (_floodFillScrollDial) {
        _floodFillScrollDial->setFrame(_bars.frameForDialAtIndex(0));
        _floodFillScrollDial->layoutIfNeeded();
    }
}

void ViewController::viewWillTransitionToSize(QSizeF)
{
    if (_engine)
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
    _mode = mode;
    _wandButton.setSelected(false);
    _wandButton.setTintColor(Qt::white);
    if (mode != ModeWand)
        return;
    _wandButton.setSelected(true);
    _wandButton.setTintColor(selectedTint);
    if (_engine)
        _engine->wand.endFloodFillSession();
    if (!_floodFillScrollDial) {
        _floodFillScrollDial = std::make_unique<ZKLScrollDial>();
        _floodFillScrollDial->setDelegate(this);
        _floodFillScrollDial->setTitle(localized(u"mainscreen.bottombar.tolerance"_qs));
    }
    showDial(_floodFillScrollDial.get());
}

void ViewController::showDial(ZKLScrollDial* dial)
{
    _shownDial = dial;
    dial->setFrame(_bars.frameForDialAtIndex(0));
    dial->layoutIfNeeded();
    Q_EMIT dialChanged();
}

void ViewController::zklScrollDial(ZKLScrollDial& dial, double valueChanged)
{
    if (&dial == _floodFillScrollDial.get() && _engine && _engine->canvas.fgMappedTexture)
        _engine->wand.updateFloodFillTolerance(
            WandInteraction::toleranceForDialValue(valueChanged));
}

void ViewController::wandButtonPressed()
{
    _toolTip.showToolTipWithTitle(localized(u"mainscreen.tooltip.magicWand"_qs));
    setMode(ModeWand);
}

void ViewController::showMaskButtonPressed()
{
    const bool isOn = !_showMaskButton.isSelected();
    _showMaskButton.setSelected(isOn);
    _showMaskButton.setTintColor(isOn ? selectedTint : QColor(Qt::white));
    _toolTip.showToolTipWithTitle(
        localized(isOn ? u"mainscreen.tooltip.redMaskOn"_qs : u"mainscreen.tooltip.redMaskOff"_qs));
    if (!_engine)
        return;
    _engine->compositor.showsRedMask = isOn;
    _engine->canvas.setNeedsDisplay();
}

void ViewController::undoButtonPressed()
{
    _toolTip.showToolTipWithTitle(localized(u"mainscreen.tooltip.undo"_qs));
    if (_engine)
        _engine->history.undo();
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

void ViewController::saveButtonPressed()
{
    if (!saveBlock || !_saveButton.isEnabled())
        return;
    _saveButton.setEnabled(false);
    showNotice(localized(u"mainscreen.notice.saving"_qs));
    fullSizeImageWithCompletion([self = weak_from_this()](QImage cutOut) {
        const std::shared_ptr<ViewController> editor = self.lock();
        editor->saveBlock(std::move(cutOut), [self](const QString& line) {
            if (const std::shared_ptr<ViewController> saved = self.lock()) {
                saved->_saveButton.setEnabled(true);
                saved->showNotice(line);
            }
        });
    });
}

void ViewController::fullSizeImageWithCompletion(ImageCompletion completion)
{
    QImage cutOut = renderCutOut(_engine ? _engine->canvas.fgMappedTexture.get() : nullptr);
    globalQueue(QueuePriority::UserInitiated)
        .async([self = weak_from_this(), cutOut = std::move(cutOut),
                completion = std::move(completion)] {
            mainQueue().async([self, cutOut, completion] {
                if (!self.expired() && completion)
                    completion(cutOut);
            });
        });
}

void ViewController::showNotice(const QString& text)
{
    _notice = text;
    Q_EMIT noticeChanged();
    _noticeTimer = Timer::scheduled(secondsNoticeShown, [this] {
        _notice.clear();
        Q_EMIT noticeChanged();
    });
}

void ViewController::setShowTools(bool showTools)
{
    _bars.setShowTools(showTools);
    _changeBackgroundView.setAlpha(showTools ? 1.0 : 0.0);
}

} // namespace pelmira
