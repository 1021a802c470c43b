#include "help/HelpPage.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

namespace pelmira {

// A space in their place: what stood around one must not make another.
QString helpPageFromNet(const QByteArray& bytes)
{
    static const QRegularExpression picture(
        QStringLiteral("<img\\b[^>]*>?|\\bbackground\\s*=|\\burl\\s*\\("),
        QRegularExpression::CaseInsensitiveOption);
    return QString::fromUtf8(bytes).replace(picture, QStringLiteral(" "));
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
