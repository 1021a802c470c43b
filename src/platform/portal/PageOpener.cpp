#include "platform/portal/PageOpener.h"

#include <QProcess>
#include <QTimer>

#include <utility>

namespace pelmira {
namespace {

/// The program ends at once when it has no way to open the page. One that goes on has become the
/// browser, as happens outside of a desktop.
constexpr int millisecondsToFail = 4000;

} // namespace

PageOpener::PageOpener(QDBusConnection bus) : _bus(std::move(bus))
{
}

PageOpener::~PageOpener()
{
    if (_program)
        _program->disconnect(this);
}

void PageOpener::openPage(const QWindow* parent, const QUrl& page, Completion completion)
{
    _completion = nullptr; // of what was opened before
    _request = std::make_unique<PortalRequest>(
        _bus, QStringLiteral("OpenURI"), QStringLiteral("OpenURI"),
        QVariantList{parentWindowIdentifier(parent), page.toString(QUrl::FullyEncoded)},
        QVariantMap(),
        [this, page, completion = std::move(completion)](PortalOutcome outcome,
                                                         const QVariantMap&) {
            if (outcome == PortalOutcome::Unavailable)
                openWithProgram(page, completion);
            else
                completion(true);
        });
}

void PageOpener::openWithProgram(const QUrl& page, Completion completion)
{
    if (_program)
        _program->disconnect(this);
    _completion = std::move(completion);
    auto* program = new QProcess;
    _program = program;
    program->setStandardInputFile(QProcess::nullDevice());
    program->setStandardOutputFile(QProcess::nullDevice());
    program->setStandardErrorFile(QProcess::nullDevice());
    connect(program, &QProcess::finished, program, &QObject::deleteLater);
    connect(program, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        finish(status == QProcess::NormalExit && code == 0);
    });
    connect(program, &QProcess::errorOccurred, program, [program](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            program->deleteLater();
    });
    connect(program, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(false);
    });
    connect(program, &QProcess::started, this, [this, program] {
        QTimer::singleShot(millisecondsToFail, this, [this, program = QPointer(program)] {
            if (program && program == _program)
                finish(true);
        });
    });
    program->start(QStringLiteral("xdg-open"), {page.toString(QUrl::FullyEncoded)});
}

void PageOpener::finish(bool wasPresented)
{
    if (const Completion completion = std::exchange(_completion, nullptr))
        completion(wasPresented);
}

} // namespace pelmira
