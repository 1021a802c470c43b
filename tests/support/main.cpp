#include <QGuiApplication>
#include <QLocale>

#include <gtest/gtest.h>

// For tests that measure text, make windows or serve events: they need an application object.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // No display and no GPU are needed here: also by hand, and when ctest asks for the list.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QLocale::setDefault(QLocale::c());
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
