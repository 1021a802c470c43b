#pragma once

#include "platform/storage/UserDefaults.h"

#include <QMap>
#include <QString>

namespace pelmira {

/// The log of what is used, one line an event, in a file that only its user can read. Nothing is
/// written unless the user has switched it on. It is sent nowhere: it is for the user to look at,
/// and perhaps to send to the maker. Main thread only.
class EventLog {
public:
    static constexpr qint64 mostBytes = 64 * 1024;

    /// The preferences outlive this.
    EventLog(UserDefaults& defaults, QString path);
    /// The application's own.
    static QString defaultPath();

    bool isOn() const;
    /// What was written before stays until it is deleted.
    void setOn(bool isOn);

    /// Never fails: what can't be written is forgotten. Of a full log the older half goes.
    void logEventWithName(const QString& name, const QMap<QString, QString>& parameters);

    QString text() const;
    /// False if the file is still there.
    bool remove();

private:
    void makeRoom();

    UserDefaults& _defaults;
    QString _path;
};

} // namespace pelmira
