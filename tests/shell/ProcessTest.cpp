#include "platform/portal/ApplicationService.h"
#include "platform/portal/FakePortal.h"
#include "platform/storage/FolderLock.h"
#include "support/ProcessHome.h"
#include "support/SavedWork.h"
#include "support/Test.h"

#include <QDBusConnectionInterface>
#include <QProcess>
#include <QTest>

// Processes of the real application, without a screen and with a home of their own.

namespace pelmira {
namespace {

constexpr int patience = 30000;

struct ProcessTest : testing::Test {
    using Process = std::unique_ptr<QProcess>;

    ProcessTest()
    {
        environment.insert(u"XDG_RUNTIME_DIR"_s, home.path("run"));
        environment.insert(u"QT_QUICK_BACKEND"_s, u"software"_s);
        environment.remove(u"DISPLAY"_s);
        QDir().mkpath(home.path("Pictures"));
        QDir().mkpath(data);
        QDir().mkdir(home.path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    Process start(const QStringList& arguments) const
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->setWorkingDirectory(home.path());
        process->start(QStringLiteral(PELMIRA), arguments);
        EXPECT_TRUE(process->waitForStarted());
        return process;
    }
    int exitCode(QProcess& process) const
    {
        EXPECT_TRUE(process.waitForFinished(patience));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }
    static bool says(QProcess& process, const QByteArray& text)
    {
        QByteArray said;
        return QTest::qWaitFor(
            [&] { return (said += process.readAllStandardError()).contains(text); }, patience);
    }
    bool isHeld() const
    {
        const QString folder = data + u"/resume"_s;
        return QDir(folder).exists() &&
               FolderLock().take(folder) == FolderLock::Outcome::HeldElsewhere;
    }
    void saveWork()
    {
        UserDefaults defaults(home.path("preferences.json"));
        const QImage photo = plainImage({60, 40}, Qt::darkCyan);
        test::saveWork(data, defaults, photo);
        photo.save(home.path("photo.png"));
    }
    QByteArray work() const
    {
        return home.read(data + u"/resume/workingImage.jpg"_s) +
               home.read(data + u"/resume/mask.data"_s);
    }

    const TemporaryFolder home;
    const QString data = home.path(".local/share/pelmira");
    QProcessEnvironment environment = test::environmentIn(home, "offscreen");
};

TEST_F(ProcessTest, ASecondStartHandsItsPhotosOverAndEnds)
{
    // Before any child: those of the toolkit begin in our own memory, and leave the thread
    // sanitizer blind.
    saveWork();
    test::PrivateBus bus;
    ASSERT_TRUE(bus.start()) << "no dbus-daemon";
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
    const QDBusConnection watcher = bus.connect("watcher");
    const auto isRunning = [&] {
        return watcher.interface()->isServiceRegistered(ApplicationService::serviceName()).value();
    };
    const QByteArray before = work();
    const Process first = start({});
    ASSERT_TRUE(QTest::qWaitFor(isRunning, patience));
    for (const QStringList& arguments :
         {QStringList{u"none.jpg"_s}, QStringList{u"--"_s, u"-none.jpg"_s},
          QStringList{u"file://"_s + home.path("none%20.jpg")}}) {
        const Process second = start(arguments);
        EXPECT_EQ(exitCode(*second), 0);
    }
    EXPECT_EQ(exitCode(*start({})), 0);
    EXPECT_EQ(work(), before);
    EXPECT_TRUE(says(*first, "none .jpg was not found."));

    first->kill();
    first->waitForFinished(patience);
    EXPECT_EQ(work(), before);
    const Process next = start({});
    ASSERT_TRUE(QTest::qWaitFor([this] { return isHeld(); }, patience));
    EXPECT_TRUE(isRunning());
    next->terminate();
    EXPECT_EQ(exitCode(*next), 0);
}

TEST_F(ProcessTest, WithoutABusTheSecondLeavesTheFirstOnesWorkAlone)
{
    saveWork();
    const QByteArray before = work();
    const Process first = start({});
    ASSERT_TRUE(QTest::qWaitFor([this] { return isHeld(); }, patience));
    const Process second = start({u"photo.png"_s});
    EXPECT_TRUE(says(*second, "Pelmira is open elsewhere"));
    second->terminate();
    EXPECT_EQ(exitCode(*second), 0);
    EXPECT_EQ(work(), before);
    first->terminate();
    EXPECT_EQ(exitCode(*first), 0);
    EXPECT_EQ(work(), before);
}

TEST_F(ProcessTest, TheCommandLineIsAnsweredInATerminal)
{
    const Process help = start({u"--help"_s});
    EXPECT_EQ(exitCode(*help), 0);
    EXPECT_TRUE(help->readAllStandardOutput().contains("--version"));
    const Process wrong = start({u"--frob"_s});
    EXPECT_EQ(exitCode(*wrong), 2);
    EXPECT_EQ(wrong->readAllStandardError().count('\n'), 1);

    environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
    const Process blind = start({});
    EXPECT_EQ(exitCode(*blind), 1);
    EXPECT_EQ(blind->readAllStandardError().count('\n'), 1);
    const Process version = start({u"--version"_s});
    EXPECT_EQ(exitCode(*version), 0);
}

} // namespace
} // namespace pelmira
