#include "persistence/resume/ResumeWorkHelper.h"

#include "platform/base/Log.h"
#include "platform/base/RunInBackground.h"
#include "platform/base/RunLoop.h"
#include "platform/image/Image.h"
#include "platform/pixels/AlphaPlane.h"
#include "platform/pixels/ImageResize.h"
#include "platform/pixels/PremultipliedAlpha.h"
#include "platform/storage/AtomicFile.h"
#include "platform/storage/FolderLock.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <new>
#include <sys/stat.h>
#include <system_error>
#include <utility>
#include <variant>

namespace pelmira {
namespace {

constexpr const char* workingImageName = "workingImage.jpg";
constexpr const char* maskName = "mask.data";
constexpr qint64 secondsForWriting = 600;

const QString loadingThumbKey = QStringLiteral("loadingThumb");

/// A file, or whatever else stands in its place, isn't there any more.
bool removed(const QString& path)
{
    std::error_code error;
    std::filesystem::remove_all(QFile::encodeName(path).toStdString(), error);
    return !error;
}

PixelSpan pixelsOf(QImage& image)
{
    return {reinterpret_cast<std::uint32_t*>(image.bits()),
            static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()),
            static_cast<std::uint32_t>(image.bytesPerLine())};
}

} // namespace

/// Where the files lie. Safe from any thread.
struct ResumeWorkHelper::Files {
    explicit Files(QString parent) : applicationSupportFolder(std::move(parent))
    {
        if (const auto path = madeFolder()) {
            const FolderLock::Outcome outcome = lock.take(*path);
            isOurs = outcome == FolderLock::Outcome::Taken;
            isHeldElsewhere = outcome == FolderLock::Outcome::HeldElsewhere;
        }
    }

    std::optional<QString> folder() const { return isOurs ? madeFolder() : std::nullopt; }
    std::optional<QString> madeFolder() const
    {
        if (!QFileInfo(applicationSupportFolder).isDir())
            return std::nullopt;
        const QString path = applicationSupportFolder + QStringLiteral("/resume");
        // From the second call on it exists. A photo under way is nobody else's business.
        ::mkdir(QFile::encodeName(path).constData(), 0700);
        if (!QFileInfo(path).isDir())
            return std::nullopt;
        return path;
    }
    std::optional<QString> in(const char* name) const
    {
        const std::optional<QString> path = folder();
        return path ? std::optional(*path + QLatin1Char('/') + QLatin1String(name)) : std::nullopt;
    }
    std::optional<QString> workingImage() const { return in(workingImageName); }
    std::optional<QString> mask() const { return in(maskName); }

    // The image first: a process that dies in between leaves a mask alone, which is no work.
    void clear() const
    {
        if (const auto path = workingImage())
            isImageForeign = !removed(*path);
        if (const auto path = mask())
            isMaskForeign = !removed(*path);
    }

    /// Temporary files of a process that was killed while it wrote. Another one may be writing now.
    void removeLeftovers() const
    {
        const std::optional<QString> path = folder();
        if (!path)
            return;
        const QDateTime recently = QDateTime::currentDateTime().addSecs(-secondsForWriting);
        for (const QFileInfo& file : QDir(*path).entryInfoList(QDir::Files | QDir::Hidden))
            if (file.fileName() != QLatin1String(workingImageName) &&
                file.fileName() != QLatin1String(maskName) &&
                file.fileName() != QLatin1String(FolderLock::fileName) &&
                file.lastModified() < recently)
                QFile::remove(file.filePath());
    }

    bool writeWorkingImage(const QByteArray& jpeg) const
    {
        const auto path = workingImage();
        if (!path || (isMaskForeign && !removed(*mask())))
            return false;
        isMaskForeign = false;
        if (writeFileAtomically(*path, jpeg, IfExists::Replace, Durability::OutlivesPowerCut))
            return false;
        isImageForeign = false;
        return true;
    }

