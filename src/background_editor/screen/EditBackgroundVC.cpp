#include "background_editor/screen/EditBackgroundVC.h"

#include "background_editor/object/StickerView.h"
#include "controls/ScreenScale.h"
#include "platform/base/Log.h"
#include "platform/encode/PngEncoder.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

constexpr double mixerSlideSeconds = 0.3;

} // namespace

EditBackgroundVC::EditBackgroundVC(UserDefaults& defaults, ZKLProgressHUD& progressHUD,
                                   ScreenBounds screenBounds)
    : _screenBounds(std::move(screenBounds)), _defaults(defaults), _progressHUD(progressHUD),
      _canvasPanel(_screenBounds), _tabbar(_screenBounds()),
      _rgbButtonLabel(QStringLiteral("R: G: B:"))
{
}

EditBackgroundVC::~EditBackgroundVC()
{
    logLine("EditBackgroundVC deinit");
}

QUrl EditBackgroundVC::layoutFile() const
{
    return layoutUrl("EditBackgroundScreen");
}

QString EditBackgroundVC::title() const
{
    return localized("backgroundeditscreen.title");
}

void EditBackgroundVC::viewDidLoad()
{
    setupTabbar();
    _saveButton.setEnabled(false);
    connect(this, &EditBackgroundVC::mixerChanged, this, &EditBackgroundVC::modalChanged);
    connect(&_alert, &Alert::changed, this, &EditBackgroundVC::modalChanged);
    _panels.setTabsEnabledBlock = [this](bool enabled) {
        _tabbar.setUserInteractionEnabled(enabled);
    };
    _canvasPanel.aspectRatioChangedBlock = [this](float ratio) { setCanvasAspectRatio(ratio); };
    _colorPanel.colorChangedBlock = [this](const QColor& color) { setSolidBackground(color); };
    _depthPanels.shadowChangedBlock = [this](const ShadowValues& values) {
        _layerShadow.setValues(values.onScreen());
    };
    _depthPanels.backgroundChangedBlock = [this] { updateRgbButtonLabel(); };
    _depthPanels.screenScaleBlock = [this] { return screenScale(); };
    _depthPanels.canvasFrameBlock = [this] {
        return _workAreaView.bgImageView()->frame().translated(_layout.workArea.topLeft());
    };
}

void EditBackgroundVC::setupTabbar()
{
    _tabbar.setFontSize(12.0);
    const auto addTab = [this](const char* title, const char* image, std::function<void()> action) {
        _tabbar.addButtonToTabBarWithTitle(localized(title), QString::fromLatin1(image),
                                           std::move(action));
    };
    addTab("backgroundeditscreen.canvas", "zkl-tab-canvas", [this] { openCanvasPanel(); });
    addTab("backgroundeditscreen.shadow", "zkl-tab-shadow",
           [this] { _depthPanels.openShadowPanel(); });
    addTab("backgroundeditscreen.photo", "zkl-load-photo",
           [this] { _depthPanels.openPhotoPanel(); });
    addTab("backgroundeditscreen.color", "zkl-tab-color",
           [this] { _panels.setCurrentPanel(&_colorPanel); });
    addTab("backgroundeditscreen.patterns", "zkl-tab-patterns",
           [this] { _depthPanels.openPatternPanel(); });
}

void EditBackgroundVC::openCanvasPanel()
{
    _canvasPanel.setAspectRatio(static_cast<float>(_workAreaView.bgAspectRatio));
    _panels.setCurrentPanel(&_canvasPanel);
}

void EditBackgroundVC::setCanvasAspectRatio(float aspectRatio)
{
    _workAreaView.bgAspectRatio = double(aspectRatio);
    _workAreaView.layoutSubviews(true);
}

void EditBackgroundVC::setSolidBackground(const QColor& color)
{
    _depthPanels.photo().removePhoto();
    _background.setSolidBackground(color);
    updateRgbButtonLabel();
}

void EditBackgroundVC::updateRgbButtonLabel()
{
    _rgbButtonLabel = _background.rgbLabelText();
    Q_EMIT rgbButtonLabelChanged();
}

void EditBackgroundVC::handleRgbButtonTapped()
{
    if (_rgbMixerPanelVC)
        return;
    const auto [r, g, b] = _background.currentBackgroundRgb();
    _rgbMixerPanelVC = std::make_unique<ZKLRGBMixerVC>(r, g, b, _defaults);
    _rgbMixerPanelVC->doneBlock = [this] {
        updateRgbButtonLabel();
        closeRgbMixer();
    };
    _rgbMixerPanelVC->colorChangedBlock = [this] { setSolidBackground(_rgbMixerPanelVC->color()); };
    _isMixerUp = true;
    Q_EMIT mixerChanged();
}

