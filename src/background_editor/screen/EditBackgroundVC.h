#pragma once

#include "background_editor/canvas/BGECanvasView.h"
#include "background_editor/canvas/BGEWorkAreaView.h"
#include "background_editor/colors/BGEColorView.h"
#include "background_editor/colors/ZKLRGBMixerVC.h"
#include "background_editor/composition/Composition.h"
#include "background_editor/screen/CompositionBackground.h"
#include "background_editor/screen/DepthPanels.h"
#include "background_editor/screen/EditBackgroundLayout.h"
#include "background_editor/screen/PanelContainer.h"
#include "background_editor/shadow/LayerShadow.h"
#include "background_editor/shadow/ShadowValues.h"
#include "controls/Alert.h"
#include "controls/InterfaceButton.h"
#include "controls/ScrollingTabbar.h"
#include "controls/ZKLProgressHUD.h"
#include "platform/base/RunLoop.h"
#include "platform/screen/Screen.h"
#include "platform/storage/UserDefaults.h"

#include <QImage>
#include <QRectF>
#include <QString>

#include <functional>
#include <memory>

namespace pelmira {

/// The background editor: places the cut-out on a new background and saves the composition, which
/// lives in this screen alone and goes with it. What the user sees is the composition; its pixels
/// are made once, when it is saved.
class EditBackgroundVC final : public Screen,
                               public std::enable_shared_from_this<EditBackgroundVC> {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(pelmira::BGEWorkAreaView* workAreaView READ workAreaView CONSTANT)
    Q_PROPERTY(pelmira::ScrollingTabbar* tabbar READ tabbar CONSTANT)
    Q_PROPERTY(pelmira::PanelContainer* panels READ panels CONSTANT)
    Q_PROPERTY(pelmira::BGECanvasView* canvasPanel READ canvasPanel CONSTANT)
    Q_PROPERTY(pelmira::BGEColorView* colorPanel READ colorPanel CONSTANT)
    Q_PROPERTY(pelmira::LayerShadow* shadow READ shadow CONSTANT)
    Q_PROPERTY(pelmira::DepthPanels* depthPanels READ depthPanels CONSTANT)
    Q_PROPERTY(QString rgbButtonLabel READ rgbButtonLabel NOTIFY rgbButtonLabelChanged)
    Q_PROPERTY(pelmira::ZKLRGBMixerVC* rgbMixerPanelVC READ rgbMixerPanelVC NOTIFY mixerChanged)
    Q_PROPERTY(bool mixerIsUp READ isMixerUp NOTIFY mixerChanged)
    Q_PROPERTY(pelmira::InterfaceButton* saveButton READ saveButton CONSTANT)
    Q_PROPERTY(bool isModal READ isModal NOTIFY modalChanged)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)
    Q_PROPERTY(bool isWide READ isWide NOTIFY layoutChanged)
    Q_PROPERTY(QRectF topBarFrame READ topBarFrame NOTIFY layoutChanged)
    Q_PROPERTY(QRectF workAreaFrame READ workAreaFrame NOTIFY layoutChanged)
    Q_PROPERTY(QRectF controlContainerFrame READ controlContainerFrame NOTIFY layoutChanged)
    Q_PROPERTY(QRectF tabbarFrame READ tabbarFrame NOTIFY layoutChanged)

public:
    /// The screen's bounds are those of the screen on which the window stands, in points.
    using ScreenBounds = std::function<QSizeF()>;

    /// The HUD is that of the screen below, which shows it over this one, too; it and the
    /// preferences outlive this screen.
    EditBackgroundVC(UserDefaults& defaults, ZKLProgressHUD& progressHUD,
                     ScreenBounds screenBounds);
    ~EditBackgroundVC() override;

    /// The cut-out, with its transparency, and a smaller copy of it for the eye. To be set before
    /// the screen is shown.
    void setFgImage(const QImage& fgImage, const QImage& preview = {})
    {
        _fgImage = fgImage;
        _fgPreview = preview;
    }
    /// Makes a picture off the main thread, and brings it into the library. The completion is told
    /// whether there was memory for it; whatever else goes wrong is told on the screen below.
    std::function<void(std::function<QImage()> picture, std::function<void(bool)> completion)>
        saveBlock;
    /// Takes this screen away.
    std::function<void()> dismissBlock;

