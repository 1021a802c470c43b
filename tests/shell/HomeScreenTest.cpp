#include "crop/TOCropViewController.h"
#include "intake/PhotoPermissionsHelper.h"
#include "intake/ZKLPhotoPicker.h"
#include "platform/storage/UserDefaults.h"
#include "settings/AppInfo.h"
#include "settings/EventLogVC.h"
#include "settings/SettingsVC.h"
#include "shell/FakeStack.h"
#include "shell/NewHomeScreenVC.h"
#include "shell/ScreenFlow.h"
#include "support/SavedWork.h"
#include "support/ShownScreen.h"
#include "support/Test.h"
#include "support/WaitFor.h"

namespace pelmira {
namespace {

struct HomeScreenTest : testing::Test {
    static void SetUpTestSuite()
    {
        // Before anything asks for the preferences of the process.
        static const TemporaryFolder home;
        qputenv("HOME", QFile::encodeName(home.path()));
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    }

    void SetUp() override
    {
        QDir().mkpath(QDir::homePath() + QStringLiteral("/Pictures"));
        _stack.pushViewController(makeHome());
    }

    std::shared_ptr<NewHomeScreenVC> makeHome()
    {
        AppServices services;
        services.resumeWork = [this]() -> ResumeWorkHelper& {
            if (!_resumeWork)
                _resumeWork.emplace(_folder.path(), _defaults);
            return *_resumeWork;
        };
        services.makeCamera = [] { return nullptr; };
        services.cameraStatus = [this] { return _cameraStatus; };
        services.canEdit = [this](const QImage&) { return _gpuHoldsThePhoto; };
        services.clipboardImage = [this] { return _clipboard; };
        services.dialogs.chooseImage = [this](FileDialogs::Completion completion) {
            _fileChosen = std::move(completion);
        };
        services.dialogs.chooseFolder = [this](FileDialogs::Completion completion) {
            completion(_chosenFolder);
        };
        if (!_flow)
            _flow.emplace(_stack, std::move(services));
        _home = _flow->makeHomeScreen();
        return _home;
    }

    static QImage photo(QSize size = {600, 450}) { return plainImage(size, Qt::darkCyan); }
    QString photoFile()
    {
        const QString path = _folder.path("photo.png");
        photo().save(path);
        return path;
    }
    void waitForPhoto()
    {
        ASSERT_TRUE(waitFor([&] { return !_home->loader()->isBusy(); }));
    }
    void openAndWait(const QString& path)
    {
        _home->openPhoto(path);
        waitForPhoto();
    }
    bool waitForCrop()
    {
        return waitFor([&] { return _stack.top<TOCropViewController>() != nullptr; });
    }
    /// The editor, if that is what is seen.
    Screen* editor() const
    {
        Screen* top = _stack.topScreen();
        return top->inherits("pelmira::ViewController") ? top : nullptr;
    }
    Screen& waitForEditor()
    {
        if (!waitFor([&] { return editor() != nullptr; }))
            throw std::logic_error("no editor");
        return *editor();
    }
    void saveWork() { test::saveWork(_folder.path(), _defaults, photo()); }
    /// What the home screen offers when it appears.
    ResumeView& offer()
    {
        _home->viewDidAppear(true);
        if (!_home->resumeView())
            throw std::logic_error("nothing is offered");
        return *_home->resumeView();
    }

