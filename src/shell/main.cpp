#include "platform/lifecycle/DisplayGuard.h"
#include "platform/text/LocalizedStrings.h"
#include "shell/AppDelegate.h"
#include "shell/CommandLine.h"
#include "shell/SingleInstance.h"

#include <QDir>
#include <QGuiApplication>
#include <QUrl>

#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

using pelmira::CommandLine;

constexpr int wrongUse = 2;

void print(std::FILE* where, const QString& text)
{
    std::fprintf(where, "%s\n", text.toLocal8Bit().constData());
}

/// The exit code, if the command line asks for no window.
std::optional<int> answer(const CommandLine& line)
{
    switch (line.request) {
    case CommandLine::Request::Help:
        print(stdout, CommandLine::helpText());
        return EXIT_SUCCESS;
    case CommandLine::Request::Version:
        print(stdout, QStringLiteral("Pelmira ") + QCoreApplication::applicationVersion());
        return EXIT_SUCCESS;
    case CommandLine::Request::Refuse:
        print(stderr, line.problem);
        return wrongUse;
    case CommandLine::Request::Run:
        break;
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv)
{
    pelmira::AppDelegate::prepareProcess();
    // Help has to work where no window can be opened; the toolkit's own options are in the way
    // then.
    QStringList typed;
    for (int i = 1; i < argc; ++i)
        typed << QString::fromLocal8Bit(argv[i]);
    if (const CommandLine line = CommandLine::parse(typed, {});
        line.request == CommandLine::Request::Help || line.request == CommandLine::Request::Version)
        return *answer(line);

    std::optional<pelmira::DisplayGuard> guard(std::in_place,
                                               pelmira::localized("commandline.error.display"));
    QGuiApplication application(argc, argv);
    guard.reset();
    const CommandLine line =
        CommandLine::parse(application.arguments().mid(1), QDir::currentPath());
    if (const std::optional<int> code = answer(line))
        return *code;

    QStringList uris;
    for (const QString& photo : line.photos)
        uris << QUrl::fromLocalFile(photo).toString(QUrl::FullyEncoded);
    pelmira::ApplicationService service;
    if (pelmira::SingleInstance(service).start(uris) == pelmira::SingleInstance::Role::HandedOver)
        return EXIT_SUCCESS;
    pelmira::AppDelegate delegate;
    delegate.serve(service);
    delegate.applicationDidFinishLaunching(line.photos);
    return QGuiApplication::exec();
}
