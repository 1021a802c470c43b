#include "support/Test.h"

// An editing session as the files see it, to be killed: it opens photos, changes their masks and
// saves its work at random for as long as it lives. Before and after each change of what lies on
// disk it says so in a journal:
//   begin PHOTO MASK    from now on this may be the saved work
//   done PHOTO MASK     this is the saved work
// Photo 0 is no work at all.

#include "persistence/resume/KilledSession.h"

#include "platform/base/Log.h"
#include "support/SavedWork.h"
#include "support/Test.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <unistd.h>

namespace pelmira {
namespace {

class Session {
public:
    Session(const QString& folder, unsigned seed)
        : _random(seed), _defaults(folder + QStringLiteral("/preferences.json")),
          _helper(folder, _defaults),
          _journal(::open(qPrintable(test::journalIn(folder)), O_WRONLY | O_APPEND | O_CREAT, 0600))
    {
    }

    [[noreturn]] void run(unsigned resumedPhoto)
    {
        _photo = resumedPhoto;
        if (_photo == 0)
            openNewPhoto();
        else if (_helper.savedWorkImage().isNull() || !_helper.savedWorkUndoEntry())
            std::_Exit(4);
        for (;;) {
            if (random(12) == 0) {
                openNewPhoto();
            } else {
                change();
                moveToBackground();
            }
            if (_helper.isSavingWorkingImage() || !drainMainQueue())
                std::this_thread::sleep_for(std::chrono::microseconds(random(3000)));
            noteArrival();
        }
    }

private:
    unsigned random(unsigned count) { return static_cast<unsigned>(_random()) % count; }

    void note(const char* what, unsigned photo)
    {
        const std::uint64_t mask = photo ? test::fingerprint(_mask) : 0;
        const std::string line =
            std::string(what) + ' ' + std::to_string(photo) + ' ' + std::to_string(mask) + '\n';
        if (::write(_journal, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            std::_Exit(3);
    }

    void openNewPhoto()
    {
        _photo = 1 + random(1'000'000);
        _isOnItsWay = false; // a mask that still waited for its image goes with the old photo
        note("begin", 0);
        _helper.clearSavedWork();
        note("done", 0);
        _helper.saveWorkingImage(test::numberedPhoto(_photo));
    }

    void change()
    {
        const std::size_t from = random(640 * 480);
        const std::size_t count = random(static_cast<unsigned>(_mask.size() - from));
        const bool isSoft = random(2) == 0; // which packs badly
        for (std::size_t i = from; i < from + count; ++i)
            _mask[i] = static_cast<std::uint8_t>(isSoft ? _random() : _photo);
    }

    void moveToBackground()
    {
        note("begin", _photo);
        _helper.saveWorkMaskWithUndoEntry(test::entryOf(_mask), _helper.session());
        if (random(2) == 0)
            _helper.finishSaving();
        _isOnItsWay = true;
        noteArrival();
    }

    /// Work is saved when its image is there too.
    void noteArrival()
    {
        if (!_helper.isSavingWorkingImage() && !_helper.isSavingMask() &&
            std::exchange(_isOnItsWay, false))
            note("done", _photo);
    }

    std::mt19937 _random;
    UserDefaults _defaults;
    ResumeWorkHelper _helper;
    const int _journal;
    unsigned _photo = 0;
    test::Plane _mask = test::Plane(640 * 480, 255);
    bool _isOnItsWay = false;
};

} // namespace
} // namespace pelmira

// FOLDER SEED PHOTO, the last being the one to resume, or 0.
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 4)
        return 2;
    pelmira::setLogSink([](const std::string&) {});
    pelmira::Session session(QString::fromLocal8Bit(argv[1]),
                             static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
    session.run(static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10)));
}
