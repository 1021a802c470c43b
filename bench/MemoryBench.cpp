#include "AppVisitor.h"
#include "Bench.h"
#include "Scenes.h"
#include "background_editor/screen/EditBackgroundVC.h"
#include "crop/TOCropViewController.h"
#include "export/SaveViewController.h"
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
#include <functional>

// What memory the application takes at its peak, step by step, while a photo is cut out that is
// brought to 16 megapixels: 30 levels of undo, the cut-out saved and composed. The kernel keeps the
// peak and lets it be set back. With a software renderer the textures are this process's as well.

namespace pelmira::bench {
namespace {

constexpr QSize photoSize(5000, 5000); // more than is worked on
constexpr QSize windowSize(390, 844);
constexpr int levels = 30;
constexpr int rest = 1500; // milliseconds: what follows an act later belongs to its step

/// Megabytes of a line of /proc/self/status.
double statusMegabytes(const char* field)
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith(field))
            return line.mid(qstrlen(field)).simplified().split(' ').first().toDouble() / 1024;
    return 0;
}

/// From now on the peak is counted anew.
void setPeakBack()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (!file.open(QIODevice::WriteOnly) || file.write("5") != 1)
        std::fputs("the peak of each step can't be told: it holds for all before it\n", stderr);
}

class User final : private AppVisitor {
public:
    explicit User(AppDelegate& application) : AppVisitor(application, {}, 0) {}

    bool useAll(const QString& photo);
    double peak() const { return _peak; }

private:
    void step(const char* name, const std::function<void()>& act);
    void open(const QString& photo);
    void addLevels();
    void compose();

    double _peak = 0; // megabytes
};

void User::step(const char* name, const std::function<void()>& act)
{
    if (!succeeded())
        return; // what comes after would measure something else
    setPeakBack();
    act();
    QTest::qWait(rest);
    const ResumeWorkHelper& work = ResumeWorkHelper::shared();
    waitFor([&] { return !work.isSavingMask() && !work.isSavingWorkingImage(); },
            "the work is written");
    const double peak = statusMegabytes("VmHWM:");
    std::printf("%-24s peak %4.0f MB, then %4.0f: %4.0f of memory, %3.0f of files\n", name, peak,
                statusMegabytes("VmRSS:"), statusMegabytes("RssAnon:"),
                statusMegabytes("RssFile:"));
    std::fflush(stdout);
    _peak = std::max(_peak, peak);
}

void User::open(const QString& photo)
{
    _application.homeScreen().openPhoto(photo);
    waitForScreen<TOCropViewController>("the crop tool opens");
}

void User::addLevels()
{
    for (int level = 0; level < levels; level += 2) {
        const double y = 0.05 + 0.9 * level / levels;
        tapItem("Magic wand");
        const QPointF point = onPhoto(0.1 + 0.8 * (level % 4) / 4, y);
        press(point);
        move(point + QPointF(4, 9));
        release(point + QPointF(4, 9));
        waitForFill();
        tapItem(level % 4 == 0 ? "Erase" : "Restore");
        press(onPhoto(0.1, y));
        drag({onPhoto(0.1, y), onPhoto(0.9, 1 - y)});
        release(onPhoto(0.9, 1 - y));
        QTest::qWait(100);
    }
}

void User::compose()
{
    step("background editor", [this] { openBackgroundEditor(); });
    step("shadow", [this] {
        tapItem("SHADOW");
        settle();
        tapAt("Horizontal", 0.75, 0.5);
        tapAt("Blur", 0.4, 0.5);
    });
    step("composed", [this] {
        tapItem("Save");
        waitFor([this] { return saveView() && saveView()->progressHUD()->isSuccess(); },
                "the composition is saved");
    });
}

bool User::useAll(const QString& photo)
{
    step("home screen", [this] { launch(windowSize); });
    step("photo opened", [&] { open(photo); });
    step("in the editor", [this] {
        tapItem("Done");
        waitForEditor();
    });
    step("30 levels", [this] { addLevels(); });
    step("save screen", [this] {
        tapItem("Save the cut-out");
        waitFor([this] { return saveView() && saveView()->savePNGButton()->isEnabled(); },
                "the save screen shows the cut-out");
    });
    step("saved as PNG", [this] { saveAs("Save transparent", "High resolution"); });
    compose();
    step("back in the editor", [this] {
        tapItem("Done");
        waitFor([this] { return editor() != nullptr; }, "the editor is back");
    });
    return succeeded();
}

bool writePhoto(const QString& path)
{
    const std::vector<Scene> scenes = photoScenes(1.2);
    const Scene& scene = scenes[1];
    return QImage(reinterpret_cast<const uchar*>(scene.pixels.data()), int(scene.width),
                  int(scene.height), QImage::Format_RGB32)
        .scaled(photoSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .save(path, "jpg", 90);
}

/// In a process of its own, which hasn't made the photo.
int playInProcess()
{
    QTemporaryDir home;
    for (const char* variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_PICTURES_DIR"})
        qunsetenv(variable);
    qputenv("HOME", QFile::encodeName(home.path()));
    QDir(home.path()).mkdir(QStringLiteral("Pictures"));
    const QString photo = home.filePath(QStringLiteral("photo.jpg"));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    if (!writePhoto(photo))
        return EXIT_FAILURE;
    process.start(QCoreApplication::applicationFilePath(), {photo});
    process.waitForFinished(-1);
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : EXIT_FAILURE;
}

int play(const QString& photo)
{
    QAccessible::setActive(true); // buttons are found by their accessible names
    AppDelegate application;
    User user(application);
    const bool played = user.useAll(photo);
    printFigure("peak_mb_16mp_session", user.peak());
    return played ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace
} // namespace pelmira::bench

int main(int argc, char** argv)
{
    if (argc >= 2)
        pelmira::AppDelegate::prepareProcess();
    const QGuiApplication application(argc, argv);
    return argc < 2 ? pelmira::bench::playInProcess()
                    : pelmira::bench::play(QString::fromLocal8Bit(argv[1]));
}
