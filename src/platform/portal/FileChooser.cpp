#include "platform/portal/FileChooser.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QList>
#include <QMetaType>
#include <QUrl>
#include <QVariant>

#include <utility>

namespace pelmira {
namespace {

// The portal's filters have the signature a(sa(us)).
struct FilterRule {
    uint kind; ///< 0: a pattern of names, 1: a kind of contents
    QString value;
};
struct FilterRules {
    QString name;
    QList<FilterRule> rules;
};

QDBusArgument& operator<<(QDBusArgument& out, const FilterRule& rule)
{
    out.beginStructure();
    out << rule.kind << rule.value;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, FilterRule& rule)
{
    in.beginStructure();
    in >> rule.kind >> rule.value;
    in.endStructure();
    return in;
}

QDBusArgument& operator<<(QDBusArgument& out, const FilterRules& filter)
{
    out.beginStructure();
    out << filter.name << filter.rules;
    out.endStructure();
    return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, FilterRules& filter)
{
    in.beginStructure();
    in >> filter.name >> filter.rules;
    in.endStructure();
    return in;
}

QVariant filterOption(const FileChooser::Filter& filter)
{
    [[maybe_unused]] static const bool once = [] {
        qDBusRegisterMetaType<FilterRule>();
        qDBusRegisterMetaType<QList<FilterRule>>();
        qDBusRegisterMetaType<FilterRules>();
        qDBusRegisterMetaType<QList<FilterRules>>();
        return true;
    }();
    FilterRules rules{filter.name, {}};
    for (const QString& type : filter.mimeTypes)
        rules.rules.append({1, type});
    return QVariant::fromValue(QList<FilterRules>{rules});
}

} // namespace

FileChooser::FileChooser(QDBusConnection bus) : _bus(std::move(bus))
{
}

void FileChooser::chooseFile(const QWindow* parent, const QString& title, const Filter& filter,
                             Completion completion)
{
    open(parent, title, {{QStringLiteral("filters"), filterOption(filter)}}, std::move(completion));
}

void FileChooser::chooseFolder(const QWindow* parent, const QString& title, Completion completion)
{
    open(parent, title, {{QStringLiteral("directory"), true}}, std::move(completion));
}

void FileChooser::open(const QWindow* parent, const QString& title, const QVariantMap& options,
                       Completion completion)
{
    _request = std::make_unique<PortalRequest>(
        _bus, QStringLiteral("FileChooser"), QStringLiteral("OpenFile"),
        QVariantList{parentWindowIdentifier(parent), title}, options,
        [completion = std::move(completion)](PortalOutcome outcome, const QVariantMap& results) {
            if (outcome != PortalOutcome::Done) {
                completion(outcome, {});
                return;
            }
            const QStringList uris = results.value(QStringLiteral("uris")).toStringList();
            const QString path = QUrl(uris.value(0)).toLocalFile();
            // The dialog was seen: without a path it is as good as cancelled.
            completion(path.isEmpty() ? PortalOutcome::Cancelled : PortalOutcome::Done, path);
        });
}

} // namespace pelmira
