#pragma once

#include "cli/ProjectCommand.h"
#include "persistence/project/PictureList.h"

namespace quillford {

/// Prints a project in its JSON form.
class ShowCommand final : public ProjectCommand {
public:
    [[nodiscard]] QString name() const override { return QStringLiteral("show"); }

    [[nodiscard]] QString usage() const override { return QStringLiteral("PROJECT"); }

    [[nodiscard]] QString description() const override {
        return QStringLiteral("prints the project as JSON");
    }

protected:
    void addOptions(QCommandLineParser& parser) const override;
    void checkOptions(const QCommandLineParser& parser, const QString& projectPath) const override;
    ReadReport read(const QString& path, Project& project, CliContext& context) override;
    ExitStatus executeOn(const QCommandLineParser& parser, Project& project,
                         const ReadReport& report, CliContext& context) override;

private:
    PictureList pictures_;
};

} // namespace quillford
