#pragma once

#include <QMap>
#include <QString>

#include <cstdint>
#include <functional>

namespace pelmira {

/// Events of use, all of one kind: something of some type was chosen. Main thread only.
class ZKLAnalyticsHelper {
public:
    /// Takes an event, and never fails.
    using Sink = std::function<void(const QString& name, const QMap<QString, QString>& parameters)>;

    /// Where events go from now on; without a sink they are forgotten.
    static void setSink(Sink sink);

    static void logEvent(const QString& name);
    static void logSelectContentWithType(const QString& type, const QString& itemID);
    static void logSelectContentWithType(const QString& type, std::int64_t itemNum);
    static void logPanel(const QString& name);

    static QString contentTypeSaveFormat() { return QStringLiteral("SaveFormat"); }
    static QString contentTypeToggleHEIF() { return QStringLiteral("ToggleHEIF"); }
    static QString contentTypeEvent() { return QStringLiteral("Event"); }
    static QString contentTypePanelShow() { return QStringLiteral("PanelShow"); }
    static QString contentTypeInitialPhotoPermission14()
    {
        return QStringLiteral("InitialPhotoPermission14");
    }
    static QString contentTypeInitialPhotoPermission()
    {
        return QStringLiteral("InitialPhotoPermission");
    }
    // Not a slip: what was counted under this value goes on being counted there.
    static QString contentTypePhotoPermission() { return QStringLiteral("PhotoPermission14"); }
    static QString contentTypeCrossPromo() { return QStringLiteral("CrossPromo"); }
};

} // namespace pelmira
