#include "platform/portal/CameraPortal.h"
#include "platform/portal/FakePortal.h"
#include "platform/portal/FileChooser.h"
#include "platform/portal/MailComposer.h"
#include "platform/portal/OpenURI.h"
#include "platform/portal/PageOpener.h"
#include "support/Test.h"

#include <QFile>
#include <QTest>

#include <iostream>

namespace pelmira {
namespace {

using test::FakePortal;
using Manner = FakePortal::Manner;

enum class Fault {
    Error,
    Silence,       ///< never a reply
    ServiceLeaves, ///< the dialog stands open, and its service ends
    BusDies,
};

/// All that the application asks of the bus, one after the other, in a session of its own.
class AskingSession {
public:
    AskingSession(const QString& file, Fault fault, int nth) : _file(file)
    {
        if (!_bus.start())
            return;
        _portal = std::make_unique<FakePortal>(_bus.connect("portal"));
        _portal->results.insert(u"uris"_s, QStringList{u"file:///tmp/photo.png"_s});
        _portal->calledBlock = [this, fault, nth](int number) {
            _portal->manner = Manner::Answer;
            if (number == nth)
                commit(fault);
        };
    }
    bool hasBus() const { return _portal != nullptr; }
    int calls() const { return _portal->calls; }

    /// What was asked and got other than exactly one answer.
    QStringList play()
    {
        const QDBusConnection ours = _bus.connect("ours");
        FileChooser chooser(ours);
        OpenURI openURI(ours);
        PageOpener pages(ours);
        MailComposer mails(ours);
        CameraPortal camera(ours);
        const auto told = [this](PortalOutcome) { ++_answers; };
        const auto presented = [this](bool) { ++_answers; };
        const auto chosen = [this](PortalOutcome, const QString&) { ++_answers; };
        ask(u"file"_s, [&] { chooser.chooseFile(nullptr, u"Open"_s, {}, chosen); });
        ask(u"folder"_s, [&] { chooser.chooseFolder(nullptr, u"Open"_s, chosen); });
        ask(u"hand over"_s, [&] { openURI.openWith(nullptr, _file, told); });
        ask(u"show"_s, [&] { openURI.openDirectory(nullptr, _file, told); });
        ask(u"page"_s,
            [&] { pages.openPage(nullptr, QUrl(u"https://example.org/"_s), presented); });
        ask(u"mail"_s, [&] { mails.compose(nullptr, {u"a@example.org"_s, {}, {}}, presented); });
        ask(u"camera"_s,
            [&] { camera.requestAccess([this](CameraPortal::Access) { ++_answers; }); });
        return _unanswered;
    }

private:
    void commit(Fault fault)
    {
        _portal->manner = fault == Fault::Error     ? Manner::Refuse
                          : fault == Fault::Silence ? Manner::Ignore
                                                    : Manner::LeaveOpen;
        if (_portal->manner == Manner::LeaveOpen) // and then
            QMetaObject::invokeMethod(
                _portal.get(),
                [this, fault] { fault == Fault::BusDies ? _bus.die() : _portal->leave(); },
                Qt::QueuedConnection);
    }

    void ask(const QString& what, const std::function<void()>& question)
    {
        _answers = 0;
        question();
        if (!QTest::qWaitFor([this] { return _answers == 1; }, 20000))
            _unanswered << what;
    }

    const QString _file;
    test::PrivateBus _bus;
    std::unique_ptr<FakePortal> _portal;

    QStringList _unanswered;
    int _answers = 0;
};

TEST(BusFaultTest, WhicheverCallFailsEveryQuestionIsAnswered)
{
    const TemporaryFolder folder;
    const QString file = folder.write("image.png", "pixels");
    QFile program(folder.write("xdg-open", "#!/bin/sh\nexit 0\n"));
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()) + ":/usr/bin:/bin");

    AskingSession undisturbed(file, Fault::Error, 0);
    if (!undisturbed.hasBus())
        GTEST_SKIP() << "no dbus-daemon";
    EXPECT_TRUE(undisturbed.play().isEmpty());
    const int calls = undisturbed.calls();
    ASSERT_GE(calls, 7);

    const bool isWhole = qgetenv("PELMIRA_FAULTS") == "all";
    int sessions = 0;
    for (const Fault fault : {Fault::Error, Fault::ServiceLeaves, Fault::BusDies, Fault::Silence}) {
        // One that is waited for in vain takes its time.
        const int step = isWhole ? 1 : fault == Fault::Silence ? calls : 3;
        for (int nth = isWhole ? 1 : 2; nth <= calls; nth += step) {
            AskingSession session(file, fault, nth);
            const QStringList unanswered = session.play();
            EXPECT_TRUE(unanswered.isEmpty()) << "fault " << static_cast<int>(fault) << " of call "
                                              << nth << ": " << qPrintable(unanswered.join(u", "));
            ++sessions;
        }
    }
    qputenv("PATH", path);
    std::cout << calls << " calls, " << sessions << " sessions" << std::endl;
}

} // namespace
} // namespace pelmira
