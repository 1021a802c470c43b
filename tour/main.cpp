#include "SamplePhoto.h"
#include "Tour.h"
#include "intake/PhotoPermissionsHelper.h"

#include <QAccessible>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

struct Scene {
    QSize windowSize;
    QString folder;
    QString photo;
    int firstPicture = 0;
    int seconds = 0;
};

/// The user's own files and settings are not for the tour to touch.
void moveHome(const QString& folder)
{
    const QByteArray home = QFile::encodeName(folder + QStringLiteral("/pelmira-tour-home"));
    for (const char* variable :
         {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_PICTURES_DIR"})
        qunsetenv(variable);
    qputenv("HOME", home);
}

void fillLibrary()
{
    const QString pictures = pelmira::PhotoPermissionsHelper::photosFolder();
    QDir().mkpath(pictures);
    for (int number = 0; number < 14; ++number)
        pelmira::samplePhoto(number).scaled(800, 600).save(
            QStringLiteral("%1/pear %2.jpg").arg(pictures).arg(number));
}

/// A process of its own each: the saved work is one living process's, one is to be killed, and the
/// next to find its work.
bool playInProcess(const char* scene, const Scene& settings, int firstPicture,
                   QProcess::ExitStatus expected)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("--size"),
         QStringLiteral("%1x%2").arg(settings.windowSize.width()).arg(settings.windowSize.height()),
         QStringLiteral("--out"), settings.folder, QStringLiteral("--scene"), QLatin1String(scene),
         QStringLiteral("--first"), QString::number(firstPicture), settings.photo});
    if (!process.waitForFinished(300000))
        return false;
    return process.exitStatus() == expected &&
           (expected == QProcess::CrashExit || process.exitCode() == EXIT_SUCCESS);
}

/// Where a scene says how many pictures there are after it.
QString countFile(const Scene& settings)
{
    return settings.folder + QStringLiteral("/pelmira-tour-home/pictures");
}

bool playAll(const Scene& settings)
{
    if (!playInProcess("whole", settings, 0, QProcess::NormalExit))
        return false;
    QFile file(countFile(settings));
    const int pictures = file.open(QIODevice::ReadOnly) ? file.readAll().toInt() : 0;
    return playInProcess("killed", settings, pictures, QProcess::CrashExit) &&
           playInProcess("resumed", settings, pictures + 1, QProcess::NormalExit);
}

bool play(const QString& scene, const Scene& settings)
{
    pelmira::AppDelegate delegate;
    pelmira::Tour tour(delegate, settings.folder, settings.firstPicture);
    if (scene == QLatin1String("killed")) {
        if (tour.beginWork(settings.photo, settings.windowSize))
            std::raise(SIGKILL);
        return false;
    }
    if (scene == QLatin1String("resumed"))
        return tour.resumeWork(settings.windowSize);
    fillLibrary();
    if (scene == QLatin1String("composing"))
        return tour.composeOnly(settings.photo, settings.windowSize);
    if (scene == QLatin1String("rest"))
        return tour.rest(settings.photo, settings.windowSize, settings.seconds);
    if (scene == QLatin1String("settings"))
        return tour.visitSettings(settings.windowSize);
    const bool played = tour.play(settings.photo, settings.windowSize);
    QFile file(countFile(settings));
    return played && file.open(QIODevice::WriteOnly) &&
           file.write(QByteArray::number(tour.pictures())) > 0;
}

} // namespace

// pelmira-tour --size WIDTHxHEIGHT --out FOLDER [photo]
int main(int argc, char** argv)
{
    pelmira::AppDelegate::prepareProcess();
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("size"), QStringLiteral("The window's size."),
                      QStringLiteral("WIDTHxHEIGHT"), QStringLiteral("390x844")});
    parser.addOption({QStringLiteral("out"), QStringLiteral("Where the screenshots go."),
                      QStringLiteral("FOLDER"), QStringLiteral("tour")});
    parser.addOption({QStringLiteral("scene"), QStringLiteral("A part of the tour."),
                      QStringLiteral("whole|killed|resumed|composing|settings|rest")});
    parser.addOption({QStringLiteral("seconds"),
                      QStringLiteral("How long the scene `rest` looks at each screen."),
                      QStringLiteral("COUNT"), QStringLiteral("2")});
    parser.addOption({QStringLiteral("first"), QStringLiteral("Pictures taken before."),
                      QStringLiteral("COUNT"), QStringLiteral("0")});
    parser.addPositionalArgument(QStringLiteral("photo"), QStringLiteral("The photo to cut out."));
    parser.addHelpOption();
    parser.process(application);

    const QStringList sides = parser.value(QStringLiteral("size")).split(QLatin1Char('x'));
    Scene settings{{sides.value(0).toInt(), sides.value(1).toInt()},
                   QDir(parser.value(QStringLiteral("out"))).absolutePath(),
                   parser.positionalArguments().value(0),
                   parser.value(QStringLiteral("first")).toInt(),
                   parser.value(QStringLiteral("seconds")).toInt()};
    if (settings.windowSize.isEmpty() || !QDir().mkpath(settings.folder))
        parser.showHelp(2);
    if (settings.photo.isEmpty()) {
        settings.photo = settings.folder + QStringLiteral("/sample.png");
        pelmira::samplePhoto(0).save(settings.photo);
    } else {
        settings.photo = QFileInfo(settings.photo).absoluteFilePath();
    }
    moveHome(settings.folder);
    const QString scene = parser.value(QStringLiteral("scene"));
    // Nothing of an earlier tour: it would be offered to go on with.
    if (scene.isEmpty() || scene == QLatin1String("rest"))
        QDir(settings.folder + QStringLiteral("/pelmira-tour-home")).removeRecursively();
    QAccessible::setActive(true); // the tour finds buttons by their accessible names
    const bool played = scene.isEmpty() ? playAll(settings) : play(scene, settings);
    return played ? EXIT_SUCCESS : EXIT_FAILURE;
}
