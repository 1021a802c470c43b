#include "FirstFrame.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QSurfaceFormat>

int main(int argc, char** argv)
{
    // The same kind of window as the application's.
    qputenv("QSG_RENDER_LOOP", "basic");
    qputenv("QT_XCB_GL_INTEGRATION", "xcb_egl");
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGLES);
    format.setVersion(2, 0);
    QSurfaceFormat::setDefaultFormat(format);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { visible: true; width: 1100; height: 760 }");
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (!window)
        return EXIT_FAILURE;
    pelmira::bench::endAfterFirstFrame(*window);
    return QGuiApplication::exec();
}
