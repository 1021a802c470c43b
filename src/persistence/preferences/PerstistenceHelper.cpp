#include "persistence/preferences/PerstistenceHelper.h"

#include "platform/base/Log.h"

#include <QCoreApplication>

#include <cstdlib>
#include <limits>

namespace pelmira {
namespace {

const QString numSavesKey = QStringLiteral("numSaves");
const QString cleanEdgesKey = QStringLiteral("cleanEdges");
const QString saveFolderShownKey = QStringLiteral("saveFolderShown");

} // namespace

PerstistenceHelper& PerstistenceHelper::sharedInstance()
{
    static PerstistenceHelper helper(UserDefaults::standardUserDefaults());
    return helper;
}

PerstistenceHelper::PerstistenceHelper(UserDefaults& defaults) : _defaults(defaults)
{
}

std::int64_t PerstistenceHelper::numSaves() const
{
    return _defaults.integerForKey(numSavesKey).value_or(0);
}

void PerstistenceHelper::incrementNumSaves()
{
    const std::int64_t saves = numSaves();
    if (saves == std::numeric_limits<std::int64_t>::max()) {
        logLine("numSaves overflows");
        std::abort();
    }
    _defaults.setInteger(saves + 1, numSavesKey);
    _defaults.synchronize();
}

bool PerstistenceHelper::saveTransparentAsHEIF() const
{
    return _defaults.boolForKey(saveAsHeifKey).value_or(false);
}

void PerstistenceHelper::setSaveTransparentAsHEIF(bool saveAsHeif)
{
    _defaults.setBool(saveAsHeif, saveAsHeifKey);
    _defaults.synchronize();
}

bool PerstistenceHelper::savesCleanEdges() const
{
    return _defaults.boolForKey(cleanEdgesKey).value_or(false);
}

void PerstistenceHelper::setSavesCleanEdges(bool cleanEdges)
{
    _defaults.setBool(cleanEdges, cleanEdgesKey);
    _defaults.synchronize();
}

bool PerstistenceHelper::wasSaveFolderShown() const
{
    return _defaults.boolForKey(saveFolderShownKey).value_or(false);
}

void PerstistenceHelper::setSaveFolderShown()
{
    if (!wasSaveFolderShown())
        _defaults.setBool(true, saveFolderShownKey);
}

void PerstistenceHelper::setReviewRequestedForThisVersion()
{
    const QString version = QCoreApplication::applicationVersion();
    if (version.isEmpty())
        return;
    _defaults.setString(version, reviewRequestedVersionKey);
    _defaults.synchronize();
}

} // namespace pelmira
