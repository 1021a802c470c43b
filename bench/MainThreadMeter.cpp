#include "MainThreadMeter.h"

#include <QAbstractEventDispatcher>
#include <QEvent>
#include <QMetaEnum>

#include <algorithm>
#include <ctime>
#include <utility>

namespace pelmira::bench {
namespace {

constexpr std::size_t kept = 3;

double threadMilliseconds()
{
    std::timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

} // namespace

MainThreadMeter::MainThreadMeter(int& argc, char** argv) : QGuiApplication(argc, argv)
{
    const auto* dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] { endTurn(); });
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] { endTurn(); });
}

bool MainThreadMeter::notify(QObject* receiver, QEvent* event)
{
    if (_depth > 0)
        return QGuiApplication::notify(receiver, event);
    // Neither may be there any more afterwards.
    const auto type = event->type();
    const char* const name = receiver->metaObject()->className();
    const double start = threadMilliseconds();
    ++_depth;
    const bool result = QGuiApplication::notify(receiver, event);
    --_depth;
    const double spent = threadMilliseconds() - start;
    _turn.milliseconds += spent;
    if (spent > _turn.heaviestMilliseconds) {
        _turn.heaviestMilliseconds = spent;
        _turn.heaviest =
            QStringLiteral("%1 to %2")
                .arg(QLatin1String(QMetaEnum::fromType<QEvent::Type>().valueToKey(type)),
                     QLatin1String(name));
    }
    return result;
}

void MainThreadMeter::endTurn()
{
    if (_depth > 0)
        return; // an event serves the loop itself: still the same stretch
    const Stretch turn = std::exchange(_turn, {});
    const auto place = std::find_if(_longest.begin(), _longest.end(), [&](const Stretch& other) {
        return other.milliseconds < turn.milliseconds;
    });
    _longest.insert(place, turn);
    if (_longest.size() > kept)
        _longest.pop_back();
}

std::vector<MainThreadMeter::Stretch> MainThreadMeter::takeLongest()
{
    endTurn();
    return std::exchange(_longest, {});
}

} // namespace pelmira::bench
