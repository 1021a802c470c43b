#include "background_editor/screen/DepthPanels.h"

#include "background_editor/canvas/BGEWorkAreaView.h"
#include "background_editor/patterns/ZKLPatterns.h"
#include "background_editor/screen/CompositionBackground.h"
#include "background_editor/screen/PanelContainer.h"
#include "crop/TOCropViewController.h"
#include "platform/base/RunLoop.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace pelmira {

DepthPanels::DepthPanels(CompositionBackground& background, BGEWorkAreaView& workArea,
                         PanelContainer& panels)
    : _background(background), _workArea(workArea), _panels(panels),
      _tiles(globalQueue(QueuePriority::UserInitiated))
{
    _photo.backgroundImageChangedBlock = [this](const QImage& image) {
        _background.setBackgroundImage(image);
    };
    _shadowPanel.shadowColorChangedBlock = [this](const QColor& color) {
        setShadowValues({_shadowValues.shadowOffset, _shadowValues.shadowBlur, color});
    };
    _shadowPanel.shadowValuesChangedBlock = [this](double x, double y, double blur) {
        setShadowValues({{x, y}, blur, _shadowValues.shadowColor});
    };
    _photoPanel.showPhotoPickerBlock = [this] { showPhotoPicker(); };
    _photoPanel.showCropScreenBlock = [this] { showCropScreen(); };
    _photoPanel.setBlurAmountBlock = [this](float amount) { _photo.setBlurAmount(amount); };
    _patternPanel.patternChangedBlock = [this](int index) { pickPattern(index); };
}

DepthPanels::~DepthPanels()
{
    // Nobody can paint any more once the application object has gone.
    _tiles.cancelAllOperations();
    _tiles.waitUntilAllOperationsAreFinished();
}

void DepthPanels::setShadowValues(const ShadowValues& values)
{
    _shadowValues = values;
    if (shadowChangedBlock)
        shadowChangedBlock(values);
}

void DepthPanels::openShadowPanel()
{
    _shadowPanel.showValues(_shadowValues);
    _panels.setCurrentPanel(&_shadowPanel);
}

void DepthPanels::openPhotoPanel()
{
    _photoPanel.slider()->setValue(_photo.blurAmount());
    if (_photo.bgImageOriginal().isNull())
        showPhotoPicker();
    else
        _panels.setCurrentPanel(&_photoPanel);
}

void DepthPanels::openPatternPanel()
{
    _panels.setCurrentPanel(&_patternPanel);
}

void DepthPanels::showPhotoPicker()
{
    if (!presentPhotoPickerBlock || std::exchange(_isPicking, true))
        return;
    ++_pickers;
    presentPhotoPickerBlock(
        [self = QPointer(this)](const QImage& photo) {
            if (self)
                self->takePickedPhoto(photo);
        },
        [self = QPointer(this)] {
            if (self)
                self->_isPicking = false;
        });
}

void DepthPanels::takePickedPhoto(const QImage& photo)
{
    if (!_isPicking || std::exchange(_takenFrom, _pickers) == _pickers)
        return;
    globalQueue(QueuePriority::UserInitiated)
        .async([self = QPointer(this), photo, picker = _pickers] {
            mainQueue().async([self, picker, limited = PhotoBackground::limitedToSize(photo)] {
                // The user may have gone back meanwhile, and then doesn't want it.
                if (!self || !self->_isPicking || self->_pickers != picker)
                    return;
                if (!limited.isNull()) {
                    self->setBackgroundPhoto(limited);
                    return;
                }
                self->_takenFrom = 0;
                if (self->photoTooLargeBlock)
                    self->photoTooLargeBlock();
            });
        });
}

void DepthPanels::setBackgroundPhoto(const QImage& photo)
{
    _isPicking = false;
    _photo.setBackgroundPhoto(photo);
    _photoPanel.setImage(photo);
    _photoPanel.slider()->setValue(0.0F);
    _background.pickPattern(-1);
    _panels.setCurrentPanel(&_photoPanel);
    if (dismissPhotoPickerBlock)
        dismissPhotoPickerBlock();
    if (backgroundChangedBlock)
        backgroundChangedBlock();
}

void DepthPanels::showCropScreen()
{
    if (!screens || !_cropTool.expired())
        return;
    const auto tool = TOCropViewController::initWithImage(_photo.bgImageOriginal());
    if (!tool)
        return;
    _cropTool = tool;
    tool->didCropToImage = [self = QPointer(this)](const QImage& image, const QRect& cropRect) {
        if (self)
            self->finishCrop(image, cropRect);
    };
    tool->presentAnimatedFromParentViewController(
        *screens, _photo.bgImage(), canvasFrameBlock ? canvasFrameBlock() : QRectF(),
        _photo.bgImageCropRect(), [this] { _workArea.bgImageView()->setHidden(true); },
        [self = QPointer(this)] {
            if (self)
                self->_workArea.bgImageView()->setHidden(false);
        });
}

void DepthPanels::finishCrop(const QImage& image, const QRect& cropRect)
{
    const auto tool = _cropTool.lock();
    if (!tool || image.isNull())
        return;
    _photo.finishCrop(image, cropRect);
    // The canvas has taken the crop's shape: that is where the picture goes.
    tool->dismissAnimatedFromParentViewController(
        *screens, image, canvasFrameBlock ? canvasFrameBlock() : QRectF(),
        [this] { _workArea.bgImageView()->setHidden(true); },
        [self = QPointer(this)] {
            if (self)
                self->_workArea.bgImageView()->setHidden(false);
        });
    if (backgroundChangedBlock)
        backgroundChangedBlock();
}

QImage DepthPanels::patternImage(int index, double scale)
{
    const ZKLPatterns& library = ZKLPatterns::shared();
    return library.imageForName(library.patternNames().value(index), scale).value_or(QImage());
}

void DepthPanels::pickPattern(int index)
{
    const QRectF canvas = _workArea.bgImageView()->frame();
    const double scale = ZKLPatterns::scaleForSide(std::max(canvas.width(), canvas.height()));
    const double density = screenScaleBlock ? screenScaleBlock() : 1.0;
    _background.pickPattern(index);
    _tiles.cancelAllOperations();
    _tiles.addOperation([self = QPointer(this), index, scale, density] {
        QImage tile = patternImage(index, scale * density);
        if (tile.isNull()) {
            tile = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
            tile.fill(Qt::white);
        }
        tile.setDevicePixelRatio(density);
        mainQueue().async([self, index, tile] {
            if (self)
                self->_background.showTile(index, tile);
        });
    });
    if (backgroundChangedBlock)
        backgroundChangedBlock();
}

} // namespace pelmira