void EditBackgroundVC::closeRgbMixer()
{
    if (!std::exchange(_isMixerUp, false))
        return;
    Q_EMIT mixerChanged();
    _mixerSlid = Timer::scheduled(mixerSlideSeconds, [this] {
        ZKLRGBMixerVC* mixer = _rgbMixerPanelVC.release();
        Q_EMIT mixerChanged();
        mixer->deleteLater(); // once nothing shows it any more
    });
}

void EditBackgroundVC::viewDidAppear(bool)
{
    _hasAppeared = true;
    addForegroundSticker();
    updateSaveButton();
}

void EditBackgroundVC::setSaving(bool isSaving)
{
    _isSaving = isSaving;
    updateSaveButton();
    Q_EMIT modalChanged();
}

// Without the object success would be told, and nothing saved.
void EditBackgroundVC::updateSaveButton()
{
    _saveButton.setEnabled(_hasAppeared && !_isSaving &&
                           (_fgImage.isNull() || _workAreaView.fgStickerView()));
}

void EditBackgroundVC::addForegroundSticker()
{
    const QRectF canvas = _workAreaView.bgImageView()->frame();
    if (!_hasAppeared || _fgImage.isNull() || _workAreaView.fgStickerView() || canvas.isEmpty())
        return;
    const auto original = std::make_shared<StickerView::OriginalImage>();
    original->imageData = [image = _fgImage] { return pngRepresentation(image); };
    auto sticker = std::make_unique<StickerView>(_fgImage, original,
                                                 QRectF({}, _workAreaView.bounds()).center(), 0.0,
                                                 std::min(canvas.width(), canvas.height()));
    sticker->setShownImage(_fgPreview);
    sticker->hideDeleteButton = true;
    _layerShadow.setScreenScale(screenScale());
    _layerShadow.setPicture(sticker->image());
    _layerShadow.setSize(sticker->bounds());
    connect(sticker.get(), &StickerView::geometryChanged, this,
            [this, shown = sticker.get()] { _layerShadow.setSize(shown->bounds()); });
    _workAreaView.setFgStickerView(std::move(sticker));
}

void EditBackgroundVC::viewDidLayoutSubviews()
{
    _layout = EditBackgroundLayout(viewSize());
    _workAreaView.setBounds(_layout.workArea.size());
    // In a window that isn't as wide as the screen, or beside the canvas, the bar's own width says
    // how many tabs there is room for.
    const double room = std::min(_layout.tabbar.width(), _screenBounds().width());
    _tabbar.setMaxTabsVisible(ScrollingTabbar::tabsVisibleInWidth(room));
    _tabbar.setBounds(_layout.tabbar.size());
    addForegroundSticker(); // there may be room for a canvas only now
    updateSaveButton();
    Q_EMIT layoutChanged();
}

void EditBackgroundVC::viewWillTransitionToSize(QSizeF)
{
    closeRgbMixer();
}

void EditBackgroundVC::escapePressed()
{
    if (_isMixerUp)
        _rgbMixerPanelVC->handleTickButton();
    else if (!_workAreaView.unselect())
        panelCloseButtonPressed();
}

std::optional<Composition> EditBackgroundVC::composition() const
{
    const StickerView* sticker = _workAreaView.fgStickerView();
    if (!sticker || _fgImage.isNull())
        return std::nullopt;
    const QRectF canvas = _workAreaView.bgImageView().frame();
    Composition composition;
    composition.aspectRatio = _workAreaView.bgAspectRatio;
    composition.canvasWidth = canvas.width();
    composition.background = _background.drawn(&DepthPanels::patternImage);
    if (const auto* content = sticker->contentView())
        composition.object = {_fgImage,
                              sticker->center() - canvas.topLeft(),
                              sticker->bounds(),
                              sticker->rotation(),
                              sticker->contentViewHFlip(),
                              content->alpha};
    if (const ShadowValues& shadow = _depthPanels.shadowValues(); shadow.hasOutput())
        composition.shadow = shadow.inOutput(outputScale(composition), sticker->rotation());
    return composition;
}

void EditBackgroundVC::saveButtonPressed()
{
    if (!_saveButton.isEnabled())
        return;
    const std::optional<Composition> saved = composition();
    if (saved && saveBlock) {
        renderAndSaveComposition(*saved);
        return;
    }
    _progressHUD.showSuccessWithStatus(localized("savescreen.saveprogress.success"));
    leave();
}

void EditBackgroundVC::renderAndSaveComposition(const Composition& composition)
{
    setSaving(true);
    saveBlock([composition] { return renderComposition(composition); },
              [weak = weak_from_this()](bool isEncoded) {
                  const auto self = weak.lock();
                  if (!self)
                      return;
                  self->setSaving(false);
                  if (isEncoded)
                      self->leave();
                  else
                      self->_alert.showMessage(localized("savescreen.error.encode"));
              });
}

void EditBackgroundVC::cancelButtonPressed()
{
    if (!_isSaving)
        leave();
}

void EditBackgroundVC::leave()
{
    if (dismissBlock)
        std::exchange(dismissBlock, nullptr)();
}

} // namespace pelmira
