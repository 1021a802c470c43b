#include "export/CutOutSaver.h"

#include "platform/Image.h"
#include "platform/LocalizedStrings.h"
#include "platform/RunLoop.h"

#include <QByteArray>
#include <QDir>

#include <utility>
#include <variant>

namespace pelmira {
namespace {

// As a person would write it: the home folder is understood.
QString shortened(const QString& path)
{
    const QString home = QDir::homePath() + u'/';
    return path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path;
}

QString lineFor(const QImage& cutOut, const PhotoLibrary& library)
{
    const QByteArray png = pngRepresentation(cutOut);
    if (png.isEmpty())
        return library.messageForProblem(SaveProblem::Failed);
    const auto result = library.save(png, QStringLiteral("png"));
    if (const auto* problem = std::get_if<SaveProblem>(&result))
        return library.messageForProblem(*problem);
    return localized(QStringLiteral("mainscreen.notice.saved"))
        .arg(shortened(std::get<QString>(result)));
}

} // namespace

void CutOutSaver::save(QImage cutOut, Completion completion) const
{
    globalQueue(QueuePriority::UserInitiated)
        .async([library = _library, cutOut = std::move(cutOut),
                completion = std::move(completion)] {
            mainQueue().async([completion, line = lineFor(cutOut, library)] { completion(line); });
        });
}

} // namespace pelmira
