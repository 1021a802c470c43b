#include "faults/FailingCalls.h"

#include "export/SaveViewController.h"
#include "mask_editor/screen/ViewController.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/base/Log.h"
#include "platform/gl/OffscreenGLView.h"
#include "support/DrainUntil.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

// A whole session without a window, in a home whose files fail: it goes on with earlier work,
// changes it, saves, composes and shares, sets a preference, and begins with a new photo. Every
// line that the user would see is printed.

namespace pelmira {
namespace {

constexpr int high = 0; // resolution

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
    if (!test::drainUntil(isAtRest))
        std::_Exit(3);
    while (drainMainQueue()) {
    }
}

class Session {
public:
    Session() : _defaults(QDir::homePath() + QStringLiteral("/preferences.json")) {}

    void play()
    {
        goOn();
        _editor.reset();
        QImage photo(200, 160, QImage::Format_ARGB32_Premultiplied);
        photo.fill(Qt::blue);
        _work.clearSavedWork();
        _work.saveWorkingImage(photo);
        edit(photo);
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
        QImage photo = isOffered ? _work.savedWorkImage() : QImage();
        if (photo.isNull()) { // another photo, then
            photo = QImage(200, 160, QImage::Format_ARGB32_Premultiplied);
            photo.fill(Qt::green);
            _work.clearSavedWork();
            _work.saveWorkingImage(photo);
        }
        edit(photo);
        change();
        save();
    }

    void edit(const QImage& photo)
    {
        _editor =
            std::make_shared<ViewController>(_defaults, [] { return GLContext::surfaceless(); });
        listen(*_editor->alert());
        _editor->setResumeWorkHelper(&_work);
        _editor->setImage(photo);
        _editor->setGLView(&_view);
        _editor->viewDidLoad();
        _editor->setViewSize({390, 844});
        _editor->viewWillAppear(true);
        _view.displayIfNeeded();
        _editor->viewDidAppear(true);
    }

    void change()
    {
        _editor->invertMaskButtonPressed();
        settle([this] { return _editor->engine()->canvas.readySurface() != nullptr; });
        _editor->applicationWillResignActive();
        settle([this] { return isKept(); });
    }

    void save()
    {
        std::shared_ptr<SaveViewController> screen;
        _editor->presentSaveViewBlock = [&](const auto& shown) { screen = shown; };
        _editor->saveButtonPressed();
        if (!screen)
            std::_Exit(4);
        listen(*screen->alert());
        listen(*screen->saveProblemAlert());
        screen->viewDidLoad();
        screen->setViewSize({390, 844});
        screen->viewDidAppear(true);
        settle([&] { return screen->savePNGButton()->isEnabled(); });
        screen->pngSaveButtonPressed();
        screen->alert()->actionButtonPressed(high);
        finish(*screen);
        screen->handleUseHeifSwitchToggled(false);
        screen->jpgSaveButtonPressed();
        screen->alert()->actionButtonPressed(high);
        finish(*screen);
        screen->delivery().saveJpgImage([image = screen->image()] { return image; }, Qt::red, {});
        finish(*screen);
        screen->sharing().shareFileBlock = [](const QString&, auto) {};
        screen->pngOtherButtonPressed({});
        settle([&] { return screen->alert()->isOpen(); });
        screen->alert()->dismiss();
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

    UserDefaults _defaults;
    ResumeWorkHelper _work{QDir::homePath() + QStringLiteral("/data"), _defaults};
    OffscreenGLView _view{{390, 844}, 1.0};
    std::shared_ptr<ViewController> _editor;
};

} // namespace
} // namespace pelmira

// HOME is the folder. NTH ERROR once|on
int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    if (argc != 4)
        return 2;
    pelmira::setLogSink([](const std::string&) {});
    failing_calls_begin(qPrintable(QDir::homePath()), std::atoi(argv[1]), std::atoi(argv[2]),
                        argv[3] == std::string_view("on"));
    {
        pelmira::Session session;
        session.play();
        std::printf("calls %d\n", failing_calls_end());
        std::printf("failed %s\n", failing_calls_first());
    }
    return 0;
}
