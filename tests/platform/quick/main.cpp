#include <QGuiApplication>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QSurfaceFormat>

#include <gtest/gtest.h>

/// What the GL driver leaves behind can't be named to the leak checker: it is unloaded by then.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=0";
}

// For tests that look at what a scene draws with GL, which needs a display.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();
    qputenv("QSG_RENDER_LOOP", "basic");
    qputenv("QT_XCB_GL_INTEGRATION", "xcb_egl");
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGLES);
    format.setVersion(2, 0);
    QSurfaceFormat::setDefaultFormat(format);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
