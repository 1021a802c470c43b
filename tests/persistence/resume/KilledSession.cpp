// An editing session without a window, to be killed: it opens photos, fills, paints, inverts,
// undoes and saves its work at random for as long as it lives. Before and after each change of what
// lies on disk it says so in a journal:
//   begin PHOTO MASK    from now on this may be the saved work
//   done PHOTO MASK     this is the saved work
// Photo 0 is no work at all.
//
// In front, it never leaves the foreground and saves nothing itself: it rests between two changes,
// and the lines are
//   changed PHOTO MASK  the mask that is seen
//   settled PHOTO MASK  it has been for two seconds

#include "persistence/resume/KilledSession.h"

#include "controls/InterfaceButton.h"
#include "mask_editor/drawing/MaskInverter.h"
#include "mask_editor/tools/EditorTools.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "persistence/resume/MaskSaver.h"
#include "persistence/resume/ResumeWorkHelper.h"
#include "platform/base/Log.h"
#include "platform/base/RunLoop.h"
#include "platform/gl/GLContext.h"
#include "platform/gl/OffscreenGLView.h"

#include <QCoreApplication>
#include <QFile>

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <thread>
#include <unistd.h>
#include <utility>

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
        if (resumedPhoto != 0)
            resume(resumedPhoto);
        else
            openNewPhoto();
        for (;;) {
            act();
            if (_helper.isSavingWorkingImage() || !drainMainQueue())
                std::this_thread::sleep_for(std::chrono::microseconds(random(3000)));
            noteArrival();
        }
    }

    [[noreturn]] void runInFront()
    {
        openNewPhoto();
        OGLESMappedTexture& surface = *_engine.canvas.fgMappedTexture;
        MaskSaver saver({[&surface] { return surface.isReady(); },
                         [&surface] { return surface.changeCount(); },
                         [this] {
                             _helper.saveWorkMaskWithUndoEntry(_engine.history.getUndoBuffer(),
                                                               _helper.session());
                             return true;
                         }});
        surface.changedBlock = [&saver] { saver.maskChanged(); };
        saver.maskChanged();
        for (;;) {
            _mask = fingerprint();
            note("changed", _photo, _mask);
            rest(std::chrono::milliseconds(random(2) == 0 ? 2100 : random(1500)));
            saver.setFingerDown(true);
            change();
            settle();
            saver.setFingerDown(false);
        }
    }

private:
    using Clock = std::chrono::steady_clock;

    std::uint64_t fingerprint()
    {
        std::int32_t length = 0;
        const auto entry = _engine.history.getUndoBuffer();
        const std::uint8_t* plane = entry->originalDataWithLengthPtr(&length);
        return test::fingerprint(plane, static_cast<std::size_t>(length));
    }

    void rest(Clock::duration time)
    {
        const auto begin = Clock::now();
        bool isSettled = false;
        while (Clock::now() < begin + time) {
            if (!drainMainQueue())
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            if (!isSettled && Clock::now() >= begin + std::chrono::seconds(2)) {
                note("settled", _photo, _mask);
                isSettled = true;
            }
        }
    }

    unsigned random(unsigned count) { return static_cast<unsigned>(_random()) % count; }

    void note(const char* what, unsigned photo, std::uint64_t mask)
    {
        const std::string line =
            std::string(what) + ' ' + std::to_string(photo) + ' ' + std::to_string(mask) + '\n';
        if (::write(_journal, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
            std::_Exit(3);
    }

    void resume(unsigned photo)
    {
        const QImage image = _helper.savedWorkImage();
        const std::shared_ptr<ZKLUndoEntry> entry = _helper.savedWorkUndoEntry();
        if (image.isNull() || !entry)
            std::_Exit(4);
        _photo = photo;
        _engine.canvas.initialiseWithImage(image);
        _engine.history.addLevel(entry);
        _engine.history.undo();
    }

    void openNewPhoto()
    {
        settle();
        _photo = 1 + random(1'000'000);
        _isOnItsWay = false; // a mask that still waited for its image goes with the old photo
        note("begin", 0, 0);
        _helper.clearSavedWork();
        note("done", 0, 0);
        _helper.saveWorkingImage(test::numberedPhoto(_photo));
        _view.setNeedsDisplay();
        _view.displayIfNeeded();
        _engine.canvas.initialiseWithImage(test::numberedPhoto(_photo));
        _engine.history.clearUndo();
    }

    void act()
    {
        if (const unsigned what = random(12); what == 0)
            openNewPhoto();
        else if (what < 8)
            change();
        else
            moveToBackground();
    }

    void change()
    {
        settle();
        switch (random(7)) {
        case 0:
        case 1:
        case 2:
            _engine.wand.floodFillPoint(QPointF(random(640), random(480)), random(256));
            break;
        case 3:
        case 4:
            stroke();
            break;
        case 5:
            _engine.history.saveUndoBuffer();
            maskInvert(_engine.canvas, _engine.shaders, _engine.reader);
            break;
        default:
            _engine.history.undo();
        }
    }

    void stroke()
    {
        TouchEvent event;
        event.allTouches.push_back({0, QPointF(random(390), 270 + random(300))});
        BrushTool& brush = random(2) == 0 ? _tools.erase : _tools.replace;
        brush.handleBrushEvent(event, TouchBegan);
        for (int i = 0; i < 4; ++i) {
            event.allTouches.front().location += QPointF(random(60), random(60)) - QPointF(30, 30);
            brush.handleBrushEvent(event, TouchMoved);
        }
        brush.handleBrushEvent(event, TouchEnded);
    }

    /// Also in the middle of a fill, which has the surface: then there is nothing to save.
    void moveToBackground()
    {
        const std::shared_ptr<ZKLUndoEntry> entry = _engine.history.getUndoBuffer();
        if (!entry)
            return;
        std::int32_t length = 0;
        const std::uint8_t* plane = entry->originalDataWithLengthPtr(&length);
        _mask = test::fingerprint(plane, static_cast<std::size_t>(length));
        note("begin", _photo, _mask);
        _helper.saveWorkMaskWithUndoEntry(entry, _helper.session());
        if (random(2) == 0)
            _helper.finishSaving();
        _isOnItsWay = true;
        noteArrival();
    }

    /// Work is saved when its image is there too.
    void noteArrival()
    {
        if (_helper.isSavingWorkingImage() || _helper.isSavingMask())
            return;
        if (std::exchange(_isOnItsWay, false))
            note("done", _photo, _mask);
    }

    void settle()
    {
        while (_engine.canvas.fgMappedTexture && !_engine.canvas.readySurface())
            if (!drainMainQueue())
                std::this_thread::sleep_for(std::chrono::microseconds(200));
    }

    std::mt19937 _random;
    UserDefaults _defaults;
    ResumeWorkHelper _helper;
    const int _journal;
    OffscreenGLView _view{{390, 844}, 1.0};
    MaskEditorEngine _engine{_view, GLContext::surfaceless(), _defaults};
    InterfaceButton _brushAdjustButton;
    EditorTools _tools{_engine, _brushAdjustButton, [](bool) {}};
    unsigned _photo = 0;
    std::uint64_t _mask = 0;
    bool _isOnItsWay = false;
};

} // namespace
} // namespace pelmira

// FOLDER SEED PHOTO, the last being the one to resume, or 0; or FOLDER SEED front.
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    if (argc != 4)
        return 2;
    pelmira::setLogSink([](const std::string&) {});
    pelmira::Session session(QString::fromLocal8Bit(argv[1]),
                             static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
    if (argv[3] == std::string_view("front"))
        session.runInFront();
    session.run(static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10)));
}
