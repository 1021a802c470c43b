#include "SamplePhoto.h"
#include "Tour.h"

#include <QAccessible>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <cstdlib>

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
    parser.addPositionalArgument(QStringLiteral("photo"), QStringLiteral("The photo to cut out."));
    parser.addHelpOption();
    parser.process(application);

    const QStringList sides = parser.value(QStringLiteral("size")).split(QLatin1Char('x'));
    const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
    const QString folder = QDir(parser.value(QStringLiteral("out"))).absolutePath();
    if (size.isEmpty() || !QDir().mkpath(folder))
        parser.showHelp(2);
    QString photo = parser.positionalArguments().value(0);
    if (photo.isEmpty()) {
        photo = folder + QStringLiteral("/sample.png");
        pelmira::samplePhoto().save(photo);
    }
    QAccessible::setActive(true); // the tour finds buttons by their accessible names

    pelmira::AppDelegate delegate;
    return pelmira::Tour(delegate, folder).play(photo, size) ? EXIT_SUCCESS : EXIT_FAILURE;
}
