#include "Tour.h"

#include "background_editor/colors/ChangeColorVC.h"
#include "background_editor/screen/EditBackgroundVC.h"
#include "crop/TOCropViewController.h"
#include "export/SaveViewController.h"
#include "help/ZKLHelpController.h"
#include "intake/ZKLPhotoPicker.h"
#include "platform/text/LocalizedStrings.h"
#include "promotion/ZKLCrossPromoteVC.h"
#include "settings/EventLogVC.h"
#include "settings/SettingsVC.h"

#include <QEventLoop>
#include <QMap>
#include <QProcess>
#include <QTest>

#include <cstdio>
#include <optional>

namespace pelmira {
namespace {

constexpr int looksAtMost = 6;
constexpr int secondsToRest = 3; // what a touch has set off is over by then

/// Prints how often each thread of the process that started it has run, before and after.
const char* const script = R"(
count() { for t in /proc/$PPID/task/*; do
    awk -v id="${t##*/}" '/^Name/ {name=$2} /ctxt/ {sum+=$2} END {print id, name, sum}' $t/status
done; }
sleep $0; before=$(count); sleep $1; after=$(count)
echo "$before"; echo; echo "$after")";

QMap<QByteArray, int> countsIn(const QByteArray& lines)
{
    QMap<QByteArray, int> counts;
    for (const QByteArray& line : lines.split('\n'))
        if (const qsizetype space = line.lastIndexOf(' '); space > 0)
            counts[line.left(space)] = line.mid(space + 1).toInt();
    return counts;
}

/// The threads that have run for so many seconds, and how often; the toolkit's and the GL driver's
/// are among them. Nothing if they can't be counted.
std::optional<QByteArray> threadsRunWithin(int seconds)
{
    QProcess counter;
    QEventLoop loop;
    QObject::connect(&counter, &QProcess::finished, &loop, &QEventLoop::quit);
    counter.start(QStringLiteral("sh"), {QStringLiteral("-c"), QLatin1String(script),
                                         QString::number(secondsToRest), QString::number(seconds)});
    loop.exec();
    const QByteArray output = counter.readAllStandardOutput();
    const qsizetype middle = output.indexOf("\n\n");
    const QMap<QByteArray, int> before = countsIn(output.left(middle));
    if (middle <= 0 || before.isEmpty())
        return std::nullopt;
    const QMap<QByteArray, int> after = countsIn(output.mid(middle));
    QByteArray run;
    for (auto thread = after.begin(); thread != after.end(); ++thread)
        if (const int times = thread.value() - before.value(thread.key()); times != 0)
            run += ' ' + thread.key() + ": " + QByteArray::number(times);
    return run;
}

} // namespace

// Looked at again: the toolkit lets go of a connection two minutes after its last use, and makes its
// cache of fonts smaller every ten seconds until that is small. What goes on for ever is no rest.
void Tour::expectRest(const char* screen)
{
    if (!succeeded())
        return;
    std::optional<QByteArray> run = threadsRunWithin(_idleSeconds);
    for (int look = 1; look < looksAtMost && run && !run->isEmpty(); ++look)
        run = threadsRunWithin(_idleSeconds);
    expect(run.has_value(), "the threads can be counted");
    if (!run || run->isEmpty())
        return;
    std::fprintf(stderr, "tour: on %s these threads have run:%s\n", screen, run->constData());
    expect(false, "nothing wakes up");
}

bool Tour::rest(const QString& photoPath, QSize windowSize, int seconds)
{
    _idleSeconds = seconds;
    launch(windowSize);
    expectRest("the home screen");
    restInSettings();
    restAtIntake(photoPath);
    waitForEditor();
    restInEditor();
    restInBackgroundEditor();
    return succeeded();
}

void Tour::restInSettings()
{
    tapText("settings.title");
    waitForScreen<SettingsVC>("the settings open");
    expectRest("the settings");
    tapText("settings.row.eventLog");
    waitForScreen<EventLogVC>("the log is shown");
    expectRest("the event log");
    tapText("generic.done");
    waitForScreen<SettingsVC>("the log is left");
    showMoreApps();
    expectRest("the other applications");
    tapText("moreapps.close");
    waitForScreen<SettingsVC>("other applications are left");
    tapText("generic.done");
    waitForScreen<NewHomeScreenVC>("the settings are left");
}

void Tour::restAtIntake(const QString& photoPath)
{
    tapItem("Take a photo");
    waitForScreen<CameraPicker>("the camera opens");
    expectRest("the camera");
    tapItem("Cancel");
    waitForScreen<NewHomeScreenVC>("the camera is left");
    tapItem("Choose a photo");
    if (auto* picker = waitForScreen<ZKLPhotoPicker>("the library opens"))
        waitFor([=] { return picker->photos()->count() > 0; }, "the library has photos");
    expectRest("the library");
    tapItem("Cancel");
    waitForScreen<NewHomeScreenVC>("the library is left");
    _application.homeScreen().openPhoto(photoPath);
    waitForScreen<TOCropViewController>("the crop tool opens");
    expectRest("the crop tool");
    tapItem("Done");
}

void Tour::restInEditor()
{
    if (!succeeded())
        return;
    expectRest("the editor");
    tap(onPhoto(0.06, 0.08));
    waitForFill();
    expectRest("the editor after a fill");
    tapItem("Erase");
    tapItem("Brush settings");
    expectRest("the brush settings");
    tap(onPhoto(0.5, 0.5));
    tapItem("Help");
    waitForScreen<ZKLHelpController>("the help page is shown");
    expectRest("the help page");
    tapItem("Done");
    waitFor([this] { return editor() != nullptr; }, "help is closed");
    settle();
    openSaveScreen();
    settle();
    expectRest("the save screen");
    saveAs("Save transparent", "Low resolution");
    waitFor([this] { return !saveView()->progressHUD()->isVisible(); }, "its success is told");
    expectRest("the save screen with a saved picture");
    tapItem("Change background colour");
    waitForScreen<ChangeColorVC>("the colour screen opens");
    expectRest("the colour screen");
    tapItem("Done");
    waitFor([this] { return saveView() != nullptr; }, "the colour is taken");
}

void Tour::restInBackgroundEditor()
{
    if (!succeeded())
        return;
    openBackgroundEditor();
    expectRest("the background editor");
    for (const char* panel : {"CANVAS", "COLOUR", "PATTERNS", "SHADOW"}) {
        tapItem(panel);
        settle();
        expectRest(panel);
    }
    tap(onCanvas(0.5, 0.5));
    expectRest("a chosen object");
    tapItem("COLOUR");
    settle();
    tapItem("Mix the colour");
    settle();
    expectRest("the mixer");
    tapItem("Done");
    settle();
    pickBackgroundPhoto();
    expectRest("PHOTO");
}

} // namespace pelmira