    bool writeMask(const ZKLUndoEntry& entry) const
    {
        const auto path = mask();
        if (!path || isImageForeign)
            return false;
        bool isWritten = false;
        try {
            if (!entry.saveToURL(*path, &isWritten))
                logLine("saveWorkMask failed");
        } catch (const std::bad_alloc&) {
            logLine("No memory to write the mask");
        }
        if (isWritten)
            isMaskForeign = false;
        return isWritten;
    }

    QImage readImage() const
    {
        const auto path = workingImage();
        if (!path)
            return {};
        auto result = loadImage(*path);
        // It was made here, so it is too large only for now.
        const auto* problem = std::get_if<ImageProblem>(&result);
        lacksMemory = problem && *problem == ImageProblem::TooLarge;
        return problem ? QImage() : std::get<QImage>(std::move(result));
    }

    std::shared_ptr<ZKLUndoEntry> readMask() const
    try {
        const auto path = mask();
        return path && !isMaskForeign ? ZKLUndoEntry::initWithURL(*path) : nullptr;
    } catch (const std::bad_alloc&) {
        lacksMemory = true;
        return nullptr;
    }

    QImage cutOut() const
    {
        QImage image = readImage();
        const std::shared_ptr<ZKLUndoEntry> entry = image.isNull() ? nullptr : readMask();
        // A file may claim any length: it is looked at before memory is asked for. No image that
        // loads has more pixels than 31 bits count.
        if (!entry || entry->originalDataLen() != qint64{image.width()} * image.height())
            return {};
        const std::uint8_t* plane = entry->originalDataWithLengthPtr(nullptr);
        lacksMemory = !plane;
        if (lacksMemory)
            return {};
        const PixelSpan pixels = pixelsOf(image);
        restoreAlphaPlane(pixels, plane);
        premultiply(pixels, pixels);
        return image;
    }

    const QString applicationSupportFolder;
    FolderLock lock;
    bool isOurs = false;
    bool isHeldElsewhere = false;
    // An earlier photo's, which can't be removed.
    mutable std::atomic<bool> isImageForeign = false;
    mutable std::atomic<bool> isMaskForeign = false;
    mutable std::atomic<bool> lacksMemory = false;
};

ResumeWorkHelper& ResumeWorkHelper::shared()
{
    static ResumeWorkHelper helper(
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
            QStringLiteral("/pelmira"),
        UserDefaults::standardUserDefaults());
    return helper;
}

ResumeWorkHelper::ResumeWorkHelper(QString applicationSupportFolder, UserDefaults& defaults)
    : _defaults(defaults),
      _files(std::make_shared<const Files>(std::move(applicationSupportFolder))),
      _self(std::make_shared<ResumeWorkHelper*>(this)),
      _imageWriter([files = _files] { files->clear(); },
                   [this](const QByteArray& jpeg) {
                       // Without memory there is nothing to write.
                       const bool isWritten = !jpeg.isEmpty() && _files->writeWorkingImage(jpeg);
                       if (!isWritten)
                           noteFailure();
                       return isWritten;
                   }),
      _maskWriter([this, self = _self](const ZKLUndoEntry& mask) {
          const bool isWritten = writeMask(mask);
          mainQueue().async([self, isWritten, session = _session.load()] {
              if (*self)
                  (*self)->noteMask(isWritten, session);
          });
      })
{
    _files->removeLeftovers();
    if (!_files->isOurs || !_defaults.boolForKey(loadingThumbKey).value_or(false))
        return;
    logLine("possible corruption: clearSavedWork");
    clearSavedWork();
    _defaults.setBool(false, loadingThumbKey);
}

ResumeWorkHelper::~ResumeWorkHelper()
{
    noteThumbEnded();
    *_self = nullptr;
}

std::optional<QString> ResumeWorkHelper::resumeDirectoryURL() const
{
    return _files->folder();
}

