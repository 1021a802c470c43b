#include "controls/ZKLConfigManager.h"

#include <QLatin1String>
#include <QLocale>

namespace pelmira {
namespace {

// To be filled in once there is one.
constexpr QLatin1String helpHost("");
constexpr QLatin1String helpPath("/app-help/pelmira/help.html");
constexpr QLatin1String shippedHelp("qrc:/help/help.html");

const QString hasRatedKey = QStringLiteral("hasRated");

QUrl configuredHelpUrl()
{
    if (helpHost.isEmpty())
        return QUrl(shippedHelp);
    return QUrl(QStringLiteral("http://") + helpHost + helpPath);
}

} // namespace

ZKLConfigManager& ZKLConfigManager::sharedConfigManager()
{
    static ZKLConfigManager manager(UserDefaults::standardUserDefaults());
    return manager;
}

ZKLConfigManager::ZKLConfigManager(UserDefaults& defaults)
    : _defaults(defaults), _helpUrl(configuredHelpUrl())
{
}

void ZKLConfigManager::setHasRated()
{
    _defaults.setBool(true, hasRatedKey);
    _defaults.synchronize();
}

bool ZKLConfigManager::hasUserRated() const
{
    return _defaults.boolForKey(hasRatedKey).value_or(false);
}

bool ZKLConfigManager::isEnglish(const QStringList& preferredLanguages)
{
    return !preferredLanguages.isEmpty() && preferredLanguages.first().left(2) == u"en";
}

bool ZKLConfigManager::isEnglish()
{
    return isEnglish(QLocale().uiLanguages());
}

} // namespace pelmira
