#include "export/SaveViewController.h"

#include "platform/base/Log.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"
#include "settings/ZKLAnalyticsHelper.h"

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

constexpr double secondsForIndicatorToShow = 0.01;

} // namespace

SaveViewController::SaveViewController(UserDefaults& defaults, const PhotoLibrary& library,
                                       ShareFile shareFile, const HeifEncoder& heifEncoder)
    : _persistence(defaults), _heifEncoder(heifEncoder),
      _delivery(_progressHUD, _persistence, library, heifEncoder.heifDataWithImage),
      _sharing(std::make_shared<PictureSharing>(std::move(shareFile), _alert, _progressHUD))
{
    _jpgImageView.setBackgroundColor(Qt::white);
    _whiteBackgroundLabel = localized("savescreen.label.whitebg");
    _sharing->changedBlock = [this] { updateButtons(); };
    updateButtons();
}

SaveViewController::SaveViewController(UserDefaults& defaults)
    : SaveViewController(defaults, PhotoLibrary(), ShareFile(), HeifEncoder())
{
}

SaveViewController::~SaveViewController()
{
    logLine("SaveViewController dealloc");
}

QUrl SaveViewController::layoutFile() const
{
    return layoutUrl("SaveScreen");
}

QString SaveViewController::title() const
{
    return localized("generic.save");
}

QString SaveViewController::homeTitle() const
{
    return localized("generic.home");
}

QString SaveViewController::transparentBackgroundLabel() const
{
    return localized("savescreen.label.transparentbg");
}

QString SaveViewController::cleanEdgesLabel() const
{
    return localized("savescreen.edges.label");
}

QString SaveViewController::cleanEdgesMessage() const
{
    return localized("savescreen.edges.message");
}

void SaveViewController::viewDidLoad()
{
    _cleanEdgesSwitch.setSelected(_persistence.savesCleanEdges());
    connect(&_progressHUD, &ZKLProgressHUD::changed, this, [this] { callAnsweredBlockAtRest(); });
    if (_heifEncoder.canWrite()) {
        _useHeifSwitch.setSelected(_persistence.saveTransparentAsHEIF());
    } else {
        _isHeifContainerVisible = false;
        _persistence.setSaveTransparentAsHEIF(false);
    }
    localizeHeif();
    updateTransparentFormatLabel();
}

void SaveViewController::localizeHeif()
{
    _useHEIFLabel = localized("savescreen.heif.switch.label");
    _useHEIFTitle = localized("savescreen.heif.title");
    _useHEIFMessage = localized("savescreen.heif.message");
    Q_EMIT heifChanged();
}

void SaveViewController::updateTransparentFormatLabel()
{
    _transparentFormatLabel =
        _persistence.saveTransparentAsHEIF() ? QStringLiteral("HEIF") : QStringLiteral("PNG");
    Q_EMIT heifChanged();
}

void SaveViewController::viewWillDisappear(bool)
{
    _isSeen = false;
    _delivery.stay();
}

void SaveViewController::viewDidAppear(bool)
{
    _isSeen = true;
    callAnsweredBlockAtRest();
    if (!_image.isNull() || isRendering())
        return;
    _progressHUD.show(localized("savescreen.progress.preparing"));
    _renderTimer = Timer::scheduled(secondsForIndicatorToShow, [this] { render(); });
}

void SaveViewController::render()
{
    const auto owner = delegate.lock();
    if (!owner) {
        _progressHUD.dismiss();
        updateButtons();
        return;
    }
    _renderer.render(
        *owner, _persistence.savesCleanEdges(),
        [this](const QImage& image, const QImage& preview) { setImage(image, preview); });
}

void SaveViewController::setImage(const QImage& image, const QImage& preview)
{
    _image = image;
    _jpgImageView.setImage(preview);
    _pngImageView.setImage(preview);
    _progressHUD.dismiss();
    updateButtons();
    if (image.isNull())
        _alert.showMessage(localized("savescreen.error.render"));
}

void SaveViewController::updateButtons()
{
    for (InterfaceButton* button : {&_saveJPGButton, &_otherJPGButton, &_savePNGButton,
                                    &_otherPNGButton, &_colorChangeButton, &_editBackgroundButton})
        button->setEnabled(isReady());
    _cleanEdgesSwitch.setEnabled(!isBusy());
    _useHeifSwitch.setEnabled(!isBusy());
}

// The previews show the last picture until the new one is there; only then can it be saved.
void SaveViewController::handleCleanEdgesSwitchToggled(bool isOn)
{
    if (isBusy() || _alert.isOpen() || isOn == _cleanEdgesSwitch.isSelected())
        return;
    _delivery.stay();
    _cleanEdgesSwitch.setSelected(isOn);
    _persistence.setSavesCleanEdges(isOn);
    _renderTimer = {}; // of a first picture that hasn't begun
    _image = {};       // not two of them beside each other
    render();
    updateButtons();
}

