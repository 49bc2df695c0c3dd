#pragma once

#include "cli/Command.h"
#include "core/fields/Project.h"
#include "persistence/project/ProjectReader.h"

#include <memory>

namespace quillford {

/// A command on the project that its one argument names. What could not be read of a damaged
/// project file is told in one line a stream; the command goes on with the rest.
class ProjectCommand : public Command {
protected:
    /// Looks at the options before the project is read. Raises `Error` for those that make no
    /// sense.
    virtual void checkOptions(const QCommandLineParser& parser,
                              const QString& projectPath) const = 0;

    /// Reads the project into `project`, and hands its stored pictures to whom the command wants.
    virtual ReadReport read(const QString& path, Project& project, CliContext& context);

    virtual ExitStatus executeOn(const QCommandLineParser& parser, Project& project,
                                 const ReadReport& report, CliContext& context) = 0;

private:
    ExitStatus execute(const QCommandLineParser& parser, CliContext& context) final;
};

} // namespace quillford