    Q_INVOKABLE void saveButtonPressed();
    Q_INVOKABLE void cancelButtonPressed();
    Q_INVOKABLE void handleRgbButtonTapped();
    Q_INVOKABLE void panelCloseButtonPressed() { _panels.setCurrentPanel(nullptr); }
    /// Steps back from what is open or selected, the nearest first; it never leaves the screen.
    Q_INVOKABLE void escapePressed();

    QUrl layoutFile() const override;
    void viewDidLoad() override;
    void viewDidAppear(bool animated) override;
    void viewDidLayoutSubviews() override;
    void viewWillTransitionToSize(QSizeF size) override;

    QString title() const;
    BGEWorkAreaView* workAreaView() { return &_workAreaView; }
    ScrollingTabbar* tabbar() { return &_tabbar; }
    PanelContainer* panels() { return &_panels; }
    BGECanvasView* canvasPanel() { return &_canvasPanel; }
    BGEColorView* colorPanel() { return &_colorPanel; }
    CompositionBackground& background() { return _background; }
    /// As it is shown on the screen.
    LayerShadow* shadow() { return &_layerShadow; }
    DepthPanels* depthPanels() { return &_depthPanels; }
    QString rgbButtonLabel() const { return _rgbButtonLabel; }
    ZKLRGBMixerVC* rgbMixerPanelVC() const { return _rgbMixerPanelVC.get(); }
    bool isMixerUp() const { return _isMixerUp; }
    InterfaceButton* saveButton() { return &_saveButton; }
    Alert* alert() { return &_alert; }
    /// The object, the panels and the tabs rest, for fingers and keys: something lies over them, or
    /// the composition is being saved. This screen goes then, and nothing that it has opened
    /// meanwhile.
    bool isModal() const { return _isMixerUp || _isSaving || _alert.isOpen(); }
    bool isWide() const { return _layout.isWide; }
    QRectF topBarFrame() const { return _layout.topBar; }
    QRectF workAreaFrame() const { return _layout.workArea; }
    QRectF controlContainerFrame() const { return _layout.controlContainer; }
    QRectF tabbarFrame() const { return _layout.tabbar; }

    /// What would be saved now; nothing while there is nothing to save.
    std::optional<Composition> composition() const;

Q_SIGNALS:
    void rgbButtonLabelChanged();
    void mixerChanged();
    void modalChanged();
    void layoutChanged();

private:
    void setupTabbar();
    void openCanvasPanel();
    void setCanvasAspectRatio(float aspectRatio);
    void setSolidBackground(const QColor& color);
    void updateRgbButtonLabel();
    void closeRgbMixer();
    /// Does nothing before the screen has appeared, or without a canvas, or when it is there.
    void addForegroundSticker();
    void setSaving(bool isSaving);
    void updateSaveButton();
    /// Leaves once the picture is on its way to its file.
    void renderAndSaveComposition(const Composition& composition);
    void leave();

    const ScreenBounds _screenBounds;
    UserDefaults& _defaults;
    ZKLProgressHUD& _progressHUD;
    QImage _fgImage;
    QImage _fgPreview;
    BGEWorkAreaView _workAreaView;
    CompositionBackground _background{_workAreaView};
    LayerShadow _layerShadow;
    BGECanvasView _canvasPanel;
    BGEColorView _colorPanel;
    PanelContainer _panels;
    DepthPanels _depthPanels{_background, _workAreaView, _panels};
    ScrollingTabbar _tabbar;
    QString _rgbButtonLabel;
    std::unique_ptr<ZKLRGBMixerVC> _rgbMixerPanelVC;
    bool _isMixerUp = false; ///< false while it slides away
    Timer _mixerSlid;
    InterfaceButton _saveButton;
    Alert _alert;
    EditBackgroundLayout _layout;
    bool _hasAppeared = false;
    bool _isSaving = false;
};

} // namespace pelmira