void SaveViewController::handleUseHeifSwitchToggled(bool isOn)
{
    if (isBusy() || !_isHeifContainerVisible)
        return;
    _useHeifSwitch.setSelected(isOn);
    _persistence.setSaveTransparentAsHEIF(isOn);
    updateTransparentFormatLabel();
    ZKLAnalyticsHelper::logSelectContentWithType(ZKLAnalyticsHelper::contentTypeToggleHEIF(),
                                                 isOn ? 1 : 0);
}

void SaveViewController::saveJPG()
{
    if (isReady())
        savePhotoAsTransparent(false);
}

void SaveViewController::savePNG()
{
    if (isReady())
        savePhotoAsTransparent(true);
}

void SaveViewController::savePhotoAsTransparent(bool transparent)
{
    const QString highRes = localized("savescreen.savedialog.highres");
    const QString lowRes = localized("savescreen.savedialog.lowres");
    _delivery.stay();
    _progressHUD.dismiss(); // of an earlier picture
    _alert.show({localized("savescreen.savedialog.title"),
                 {},
                 localized("savescreen.savedialog.cancel"),
                 QStringList{highRes, lowRes}},
                [=, this](const QString& title) {
                    if (title == highRes)
                        saveHighResAsTransparent(transparent);
                    else if (title == lowRes)
                        saveLowResAsTransparent(transparent);
                    saveDialogAnswered(transparent);
                });
}

void SaveViewController::saveHighResAsTransparent(bool transparent)
{
    saveImage([image = _image] { return image; }, transparent);
}

void SaveViewController::saveLowResAsTransparent(bool transparent)
{
    saveImage([image = _image] { return lowResolution(image); }, transparent);
}

void SaveViewController::saveImage(PictureDelivery::Picture image, bool transparent)
{
    const auto encoded = [this](bool isEncoded) {
        updateButtons();
        if (!isEncoded)
            _alert.showMessage(localized("savescreen.error.encode"));
    };
    if (transparent)
        _delivery.savePngImage(std::move(image), _persistence.saveTransparentAsHEIF(), encoded);
    else
        _delivery.saveJpgImage(std::move(image), _jpgImageView.backgroundColor(), encoded);
    updateButtons();
}

// By what was wanted: a file that can't be written as HEIF is one all the same.
void SaveViewController::saveDialogAnswered(bool transparent)
{
    const QString transparentFormat =
        _persistence.saveTransparentAsHEIF() ? QStringLiteral("heif") : QStringLiteral("png");
    ZKLAnalyticsHelper::logSelectContentWithType(ZKLAnalyticsHelper::contentTypeSaveFormat(),
                                                 transparent ? transparentFormat
                                                             : QStringLiteral("jpg"));
    _wasAnswered = true;
}

// In the next turn: the card may have gone for a dialog that is about to open.
void SaveViewController::callAnsweredBlockAtRest()
{
    if (!_wasAnswered || _progressHUD.isVisible())
        return;
    mainQueue().async([self = weak_from_this()] {
        const auto screen = self.lock();
        if (!screen || !screen->_isSeen || screen->_progressHUD.isVisible() ||
            screen->alert()->isOpen() || screen->saveProblemAlert()->isOpen() ||
            !screen->saveJPGButton()->isEnabled())
            return;
        if (std::exchange(screen->_wasAnswered, false) && screen->answeredBlock)
            screen->answeredBlock();
    });
}

void SaveViewController::changeColorButtonPressed()
{
    if (!isReady() || !presentChangeColorBlock)
        return;
    presentChangeColorBlock([self = weak_from_this()](const QColor& color) {
        const auto screen = self.lock();
        if (!screen)
            return;
        screen->_jpgImageView.setBackgroundColor(color);
        screen->_whiteBackgroundLabel = localized("savescreen.label.custombg");
        Q_EMIT screen->colorChanged();
    });
}

void SaveViewController::editBackgroundButtonPressed()
{
    if (!isReady() || !presentEditBackgroundBlock)
        return;
    _progressHUD.dismiss(); // of an earlier picture
    presentEditBackgroundBlock();
}

void SaveViewController::otherSaveJPGFromRect(QRectF rect)
{
    share({_image, _jpgImageView.backgroundColor()}, rect);
}

void SaveViewController::otherSavePNGFromRect(QRectF rect)
{
    share({_image, std::nullopt}, rect);
}

void SaveViewController::share(const PictureSharing::Picture& picture, QRectF rect)
{
    if (!isReady())
        return;
    _delivery.stay();
    _sharing->share(picture, rect);
}

void SaveViewController::homeButtonTapped()
{
    _delivery.leave(homeBlock);
}

void SaveViewController::doneButtonPressed()
{
    _delivery.leave([this] {
        if (dismissBlock)
            dismissBlock({});
    });
}

void SaveViewController::viewDidLayoutSubviews()
{
    _rateMoreContainerView.layoutForHeight(viewSize().height());
}

void SaveViewController::applicationWillResignActive()
{
    logLine(_alert.isOpen() ? "Dismissing active alert before being backgrounded"
                            : "No alert to dismiss");
    _alert.dismiss();
}

} // namespace pelmira
