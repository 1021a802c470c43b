#pragma once

#include "controls/Alert.h"
#include "controls/InterfaceButton.h"
#include "controls/ZKLProgressHUD.h"
#include "export/CutOutRenderer.h"
#include "export/PictureDelivery.h"
#include "export/PicturePreview.h"
#include "export/PictureSharing.h"
#include "export/RateMoreContainerView.h"
#include "export/SaveImageFormatter.h"
#include "export/SaveViewControllerDelegate.h"
#include "persistence/preferences/PerstistenceHelper.h"
#include "platform/base/RunLoop.h"
#include "platform/screen/Screen.h"
#include "platform/storage/PhotoLibrary.h"

#include <QImage>
#include <QRectF>
#include <QString>

#include <functional>
#include <memory>

namespace pelmira {

/// The save screen: shows the cut-out flat on a colour and over the transparency grid, and saves
/// either or hands it to another application. This class only conducts; whatever takes long runs
/// off the main thread, with the controls inert meanwhile.
class SaveViewController final : public Screen,
                                 public std::enable_shared_from_this<SaveViewController> {
    Q_OBJECT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString homeTitle READ homeTitle CONSTANT)
    Q_PROPERTY(QString whiteBackgroundLabel READ whiteBackgroundLabel NOTIFY colorChanged)
    Q_PROPERTY(QString transparentBackgroundLabel READ transparentBackgroundLabel CONSTANT)
    Q_PROPERTY(QString transparentFormatLabel READ transparentFormatLabel NOTIFY heifChanged)
    Q_PROPERTY(bool heifContainerVisible READ isHeifContainerVisible NOTIFY heifChanged)
    Q_PROPERTY(QString useHEIFLabel READ useHEIFLabel NOTIFY heifChanged)
    Q_PROPERTY(QString useHEIFTitle READ useHEIFTitle NOTIFY heifChanged)
    Q_PROPERTY(QString useHEIFMessage READ useHEIFMessage NOTIFY heifChanged)
    Q_PROPERTY(QString cleanEdgesLabel READ cleanEdgesLabel CONSTANT)
    Q_PROPERTY(QString cleanEdgesMessage READ cleanEdgesMessage CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* cleanEdgesSwitch READ cleanEdgesSwitch CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* useHeifSwitch READ useHeifSwitch CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* saveJPGButton READ saveJPGButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* otherJPGButton READ otherJPGButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* savePNGButton READ savePNGButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* otherPNGButton READ otherPNGButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* colorChangeButton READ colorChangeButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* editBackgroundButton READ editBackgroundButton CONSTANT)
    Q_PROPERTY(pelmira::PicturePreview* jpgImageView READ jpgImageView CONSTANT)
    Q_PROPERTY(pelmira::PicturePreview* pngImageView READ pngImageView CONSTANT)
    Q_PROPERTY(
        pelmira::RateMoreContainerView* rateMoreContainerView READ rateMoreContainerView CONSTANT)
    Q_PROPERTY(pelmira::Alert* alert READ alert CONSTANT)
    Q_PROPERTY(pelmira::Alert* saveProblemAlert READ saveProblemAlert CONSTANT)
    Q_PROPERTY(pelmira::ZKLProgressHUD* progressHUD READ progressHUD CONSTANT)

public:
    /// The system's way to HEIF files.
    struct HeifEncoder {
        std::function<bool()> canWrite = SaveImageFormatter::canWriteHEIF;
        PictureSaver::Encoder heifDataWithImage = SaveImageFormatter::heifDataWithImage;
    };

    /// The preferences outlive the screen.
    SaveViewController(UserDefaults& defaults, const PhotoLibrary& library, ShareFile shareFile,
                       const HeifEncoder& heifEncoder);
    explicit SaveViewController(UserDefaults& defaults = UserDefaults::standardUserDefaults());
    ~SaveViewController() override;

    std::weak_ptr<SaveViewControllerDelegate> delegate;
    /// What the home button does.
    std::function<void()> homeBlock;
    /// Takes this screen away; the completion runs when it is gone.
    std::function<void(std::function<void()> completion)> dismissBlock;
    /// Lets the user choose another colour for the flat picture, which is shown; the completion
    /// gets it, and isn't called if none was chosen.
    std::function<void(std::function<void(const QColor&)> completion)> presentChangeColorBlock;
    /// Goes on to the background editor with the cut-out.
    std::function<void()> presentEditBackgroundBlock;
    /// Called once what an answer to the save dialog has led to is told and nothing is asked: a
    /// moment for a question.
    std::function<void()> answeredBlock;

    Q_INVOKABLE void jpgSaveButtonPressed() { saveJPG(); }
    Q_INVOKABLE void jpgPhotoTapped() { saveJPG(); }
    Q_INVOKABLE void pngSaveButtonPressed() { savePNG(); }
    Q_INVOKABLE void pngPhotoTapped() { savePNG(); }
    /// The button's frame in the screen, in points.
    Q_INVOKABLE void jpgOtherButtonPressed(QRectF frame) { otherSaveJPGFromRect(frame); }
    Q_INVOKABLE void pngOtherButtonPressed(QRectF frame) { otherSavePNGFromRect(frame); }
    Q_INVOKABLE void handleCleanEdgesSwitchToggled(bool isOn);
    Q_INVOKABLE void handleUseHeifSwitchToggled(bool isOn);
    Q_INVOKABLE void changeColorButtonPressed();
    Q_INVOKABLE void editBackgroundButtonPressed();
    Q_INVOKABLE void homeButtonTapped();
    Q_INVOKABLE void doneButtonPressed();

