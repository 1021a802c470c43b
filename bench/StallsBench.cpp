#include "AppVisitor.h"
#include "Bench.h"
#include "MainThreadMeter.h"
#include "Scenes.h"
#include "background_editor/screen/EditBackgroundVC.h"
#include "crop/TOCropViewController.h"
#include "export/SaveViewController.h"
#include "intake/PhotoPermissionsHelper.h"
#include "intake/ZKLPhotoPicker.h"
#include "persistence/resume/ResumeWorkHelper.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <utility>

// How long the main thread is away from its event loop while the application is used, from the
// library to a composition, with a photo of 20 megapixels. With a software renderer much of what a
// GPU would do is the main thread's too, and counts.

namespace pelmira::bench {
namespace {

constexpr int libraryPhotos = 500;
constexpr QSize libraryPhoto(4000, 3000);
constexpr QSize largePhoto(5472, 3648);
constexpr QSize windowSize(390, 844);
constexpr int rest = 1500; // milliseconds: what follows an act later belongs to its step
const char* const largeName = "twenty.jpg";

class User final : private AppVisitor {
public:
    User(AppDelegate& application, MainThreadMeter& meter)
        : AppVisitor(application, {}, 0), _meter(meter)
    {
    }

    bool useAll();
    bool goOn();
    double longest() const { return _longest; }
    double longestAgain() const { return _again; }

private:
    void step(const char* name, const std::function<void()>& act);
    void useOnce();
    void leave();
    void flick(QPointF from, QPointF to);
    void tapLarge();
    void scrollLibrary();
    void cropFreely();
    void paint(const char* tool, double y);
    void tapWand(double x, double y);
    void edit();
    void save();
    void compose();

