#pragma once

#include "cli/Command.h"

namespace quillford {

/// Makes a project file from the JSON form of a project.
class NewCommand final : public Command {
public:
    [[nodiscard]] QString name() const override { return QStringLiteral("new"); }

    [[nodiscard]] QString usage() const override { return QStringLiteral("FIELDS.json OUT.ivd"); }

    [[nodiscard]] QString description() const override {
        return QStringLiteral("makes a project file from JSON, with the pictures that it names;\n"
                              "what the JSON leaves out has the value of a new project");
    }

protected:
    void addOptions(QCommandLineParser& parser) const override;
    ExitStatus execute(const QCommandLineParser& parser, CliContext& context) override;
};

} // namespace quillford
