#include "platform/storage/PhotoLibrary.h"

#include "platform/storage/AtomicFile.h"
#include "platform/text/LocalizedStrings.h"

#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace pelmira {
namespace {

constexpr int mostNamesTried = 1000; // of pictures saved within one second

SaveProblem problemFor(const std::error_code& error)
{
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
        return SaveProblem::NoPermission;
    if (error == std::errc::no_space_on_device || error.value() == EDQUOT)
        return SaveProblem::NoSpace;
    if (error == std::errc::read_only_file_system)
        return SaveProblem::ReadOnly;
    return SaveProblem::Failed;
}

} // namespace

PhotoLibrary::PhotoLibrary()
    : PhotoLibrary(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation))
{
}

PhotoLibrary::PhotoLibrary(const QString& picturesFolder)
    : _folder(picturesFolder + QStringLiteral("/Pelmira"))
{
}

PhotoLibrary PhotoLibrary::inFolder(const QString& folder)
{
    PhotoLibrary library;
    library._folder = folder;
    return library;
}

std::variant<QString, SaveProblem> PhotoLibrary::save(QByteArrayView bytes, const QString& suffix,
                                                      const QDateTime& moment) const
{
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(_folder).toStdString(), error);
    if (error)
        return problemFor(error);
    removeLeftoversOfWriting(_folder);

    const QString name =
        _folder + QStringLiteral("/Pelmira ") + moment.toString(u"yyyy-MM-dd HH-mm-ss");
    for (int number = 1; number <= mostNamesTried; ++number) {
        const QString distinction = number > 1 ? QStringLiteral(" %1").arg(number) : QString();
        const QString path = name + distinction + u'.' + suffix;
        error = writeFileAtomically(path, bytes, IfExists::Refuse, Durability::OutlivesPowerCut);
        if (!error)
            return path;
        if (error != std::errc::file_exists)
            break;
    }
    return problemFor(error);
}

QString PhotoLibrary::messageForProblem(SaveProblem problem) const
{
    const auto key = [problem] {
        switch (problem) {
        case SaveProblem::NoPermission:
            return QStringLiteral("mainscreen.notice.saveNoPermission");
        case SaveProblem::NoSpace:
            return QStringLiteral("mainscreen.notice.saveNoSpace");
        case SaveProblem::ReadOnly:
            return QStringLiteral("mainscreen.notice.saveReadOnly");
        case SaveProblem::Failed:
            break;
        }
        return QStringLiteral("mainscreen.notice.saveFailed");
    };
    return localized(key()).arg(_folder);
}

} // namespace pelmira
