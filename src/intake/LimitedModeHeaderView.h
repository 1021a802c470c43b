#pragma once

#include "platform/text/LocalizedStrings.h"

#include <QObject>
#include <QString>

namespace pelmira {

/// A line above the photos that says that they can be read, but none be added.
class LimitedModeHeaderView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text READ text CONSTANT)
    Q_PROPERTY(bool dark READ isDark CONSTANT)

public:
    enum ColorMode { Light, Dark };

    using QObject::QObject;

    /// Of every header: an application is dark or light as a whole.
    static void setColorMode(ColorMode mode) { colorMode = mode; }

    static QString text() { return localized("permission.limited"); }
    static bool isDark() { return colorMode == Dark; }

private:
    static inline ColorMode colorMode = Light;
};

} // namespace pelmira
