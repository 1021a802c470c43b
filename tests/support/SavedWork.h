#pragma once

#include "persistence/resume/ResumeWorkHelper.h"
#include "support/Masks.h"

#include <QImage>

#include <optional>

namespace pelmira::test {

/// A photo under way and its mask.
struct SavedWork {
    QImage photo;
    Plane mask;
};

/// Leaves them as an earlier run would.
inline void saveWork(const QString& folder, UserDefaults& defaults, const SavedWork& work)
{
    ResumeWorkHelper earlier(folder, defaults);
    earlier.saveWorkingImage(work.photo);
    earlier.saveWorkMaskWithUndoEntry(entryOf(work.mask), earlier.session());
    earlier.finishSaving();
}

/// With its whole mask.
inline void saveWork(const QString& folder, UserDefaults& defaults, const QImage& photo)
{
    const Plane mask(std::size_t(photo.width()) * photo.height(), 255);
    saveWork(folder, defaults, SavedWork{photo, mask});
}

/// What the next launch would offer. Work that is broken has neither photo nor mask.
inline std::optional<SavedWork> savedWork(const QString& folder, UserDefaults& defaults)
{
    const ResumeWorkHelper work(folder, defaults);
    if (!work.hasSavedWork())
        return std::nullopt;
    const QImage photo = work.savedWorkImage();
    const auto entry = work.savedWorkUndoEntry();
    return !photo.isNull() && entry ? SavedWork{photo, planeOf(*entry)} : SavedWork();
}

} // namespace pelmira::test
