#pragma once

#include "base/Error.h"
#include "cli/CliContext.h"
#include "core/fields/Project.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace quillford {

/// How the program ends.
enum class ExitStatus {
    Done = 0,
    Found = 1,  ///< a check found something
    Failed = 2, ///< a usage error or a failure, told in one line on standard error
};

/// One command of the command line. A command declares its options, is given the project that its
/// one argument names, and does its work through the core; it reports failure by raising `Error`
/// whose source is the file, the key or the option that it is about.
class Command {
public:
    virtual ~Command() = default;

    [[nodiscard]] virtual QString name() const = 0;

    /// The arguments after the name, and what the command does, for the help text.
    [[nodiscard]] virtual QString usage() const = 0;
    [[nodiscard]] virtual QString description() const = 0;

    /// The command's part of the help text: its usage and, indented, its description.
    [[nodiscard]] QString help() const;

    /// Parses the arguments behind the command's name and runs it, or prints its help where
    /// "--help" is among the options.
    ExitStatus run(const QStringList& arguments, CliContext& context);

protected:
    virtual void addOptions(QCommandLineParser& parser) const = 0;

    /// Looks at the options before the project is read. Raises `Error` for those that make no
    /// sense.
    virtual void checkOptions(const QCommandLineParser& parser,
                              const QString& projectPath) const = 0;

    virtual ExitStatus execute(const QCommandLineParser& parser, Project& project,
                               CliContext& context) = 0;

    /// A failure of the command line itself, about `name`.
    [[noreturn]] static void refuse(const QString& name, const QString& reason);
};

} // namespace quillford
