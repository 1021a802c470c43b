#pragma once

#include <QString>
#include <QStringList>

namespace pelmira {

/// What the user asked for at the start.
///   pelmira [OPTION...] [--] [PHOTO...]
/// A photo is a path, taken from the working folder, or a file:// address.
struct CommandLine {
    enum class Request { Run, Help, Version, Refuse };

    Request request = Request::Run;
    QStringList photos; ///< absolute paths
    QString problem;    ///< why it is refused, one line

    /// Of the arguments without the program's own name.
    static CommandLine parse(const QStringList& arguments, const QString& workingFolder);

    static QString helpText();
};

} // namespace pelmira
