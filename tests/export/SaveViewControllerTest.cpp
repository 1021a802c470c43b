#include "export/SaveViewController.h"

#include "export/RateMoreContainerView.h"
#include "support/Test.h"
#include "support/WaitFor.h"

#include <QColorSpace>
#include <QPainter>

namespace pelmira {
namespace {

// Half of it is blue, half transparent.
QImage cutOut()
{
    QImage image = plainImage({1600, 1200}, Qt::transparent);
    QPainter(&image).fillRect(0, 0, 800, 1200, Qt::blue);
    return image;
}

bool isCutOut(QImage image)
{
    image.setColorSpace({}); // sRGB
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied) == cutOut();
}

struct FakeEditor final : SaveViewControllerDelegate {
    void fullSizeImageWithCompletion(std::function<void(QImage)> completion) override
    {
        ++asked;
        mainQueue().async([completion] { completion(cutOut()); });
    }
    void fullSizeImageRetouchedBy(Retouch retouch, std::function<void(QImage)> completion) override
    {
        ++asked;
        globalQueue(QueuePriority::UserInitiated).async([retouch, completion] {
            QImage pixels = cutOut().convertToFormat(QImage::Format_ARGB32);
            for (int y = 0; y < 1200; ++y)       // what the mask took away was red
                for (int x = 799; x < 1600; ++x) // over two pixels half and half
                    pixels.setPixel(x, y,
                                    x > 800 ? qRgba(200, 30, 30, 0)
                                            : qRgba(100, 15, 142, x == 799 ? 255 : 0));
            const bool isDone =
                retouch({reinterpret_cast<std::uint32_t*>(pixels.bits()), 1600, 1200, 1600 * 4});
            mainQueue().async([completion, image = isDone ? pixels : QImage()] {
                completion(image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
            });
        });
    }
    int asked = 0;
};

class SaveScreen : public ::testing::Test {
protected:
    void open(const QString& pictures)
    {
        screen = std::make_shared<SaveViewController>(
            defaults, PhotoLibrary(pictures), ShareFile(folder.path()),
            SaveViewController::HeifEncoder{[this] { return canWriteHeif; },
                                            [this](const QImage&) { return heif; }});
        screen->delegate = editor;
        screen->dismissBlock = [this](const auto&) { ++dismissals; };
        QObject::connect(screen->progressHUD(), &ZKLProgressHUD::changed, [this] {
            const ZKLProgressHUD& hud = *screen->progressHUD();
            told << (hud.isVisible() ? hud.status() : u"-"_s);
        });
        screen->viewDidLoad();
    }
    void openAndRender(const QString& pictures)
    {
        open(pictures);
        screen->viewDidAppear(true);
        ASSERT_TRUE(waitFor([this] { return screen->savePNGButton()->isEnabled(); }));
        told.clear();
    }
    void save(bool transparent, int resolution)
    {
        if (transparent)
            screen->pngPhotoTapped();
        else
            screen->jpgSaveButtonPressed();
        ASSERT_TRUE(screen->alert()->isOpen());
        screen->alert()->actionButtonPressed(resolution);
        EXPECT_FALSE(screen->saveJPGButton()->isEnabled()); // one at a time
        EXPECT_TRUE(screen->hasUnfinishedWork());           // the process may not end
        ASSERT_TRUE(waitFor([this] { return screen->saveJPGButton()->isEnabled(); }));
    }
    /// Waits for the files that are written, and gives the newest names' images.
    QFileInfoList saved(int count)
    {
        const QDir library(folder.path("Pelmira"));
        EXPECT_TRUE(waitFor([&] {
            const bool isThere = library.entryList(QDir::Files).size() == count;
            EXPECT_TRUE(isThere || screen->hasUnfinishedWork());
            return isThere;
        }));
        return library.entryInfoList(QDir::Files, QDir::Time | QDir::Reversed);
    }

