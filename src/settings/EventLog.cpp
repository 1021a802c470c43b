#include "settings/EventLog.h"

#include "platform/storage/AtomicFile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace pelmira {
namespace {

const QString isOnKey = QStringLiteral("eventLogOn");
constexpr QFileDevice::Permissions ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QString lineFor(const QString& name, const QMap<QString, QString>& parameters)
{
    QString line = QDateTime::currentDateTime().toString(Qt::ISODate) + u' ' + name;
    for (auto each = parameters.begin(); each != parameters.end(); ++each)
        line += u' ' + each.key() + u'=' + each.value();
    return line.simplified() + u'\n'; // one line, whatever the values hold
}

} // namespace

EventLog::EventLog(UserDefaults& defaults, QString path)
    : _defaults(defaults), _path(std::move(path))
{
}

QString EventLog::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/pelmira/events.log");
}

bool EventLog::isOn() const
{
    return _defaults.boolForKey(isOnKey).value_or(false);
}

void EventLog::setOn(bool isOn)
{
    _defaults.setBool(isOn, isOnKey);
}

void EventLog::logEventWithName(const QString& name, const QMap<QString, QString>& parameters)
{
    if (!isOn())
        return;
    makeRoom();
    QFile file(_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    file.setPermissions(ownerOnly);
    file.write(lineFor(name, parameters).toUtf8());
}

void EventLog::makeRoom()
{
    if (QFileInfo(_path).size() < mostBytes)
        return;
    const QByteArray before = text().toUtf8();
    const qsizetype half = before.indexOf('\n', before.size() / 2);
    writeFileAtomically(_path, half < 0 ? QByteArray() : before.mid(half + 1), IfExists::Replace,
                        Durability::OutlivesProcess, 0600);
}

QString EventLog::text() const
{
    QFile file(_path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(2 * mostBytes)) : QString();
}

bool EventLog::remove()
{
    return !QFile::exists(_path) || QFile::remove(_path);
}

} // namespace pelmira
