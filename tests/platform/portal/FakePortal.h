#pragma once

#include "support/Test.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QVariantList>
#include <QVariantMap>

namespace pelmira::test {

/// A bus of the test's own, which goes with it.
class PrivateBus {
public:
    /// False where no dbus-daemon is installed.
    bool start();
    ~PrivateBus();
    QDBusConnection connect(const char* name);
    const QString& address() const { return _address; }
    /// The daemon ends, and whoever is connected is alone.
    void die();

private:
    QProcess _daemon;
    QString _address;
    QStringList _names;
};

/// Stands for the desktop's portals, the file manager too. It answers as it is told to.
class FakePortal final : public QDBusVirtualObject {
    Q_OBJECT

public:
    enum class Manner {
        Answer,
        AnswerBeforeReturn, ///< the signal overtakes the method's reply
        Refuse,
        LeaveOpen, ///< as long as the user does nothing
        Ignore,    ///< takes the call and never says so
    };

    explicit FakePortal(const QDBusConnection& bus);

    Manner manner = Manner::Answer;
    uint response = 0;
    QVariantMap results;

    QString method; ///< the last one called
    QVariantList arguments;
    QByteArray passedFile; ///< contents of the descriptor passed along
    int closed = 0;
    int calls = 0;
    /// Called with the number of each call before it is answered.
    std::function<void(int number)> calledBlock;

    void leave();
    void send(const QDBusMessage& signal) { _bus.send(signal); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    void respond(const QString& path);

    QDBusConnection _bus;
};

/// A test on a bus of its own, with the portal on one connection and us on another.
class OnAPrivateBus : public testing::Test {
protected:
    void SetUp() override
    {
        if (!bus.start())
            GTEST_SKIP() << "no dbus-daemon";
        portal = std::make_unique<FakePortal>(bus.connect("portal"));
        ours.emplace(bus.connect("ours"));
        ASSERT_TRUE(ours->isConnected());
        begin();
    }
    /// Where there is a bus.
    virtual void begin() {}
    PrivateBus bus;
    std::unique_ptr<FakePortal> portal;
    std::optional<QDBusConnection> ours;
};

} // namespace pelmira::test