    const TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    bool canWriteHeif = true;
    QByteArray heif;
    std::shared_ptr<FakeEditor> editor = std::make_shared<FakeEditor>();
    std::shared_ptr<SaveViewController> screen;
    QStringList told;
    int dismissals = 0;
};

TEST_F(SaveScreen, RendersOnceAndSavesNothingBeforeOrUnasked)
{
    open(folder.path());
    screen->jpgSaveButtonPressed();
    screen->pngPhotoTapped();
    screen->jpgOtherButtonPressed({});
    screen->viewDidAppear(true);
    screen->viewDidAppear(true);
    screen->pngSaveButtonPressed();
    EXPECT_FALSE(screen->alert()->isOpen());
    EXPECT_FALSE(screen->otherPNGButton()->isEnabled());
    EXPECT_TRUE(screen->progressHUD()->isVisible());
    ASSERT_TRUE(waitFor([this] { return !screen->progressHUD()->isVisible(); }));
    screen->viewDidAppear(true);
    EXPECT_EQ(editor->asked, 1);
    EXPECT_EQ(screen->image(), cutOut());
    EXPECT_EQ(screen->pngImageView()->image().width(), 1280);
    EXPECT_FALSE(QFile::exists(screen->sharing().file().shareImagePathJPG()));

    // The dialog doesn't survive a trip to the background.
    screen->pngSaveButtonPressed();
    screen->applicationWillResignActive();
    EXPECT_FALSE(screen->alert()->isOpen());
    screen->alert()->actionButtonPressed(0); // a press that was under way
    EXPECT_TRUE(screen->savePNGButton()->isEnabled());
    EXPECT_FALSE(QDir(folder.path("Pelmira")).exists());
}

TEST_F(SaveScreen, AFlatPictureHasTheChosenColourAtBothResolutionsAndWhenShared)
{
    openAndRender(folder.path());
    screen->presentChangeColorBlock = [](auto choose) { choose(Qt::red); };
    const QString before = screen->whiteBackgroundLabel();
    screen->changeColorButtonPressed();
    EXPECT_NE(screen->whiteBackgroundLabel(), before);
    QString shown;
    screen->delivery().showFileBlock = [&](const QString& path) { shown = path; };
    save(false, 0);
    EXPECT_EQ(told, (QStringList{u"-"_s, u"Saving…"_s, u"Saved"_s}));
    EXPECT_TRUE(screen->progressHUD()->detail().contains(folder.path("Pelmira")));
    ASSERT_TRUE(waitFor([&] { return screen->progressHUD()->isActionEnabled(); }));
    screen->progressHUD()->actionButtonPressed();
    EXPECT_EQ(shown, saved(1).first().filePath());
    save(false, 1);
    EXPECT_EQ(screen->progressHUD()->detail(), QString()); // the folder is told once
    screen->sharing().copyImageBlock = [](const QByteArray&) {};
    screen->jpgOtherButtonPressed({10, 10, 50, 50});
    ASSERT_TRUE(waitFor([this] { return screen->alert()->isOpen(); }));

    std::multiset<int> widths;
    QFileInfoList files = saved(2);
    files << QFileInfo(screen->sharing().file().shareImagePathJPG());
    for (const QFileInfo& file : std::as_const(files)) {
        EXPECT_EQ(file.suffix(), u"jpg"_s);
        const QImage image(file.filePath());
        widths.insert(image.width());
        EXPECT_LT(farthest(image.pixel(image.width() - 5, 5), qRgb(255, 0, 0)), 10);
        EXPECT_LT(farthest(image.pixel(5, 5), qRgb(0, 0, 255)), 10);
    }
    EXPECT_EQ(widths, (std::multiset{640, 1600, 1600}));
}

TEST_F(SaveScreen, ATransparentPictureIsHEIFOnRequestAndPNGWhereThatFails)
{
    openAndRender(folder.path());
    EXPECT_EQ(screen->transparentFormatLabel(), u"PNG"_s);
    screen->handleUseHeifSwitchToggled(true);
    EXPECT_EQ(screen->transparentFormatLabel(), u"HEIF"_s);
    save(true, 0);
    const QFileInfo fallback = saved(1).first();
    EXPECT_EQ(fallback.suffix(), u"png"_s);
    const QImage image(fallback.filePath());
    EXPECT_TRUE(isCutOut(image));
    heif = "as if it were one";
    save(true, 1);
    saved(2);
    const QStringList heic = QDir(folder.path("Pelmira")).entryList({u"*.heic"_s});
    ASSERT_EQ(heic.size(), 1);
    EXPECT_EQ(TemporaryFolder::read(folder.path("Pelmira/") + heic[0]), heif);

    canWriteHeif = false; // another system, the same preferences
    open(folder.path());
    EXPECT_FALSE(screen->isHeifContainerVisible());
    EXPECT_EQ(defaults.boolForKey(u"saveAsHeif"_s), false);
}

TEST_F(SaveScreen, WhatCouldNotBeWrittenIsToldAndGoesIntoAnotherFolder)
{
    openAndRender(folder.impossibleFolder());
    std::function<void(const QString&)> choose;
    screen->delivery().chooseFolderBlock = [&](auto completion) { choose = std::move(completion); };
    screen->jpgSaveButtonPressed();
    screen->alert()->actionButtonPressed(0);
    screen->doneButtonPressed(); // waits for the file, and stays for want of it
    Alert& problem = *screen->saveProblemAlert();
    ASSERT_TRUE(waitFor([&] { return problem.isOpen(); }));
    EXPECT_EQ(dismissals, 0);
    EXPECT_FALSE(defaults.boolForKey(u"saveFolderShown"_s));
    screen->applicationWillResignActive(); // to make room, perhaps
    ASSERT_TRUE(problem.isOpen());
    problem.actionButtonPressed(1); // try again
    ASSERT_TRUE(waitFor([&] { return problem.isOpen(); }));
    problem.actionButtonPressed(0); // another folder, but none is chosen
    ASSERT_TRUE(problem.isOpen());
    const auto chooseLate = choose;
    const QString chosen = folder.path("Pelmira");
    problem.actionButtonPressed(0);
    choose(chosen);
    EXPECT_EQ(QImage(saved(1).first().filePath()).size(), QSize(1600, 1200));
    ASSERT_TRUE(waitFor([&] { return screen->progressHUD()->isSuccess(); }));
    EXPECT_TRUE(screen->progressHUD()->detail().contains(chosen));
    chooseLate(chosen); // there is nothing left to be written
    EXPECT_TRUE(screen->progressHUD()->isSuccess());

    // Another screen, or another picture, comes before the file is written.
    const std::function<void()> ways[] = {[this] { screen->viewWillDisappear(true); },
                                          [this] { screen->jpgSaveButtonPressed(); }};
    for (const auto& goOn : ways) {
        save(false, 1);
        screen->doneButtonPressed();
        goOn();
        EXPECT_TRUE(waitFor([this] { return !screen->hasUnfinishedWork(); }));
        EXPECT_EQ(dismissals, 0);
        EXPECT_FALSE(screen->progressHUD()->isVisible());
    }
    EXPECT_TRUE(screen->alert()->isOpen());
    screen->alert()->dismiss();

    save(false, 1);
    screen->doneButtonPressed();
    EXPECT_TRUE(waitFor([&] { return dismissals == 1; }));
    saved(4);
}

TEST_F(SaveScreen, PicturesOfAScreenAboveAreKeptUntilTheUserHasChosen)
{
    openAndRender(folder.impossibleFolder());
    screen->delivery().chooseFolderBlock = [&](const auto& completion) {
        completion(folder.path("Pelmira"));
    };
    const auto deliver = [this] {
        int answer = 0;
        screen->delivery().saveJpgImage([] { return cutOut(); }, Qt::black,
                                        [&](bool isEncoded) { answer = isEncoded ? 1 : 2; });
        EXPECT_TRUE(waitFor([&] { return answer != 0; }));
        EXPECT_TRUE(waitFor([this] { return !screen->delivery().isAtWork(); }));
        EXPECT_EQ(answer, 1);
    };
    deliver();
    ASSERT_TRUE(screen->saveProblemAlert()->isOpen());
    deliver(); // nobody has seen the question yet
    screen->saveProblemAlert()->actionButtonPressed(0);
    saved(2);
    bool isEncoded = true;
    screen->delivery().saveJpgImage([] { return QImage(); }, Qt::black,
                                    [&](bool encoded) { isEncoded = encoded; });
    EXPECT_TRUE(waitFor([&] { return !isEncoded; }));
    EXPECT_FALSE(screen->progressHUD()->isVisible());
}

TEST_F(SaveScreen, ASharedPictureOverwritesTheOneBeforeAndMayFindNoApplication)
{
    openAndRender(folder.path());
    const QString path = screen->sharing().file().shareImagePathPNG();
    Alert& alert = *screen->alert();
    const auto share = [&] {
        screen->pngOtherButtonPressed({300, 700, 60, 50});
        return waitFor([&] { return alert.isOpen(); });
    };
    ASSERT_TRUE(share());
    EXPECT_TRUE(alert.actionButtonTitles().isEmpty()); // there is nothing to hand it to
    EXPECT_FALSE(alert.message().isEmpty());
    EXPECT_TRUE(isCutOut(QImage(path)));
    QFile(path).resize(3);

    QByteArray copied;
    std::function<void(ShareResult)> presented;
    screen->sharing().copyImageBlock = [&](const QByteArray& png) { copied = png; };
    screen->sharing().shareFileBlock = [&](const QString& shared, auto completion) {
        EXPECT_EQ(shared, path);
        presented = std::move(completion);
    };
    alert.dismiss();
    ASSERT_TRUE(share());
    EXPECT_TRUE(isCutOut(QImage(path)));
    EXPECT_EQ(alert.sourceRect(), QRectF(300, 700, 60, 50));
    alert.actionButtonPressed(0);
    presented(ShareResult::NothingToChooseFrom);
    EXPECT_TRUE(alert.isOpen() && alert.actionButtonTitles().isEmpty());
    alert.dismiss();
    ASSERT_TRUE(share());
    alert.actionButtonPressed(1);
    ASSERT_TRUE(waitFor([&] { return screen->progressHUD()->isSuccess(); }));
    EXPECT_TRUE(isCutOut(QImage::fromData(copied)));
}

TEST_F(SaveScreen, CleanEdgesChangeWhatIsShownAndSavedUntilTheyAreSwitchedOff)
{
    openAndRender(folder.path());
    EXPECT_FALSE(screen->cleanEdgesSwitch()->isSelected());
    const QImage rawPreview = screen->pngImageView()->image();
    const auto toggle = [this](bool isOn) {
        screen->handleCleanEdgesSwitchToggled(isOn);
        EXPECT_FALSE(screen->savePNGButton()->isEnabled()); // what is shown isn't it yet
        screen->pngPhotoTapped();
        EXPECT_FALSE(screen->alert()->isOpen());
    };
    const auto isRendered = [this] { return screen->savePNGButton()->isEnabled(); };
    toggle(true);
    ASSERT_TRUE(waitFor(isRendered));
    EXPECT_NE(screen->pngImageView()->image(), rawPreview);
    EXPECT_EQ(screen->pngImageView()->image(), screen->jpgImageView()->image());
    const QImage clean = screen->image();
    for (const int x : {791, 808}) // both sides, as far as it reaches
        EXPECT_EQ(clean.pixel(x, 600), cutOut().pixel(x, 600)) << x;
    EXPECT_NEAR(clean.pixelColor(799, 600).alpha(), 128, 60);
    EXPECT_NEAR(clean.pixelColor(800, 600).alpha(), 128, 60);
    save(true, 0);
    EXPECT_EQ(QImage(saved(1).first().filePath()).pixelColor(800, 600).alpha(),
              clean.pixelColor(800, 600).alpha());

    // Pressed twice while the first still runs: the last one counts.
    toggle(false);
    toggle(true);
    toggle(false);
    ASSERT_TRUE(waitFor(isRendered));
    EXPECT_EQ(screen->image(), cutOut());
    toggle(true);
    screen = nullptr; // goes while it works
    EXPECT_TRUE(PerstistenceHelper(defaults).savesCleanEdges());
    openAndRender(folder.path());
    EXPECT_TRUE(screen->cleanEdgesSwitch()->isSelected());
    EXPECT_EQ(screen->image(), clean);
}

TEST_F(SaveScreen, AsksForMoreOnlyOnceAnAnswerHasBeenToldOf)
{
    openAndRender(folder.path());
    int calls = 0;
    screen->answeredBlock = [&] {
        ++calls;
        EXPECT_FALSE(screen->alert()->isOpen() || screen->progressHUD()->isVisible());
    };
    screen->jpgSaveButtonPressed();
    screen->alert()->dismiss();
    const auto closeCard = [this] {
        screen->progressHUD()->show();
        screen->progressHUD()->dismiss();
        drainMainQueue();
    };
    closeCard();
    EXPECT_EQ(calls, 0); // nothing was answered
    save(false, 0);
    saved(1);
    screen->pngSaveButtonPressed(); // the card goes for a dialog
    drainMainQueue();
    EXPECT_EQ(calls, 0);
    screen->alert()->dismiss();
    save(true, 1);
    saved(2);
    screen->viewWillDisappear(true); // another screen is over this one
    screen->progressHUD()->dismiss();
    drainMainQueue();
    EXPECT_EQ(calls, 0);
    screen->viewDidAppear(true);
    ASSERT_TRUE(waitFor([&] { return calls == 1; }));
    closeCard();
    EXPECT_EQ(calls, 1);
}

TEST(RateMoreContainerViewTest, OffersWhatLeadsSomewhereWhereThereIsRoom)
{
    RateMoreContainerView view;
    EXPECT_TRUE(view.isHidden());
    view.setBlocks({[] {}, {}, [] {}});
    EXPECT_TRUE(view.rateButton() && !view.moreAppsButton() && view.followButton());
    view.moreAppsButtonPressed();
    view.layoutForHeight(569);
    EXPECT_FALSE(view.isHidden());
    view.layoutForHeight(568);
    view.layoutForHeight(844); // for good
    EXPECT_TRUE(view.isHidden());
}

} // namespace
} // namespace pelmira
