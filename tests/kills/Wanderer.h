#pragma once

#include "AppVisitor.h"
#include "kills/Journal.h"

#include <QStringList>

#include <functional>
#include <random>

namespace pelmira::test {

/// Uses the application at random, by real touches, and notes in the journal what has to be there
/// if it ends now. It never ends by itself, unless something doesn't come about.
class Wanderer : private AppVisitor {
public:
    Wanderer(AppDelegate& application, const QString& folder, unsigned seed, QStringList photos);

    /// `mustOffer`: whether the launch has work to offer.
    [[noreturn]] void wander(bool mustOffer);

private:
    void first(bool mustOffer);
    void atHome();
    void openPhoto();
    void settings();
    void inEditor();
    void fill();
    void turnDial();
    void stroke();
    /// By resting or by turning to another window, until the work is on disk.
    void restOrLeave();
    void giveUp();
    void save();
    void savePicture();
    void sharePicture();
    void compose();

    void change(const std::function<void()>& act);
    void note();
    /// Until it has led there: what moves may not take a tap.
    void tapUntil(const char* name, const std::function<bool()>& there);
    void must(const std::function<bool()>& condition, const char* what);
    unsigned random(unsigned count) { return static_cast<unsigned>(_random()) % count; }
    double share() { return 0.05 + 0.9 * random(1000) / 1000.0; }

    Journal _journal;
    std::mt19937 _random;
    const QStringList _photos;
};

} // namespace pelmira::test
