#include "platform/storage/UserDefaults.h"

#include "platform/base/Log.h"
#include "platform/storage/AtomicFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStandardPaths>

#include <cmath>
#include <limits>
#include <utility>

namespace pelmira {
namespace {

constexpr qint64 largestFile = 1 << 20; // far above what the preferences take

/// Nothing if there is no file, or none that can be made sense of.
std::optional<QJsonObject> readValues(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(file.read(file.size()));
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

} // namespace

UserDefaults& UserDefaults::standardUserDefaults()
{
    static UserDefaults defaults(
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
        QStringLiteral("/pelmira/preferences.json"));
    return defaults;
}

UserDefaults::UserDefaults(QString filePath)
    : _filePath(std::move(filePath)), _values(readValues(_filePath).value_or(QJsonObject()))
{
}

QJsonValue UserDefaults::value(const QString& key) const
{
    const std::lock_guard lock(_mutex);
    return _values.value(key);
}

std::optional<bool> UserDefaults::boolForKey(const QString& key) const
{
    const QJsonValue found = value(key);
    return found.isBool() ? std::optional(found.toBool()) : std::nullopt;
}

std::optional<std::int64_t> UserDefaults::integerForKey(const QString& key) const
{
    const QJsonValue found = value(key);
    const qint64 integer = found.toInteger(0);
    if (!found.isDouble() || found.toInteger(1) != integer)
        return std::nullopt; // a fraction, or too large
    return integer;
}

std::optional<float> UserDefaults::floatForKey(const QString& key) const
{
    const QJsonValue found = value(key);
    if (!found.isDouble() || std::abs(found.toDouble()) > std::numeric_limits<float>::max())
        return std::nullopt;
    return static_cast<float>(found.toDouble());
}

std::optional<QString> UserDefaults::stringForKey(const QString& key) const
{
    const QJsonValue found = value(key);
    return found.isString() ? std::optional(found.toString()) : std::nullopt;
}

std::optional<QList<double>> UserDefaults::numbersForKey(const QString& key) const
{
    const QJsonValue found = value(key);
    if (!found.isArray())
        return std::nullopt;
    QList<double> numbers;
    for (const QJsonValue& element : found.toArray()) {
        if (!element.isDouble())
            return std::nullopt;
        numbers.append(element.toDouble());
    }
    return numbers;
}

void UserDefaults::setBool(bool value, const QString& forKey)
{
    setValue(forKey, value);
}

void UserDefaults::setInteger(std::int64_t value, const QString& forKey)
{
    setValue(forKey, qint64{value});
}

void UserDefaults::setFloat(float value, const QString& forKey)
{
    setValue(forKey, static_cast<double>(value));
}

void UserDefaults::setString(const QString& value, const QString& forKey)
{
    setValue(forKey, value);
}

void UserDefaults::setNumbers(const QList<double>& value, const QString& forKey)
{
    QJsonArray numbers;
    for (const double number : value)
        numbers.append(number);
    setValue(forKey, numbers);
}

void UserDefaults::removeValueForKey(const QString& key)
{
    setValue(key, QJsonValue(QJsonValue::Undefined));
}

bool UserDefaults::synchronize()
{
    const std::lock_guard lock(_mutex);
    return writeUnsaved();
}

void UserDefaults::outlivePowerCut()
{
    const std::lock_guard lock(_mutex);
    if (!_outlivesPowerCut)
        write(Durability::OutlivesPowerCut);
}

void UserDefaults::setFailedBlock(std::function<void()> block)
{
    {
        const std::lock_guard lock(_mutex);
        if (_isWritable) {
            _failedBlock = std::move(block);
            return;
        }
    }
    block();
}

void UserDefaults::setValue(const QString& key, const QJsonValue& value)
{
    std::unique_lock lock(_mutex);
    if (_values.value(key) == value)
        return; // a dial sends the same value many times
    _values.insert(key, value);
    if (!_unsavedKeys.contains(key))
        _unsavedKeys.append(key);
    const bool written = writeUnsaved();
    if (!written && _isWritable)
        logLine("Preferences can't be written to %s", qPrintable(_filePath));
    _isWritable = written;
    if (written || !_failedBlock)
        return;
    const auto block = std::exchange(_failedBlock, nullptr);
    lock.unlock();
    block();
}

bool UserDefaults::writeUnsaved()
{
    return _unsavedKeys.isEmpty() || write(Durability::OutlivesProcess);
}

bool UserDefaults::write(Durability durability)
{
    QJsonObject merged = readValues(_filePath).value_or(_values);
    for (const QString& key : std::as_const(_unsavedKeys))
        merged.insert(key, _values.value(key));
    QDir().mkpath(QFileInfo(_filePath).path());
    if (writeFileAtomically(_filePath, QJsonDocument(merged).toJson(), IfExists::Replace,
                            durability))
        return false;
    _outlivesPowerCut = durability == Durability::OutlivesPowerCut;
    _values = merged;
    _unsavedKeys.clear();
    return true;
}

} // namespace pelmira
