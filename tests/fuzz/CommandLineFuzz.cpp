#include "Fuzz.h"
#include "shell/CommandLine.h"

#include <QDir>

// One argument a line, as a terminal or another program may hand them over.
void pelmira::fuzz(const QByteArray& input)
{
    const auto line = CommandLine::parse(QString::fromLocal8Bit(input).split(QLatin1Char('\n')),
                                         QStringLiteral("/home/user"));
    must((line.request == CommandLine::Request::Refuse) != line.problem.isEmpty());
    must(!line.problem.contains(QLatin1Char('\n'))); // it is to be one line
    for (const QString& photo : line.photos)
        must(QDir::isAbsolutePath(photo));
}
