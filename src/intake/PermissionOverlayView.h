#pragma once

#include "intake/FileDialogs.h"
#include "intake/PermissionStatus.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace pelmira {

/// Covers the home screen while the folder of the user's pictures can't be read: explains, makes
/// the folder if it isn't there yet, or has another one chosen.
class PermissionOverlayView final : public QObject,
                                    public std::enable_shared_from_this<PermissionOverlayView> {
    Q_OBJECT
    Q_PROPERTY(QString titleLabel READ titleLabel CONSTANT)
    Q_PROPERTY(QString messageLabel READ messageLabel NOTIFY changed)
    Q_PROPERTY(QString allowButton READ allowButton NOTIFY changed)
    Q_PROPERTY(QString laterButton READ laterButton CONSTANT)
    Q_PROPERTY(double alpha READ alpha NOTIFY changed)

public:
    static constexpr double fadeDuration = 0.3; ///< seconds

    PermissionOverlayView(PermissionStatus status,
                          std::function<void(FileDialogs::Completion)> chooseFolder);

    /// The overlay has done its work: there is access, or the user goes on without.
    std::function<void()> doneBlock;

    Q_INVOKABLE void handleAllow();
    Q_INVOKABLE void handleLater();

    QString titleLabel() const;
    QString messageLabel() const;
    QString allowButton() const;
    QString laterButton() const;
    double alpha() const { return _alpha; }
    void setAlpha(double alpha);

Q_SIGNALS:
    void changed();

private:
    bool canAsk() const { return _status == PermissionStatus::NotDetermined; }
    void takeStatus(PermissionStatus status);
    void takeFolder(const QString& folder);
    void done();

    PermissionStatus _status;
    const std::function<void(FileDialogs::Completion)> _chooseFolder;
    QString _refusedFolder; ///< chosen, and can't be read
    double _alpha = 1.0;
    bool _isDone = false;
};

} // namespace pelmira
