#include <QGuiApplication>
#include <QLocale>

#include <gtest/gtest.h>

// Text is measured here, which takes an application object.
int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    // By hand and when ctest asks for the list of tests, too, no display is needed.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
