#pragma once

#include "platform/image/Image.h"

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <variant>

namespace pelmira {

/// Reads a photo off the main thread, one at a time: a new one takes the place of one that is still
/// being read. Main thread only.
class PhotoLoader final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool busy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)

public:
    using Completion = std::function<void(const QImage& photo)>;

    using QObject::QObject;

    /// Calls the completion at a later turn with the photo, upright and in the bitmap form. One
    /// that can't be read gives a message instead.
    void loadFile(const QString& path, Completion completion);
    /// The same for the first of several; that the others stay closed is told.
    void loadFirst(const QStringList& paths, Completion completion);
    /// Those of the addresses that are files of this machine. If none of them is, that is told.
    QStringList localFiles(const QList<QUrl>& urls);
    /// The same for a file's contents; the name is for the message.
    void loadData(const QByteArray& bytes, const QString& name, Completion completion);
    /// The same for pixels of any kind, which may be too large.
    void loadPixels(const QImage& pixels, const QString& name, Completion completion);
    /// The same for what `read` reads, on another thread.
    using Result = std::variant<QImage, ImageProblem>;
    void load(std::function<Result()> read, const QString& name, Completion completion);
    /// Whatever is being read won't be given.
    void cancel();

    bool isBusy() const { return _isBusy; }
    /// One line for the user, or nothing; it goes when the next photo is asked for.
    QString message() const { return _message; }
    void setMessage(const QString& message);

Q_SIGNALS:
    void changed();

private:
    bool _isBusy = false;
    QString _message;
    std::uint64_t _number = 0; ///< of the photo asked for last
};

} // namespace pelmira
