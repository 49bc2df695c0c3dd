#pragma once

#include "cli/ProjectCommand.h"

namespace quillford {

/// Writes the Final Draft and what belongs to it into files.
class ExportCommand final : public ProjectCommand {
public:
    [[nodiscard]] QString name() const override { return QStringLiteral("export"); }

    [[nodiscard]] QString usage() const override {
        return QStringLiteral("PROJECT [--html FILE] [--word FILE] [--pdf FILE] [--index FILE]\n"
                              "[--report FILE] [--incomplete]");
    }

    [[nodiscard]] QString description() const override {
        return QStringLiteral(
            "writes the Final Draft as HTML, as a Word document (where LibreOffice Writer is\n"
            "installed) and as it is printed, and the Index of Elements and the error report of\n"
            "the verification as pages of their own;\n"
            "refused while a section is incomplete, unless --incomplete is given");
    }

protected:
    void addOptions(QCommandLineParser& parser) const override;
    void checkOptions(const QCommandLineParser& parser, const QString& projectPath) const override;
    ReadReport read(const QString& path, Project& project, CliContext& context) override;
    ExitStatus executeOn(const QCommandLineParser& parser, Project& project,
                         const ReadReport& report, CliContext& context) override;
};

} // namespace quillford
