#include "intake/PhotoLoader.h"

#include "platform/base/Device.h"
#include "platform/base/Log.h"
#include "platform/base/RunInBackground.h"
#include "platform/text/LocalizedStrings.h"

#include <QFileInfo>
#include <QPointer>

#include <utility>

namespace pelmira {
namespace {

constexpr int longestName = 60; // of what can't be opened, in a message

} // namespace

void PhotoLoader::loadFile(const QString& path, Completion completion)
{
    load([path] { return loadImage(path); }, path, std::move(completion));
}

void PhotoLoader::loadFirst(const QStringList& paths, Completion completion)
{
    if (paths.isEmpty())
        return;
    loadFile(paths.first(), std::move(completion));
    if (paths.size() > 1)
        setMessage(localized("homescreen.oneAtATime").arg(QFileInfo(paths.first()).fileName()));
}

QStringList PhotoLoader::localFiles(const QList<QUrl>& urls)
{
    QStringList paths;
    for (const QUrl& url : urls)
        if (url.isLocalFile())
            paths << url.toLocalFile();
    if (paths.isEmpty() && !urls.isEmpty()) {
        const QUrl& url = urls.first(); // which may hold a whole picture
        const QString name = url.fileName().isEmpty() ? url.host() : url.fileName();
        setMessage(localized("commandline.error.address").arg(name.left(longestName)));
    }
    return paths;
}

void PhotoLoader::loadData(const QByteArray& bytes, const QString& name, Completion completion)
{
    load([bytes] { return imageFromData(bytes, ImageLimits::forMemory(physicalMemory())); }, name,
         std::move(completion));
}

void PhotoLoader::loadPixels(const QImage& pixels, const QString& name, Completion completion)
{
    const auto read = [pixels]() -> Result {
        const bool isAllowed = ImageLimits::forMemory(physicalMemory()).allow(pixels.size());
        QImage photo = isAllowed ? makeBitmapForm(pixels) : QImage();
        if (photo.isNull())
            return ImageProblem::TooLarge;
        return photo;
    };
    load(read, name, std::move(completion));
}

void PhotoLoader::load(std::function<Result()> read, const QString& name, Completion completion)
{
    const std::uint64_t number = ++_number;
    _isBusy = true;
    _message.clear();
    Q_EMIT changed();
    runInBackground(std::move(read), [loader = QPointer<PhotoLoader>(this), name, number,
                                      completion = std::move(completion)](const Result& result) {
        if (!loader || loader->_number != number)
            return;
        loader->_isBusy = false;
        if (const auto* problem = std::get_if<ImageProblem>(&result)) {
            loader->setMessage(messageForProblem(*problem, name));
            return;
        }
        Q_EMIT loader->changed();
        completion(std::get<QImage>(result));
    });
}

void PhotoLoader::cancel()
{
    ++_number;
    if (std::exchange(_isBusy, false))
        Q_EMIT changed();
}

void PhotoLoader::setMessage(const QString& message)
{
    _message = message;
    if (!message.isEmpty())
        logLine("%s", qPrintable(message));
    Q_EMIT changed();
}

} // namespace pelmira
