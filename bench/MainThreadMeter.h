#pragma once

#include <QGuiApplication>
#include <QString>

#include <vector>

namespace pelmira::bench {

/// An application that measures the CPU time of its thread from one return to the event loop to
/// the next: all that one turn of the loop delivers, so long does a touch wait. What is done
/// outside of events, as by somebody who plays the user, does not count.
class MainThreadMeter final : public QGuiApplication {
public:
    /// One turn of the loop.
    struct Stretch {
        double milliseconds = 0;
        QString heaviest; ///< the event that took most of it: its type and who got it
        double heaviestMilliseconds = 0;
    };

    MainThreadMeter(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;
    /// The longest stretches since the last call, longest first.
    std::vector<Stretch> takeLongest();

private:
    void endTurn();

    int _depth = 0;
    Stretch _turn;
    std::vector<Stretch> _longest;
};

} // namespace pelmira::bench
