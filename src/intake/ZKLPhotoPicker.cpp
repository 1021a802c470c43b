#include "intake/ZKLPhotoPicker.h"

#include "intake/PhotoPermissionsHelper.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmira {
namespace {

constexpr double idealCellSize = 124.0;
constexpr int fewestColumns = 3;
constexpr int rowsAhead = 2;           // of cells, loaded before they are seen
constexpr double rescanDelay = 0.5;    // seconds; a copied folder brings many changes
constexpr int mostWatchedFolders = 64; // the system has few to give

} // namespace

ZKLPhotoPicker::ZKLPhotoPicker(FileDialogs dialogs) : _dialogs(std::move(dialogs))
{
    connect(&_photos, &PhotoLibraryModel::scanned, this, [this] {
        if (!_photos.isScanning())
            watchFolders();
        Q_EMIT photosChanged();
    });
    connect(&_loader, &PhotoLoader::changed, this, &ZKLPhotoPicker::loadingRowChanged);
    connect(&_watcher, &QFileSystemWatcher::directoryChanged, this, [this] {
        _rescan = Timer::scheduled(rescanDelay, [this] {
            if (_isShown)
                _photos.scan(PhotoPermissionsHelper::photosFolder());
        });
    });
}

QUrl ZKLPhotoPicker::layoutFile() const
{
    return layoutUrl("PhotoPickerScreen");
}

void ZKLPhotoPicker::viewWillAppear(bool)
{
    _isShown = true;
    _photos.scan(PhotoPermissionsHelper::photosFolder());
}

void ZKLPhotoPicker::viewWillDisappear(bool)
{
    _isShown = false;
    _loader.cancel();
    // The editor's fills would wait behind the thumbnails.
    _photos.cancel();
}

void ZKLPhotoPicker::watchFolders()
{
    QStringList folders{PhotoPermissionsHelper::photosFolder()};
    for (int row = 0; row < _photos.count() && folders.size() < mostWatchedFolders; ++row) {
        const QString path =
            QFileInfo(_photos.data(_photos.index(row), PhotoLibraryModel::PathRole).toString())
                .path();
        if (folders.last() != path && !folders.contains(path))
            folders.append(path);
    }
    const QStringList watched = _watcher.directories();
    for (const QString& folder : std::as_const(folders))
        if (!watched.contains(folder) && QFileInfo(folder).isDir())
            _watcher.addPath(folder);
}

void ZKLPhotoPicker::cancelButtonTapped()
{
    if (dismissBlock)
        dismissBlock();
}

void ZKLPhotoPicker::photoTapped(int row)
{
    const QModelIndex index = _photos.index(row);
    if (!index.isValid() || _loader.isBusy())
        return;
    _loadingRow = row;
    open({_photos.data(index, PhotoLibraryModel::PathRole).toString()});
}

void ZKLPhotoPicker::browseButtonTapped()
{
    if (!_dialogs.chooseImage)
        return;
    _dialogs.chooseImage([picker = QPointer(this)](const QString& path) {
        if (picker)
            picker->openUrls({QUrl::fromLocalFile(path)});
    });
}

void ZKLPhotoPicker::chooseFolderButtonTapped()
{
    if (!_dialogs.chooseFolder)
        return;
    _dialogs.chooseFolder([picker = QPointer(this)](const QString& folder) {
        if (!picker)
            return;
        if (!PhotoPermissionsHelper::isAuthorised(folder)) {
            picker->_loader.setMessage(localized("permission.message.denied").arg(folder));
            return;
        }
        PhotoPermissionsHelper::setPhotosFolder(folder);
        picker->_photos.scan(folder);
    });
}

void ZKLPhotoPicker::openUrls(const QList<QUrl>& urls)
{
    const QStringList paths = _loader.localFiles(urls);
    if (paths.isEmpty())
        return;
    _loadingRow = -1;
    open(paths);
}

void ZKLPhotoPicker::open(const QStringList& paths)
{
    _loader.loadFirst(paths, [this](const QImage& photo) {
        if (selectionBlock)
            selectionBlock(photo);
    });
}

void ZKLPhotoPicker::didScroll(double top, double height)
{
    if (!_isShown || cellSize() <= 0.0)
        return;
    const int first = std::max(0, static_cast<int>(std::floor(top / cellSize())));
    const int last = static_cast<int>(std::ceil((top + height) / cellSize())) + rowsAhead;
    _photos.setVisibleRows(first * columns(), (last - first) * columns());
}

LimitedModeHeaderView* ZKLPhotoPicker::limitedModeHeaderView()
{
    return _photos.status() == PermissionStatus::Limited ? &_limitedModeHeaderView : nullptr;
}

QString ZKLPhotoPicker::placeholder() const
{
    if (_photos.count() > 0)
        return {};
    const QString key = _photos.isScanning()     ? QStringLiteral("photopicker.scanning")
                        : _photos.isAuthorised() ? QStringLiteral("photopicker.empty")
                                                 : QStringLiteral("permission.message.denied");
    const QString text = localized(key);
    return text.contains(u"%1") ? text.arg(PhotoPermissionsHelper::photosFolder()) : text;
}

bool ZKLPhotoPicker::canChooseFolder() const
{
    return !_photos.isScanning() && _photos.count() == 0 && _dialogs.chooseFolder != nullptr;
}

int ZKLPhotoPicker::columnsForWidth(double width)
{
    return std::max(fewestColumns, static_cast<int>(std::round(width / idealCellSize)));
}

} // namespace pelmira
