#pragma once

#include <QCoreApplication>
#include <QQuickWindow>

#include <cstdio>

namespace pelmira::bench {

/// Says on the standard output when the window has shown its first frame, and ends the process.
inline void endAfterFirstFrame(QQuickWindow& window)
{
    QObject::connect(&window, &QQuickWindow::frameSwapped, &window, [] {
        std::puts("shown");
        std::fflush(stdout);
        QCoreApplication::exit();
    });
}

} // namespace pelmira::bench
