#include "Fuzz.h"
#include "help/HelpPage.h"

void pelmira::fuzz(const QByteArray& input)
{
    const QString page = helpPageFromNet(input);
    must(helpPageFromNet(page.toUtf8()) == page); // nothing is left to be left out
    must(positionOfLinkInPage(QStringLiteral("#wand"), page) >= -1);
}
