// How long the application takes from the start of its process to its first frame, against an
// empty Qt Quick window. Both are started in turn, in processes of their own:
//   bench_start [runs]
#include "Bench.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

/// Milliseconds until the program says that it has shown a frame; below 0 if it doesn't.
double start(const char* program)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    bool shown = false;
    const double time = pelmira::bench::milliseconds([&] {
        process.start(QCoreApplication::applicationDirPath() + u'/' + QLatin1String(program),
                      QStringList());
        shown = process.waitForReadyRead(30000);
    });
    process.waitForFinished();
    return shown ? time : -1;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const int runs = argc > 1 ? std::atoi(argv[1]) : 15;
    const QTemporaryDir home; // no preferences, no saved work
    qputenv("HOME", QFile::encodeName(home.path()));
    // Without a session bus neither of the two is to try and start one.
    if (!qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qunsetenv(variable);
    QDir(home.path()).mkdir(QStringLiteral("Pictures"));

    std::vector<double> empty;
    std::vector<double> pelmira;
    std::vector<double> ratios;
    for (int run = -1; run < runs; ++run) {
        const double first = start("bench_start_empty");
        const double second = start("bench_start_home");
        if (first < 0 || second < 0) {
            std::fprintf(stderr, "No frame was shown\n");
            return EXIT_FAILURE;
        }
        if (run < 0)
            continue; // reads both programs from disk
        empty.push_back(first);
        pelmira.push_back(second);
        ratios.push_back(second / first);
    }
    std::printf("to the first frame, median of %d starts: empty window %.0f ms, Pelmira %.0f ms\n",
                runs, pelmira::bench::median(empty), pelmira::bench::median(pelmira));
    pelmira::bench::printFigure("start_vs_empty_window", pelmira::bench::median(ratios));
    return EXIT_SUCCESS;
}
