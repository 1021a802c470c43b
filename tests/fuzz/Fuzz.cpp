#include "Fuzz.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QGuiApplication application(*argc, *argv); // stars are drawn, rich text needs fonts
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio*=false"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    pelmira::fuzz({reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count)});
    return 0;
}
