#pragma once

#include "platform/base/RunLoop.h"

#include <QObject>

#include <functional>

namespace pelmira {

/// Where the panels slide: at most one is up, and while one comes up no tab is to be pressed.
class PanelContainer final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QObject* currentPanel READ currentPanel NOTIFY currentPanelChanged)

public:
    static constexpr double slideSeconds = 0.3;

    /// Tells whether tabs may be pressed.
    std::function<void(bool)> setTabsEnabledBlock;

    QObject* currentPanel() const { return _currentPanel; }
    /// Null takes the panel away. The one that is up stays as it is.
    void setCurrentPanel(QObject* panel);

Q_SIGNALS:
    void currentPanelChanged();

private:
    QObject* _currentPanel = nullptr; ///< not owned
    Timer _cameUp;
};

} // namespace pelmira
