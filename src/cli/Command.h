#pragma once

#include "base/Error.h"
#include "cli/CliContext.h"

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

/// One command of the command line. A command declares its options and does its work through the
/// core; it reports failure by raising `Error` whose source is the file, the key or the option that
/// it is about.
class Command {
public:
    virtual ~Command() = default;

    [[nodiscard]] virtual QString name() const = 0;

    /// The arguments after the name, and what the command does, for the help text; both may have
    /// several lines.
    [[nodiscard]] virtual QString usage() const = 0;
    [[nodiscard]] virtual QString description() const = 0;

    /// The command's part of the help text: its usage and, indented, its description.
    [[nodiscard]] QString help() const;

    /// Parses the arguments behind the command's name and runs it, or prints its help where
    /// "--help" is among the options.
    ExitStatus run(const QStringList& arguments, CliContext& context);

protected:
    virtual void addOptions(QCommandLineParser& parser) const = 0;

    /// Does the work. Raises `Error` for arguments and options that make no sense.
    virtual ExitStatus execute(const QCommandLineParser& parser, CliContext& context) = 0;

    /// A failure of the command line itself, about `name`.
    [[noreturn]] static void refuse(const QString& name, const QString& reason);
};

/// Runs a step; a failure that names nothing is about `thing`.
template <typename Step>
auto about(const QString& thing, Step step) {
    try {
        return step();
    } catch (const Error& error) {
        if (!error.source().isEmpty())
            throw;
        throw Error(error.number(), error.description(), thing, error.offset());
    }
}

} // namespace quillford
