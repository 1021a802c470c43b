#pragma once

#include "mask_editor/undo/ZKLUndoEntry.h"
#include "persistence/resume/MaskWriter.h"
#include "persistence/resume/WorkingImageWriter.h"
#include "platform/storage/UserDefaults.h"

#include <QImage>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace pelmira {

/// The photo under way and its mask, kept across the end of the process in two files:
///   workingImage.jpg  the photo as the editor got it
///   mask.data         the mask, of width × height bytes, as ZKLUndoEntry writes it
/// There is saved work if and only if both are there. Each file is replaced as a whole, so that
/// whoever looks at it sees its last state or the one before, and where what an earlier photo has
/// left can't be removed, nothing is put beside it. Where the folder can't be had, or another
/// process has it, every operation does nothing. Main thread only.
class ResumeWorkHelper {
public:
    /// Tells one photo's work from the next one's; it changes when work is cleared or replaced.
    using Session = std::uint64_t;

    /// The one of the process, made at first use, in the user's folder for application data.
    static ResumeWorkHelper& shared();

    /// The files lie in the folder "resume" inside the given one, which isn't made here. The flag
    /// that a thumbnail is being made is kept in the preferences, which outlive this. If it is
    /// still set, the process died of the files: they are cleared.
    ResumeWorkHelper(QString applicationSupportFolder, UserDefaults& defaults);
    ~ResumeWorkHelper();

    /// Null if the mask can't be read, for want of memory too, or is an earlier photo's.
    std::shared_ptr<ZKLUndoEntry> savedWorkUndoEntry() const { return maskReader()(); }
    /// Deletes both files, and drops a working image that is still to be written.
    void clearSavedWork();
    /// Packs and writes the mask in the background; the entry is nobody else's from now on. A mask
    /// of a session that is no longer the present one is dropped.
    void saveWorkMaskWithUndoEntry(MaskWriter::Entry entry, Session ofSession);
    Session session() const { return _session; }
    bool hasSavedWork() const;
    /// The cut-out: the image, its alpha the mask. Null if either file is damaged or they don't
    /// belong together, or if there is no memory for them: `lacksMemory` then. Decodes both, at
    /// full size.
    QImage savedWorkThumbnail();
    /// The last look found none: the files may be whole, and are worth keeping.
    bool lacksMemory() const;
    /// The same in the background, reduced to fit in so many pixels. The block is called on the
    /// main thread, unless this is gone by then.
    void savedWorkThumbnail(QSizeF bounds, std::function<void(const QImage&)> completion);
    /// Null if the file can't be read.
    QImage savedWorkImage() const { return imageReader()(); }
    /// What reads the image and the mask, on any thread, and needs this no longer.
    std::function<QImage()> imageReader() const;
    std::function<std::shared_ptr<ZKLUndoEntry>()> maskReader() const;
    /// Schedules the writing of a new working image and the clearing of what was there; encodes in
    /// the background.
    void saveWorkingImage(QImage image);
    /// Waits for a scheduled working image and mask to be on disk. For the process's end.
    void finishSaving();
    bool isSavingWorkingImage() const { return _imageWriter.isPending(); }
    bool isSavingMask() const { return _maskWriter.isPending(); }
    /// The block is called each time that the image or a mask of the present session couldn't be
    /// written: the mask is not kept, or is worth nothing. At once if that is so already. Only the
    /// first is news, until all is written again.
    void setFailedBlock(std::function<void(bool isNews)> block);
    /// Where the files lie, or would.
    QString folderPath() const;
    /// Another process had the folder when this was made.
    bool isHeldElsewhere() const;

    /// The path of the folder with the files, which is made if need be; nothing if it can't be.
    std::optional<QString> resumeDirectoryURL() const;

private:
    struct Files;

    bool writeMask(const ZKLUndoEntry& entry);
    void noteMask(bool isWritten, Session ofSession);
    void noteFailure();
    void noteThumbEnded();

    UserDefaults& _defaults;
    std::shared_ptr<const Files> _files;
    std::atomic<Session> _session = 0;
    bool _isLoadingThumb = false; ///< in the background
    bool _isFailing = false;      ///< the last that was to be written was not
    std::function<void(bool)> _failedBlock;
    const std::shared_ptr<ResumeWorkHelper*> _self; ///< for jobs that outlive this
    WorkingImageWriter _imageWriter;
    MaskWriter _maskWriter;
};

} // namespace pelmira
