#pragma once

#include "platform/net/BoundedFetch.h"

#include <QImage>
#include <QNetworkAccessManager>
#include <QUrl>

#include <functional>
#include <map>
#include <memory>

namespace pelmira {

/// Fetches icons and decodes them off the main thread, within bounds. Main thread only.
class IconLoader {
public:
    /// Null for an icon that can't be had; others have the longer side of `iconPixels`.
    using Completion = std::function<void(const QImage& icon)>;
    static constexpr int iconPixels = 180; ///< sixty points, for the sharpest screens

    IconLoader();
    ~IconLoader();
    IconLoader(const IconLoader&) = delete;
    IconLoader& operator=(const IconLoader&) = delete;

    /// The completion is called from the event loop, unless the loader is gone by then.
    void load(const QUrl& icon, Completion completion);

private:
    void decode(const QByteArray& bytes, Completion completion);

    std::unique_ptr<QNetworkAccessManager> _network; ///< made at first use
    std::map<int, std::unique_ptr<BoundedFetch>> _fetches;
    int _nextFetch = 0;
    std::shared_ptr<bool> _exists = std::make_shared<bool>(true);
};

} // namespace pelmira
