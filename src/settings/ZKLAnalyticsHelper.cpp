#include "settings/ZKLAnalyticsHelper.h"

#include <utility>

namespace pelmira {
namespace {

ZKLAnalyticsHelper::Sink& currentSink()
{
    static ZKLAnalyticsHelper::Sink sink;
    return sink;
}

} // namespace

void ZKLAnalyticsHelper::setSink(Sink sink)
{
    currentSink() = std::move(sink);
}

void ZKLAnalyticsHelper::logEvent(const QString& name)
{
    logSelectContentWithType(contentTypeEvent(), name);
}

void ZKLAnalyticsHelper::logSelectContentWithType(const QString& type, const QString& itemID)
{
    if (currentSink())
        currentSink()(QStringLiteral("select_content"), {{QStringLiteral("item_id"), itemID},
                                                         {QStringLiteral("content_type"), type}});
}

void ZKLAnalyticsHelper::logSelectContentWithType(const QString& type, std::int64_t itemNum)
{
    logSelectContentWithType(type, QString::number(itemNum));
}

void ZKLAnalyticsHelper::logPanel(const QString& name)
{
    logSelectContentWithType(contentTypePanelShow(), name);
}

} // namespace pelmira
