#include "EditorScreen.h"
#include "faults/FailingCalls.h"

#include "background_editor/composition/Composition.h"
#include "crop/CropConstraint.h"
#include "crop/TOCropViewController.h"
#include "export/SaveViewController.h"
#include "intake/PhotoLoader.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/base/Log.h"
#include "platform/gl/OffscreenGLView.h"
#include "support/DrainUntil.h"
#include "support/Images.h"
#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>
#include <string_view>
// A whole session without a window, in which calls fail: it goes on with earlier work, changes it,
// saves, composes and shares, sets a preference, and begins with a new photo. Where it isn't about
// files, the photo comes from one and is cropped, and the wand is used. Every line that the user
// would see is printed.

namespace pelmira {
namespace {

constexpr int high = 0; // resolution
constexpr std::size_t largeBlock = 65536;

void tell(const QString& line)
{
    if (!line.isEmpty())
        std::printf("told %s\n", qPrintable(line.section(QLatin1Char('\n'), 0, 0)));
}

void listen(Alert& alert)
{
    QObject::connect(&alert, &Alert::changed, [&alert] {
        if (alert.isOpen())
            tell(alert.message());
    });
}

/// The things that were posted have been done, and what they have posted.
void settle(const std::function<bool()>& isAtRest)
{
    if (!test::drainUntil(isAtRest)) {
        std::printf("failed %s\n", failing_calls_first());
        std::fflush(stdout);
        std::_Exit(3);
    }
    while (drainMainQueue()) {
    }
}

class Session {
public:
    Session(const QImage& instead, const QImage& next, bool isAboutFiles)
        : _instead(instead), _next(next), _isAboutFiles(isAboutFiles)
    {
    }
    void play()
    {
        goOn();
        _editor->setGLView(nullptr);
        _editor = {};
        const QImage photo = _isAboutFiles ? _next : takenIn();
        if (photo.isNull())
            return;
        _work.clearSavedWork();
        _work.saveWorkingImage(photo);
        edit(photo);
        if (!_editor.engine())
            return;
        change();
        _editor->applicationDidEnterBackground();
        _work.finishSaving();
        settle([this] { return isKept(); });
    }

private:
    bool isKept() const { return !_work.isSavingMask() && !_work.isSavingWorkingImage(); }

    void goOn()
    {
        if (_work.isHeldElsewhere())
            tell(QStringLiteral("homescreen.error.workIsElsewhere"));
        const bool isOffered = _work.hasSavedWork() && !_work.savedWorkThumbnail().isNull();
        if (_work.lacksMemory())
            tell(QStringLiteral("homescreen.error.workMemory"));
        QImage photo = isOffered ? _work.savedWorkImage() : QImage();
        if (isOffered && photo.isNull())
            tell(QStringLiteral("homescreen.error.workMemory"));
        if (photo.isNull()) { // another photo, then
            photo = _instead;
            _work.clearSavedWork();
            _work.saveWorkingImage(photo);
        }
        edit(photo);
        if (!_editor.engine())
            return;
        if (!_isAboutFiles)
            tapAndUndo();
        change();
        save();
    }

    /// Read from its file and cropped, or null.
    QImage takenIn()
    {
        PhotoLoader loader;
        QImage photo;
        loader.loadFile(QDir::homePath() + QStringLiteral("/photo.png"),
                        [&](const QImage& loaded) { photo = loaded; });
        settle([&] { return !loader.isBusy(); });
        tell(loader.message());
        const auto tool = TOCropViewController::initWithImage(photo);
        if (!tool)
            return {};
        listen(*tool->alert());
        QImage cropped;
        tool->didCropToImage = [&](const QImage& result, const QRect&) { cropped = result; };
        tool->setViewSize({390, 844});
        tool->viewDidLoad();
        tool->viewDidLayoutSubviews();
        tool->viewDidAppear(true);
        tool->setAspectRatioPreset(cropPresetSquare, false);
        tool->doneButtonTapped();
        settle([&] { return !cropped.isNull() || tool->alert()->isOpen(); });
        return cropped;
    }

    void edit(const QImage& photo)
    {
        _editor = EditorScreen(_defaults, [] { return GLContext::surfaceless(); });
        listen(_editor.alert());
        _editor.setResumeWorkHelper(&_work);
        _editor.show(photo, _view);
    }

    void tapAndUndo()
    {
        const auto isIdle = [this] {
            return _editor.engine() && !_editor.engine()->canvas.isBusy();
        };
        const TouchEvent finger{{{0, {195, 422}}}};
        _editor.touches().touchesBegan(finger);
        _view.displayIfNeeded();
        _editor.touches().touchesEnded(finger);
        settle(isIdle);
        _editor.press("undo");
        settle(isIdle);
        _view.displayIfNeeded();
    }

    void change()
    {
        _editor.press("invertMask");
        settle([this] { return _editor.engine()->canvas.readySurface() != nullptr; });
        _editor->applicationWillResignActive();
        settle([this] { return isKept(); });
    }

