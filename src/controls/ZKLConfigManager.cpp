#include "controls/ZKLConfigManager.h"

#include "maker/MakerValues.h"
#include "platform/text/LocalizedStrings.h"

#include <QLatin1String>
#include <QLocale>

namespace pelmira {
namespace {

constexpr QLatin1String helpPath("/app-help/pelmira/help.html");
constexpr QLatin1String shippedHelp("qrc:/help/");

const QString hasRatedKey = QStringLiteral("hasRated");

QUrl configuredHelpUrl()
{
    const QString host = makerValues().helpHost;
    if (host.isEmpty()) // in the language of the texts around it
        return QUrl(shippedHelp + localizedWithDefaultStr(QStringLiteral("helppage.file"),
                                                          QStringLiteral("help.html")));
    return QUrl(QStringLiteral("http://") + host + helpPath);
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

QUrl ZKLConfigManager::instagramAppUrl()
{
    const QString account = makerValues().instagramAccount;
    return account.isEmpty() ? QUrl()
                             : QUrl(QStringLiteral("instagram://user?username=") + account);
}

QUrl ZKLConfigManager::instagramWebUrl()
{
    return QUrl(makerValues().instagramWebUrl);
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
