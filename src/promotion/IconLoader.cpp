#include "promotion/IconLoader.h"

#include "platform/base/Log.h"
#include "platform/base/RunInBackground.h"
#include "platform/image/Image.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace pelmira {
namespace {

constexpr FetchLimits iconLimits{512 * 1024, 15000};
constexpr ImageLimits decodedLimits{1024 * 1024, iconLimits.bytes};

QImage decoded(const QByteArray& bytes)
{
    const auto result = imageFromData(bytes, decodedLimits);
    const auto* image = std::get_if<QImage>(&result);
    if (!image || image->isNull())
        return {};
    const QSize bounds(IconLoader::iconPixels, IconLoader::iconPixels);
    // A strip of pixels has no side left once it is scaled.
    return image->scaled(image->size().scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1}),
                         Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

IconLoader::IconLoader() = default;

IconLoader::~IconLoader()
{
    *_exists = false;
}

void IconLoader::load(const QUrl& icon, Completion completion)
{
    if (!_network)
        _network = std::make_unique<QNetworkAccessManager>();
    const int number = _nextFetch++;
    _fetches[number] = std::make_unique<BoundedFetch>(
        *_network, icon, iconLimits,
        [this, number, completion = std::move(completion)](const std::optional<QByteArray>& bytes,
                                                           const QString& problem) {
            const auto fetch = std::move(_fetches[number]);
            _fetches.erase(number);
            if (bytes) {
                decode(*bytes, completion);
                return;
            }
            logLine("Icon: %s", qPrintable(problem));
            completion({});
        });
}

void IconLoader::decode(const QByteArray& bytes, Completion completion)
{
    runInBackground([bytes] { return decoded(bytes); },
                    [exists = _exists, completion = std::move(completion)](const QImage& image) {
                        if (*exists)
                            completion(image);
                    },
                    globalQueue(QueuePriority::Default));
}

} // namespace pelmira
