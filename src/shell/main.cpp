#include "shell/AppDelegate.h"

#include <QGuiApplication>

int main(int argc, char** argv)
{
    pelmira::AppDelegate::prepareProcess();
    QGuiApplication application(argc, argv);
    pelmira::AppDelegate delegate;
    delegate.applicationDidFinishLaunching(application.arguments().value(1));
    return QGuiApplication::exec();
}
