#include "help/HelpPage.h"

#include <QRegularExpression>
#include <QStringList>
#include <QStringView>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace pelmira {
namespace {

// Nothing that asks for a file or another page, or could: pictures, styles, links of the head.
constexpr QStringView structure =
    u" a b big blockquote body center code div dl em h1 h2 h3 h4 h5 h6"
    " html i ol pre s small span strong sub sup table tt u ul ";
constexpr QStringView unclosed = u" br dd dt hr li p "; // or by the next of the kind
constexpr QStringView ofTables = u" td th tr ";
constexpr QStringView unseen = u" script style title "; // with what is in them

// The toolkit takes twice as long for each further level of tables.
constexpr qsizetype mostLevels = 64;
constexpr qsizetype mostTables = 1;

bool has(QStringView names, const QString& name)
{
    return !name.isEmpty() && names.contains(u' ' + name + u' ');
}

struct Tag {
    bool isEnd = false;
    QString name; ///< in small letters; empty for what isn't a tag
    QString attributes;
    qsizetype end = -1; ///< in the page, after it; -1 if it has none
};

Tag tagAt(const QString& page, qsizetype at)
{
    Tag tag;
    qsizetype i = at + 1;
    tag.isEnd = i < page.size() && page.at(i) == u'/';
    i += tag.isEnd;
    const qsizetype name = i;
    while (i < page.size() && page.at(i).unicode() < 128 && page.at(i).isLetterOrNumber())
        ++i;
    tag.name = page.mid(name, i - name).toLower();
    const qsizetype rest = i;
    QChar quote;
    for (; i < page.size(); ++i) {
        const QChar c = page.at(i);
        if (quote.isNull() && c == u'>') {
            tag.attributes = page.mid(rest, i - rest);
            tag.end = i + 1;
            break;
        }
        if (c == quote)
            quote = QChar();
        else if (quote.isNull() && (c == u'"' || c == u'\''))
            quote = c;
    }
    return tag;
}

/// Where links lead and anchors stand.
QString attributesOf(const Tag& tag)
{
    static const QRegularExpression attribute(
        QStringLiteral("\\b(href|id|name)\\s*+=\\s*+(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"']++))"),
        QRegularExpression::CaseInsensitiveOption);
    QString attributes;
    for (auto match = attribute.globalMatch(tag.attributes); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        QString value = found.captured(2) + found.captured(3) + found.captured(4);
        value.replace(u'"', QStringLiteral("&quot;")).replace(u'<', QStringLiteral("&lt;"));
        attributes += QStringLiteral(" %1=\"%2\"").arg(found.captured(1).toLower(), value);
    }
    return attributes;
}

/// The tags that are open, of those that have to be closed.
class OpenTags {
public:
    /// Whether the page may have it here.
    bool take(const Tag& tag)
    {
        if (has(unclosed, tag.name))
            return true;
        if (has(ofTables, tag.name))
            return _names.contains(QStringLiteral("table"));
        if (!has(structure, tag.name))
            return false;
        if (tag.isEnd) {
            const qsizetype from = _names.lastIndexOf(tag.name);
            _names.resize(from < 0 ? _names.size() : from);
            return from >= 0;
        }
        if (_names.size() >= mostLevels ||
            (tag.name == QLatin1String("table") && _names.count(tag.name) >= mostTables))
            return false;
        _names.append(tag.name);
        return true;
    }

private:
    QStringList _names;
};

} // namespace

// A space in place of what is left out: what stood around it must not make another word.
QString helpPageFromNet(const QByteArray& bytes)
{
    const QString page = QString::fromUtf8(bytes);
    QString shown;
    OpenTags open;
    for (qsizetype at = 0;;) {
        const qsizetype from = page.indexOf(u'<', at);
        shown += QStringView(page).mid(at, from < 0 ? -1 : from - at);
        if (from < 0)
            return shown;
        if (page.mid(from, 4) == QLatin1String("<!--")) {
            const qsizetype end = page.indexOf(QLatin1String("-->"), from);
            shown += u' ';
            if (end < 0)
                return shown;
            at = end + 3;
            continue;
        }
        static const QString beginnings = QStringLiteral("/!?");
        const QChar next = page.size() > from + 1 ? page.at(from + 1) : QChar();
        if (!next.isLetter() && !beginnings.contains(next)) {
            shown += QLatin1String("&lt;");
            at = from + 1;
            continue;
        }
        const Tag tag = tagAt(page, from);
        at = tag.end;
        if (!tag.isEnd && has(unseen, tag.name))
            at = page.indexOf(QStringLiteral("</") + tag.name, from, Qt::CaseInsensitive);
        if (at < 0)
            return shown + u' ';
        if (open.take(tag))
            shown +=
                QStringLiteral("<%1%2%3>")
                    .arg(tag.isEnd ? QStringLiteral("/") : QString(), tag.name, attributesOf(tag));
        else
            shown += u' ';
    }
}

int positionOfLinkInPage(const QString& link, const QString& page)
{
    if (!link.startsWith(u'#'))
        return -1;
    const QString name = link.mid(1);
    QTextDocument document; // the same text as the one that is shown
    document.setHtml(page);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().anchorNames().contains(name))
                return part.fragment().position();
    return -1;
}

} // namespace pelmira
