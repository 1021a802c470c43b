#include "FirstFrame.h"
#include "shell/AppDelegate.h"

#include <QGuiApplication>

int main(int argc, char** argv)
{
    pelmira::AppDelegate::prepareProcess();
    QGuiApplication application(argc, argv);
    pelmira::AppDelegate delegate;
    pelmira::bench::endAfterFirstFrame(delegate.window());
    delegate.applicationDidFinishLaunching({});
    return QGuiApplication::exec();
}
