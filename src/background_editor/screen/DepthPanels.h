#pragma once

#include "background_editor/patterns/BGEPatternView.h"
#include "background_editor/photo/BGEPhotoView.h"
#include "background_editor/photo/PhotoBackground.h"
#include "background_editor/shadow/BGEShadowView.h"
#include "background_editor/shadow/ShadowValues.h"
#include "platform/base/OperationQueue.h"
#include "platform/screen/ScreenStack.h"

#include <QImage>
#include <QObject>
#include <QRectF>

#include <functional>

namespace pelmira {

class BGEWorkAreaView;
class CompositionBackground;
class PanelContainer;

/// The panels of shadow, photo and patterns, and what they do to the composition. The background,
/// the work area and the container of panels outlive them.
class DepthPanels final : public QObject {
    Q_OBJECT
    Q_PROPERTY(pelmira::BGEShadowView* shadowPanel READ shadowPanel CONSTANT)
    Q_PROPERTY(pelmira::BGEPhotoView* photoPanel READ photoPanel CONSTANT)
    Q_PROPERTY(pelmira::BGEPatternView* patternPanel READ patternPanel CONSTANT)

public:
    DepthPanels(CompositionBackground& background, BGEWorkAreaView& workArea,
                PanelContainer& panels);
    ~DepthPanels() override;

    /// Presents the library of photos. One block gets each photo that is chosen there, the other is
    /// called when the user goes back without one, after the library has been taken away.
    std::function<void(std::function<void(const QImage&)> picked, std::function<void()> cancelled)>
        presentPhotoPickerBlock;
    std::function<void()> dismissPhotoPickerBlock;
    /// There is no memory for the photo that was picked; another may be.
    std::function<void()> photoTooLargeBlock;
    /// Where the crop tool is shown; without it there is none.
    ScreenStack* screens = nullptr;
    /// Of the canvas, in points of the window.
    std::function<QRectF()> canvasFrameBlock;
    /// Pixels of the screen to a point.
    std::function<double()> screenScaleBlock;
    std::function<void(const ShadowValues&)> shadowChangedBlock;
    /// Another kind of background, or another photo.
    std::function<void()> backgroundChangedBlock;

    BGEShadowView* shadowPanel() { return &_shadowPanel; }
    BGEPhotoView* photoPanel() { return &_photoPanel; }
    BGEPatternView* patternPanel() { return &_patternPanel; }
    PhotoBackground& photo() { return _photo; }
    const ShadowValues& shadowValues() const { return _shadowValues; }
    void setShadowValues(const ShadowValues& values);

    void openShadowPanel();
    /// Without a photo, the library in place of the panel.
    void openPhotoPanel();
    void openPatternPanel();
    void showPhotoPicker();
    void showCropScreen();

    /// The tile of a pattern of the panel for an output of this scale; null for none. Safe from any
    /// thread.
    static QImage patternImage(int index, double scale);

private:
    void takePickedPhoto(const QImage& photo);
    void setBackgroundPhoto(const QImage& photo);
    void finishCrop(const QImage& image, const QRect& cropRect);
    /// The pattern is the background at once; its tile is seen when it has been painted.
    void pickPattern(int index);

    CompositionBackground& _background;
    BGEWorkAreaView& _workArea;
    PanelContainer& _panels;
    PhotoBackground _photo;
    ShadowValues _shadowValues;
    BGEShadowView _shadowPanel;
    BGEPhotoView _photoPanel;
    BGEPatternView _patternPanel;
    OperationQueue _tiles;
    std::weak_ptr<class TOCropViewController> _cropTool;
    bool _isPicking = false; ///< the library is shown
    int _pickers = 0;        ///< how often it has been
    int _takenFrom = 0;      ///< the one whose photo was last brought to its size
};

} // namespace pelmira
