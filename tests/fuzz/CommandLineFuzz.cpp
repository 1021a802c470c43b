#include "shell/CommandLine.h"

#include <QDir>

#include <cstdint>
#include <cstdlib>

// One argument a line, as a terminal or another program may hand them over.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const QString text =
        QString::fromLocal8Bit(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
    const auto line =
        pelmira::CommandLine::parse(text.split(QLatin1Char('\n')), QStringLiteral("/home/user"));
    using Request = pelmira::CommandLine::Request;
    if ((line.request == Request::Refuse) == line.problem.isEmpty())
        std::abort();
    if (line.problem.contains(QLatin1Char('\n')))
        std::abort(); // it is to be one line
    for (const QString& photo : line.photos)
        if (!QDir::isAbsolutePath(photo))
            std::abort();
    return 0;
}