    MainThreadMeter& _meter;
    double _longest = 0;
    double _again = 0; // of what was done before in this process
};

void User::step(const char* name, const std::function<void()>& act)
{
    if (!succeeded())
        return; // what comes after would measure something else
    _meter.takeLongest();
    act();
    QTest::qWait(rest);
    const ResumeWorkHelper& work = ResumeWorkHelper::shared();
    waitFor([&] { return !work.isSavingMask() && !work.isSavingWorkingImage(); },
            "the work is written");
    const auto longest = _meter.takeLongest();
    const auto& worst = longest.front();
    std::printf("%-28s %6.1f ms  then", name, worst.milliseconds);
    for (std::size_t i = 1; i < longest.size(); ++i)
        std::printf(" %5.1f", longest[i].milliseconds);
    std::printf("   %.1f of it: %s\n", worst.heaviestMilliseconds, qPrintable(worst.heaviest));
    std::fflush(stdout);
    _longest = std::max(_longest, worst.milliseconds);
    _again = std::max(_again, worst.milliseconds);
}

bool User::useAll()
{
    launch(windowSize); // which the benchmark of the start measures
    std::puts("For the first time, shaders are compiled:");
    useOnce();
    step("left", [this] { leave(); });
    // What comes twice is the application's own, not the renderer's getting ready.
    std::puts("Again:");
    _again = 0;
    useOnce();
    return succeeded();
}

void User::useOnce()
{
    step("library opens", [this] {
        tapItem("Choose a photo");
        if (auto* picker = waitForScreen<ZKLPhotoPicker>("the library opens"))
            waitFor([=] { return picker->photos()->count() > libraryPhotos; },
                    "the library has its photos");
    });
    step("library scrolled", [this] { scrollLibrary(); });
    step("20 megapixels opened", [this] {
        tapLarge();
        waitForScreen<TOCropViewController>("the crop tool opens");
    });
    step("cropped", [this] { cropFreely(); });
    step("Done to the editor", [this] {
        tapItem("Done");
        waitForEditor();
    });
    edit();
    save();
    compose();
    step("back in the editor", [this] {
        tapItem("Done");
        waitFor([this] { return editor() != nullptr; }, "the editor is back");
    });
}

bool User::goOn()
{
    std::puts("After the next start:");
    step("work offered", [this] {
        launch(windowSize);
        waitFor([this] { return _application.homeScreen().resumeView() != nullptr; },
                "the work is offered");
    });
    step("work resumed", [this] {
        tapItem("Yes");
        waitForEditor();
    });
    step("wand on resumed work", [this] { tapWand(0.08, 0.92); });
    return succeeded();
}

void User::leave()
{
    tapItem("Start over");
    settle();
    tapItem("Yes");
    waitForScreen<ZKLPhotoPicker>("the library is back");
    tapItem("Cancel");
    waitForScreen<NewHomeScreenVC>("the library is left");
}

void User::flick(QPointF from, QPointF to)
{
    press(from);
    drag({from, to});
    release(to);
    QTest::qWait(400);
}

void User::tapLarge()
{
    tapItem(largeName);
}

void User::scrollLibrary()
{
    const QPointF low(windowSize.width() / 2.0, windowSize.height() - 90);
    const QPointF high(low.x(), 140);
    for (int i = 0; i < 30; ++i)
        flick(low, high);
    for (int i = 0; i < 60 && !isShown(largeName); ++i)
        flick(high, low);
    settle();
}

void User::cropFreely()
{
    const auto* tool = topScreen<TOCropViewController>();
    const QPointF corner = tool->cropBoxFrame().bottomRight();
    flick(corner, corner - QPointF(20, 14));
    QTest::qWait(1200); // the box goes back to the middle
    const QPointF middle = tool->cropBoxFrame().center();
    flick(middle, middle + QPointF(8, 5));
}

void User::paint(const char* tool, double y)
{
    tapItem(tool);
    press(onPhoto(0.2, y));
    drag({onPhoto(0.2, y), onPhoto(0.5, y + 0.1), onPhoto(0.8, y)});
    release(onPhoto(0.8, y));
}

void User::tapWand(double x, double y)
{
    tapItem("Magic wand");
    const QPointF point = onPhoto(x, y);
    press(point);
    move(point + QPointF(4, 9));
    QTest::qWait(200);
    release(point + QPointF(4, 9));
    waitForFill();
}

void User::edit()
{
    step("wand", [this] { tapWand(0.06, 0.08); });
    step("dial", [this] {
        const QPointF middle = dial();
        press(middle);
        drag({middle, middle - QPointF(60, 0), middle + QPointF(40, 0)});
        release(middle + QPointF(40, 0));
        waitForFill();
    });
    step("strokes", [this] {
        paint("Erase", 0.4);
        paint("Restore", 0.45);
    });
    step("undo", [this] {
        tapItem("Undo");
        tapItem("Undo");
        tapItem("Undo");
    });
    step("invert", [this] { tapItem("Invert"); });
    step("wand after inversion", [this] { tapWand(0.5, 0.5); });
    step("invert, undo at once", [this] {
        tapItem("Invert");
        tapItem("Undo");
    });
    step("removed shown, backgrounds", [this] {
        tapItem("Show what was removed");
        tapItem("Next background");
        tapItem("Next background");
        tapItem("Show what was removed");
    });
}

void User::save()
{
    step("save screen", [this] {
        tapItem("Save the cut-out");
        waitFor([this] { return saveView() && saveView()->savePNGButton()->isEnabled(); },
                "the save screen shows the cut-out");
    });
    step("clean edges", [this] {
        tapItem("Clean edges");
        waitFor([this] { return saveView()->savePNGButton()->isEnabled(); }, "the edges are clean");
    });
    step("saved as PNG", [this] { saveAs("Save transparent", "High resolution"); });
    step("saved with background", [this] { saveAs("Save with background", "High resolution"); });
    step("shared", [this] {
        tapItem("Transparent picture to another app");
        waitFor([this] { return saveView()->alert()->isOpen(); }, "the share sheet opens");
        saveView()->alert()->dismiss();
    });
}

void User::compose()
{
    step("background editor", [this] { openBackgroundEditor(); });
    step("canvas panel", [this] {
        tapItem("CANVAS");
        settle();
        tapItem("4:5");
    });
    step("object moved and turned", [this] {
        tap(onCanvas(0.5, 0.5));
        flick(onCanvas(0.5, 0.5), onCanvas(0.6, 0.4));
        const QPointF a = onCanvas(0.35, 0.5);
        const QPointF b = onCanvas(0.65, 0.5);
        press(a, 0);
        press(b, 1);
        moveBoth(a, onCanvas(0.4, 0.3), b, onCanvas(0.6, 0.62));
        releaseBoth(onCanvas(0.4, 0.3), onCanvas(0.6, 0.62));
    });
    step("colour panel, mixer", [this] {
        tapItem("COLOUR");
        settle();
        tapAt("Colour strip", 0.62, 0.5);
        tapAt("Hue and lightness", 0.55, 0.3);
        tapItem("Mix the colour");
        settle();
        tapAt("Red", 0.8, 0.5);
        tapItem("Done");
    });
    step("pattern panel", [this] {
        tapItem("PATTERNS");
        settle();
        tapItem("Pattern 3");
    });
    step("shadow panel", [this] {
        tapItem("SHADOW");
        settle();
        tapAt("Horizontal", 0.75, 0.5);
        tapAt("Vertical", 0.85, 0.5);
        tapAt("Blur", 0.4, 0.5);
    });
    step("photo panel, picked", [this] {
        tapItem("PHOTO");
        waitForScreen<ZKLPhotoPicker>("the library opens for the background");
        waitFor([this] { return isShown(largeName); }, "the library shows its photos");
        tapLarge();
        waitFor([this] { return backgroundEditor() != nullptr; }, "the photo is picked");
    });
    step("photo blurred", [this] { tapAt("Blur", 0.6, 0.5); });
    step("photo cropped", [this] {
        tapItem("Crop");
        waitForScreen<TOCropViewController>("the background's photo is cropped");
        tapItem("Square, Instagram");
        settle();
        tapItem("Done");
        waitFor([this] { return backgroundEditor() != nullptr; }, "the crop is taken");
    });
    step("composed", [this] {
        tapItem("Save");
        waitFor([this] { return saveView() && saveView()->progressHUD()->isSuccess(); },
                "the composition is saved");
    });
}

/// Files of one content are one file with many names: the library reads each anew all the same.
bool fillLibrary()
{
    const QString folder = PhotoPermissionsHelper::photosFolder();
    if (!QDir().mkpath(folder))
        return false;
    std::vector<QString> files;
    const auto write = [&](const Scene& scene, QSize size, const QString& name) {
        const QImage image(reinterpret_cast<const uchar*>(scene.pixels.data()), int(scene.width),
                           int(scene.height), QImage::Format_RGB32);
        files.push_back(folder + QLatin1Char('/') + name);
        return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .save(files.back(), "jpg", 90);
    };
    const std::vector<Scene> scenes = photoScenes(1.2);
    for (const Scene& scene : scenes)
        if (!write(scene, libraryPhoto, QString::fromStdString(scene.name + ".jpg")))
            return false;
    std::error_code error;
    for (std::size_t i = scenes.size(); i < libraryPhotos && !error; ++i)
        std::filesystem::create_hard_link(
            files[i % scenes.size()].toStdString(),
            QStringLiteral("%1/photo %2.jpg").arg(folder).arg(i).toStdString(), error);
    QTest::qWait(50); // the large one is the newest, and so the first
    return !error && write(scenes[1], largePhoto, QLatin1String(largeName));
}

struct Figures {
    double longest = 0;
    double again = 0;
};

bool playInProcess(const char* part, Figures& figures)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(part)});
    while (process.waitForReadyRead(120000) || process.canReadLine())
        while (process.canReadLine()) {
            const QByteArray line = process.readLine();
            if (line.startsWith("longest "))
                figures.longest = std::max(figures.longest, line.mid(8).toDouble());
            else if (line.startsWith("again "))
                figures.again = line.mid(6).toDouble();
            else
                std::fputs(line.constData(), stdout);
            std::fflush(stdout);
        }
    process.waitForFinished(); // false if it has already
    return process.state() == QProcess::NotRunning &&
           process.exitStatus() == QProcess::NormalExit && process.exitCode() == EXIT_SUCCESS;
}