    QUrl layoutFile() const override;
    void viewDidLoad() override;
    void viewWillDisappear(bool animated) override;
    void viewDidAppear(bool animated) override;
    void viewDidLayoutSubviews() override;
    void applicationWillResignActive() override;
    bool hasUnfinishedWork() const override { return _delivery.isAtWork(); }
    bool asksAboutUnsaved() const override { return _delivery.asksAboutUnsaved(); }

    /// Saves this screen's pictures, and those of a screen over it.
    PictureDelivery& delivery() { return _delivery; }
    /// Hands this screen's pictures to other applications.
    PictureSharing& sharing() { return *_sharing; }
    /// The full-size cut-out with its transparency; null until it is rendered.
    const QImage& image() const { return _image; }

    QString title() const;
    QString homeTitle() const;
    QString whiteBackgroundLabel() const { return _whiteBackgroundLabel; }
    QString transparentBackgroundLabel() const;
    QString transparentFormatLabel() const { return _transparentFormatLabel; }
    bool isHeifContainerVisible() const { return _isHeifContainerVisible; }
    QString useHEIFLabel() const { return _useHEIFLabel; }
    QString useHEIFTitle() const { return _useHEIFTitle; }
    QString useHEIFMessage() const { return _useHEIFMessage; }
    QString cleanEdgesLabel() const;
    QString cleanEdgesMessage() const;
    InterfaceButton* cleanEdgesSwitch() { return &_cleanEdgesSwitch; }
    InterfaceButton* useHeifSwitch() { return &_useHeifSwitch; }
    InterfaceButton* saveJPGButton() { return &_saveJPGButton; }
    InterfaceButton* otherJPGButton() { return &_otherJPGButton; }
    InterfaceButton* savePNGButton() { return &_savePNGButton; }
    InterfaceButton* otherPNGButton() { return &_otherPNGButton; }
    InterfaceButton* colorChangeButton() { return &_colorChangeButton; }
    InterfaceButton* editBackgroundButton() { return &_editBackgroundButton; }
    RateMoreContainerView* rateMoreContainerView() { return &_rateMoreContainerView; }
    PicturePreview* jpgImageView() { return &_jpgImageView; }
    PicturePreview* pngImageView() { return &_pngImageView; }
    /// The save dialog, what can be done with a shared file, and messages.
    Alert* alert() { return &_alert; }
    Alert* saveProblemAlert() { return _delivery.problemAlert(); }
    ZKLProgressHUD* progressHUD() { return &_progressHUD; }

Q_SIGNALS:
    void heifChanged();
    void colorChanged();

private:
    void render();
    void setImage(const QImage& image, const QImage& preview);
    bool isRendering() const { return _renderTimer.isValid() || _renderer.isRendering(); }
    bool isBusy() const { return _sharing->isPreparing() || _delivery.isEncoding(); }
    bool isReady() const { return !_image.isNull() && !isRendering() && !isBusy(); }
    void updateButtons();
    void share(const PictureSharing::Picture& picture, QRectF rect);
    void localizeHeif();
    void updateTransparentFormatLabel();

    void saveJPG();
    void savePNG();
    void savePhotoAsTransparent(bool transparent);
    void saveHighResAsTransparent(bool transparent);
    void saveLowResAsTransparent(bool transparent);
    void saveDialogAnswered(bool transparent);
    void callAnsweredBlockAtRest();
    void saveImage(PictureDelivery::Picture image, bool transparent);

    void otherSaveJPGFromRect(QRectF rect);
    void otherSavePNGFromRect(QRectF rect);

    PerstistenceHelper _persistence;
    HeifEncoder _heifEncoder;
    QImage _image;
    bool _wasAnswered = false; ///< and answeredBlock is still to be called
    bool _isSeen = false;      ///< no other screen is over it

    InterfaceButton _cleanEdgesSwitch;
    InterfaceButton _useHeifSwitch;
    InterfaceButton _saveJPGButton;
    InterfaceButton _otherJPGButton;
    InterfaceButton _savePNGButton;
    InterfaceButton _otherPNGButton;
    InterfaceButton _colorChangeButton;
    InterfaceButton _editBackgroundButton;
    RateMoreContainerView _rateMoreContainerView;
    PicturePreview _jpgImageView;
    PicturePreview _pngImageView;
    QString _whiteBackgroundLabel;
    QString _transparentFormatLabel;
    QString _useHEIFLabel;
    QString _useHEIFTitle;
    QString _useHEIFMessage;
    bool _isHeifContainerVisible = true;
    Alert _alert;
    ZKLProgressHUD _progressHUD;
    PictureDelivery _delivery;
    const std::shared_ptr<PictureSharing> _sharing;
    Timer _renderTimer;
    CutOutRenderer _renderer; // its end stops what it is doing
};

} // namespace pelmira