std::function<QImage()> ResumeWorkHelper::imageReader() const
{
    return [files = _files] { return files->readImage(); };
}

std::function<std::shared_ptr<ZKLUndoEntry>()> ResumeWorkHelper::maskReader() const
{
    return [files = _files] { return files->readMask(); };
}

void ResumeWorkHelper::clearSavedWork()
{
    _maskWriter.cancel();
    _imageWriter.cancel();
    ++_session;
    _isFailing = false;
    _files->clear();
}

void ResumeWorkHelper::saveWorkMaskWithUndoEntry(MaskWriter::Entry entry, Session ofSession)
{
    if (ofSession == _session)
        _maskWriter.schedule(std::move(entry));
}

// On any thread.
bool ResumeWorkHelper::writeMask(const ZKLUndoEntry& entry)
{
    _imageWriter.clearIfStillDue();
    return _files->writeMask(entry);
}

// A mask that was written shows that there may be room for the image, too.
void ResumeWorkHelper::noteMask(bool isWritten, Session ofSession)
{
    if (ofSession != _session)
        return;
    if (!isWritten) {
        noteFailure();
        return;
    }
    _imageWriter.retry();
    _isFailing = _imageWriter.hasUnwritten();
}

void ResumeWorkHelper::noteFailure()
{
    const bool isNews = !std::exchange(_isFailing, true);
    if (_failedBlock && !isHeldElsewhere())
        _failedBlock(isNews);
}

void ResumeWorkHelper::setFailedBlock(std::function<void(bool)> block)
{
    _failedBlock = std::move(block);
    if (_isFailing && _failedBlock && !isHeldElsewhere())
        _failedBlock(true);
}

QString ResumeWorkHelper::folderPath() const
{
    return _files->applicationSupportFolder + QStringLiteral("/resume");
}

bool ResumeWorkHelper::hasSavedWork() const
{
    const auto exists = [](const std::optional<QString>& path) {
        return path && QFileInfo::exists(*path);
    };
    return exists(_files->workingImage()) && exists(_files->mask()) && !_files->isMaskForeign;
}

QImage ResumeWorkHelper::savedWorkThumbnail()
{
    _defaults.setBool(true, loadingThumbKey);
    QImage image = _files->cutOut();
    _defaults.setBool(false, loadingThumbKey);
    return image;
}

void ResumeWorkHelper::savedWorkThumbnail(QSizeF bounds,
                                          std::function<void(const QImage&)> completion)
{
    _defaults.setBool(true, loadingThumbKey);
    _isLoadingThumb = true;
    runInBackground(
        [files = _files, bounds] {
            const QImage whole = files->cutOut();
            QImage thumbnail = resizedImageWithContentMode(whole, bounds);
            if (!whole.isNull() && thumbnail.isNull())
                files->lacksMemory = true;
            return thumbnail;
        },
        [self = _self, completion = std::move(completion)](const QImage& thumbnail) {
            if (!*self)
                return;
            (*self)->noteThumbEnded();
            completion(thumbnail);
        });
}

bool ResumeWorkHelper::lacksMemory() const
{
    return _files->lacksMemory;
}

void ResumeWorkHelper::noteThumbEnded()
{
    if (std::exchange(_isLoadingThumb, false))
        _defaults.setBool(false, loadingThumbKey);
}

void ResumeWorkHelper::saveWorkingImage(QImage image)
{
    _maskWriter.cancel();
    ++_session;
    _isFailing = false;
    _imageWriter.schedule(std::move(image));
}

void ResumeWorkHelper::finishSaving()
{
    noteThumbEnded(); // if the process ends now, the files aren't to blame
    _maskWriter.finish();
    _imageWriter.finish();
    _imageWriter.retry();
}

bool ResumeWorkHelper::isHeldElsewhere() const
{
    return _files->isHeldElsewhere;
}

} // namespace pelmira