/// A process for using all, and one that goes on with what the first has left.
int playBoth()
{
    QTemporaryDir home;
    for (const char* variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_PICTURES_DIR"})
        qunsetenv(variable);
    // What the driver has compiled once stays the user's: a first run is slower than all others.
    if (!qEnvironmentVariableIsSet("MESA_SHADER_CACHE_DIR"))
        qputenv("MESA_SHADER_CACHE_DIR",
                QFile::encodeName(QDir::homePath() + QStringLiteral("/.cache")));
    qputenv("HOME", QFile::encodeName(home.path()));
    Figures figures;
    const bool played =
        fillLibrary() && playInProcess("all", figures) && playInProcess("resumed", figures);
    printFigure("main_thread_longest_again_ms", figures.again);
    printFigure("main_thread_longest_ms", figures.longest);
    return played ? EXIT_SUCCESS : EXIT_FAILURE;
}

int play(MainThreadMeter& meter, const QString& part)
{
    QAccessible::setActive(true); // buttons are found by their accessible names
    AppDelegate application;
    User user(application, meter);
    const bool isResumed = part == QLatin1String("resumed");
    const bool played = isResumed ? user.goOn() : user.useAll();
    if (!isResumed)
        std::printf("again %.3f\n", user.longestAgain());
    std::printf("longest %.3f\n", user.longest());
    return played ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace pelmira::bench

int main(int argc, char** argv)
{
    if (argc < 2) {
        const QGuiApplication application(argc, argv);
        return pelmira::bench::playBoth();
    }
    pelmira::AppDelegate::prepareProcess();
    pelmira::bench::MainThreadMeter application(argc, argv);
    return pelmira::bench::play(application, QString::fromLocal8Bit(argv[1]));
}
