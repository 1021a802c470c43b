#include "platform/lifecycle/DisplayGuard.h"

#include <QByteArray>
#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace pelmira {
namespace {

// The toolkit's handler takes nothing of ours along.
QtMessageHandler previous = nullptr;
QByteArray lineForFailure;
QStringList heldBack;

// What leads to the failure says no more than the line; without one it is worth reading.
void handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtFatalMsg) {
        heldBack << qFormatLogMessage(type, context, message);
        return;
    }
    std::fprintf(stderr, "%s\n", lineForFailure.constData());
    std::_Exit(EXIT_FAILURE);
}

} // namespace

DisplayGuard::DisplayGuard(const QString& line)
{
    lineForFailure = line.toLocal8Bit();
    previous = qInstallMessageHandler(handle);
}

DisplayGuard::~DisplayGuard()
{
    qInstallMessageHandler(previous);
    for (const QString& message : std::exchange(heldBack, {}))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace pelmira
