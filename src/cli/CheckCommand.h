#pragma once

#include "cli/ProjectCommand.h"

namespace quillford {

/// Tells whether a project is ready for its Final Draft: the verdict on each section, and the
/// elements and numerals of which nothing is written.
class CheckCommand final : public ProjectCommand {
public:
    [[nodiscard]] QString name() const override { return QStringLiteral("check"); }

    [[nodiscard]] QString usage() const override { return QStringLiteral("PROJECT [--json]"); }

    [[nodiscard]] QString description() const override {
        return QStringLiteral("tells which sections are complete, and which elements and Reference "
                              "Numerals\nare missing from the text");
    }

protected:
    void addOptions(QCommandLineParser& parser) const override;
    void checkOptions(const QCommandLineParser& parser, const QString& projectPath) const override;

    /// `Found` when a section is not complete or anything is missing.
    ExitStatus executeOn(const QCommandLineParser& parser, Project& project,
                         const ReadReport& report, CliContext& context) override;
};

} // namespace quillford
