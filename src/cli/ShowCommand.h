#pragma once

#include "cli/Command.h"

namespace quillford {

/// Prints a project in its JSON form.
class ShowCommand final : public Command {
public:
    [[nodiscard]] QString name() const override { return QStringLiteral("show"); }

    [[nodiscard]] QString usage() const override { return QStringLiteral("PROJECT"); }

    [[nodiscard]] QString description() const override {
        return QStringLiteral("prints the project as JSON");
    }

protected:
    void addOptions(QCommandLineParser& parser) const override;
    void checkOptions(const QCommandLineParser& parser, const QString& projectPath) const override;
    ExitStatus execute(const QCommandLineParser& parser, Project& project,
                       CliContext& context) override;
};

} // namespace quillford
