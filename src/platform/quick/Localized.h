#pragma once

#include "platform/text/LocalizedStrings.h"

#include <QObject>

namespace pelmira {

/// The texts by key, for the layout files.
class Localized final : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    Q_INVOKABLE static QString text(const QString& key) { return localized(key); }
};

} // namespace pelmira
