#pragma once

#include "mask_editor/undo/ZKLUndoEntry.h"
#include "persistence/resume/WorkingImageWriter.h"
#include "platform/storage/UserDefaults.h"

#include <QImage>
#include <QString>

#include <memory>
#include <optional>

namespace pelmira {

/// The photo under way and its mask, kept across the end of the process in two files:
///   workingImage.jpg  the photo as the editor got it
///   mask.data         the mask, of width × height bytes, as ZKLUndoEntry writes it
/// There is saved work if and only if both are there. Each file is replaced as a whole, so that
/// whoever looks at it sees its last state or the one before. No failure is reported beyond what
/// the results say: where the folder can't be had, every operation does nothing. Main thread only.
class ResumeWorkHelper {
public:
    /// The one of the process, made at first use, in the user's folder for application data.
    static ResumeWorkHelper& shared();

    /// The files lie in the folder "resume" inside the given one, which isn't made here. The flag
    /// that a thumbnail is being made is kept in the preferences, which outlive this. If it is
    /// still set, the process died of the files: they are cleared.
    ResumeWorkHelper(QString applicationSupportFolder, UserDefaults& defaults);

    std::shared_ptr<ZKLUndoEntry> savedWorkUndoEntry() const;
    /// Deletes both files, and drops a working image that is still to be written.
    void clearSavedWork();
    void saveWorkMaskWithUndoEntry(const ZKLUndoEntry& entry);
    bool hasSavedWork() const;
    /// The cut-out: the image, its alpha the mask. Null if either file is damaged or they don't
    /// belong together. Decodes both, at full size.
    QImage savedWorkThumbnail();
    /// Null if the file can't be read.
    QImage savedWorkImage() const;
    /// Schedules the writing of a new working image and the clearing of what was there; encodes in
    /// the background.
    void saveWorkingImage(QImage image);
    /// Waits for a scheduled working image to be on disk. For the process's end.
    void finishSavingWorkingImage() { _writer.finish(); }
    bool isSavingWorkingImage() const { return _writer.isPending(); }

    /// The path of the folder with the files, which is made if need be; nothing if it can't be.
    std::optional<QString> resumeDirectoryURL() const;

private:
    struct Files;

    QImage cutOut() const;

    UserDefaults& _defaults;
    std::shared_ptr<const Files> _files;
    WorkingImageWriter _writer;
};

} // namespace pelmira
