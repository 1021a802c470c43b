#pragma once

#include "persistence/resume/ResumeWorkHelper.h"
#include "support/Masks.h"

#include <QImage>

namespace pelmira::test {

/// Leaves a photo and its whole mask as an earlier run would.
inline void saveWork(const QString& folder, UserDefaults& defaults, const QImage& photo)
{
    ResumeWorkHelper earlier(folder, defaults);
    earlier.saveWorkingImage(photo);
    earlier.finishSaving();
    const Plane mask(std::size_t(photo.width()) * photo.height(), 255);
    earlier.saveWorkMaskWithUndoEntry(entryOf(mask), earlier.session());
    earlier.finishSaving();
}

} // namespace pelmira::test
