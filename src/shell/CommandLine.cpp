#include "shell/CommandLine.h"

#include "platform/text/LocalizedStrings.h"

#include <QDir>
#include <QUrl>

namespace pelmira {
namespace {

/// Empty for an address that isn't a file's.
QString pathOf(const QString& argument, const QString& workingFolder)
{
    if (argument.startsWith(QLatin1String("file:"), Qt::CaseInsensitive)) {
        const QString path = QUrl(argument).toLocalFile();
        return QDir::isAbsolutePath(path) ? path : QString(); // "file:2//a" is nobody's address
    }
    if (argument.contains(QLatin1String("://")))
        return {};
    return QDir::cleanPath(QDir(workingFolder).absoluteFilePath(argument));
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments, const QString& workingFolder)
{
    for (const QString& argument : arguments) {
        if (argument == QLatin1String("--"))
            break;
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h"))
            return {Request::Help, {}, {}};
        if (argument == QLatin1String("--version") || argument == QLatin1String("-v"))
            return {Request::Version, {}, {}};
    }
    CommandLine line;
    bool takesOptions = true;
    for (const QString& argument : arguments) {
        if (takesOptions && argument == QLatin1String("--")) {
            takesOptions = false;
        } else if (takesOptions && argument.startsWith(u'-') && argument.size() > 1) {
            return {Request::Refuse, {}, localized("commandline.error.option").arg(argument)};
        } else if (argument.isEmpty()) {
            continue;
        } else if (const QString path = pathOf(argument, workingFolder); !path.isEmpty()) {
            line.photos.append(path);
        } else {
            line.request = Request::Refuse;
            line.problem = localized("commandline.error.address").arg(argument);
        }
    }
    return line;
}

QString CommandLine::helpText()
{
    return localized("commandline.help");
}

} // namespace pelmira
