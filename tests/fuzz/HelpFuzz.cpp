#include "Fuzz.h"
#include "help/HelpPage.h"

void pelmira::fuzz(const QByteArray& input)
{
    const QString page = helpPageFromNet(input);
    must(!page.contains(QStringLiteral("<img "), Qt::CaseInsensitive));
    must(positionOfLinkInPage(QStringLiteral("#wand"), page) >= -1);
}
