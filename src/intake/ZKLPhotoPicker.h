#pragma once

#include "intake/FileDialogs.h"
#include "intake/LimitedModeHeaderView.h"
#include "intake/PhotoLibraryModel.h"
#include "intake/PhotoLoader.h"
#include "platform/base/RunLoop.h"
#include "platform/screen/Screen.h"

#include <QFileSystemWatcher>
#include <QImage>
#include <QString>
#include <QUrl>

#include <functional>

namespace pelmira {

/// The library browser: a grid of the user's photos, newest first, kept true while it is shown. A
/// chosen photo is read here, and given upright at its full size.
class ZKLPhotoPicker final : public Screen {
    Q_OBJECT
    Q_PROPERTY(pelmira::PhotoLibraryModel* photos READ photos CONSTANT)
    Q_PROPERTY(pelmira::PhotoLoader* loader READ loader CONSTANT)
    Q_PROPERTY(pelmira::LimitedModeHeaderView* limitedModeHeaderView READ limitedModeHeaderView
                   NOTIFY photosChanged)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY photosChanged)
    Q_PROPERTY(bool canChooseFolder READ canChooseFolder NOTIFY photosChanged)
    Q_PROPERTY(int columns READ columns NOTIFY layoutChanged)
    Q_PROPERTY(double cellSize READ cellSize NOTIFY layoutChanged)
    Q_PROPERTY(int loadingRow READ loadingRow NOTIFY loadingRowChanged)

public:
    explicit ZKLPhotoPicker(FileDialogs dialogs);

    /// The user goes back without a photo.
    std::function<void()> dismissBlock;
    std::function<void(const QImage& photo)> selectionBlock;

    Q_INVOKABLE void cancelButtonTapped();
    Q_INVOKABLE void photoTapped(int row);
    /// The system's file dialog.
    Q_INVOKABLE void browseButtonTapped();
    /// Another folder in place of one that can't be read.
    Q_INVOKABLE void chooseFolderButtonTapped();
    /// Dropped files.
    Q_INVOKABLE void openUrls(const QList<QUrl>& urls);
    /// What part of the grid is seen, in points from its top.
    Q_INVOKABLE void didScroll(double top, double height);

    QUrl layoutFile() const override;
    void viewWillAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;
    void viewDidLayoutSubviews() override { Q_EMIT layoutChanged(); }

    PhotoLibraryModel* photos() { return &_photos; }
    PhotoLoader* loader() { return &_loader; }
    /// Nothing where photos can be added.
    LimitedModeHeaderView* limitedModeHeaderView();
    /// What to say in place of photos; empty if there are any.
    QString placeholder() const;
    bool canChooseFolder() const;
    /// Cells are squares that fill the width.
    int columns() const { return columnsForWidth(viewSize().width()); }
    double cellSize() const { return viewSize().width() / columns(); }
    static int columnsForWidth(double width);
    /// Of the photo that is being read, or -1.
    int loadingRow() const { return _loader.isBusy() ? _loadingRow : -1; }

Q_SIGNALS:
    void photosChanged();
    void layoutChanged();
    void loadingRowChanged();

private:
    void open(const QStringList& paths);
    void watchFolders();

    const FileDialogs _dialogs;
    PhotoLibraryModel _photos;
    PhotoLoader _loader;
    LimitedModeHeaderView _limitedModeHeaderView;
    QFileSystemWatcher _watcher;
    Timer _rescan;
    bool _isShown = false;
    int _loadingRow = -1;
};

} // namespace pelmira
