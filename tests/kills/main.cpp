#include "kills/Wanderer.h"
#include "shell/AppDelegate.h"

#include <QAccessible>
#include <QDir>
#include <QGuiApplication>

#include <string_view>

// The application, used at random until it is killed: FOLDER SEED offer|none
int main(int argc, char** argv)
{
    pelmira::AppDelegate::prepareProcess();
    QGuiApplication application(argc, argv);
    if (argc != 4)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[1]);
    QAccessible::setActive(true); // buttons are found by their accessible names
    QStringList photos;
    const QDir samples(folder + QStringLiteral("/samples"));
    for (const QString& name : samples.entryList(QDir::Files))
        photos << samples.filePath(name);
    pelmira::AppDelegate delegate;
    pelmira::test::Wanderer wanderer(
        delegate, folder, static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)), photos);
    wanderer.wander(argv[3] == std::string_view("offer"));
}
