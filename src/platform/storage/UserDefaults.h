#pragma once

#include "platform/storage/AtomicFile.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>

#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>

namespace pelmira {

/// The user's preferences: typed values by key, kept across runs. A getter gives nothing for a key
/// that was never written, or that holds a value of another type.
///
/// A changed value is in the file when its setter returns, and the file is replaced as a whole, so
/// that a process killed at any moment loses nothing. A file that can't be written is no error
/// to the caller: the value holds for this run, each later change tries again, and whoever has set
/// a block for it is told once. Several running processes may share one file; each brings in only
/// the keys that it changed. Safe from any thread.
class UserDefaults {
public:
    /// The one of the application: preferences.json in its folder under $XDG_CONFIG_HOME.
    static UserDefaults& standardUserDefaults();

    explicit UserDefaults(QString filePath);
    /// Called once in the run, on the thread that changes a value, when the file can't be written;
    /// at once if that is so already.
    void setFailedBlock(std::function<void()> block);
    const QString& filePath() const { return _filePath; }
    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;

    std::optional<bool> boolForKey(const QString& key) const;
    std::optional<std::int64_t> integerForKey(const QString& key) const;
    std::optional<float> floatForKey(const QString& key) const;
    std::optional<QString> stringForKey(const QString& key) const;
    std::optional<QList<double>> numbersForKey(const QString& key) const;

    void setBool(bool value, const QString& forKey);
    void setInteger(std::int64_t value, const QString& forKey);
    void setFloat(float value, const QString& forKey);
    void setString(const QString& value, const QString& forKey);
    void setNumbers(const QList<double>& value, const QString& forKey);
    void removeValueForKey(const QString& key);

    /// Waits until every value is in the file. False if the file can't be written.
    bool synchronize();
    /// Waits for the medium, too, which takes too long to do at each change: some file systems lose
    /// a file that was just replaced when the power goes.
    void outlivePowerCut();

private:
    QJsonValue value(const QString& key) const;
    void setValue(const QString& key, const QJsonValue& value);
    bool writeUnsaved();
    bool write(Durability durability);

    const QString _filePath;
    mutable std::mutex _mutex;
    QJsonObject _values;
    QList<QString> _unsavedKeys;
    bool _isWritable = true;
    bool _outlivesPowerCut = true; ///< all that is in the file
    std::function<void()> _failedBlock;
};

} // namespace pelmira