    TemporaryFolder _folder;
    UserDefaults _defaults{_folder.path("preferences.json")};
    std::optional<ResumeWorkHelper> _resumeWork;
    bool _gpuHoldsThePhoto = true;
    PermissionStatus _cameraStatus = PermissionStatus::Authorized;
    QString _chosenFolder;
    FileDialogs::Completion _fileChosen; ///< answers the dialog that was opened last
    OfferedImage _clipboard;
    test::FakeStack _stack;
    std::optional<ScreenFlow> _flow;
    std::shared_ptr<NewHomeScreenVC> _home;
};

TEST_F(HomeScreenTest, AnOpenedPhotoReplacesTheSavedWorkOnceItIsCropped)
{
    saveWork();
    openAndWait(photoFile()); // at the start, before the offer is made
    EXPECT_EQ(_stack.topScreen(), _home.get());
    ResumeView& question = offer();
    openAndWait(photoFile()); // dropped while it stands
    EXPECT_EQ(_stack.topScreen(), _home.get());
    question.handleNo();
    auto& crop = _stack.shown<TOCropViewController>();
    EXPECT_TRUE(_home->resumeView() == nullptr);
    EXPECT_TRUE(_resumeWork->hasSavedWork()); // so far the crop may still be cancelled
    crop.doneButtonTapped();
    Screen& opened = waitForEditor();
    EXPECT_FALSE(_resumeWork->hasSavedWork());
    opened.viewDidAppear(true); // takes the crop tool out from under it
    EXPECT_EQ(_stack.entries.size(), 2u);
}

TEST_F(HomeScreenTest, APhotoThatComesLateIsNotCroppedOverWhateverIsOnTop)
{
    saveWork();
    ResumeView& question = offer();
    _home->browseButtonTapped();
    _home->openPhoto(photoFile());
    question.handleYes();
    EXPECT_EQ(_home->resumeView(), nullptr);
    _clipboard = photo();
    _home->openPhoto(photoFile()); // while the work is read
    _home->paste();
    Screen& resumed = waitForEditor();
    waitForPhoto();
    const std::function<void()> late[] = {
        [&] { _home->paste(); },
        [&] { _home->openUrls({QUrl::fromLocalFile(photoFile())}); },
        [&] { _fileChosen(photoFile()); },
    };
    for (const auto& come : late) {
        come();
        waitForPhoto();
        EXPECT_EQ(_stack.topScreen(), &resumed);
    }
    _stack.popViewController();
    EXPECT_TRUE(_resumeWork->hasSavedWork());

    _home->photoButtonTapped();
    auto& picker = _stack.shown<ZKLPhotoPicker>();
    _stack.popViewController(); // it is still seen going
    picker.selectionBlock(photo());
    EXPECT_EQ(_stack.topScreen(), _home.get());
}

TEST_F(HomeScreenTest, WhatCannotBeOpenedOrEditedIsToldAndOfSeveralFilesWhichIsOpened)
{
    _home->viewDidAppear(true);
    openAndWait(_folder.path("none.png"));
    EXPECT_EQ(_stack.topScreen(), _home.get());
    EXPECT_TRUE(_home->loader()->message().contains(QStringLiteral("none.png")));

    _gpuHoldsThePhoto = false;
    openAndWait(photoFile());
    EXPECT_TRUE(_home->loader()->message().isEmpty());
    _stack.shown<TOCropViewController>().doneButtonTapped();
    EXPECT_TRUE(waitFor([&] { return _stack.topScreen() == _home.get(); }));
    EXPECT_FALSE(_home->loader()->message().isEmpty());

    const QUrl photo = QUrl::fromLocalFile(photoFile());
    const QUrl page(QStringLiteral("https://example.org/photo.png"));
    const QUrl none = QUrl::fromLocalFile(_folder.path("none.png"));
    _home->openUrls({page});
    EXPECT_FALSE(_home->loader()->isBusy());
    EXPECT_TRUE(_home->loader()->message().startsWith(QStringLiteral("photo.png is not")));
    _home->openUrls({page, photo, none});
    EXPECT_TRUE(_home->loader()->message().contains(QStringLiteral("photo.png")));
    EXPECT_TRUE(waitForCrop());
}

TEST_F(HomeScreenTest, ADeniedCameraLeadsToSettingsOrTellsThatThereAreNone)
{
    _cameraStatus = PermissionStatus::Denied;
    _home->cameraButtonTapped();
    Alert& alert = *_home->alert();
    ASSERT_TRUE(test::waitFor([&] { return alert.isOpen(); }));
    alert.buttonPressed(true); // on a desktop without such a page
    ASSERT_TRUE(test::waitFor([&] { return alert.isOpen(); }));
    EXPECT_TRUE(alert.message().endsWith(QStringLiteral("open this.")));
}

TEST_F(HomeScreenTest, ACropToolThatIsLeftBeforeItsPhotoHasItsSizeOpensNothing)
{
    _home->viewDidAppear(true);
    openAndWait(photoFile());
    auto& left = _stack.shown<TOCropViewController>();
    left.didCropToImage(photo({300, 200}), {});
    _stack.popViewController();
    openAndWait(photoFile());
    auto& crop = _stack.shown<TOCropViewController>();
    crop.didCropToImage(photo(), {});
    crop.didCropToImage(photo(), {}); // a second press
    waitForEditor();
    drainMainQueue();
    EXPECT_EQ(_stack.entries.size(), 3U); // home, the tool and one editor
}

TEST_F(HomeScreenTest, WhateverFormAPastedPictureHasItIsCropped)
{
    _home->viewDidAppear(true);
    _home->paste();
    EXPECT_FALSE(_home->loader()->message().isEmpty()); // there is none

    const QString file = photoFile();
    const QImage pixels = photo().convertToFormat(QImage::Format_RGB888);
    for (const OfferedImage& form :
         {OfferedImage(file), OfferedImage(TemporaryFolder::read(file)), OfferedImage(pixels)}) {
        _clipboard = form;
        _home->paste();
        ASSERT_TRUE(waitForCrop());
        EXPECT_EQ(_stack.shown<TOCropViewController>().image().pixel(599, 449),
                  photo().pixel(0, 0));
        _stack.popViewController();
    }
}

TEST_F(HomeScreenTest, ACancelledCropLeavesTheLibraryUpAndTheCameraIsGone)
{
    _home->photoButtonTapped();
    auto& picker = _stack.shown<ZKLPhotoPicker>();
    picker.selectionBlock(photo());
    _stack.shown<TOCropViewController>().cancelButtonTapped();
    EXPECT_EQ(_stack.topScreen(), &picker);
    picker.cancelButtonTapped();

    const auto shoot = [&] {
        _home->cameraButtonTapped();
        ASSERT_TRUE(waitFor([&] { return _stack.top<CameraPicker>() != nullptr; }));
        EXPECT_TRUE(_home->isCameraMode());
        _stack.shown<CameraPicker>().didFinishPickingMedia(photo());
    };
    shoot();
    _stack.shown<TOCropViewController>().cancelButtonTapped();
    EXPECT_EQ(_stack.topScreen(), _home.get());

    shoot();
    _stack.shown<TOCropViewController>().doneButtonTapped();
    Screen& opened = waitForEditor();
    opened.viewDidAppear(true);           // takes the crop tool out from under it
    EXPECT_EQ(_stack.entries.size(), 2u); // home and the editor
}

TEST_F(HomeScreenTest, UnfinishedWorkIsOfferedOnceAndGoneOnWithAsItIs)
{
    saveWork();
    offer().handleNo();
    EXPECT_EQ(_home->resumeView(), nullptr);
    _home->viewDidAppear(true);
    EXPECT_EQ(_home->resumeView(), nullptr); // once in the life of the process
    EXPECT_TRUE(_resumeWork->hasSavedWork());

    _stack.popViewController();
    _stack.pushViewController(makeHome()); // the next process
    ResumeView& question = offer();
    EXPECT_TRUE(waitFor([&] { return !question.image().isNull(); }));
    question.handleYes();
    const std::size_t screens = _stack.entries.size();
    _home->photoButtonTapped(); // the work is being read
    EXPECT_EQ(_stack.entries.size(), screens);
    waitForEditor();
    EXPECT_FALSE(_resumeWork->isSavingWorkingImage());
    EXPECT_TRUE(_resumeWork->hasSavedWork());
}

TEST_F(HomeScreenTest, AnOfferOfDamagedWorkIsTakenBack)
{
    saveWork();
    const QString mask = _folder.path() + QStringLiteral("/resume/mask.data");
    QFile(mask).resize(20);
    openAndWait(photoFile());
    offer(); // doesn't wait for the files
    EXPECT_TRUE(waitFor([&] { return _home->resumeView() == nullptr; }));
    EXPECT_FALSE(QFile::exists(mask));
    EXPECT_NE(_stack.top<TOCropViewController>(), nullptr); // the photo had waited
}

TEST_F(HomeScreenTest, TheOverlayStaysUntilThereIsAFolderOfPhotos)
{
    const QString pictures = QDir::homePath() + QStringLiteral("/Pictures");
    ASSERT_TRUE(QDir(pictures).removeRecursively());
    _home->viewDidLoad();
    ASSERT_NE(_home->permissionOverlayView(), nullptr);
    _home->permissionOverlayView()->handleAllow();
    EXPECT_TRUE(waitFor([&] { return _home->permissionOverlayView() == nullptr; }));
    EXPECT_TRUE(QDir(pictures).exists());

    ASSERT_TRUE(QDir(pictures).removeRecursively());
    QFile inItsPlace(pictures);
    ASSERT_TRUE(inItsPlace.open(QIODevice::WriteOnly));
    _home->viewDidLoad();
    ASSERT_NE(_home->permissionOverlayView(), nullptr);
    _chosenFolder = pictures; // no folder either
    _home->permissionOverlayView()->handleAllow();
    EXPECT_EQ(_home->permissionOverlayView()->alpha(), 1.0);
    _chosenFolder = _folder.path();
    _home->permissionOverlayView()->handleAllow();
    EXPECT_TRUE(waitFor([&] { return _home->permissionOverlayView() == nullptr; }));
    EXPECT_EQ(PhotoPermissionsHelper::photosFolder(), _folder.path());
    ASSERT_TRUE(QFile::remove(pictures));
}

TEST_F(HomeScreenTest, KeysAnswerTheOverlayThatIsSeenBeforeTheOfferBeneath)
{
    saveWork();
    ASSERT_TRUE(QDir(QDir::homePath() + QStringLiteral("/Pictures")).removeRecursively());
    test::ShownScreen shown(makeHome(), {390, 844});
    ASSERT_TRUE(waitFor([&] { return _home->resumeView() != nullptr; }));
    shown.waitForFrame();
    shown.key(Qt::Key_Escape);
    ASSERT_TRUE(waitFor([&] { return _home->permissionOverlayView() == nullptr; }));
    EXPECT_NE(_home->resumeView(), nullptr);
    shown.waitForFrame();
    shown.key(Qt::Key_Escape);
    EXPECT_EQ(_home->resumeView(), nullptr);
}

TEST_F(HomeScreenTest, TheLibraryGivesAPhotoOrSaysWhyNot)
{
    const QString pictures = PhotoPermissionsHelper::photosFolder();
    ZKLPhotoPicker picker({});
    picker.setViewSize({390, 844});
    EXPECT_EQ(picker.columns() * picker.cellSize(), 390.0);
    picker.viewWillAppear(false);
    ASSERT_TRUE(waitFor([&] { return !picker.photos()->isScanning(); }));
    EXPECT_FALSE(picker.placeholder().isEmpty());

    // A new photo shows up by itself.
    ASSERT_TRUE(photo().save(pictures + QStringLiteral("/whole.png")));
    ASSERT_TRUE(waitFor([&] { return picker.photos()->count() == 1; }));
    EXPECT_TRUE(picker.placeholder().isEmpty());

    QSize given;
    picker.selectionBlock = [&](const QImage& image) { given = image.size(); };
    picker.photoTapped(0);
    EXPECT_EQ(picker.loadingRow(), 0);
    ASSERT_TRUE(waitFor([&] { return picker.loadingRow() < 0; }));
    EXPECT_EQ(given, QSize(600, 450));
    ASSERT_TRUE(QFile::resize(pictures + QStringLiteral("/whole.png"), 99));
    picker.photoTapped(0);
    ASSERT_TRUE(waitFor([&] { return picker.loadingRow() < 0; }));
    EXPECT_TRUE(picker.loader()->message().contains(QStringLiteral("whole.png")));
    QDir(pictures).remove(QStringLiteral("whole.png"));
}

TEST_F(HomeScreenTest, SettingsAreOfferedOnceTheMakerHasFilledInWhatTheyNeed)
{
    ASSERT_NE(_home->settingsButton(), nullptr);
    _home->settingsButtonTapped();
    auto& settings = _stack.shown<SettingsVC>();
    settings.didSelectRow(4, 0, {}); // there is no list of other applications
    EXPECT_TRUE(settings.alert()->isOpen());
    settings.didSelectRow(0, 2, {});
    auto& log = _stack.shown<EventLogVC>();
    log.doneButtonPressed();
    _stack.shown<SettingsVC>().handleDonePressed();
    EXPECT_EQ(_stack.topScreen(), _home.get());
    AppInfo::setTermsURLStr({});
    EXPECT_EQ(_home->settingsButton(), nullptr);
    _home->settingsButtonTapped();
    EXPECT_EQ(_stack.topScreen(), _home.get());
    AppInfo::fill();
}

} // namespace
} // namespace pelmira