    void save()
    {
        std::shared_ptr<SaveViewController> screen = savingScreen();
        if (screen->alert()->isOpen()) { // no picture: the user leaves, and tries once more
            screen->alert()->dismiss();
            screen = savingScreen();
        }
        save(*screen, [&] { screen->pngSaveButtonPressed(); });
        screen->handleUseHeifSwitchToggled(false);
        save(*screen, [&] { screen->jpgSaveButtonPressed(); });
        compose(*screen);
        screen->sharing().shareFileBlock = [](const QString&, auto) {};
        if (screen->savePNGButton()->isEnabled()) {
            screen->pngOtherButtonPressed({});
            settle([&] { return screen->alert()->isOpen(); });
            screen->alert()->dismiss();
        }
        if (_isAboutFiles)
            return;
        screen->handleCleanEdgesSwitchToggled(true);
        settle([&] { return screen->savePNGButton()->isEnabled() || screen->alert()->isOpen(); });
        screen->alert()->dismiss();
    }

    std::shared_ptr<SaveViewController> savingScreen()
    {
        std::shared_ptr<SaveViewController> screen;
        _editor.presentSaveViewBlock() = [&](const auto& shown) { screen = shown; };
        _editor.press("save");
        if (!screen)
            std::_Exit(4);
        listen(*screen->alert());
        listen(*screen->saveProblemAlert());
        screen->viewDidLoad();
        screen->setViewSize({390, 844});
        screen->viewDidAppear(true);
        settle([&] { return screen->savePNGButton()->isEnabled() || screen->alert()->isOpen(); });
        return screen;
    }

    static void save(SaveViewController& screen, const std::function<void()>& press)
    {
        for (int i = 0; i < 2; ++i) {
            press();
            if (!screen.alert()->isOpen()) // there is no picture
                return;
            screen.alert()->actionButtonPressed(high);
            finish(screen);
            if (!screen.alert()->isOpen())
                return;
            screen.alert()->dismiss(); // of what couldn't be encoded
        }
    }

    static void compose(SaveViewController& screen)
    {
        Composition composition;
        composition.aspectRatio = 1.5;
        composition.canvasWidth = 300;
        composition.background = QColor(Qt::red);
        composition.object = {screen.image(), {150, 100}, {200, 150}, 0.5};
        composition.shadow = ContextShadow{{5, 5}, 10, Qt::black};
        for (bool isEncoded = false, isFirst = true; !isEncoded; isFirst = false) {
            screen.delivery().saveJpgImage([composition] { return renderComposition(composition); },
                                           Qt::red, [&](bool done) { isEncoded = done; });
            finish(screen);
            if (!isEncoded)
                tell(QStringLiteral("savescreen.error.encode"));
            if (!isFirst)
                return;
        }
    }

    // What couldn't be written is tried once more, and then given up.
    static void finish(SaveViewController& screen)
    {
        Alert& problem = *screen.saveProblemAlert();
        const auto isAtRest = [&] { return !screen.hasUnfinishedWork(); };
        settle(isAtRest);
        if (problem.isOpen()) {
            problem.actionButtonPressed(0);
            settle(isAtRest);
        }
        problem.dismiss();
    }

    UserDefaults _defaults{QDir::homePath() + QStringLiteral("/preferences.json")};
    ResumeWorkHelper _work{QDir::homePath() + QStringLiteral("/data"), _defaults};
    OffscreenGLView _view{{390, 844}, 1.0};
    EditorScreen _editor;
    const QImage _instead; ///< of work that can't be gone on with
    const QImage _next;
    const bool _isAboutFiles;
};

void begin(std::string_view kind, int nth, int error, bool andAllAfter)
{
#ifndef SANITIZED
    if (kind == "blocks")
        return failing_blocks_begin(largeBlock, nth, andAllAfter);
#endif
    if (kind == "gl")
        failing_gl_begin(nth, andAllAfter);
    else
        failing_files_begin(qPrintable(QDir::homePath()), nth, error, andAllAfter);
}

} // namespace
} // namespace pelmira

// HOME is the folder. files|blocks|gl WIDTH HEIGHT NTH ERROR once|on
int main(int argc, char** argv)
{
    using namespace pelmira;
    QGuiApplication application(argc, argv);
    if (argc != 7)
        return 2;
    const std::string_view kind = argv[1];
    const QSize size(std::atoi(argv[2]), std::atoi(argv[3]));
    const QImage instead = test::plainImage(size, Qt::green);
    const QImage next = test::plainImage(size, Qt::blue);
    setLogSink([](const std::string& line) { std::printf("log %s\n", line.c_str()); });
    begin(kind, std::atoi(argv[4]), std::atoi(argv[5]), argv[6] == std::string_view("on"));
    {
        Session session(instead, next, kind == "files");
        session.play();
        std::printf("calls %d\n", failing_calls_end());
        std::printf("failed %s\n", failing_calls_first());
    }
    return 0;
}
