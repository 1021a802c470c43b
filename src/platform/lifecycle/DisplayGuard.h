#pragma once

#include <QString>

namespace pelmira {

/// Made before the application object and taken away after it: a toolkit that finds no display then
/// ends the process with one line and exit code 1, where it would abort. One at a time.
class DisplayGuard {
public:
    explicit DisplayGuard(const QString& line);
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard&) = delete;
    DisplayGuard& operator=(const DisplayGuard&) = delete;
};

} // namespace pelmira
