#pragma once

#include "platform/Folders.h"

#include <QFileInfo>

namespace quillford {

/// Answers what the test has set. Nothing is made.
class FakeFolders final : public Folders {
public:
    [[nodiscard]] QString programFile() override { return program; }

    [[nodiscard]] QString programFolder() override { return QFileInfo(program).path(); }

    [[nodiscard]] QString documentsFolder() override { return documents; }

    [[nodiscard]] QString configurationFolder() override { return configuration; }

    [[nodiscard]] QString localDataFolder() override { return localData; }

    [[nodiscard]] QString stateFolder() override { return state; }

    [[nodiscard]] QString temporaryFolder() override { return temporary; }

    QString program = QStringLiteral("/nowhere/Quillford/quillford");
    QString documents = QStringLiteral("/nowhere/Documents");
    QString configuration = QStringLiteral("/nowhere/config");
    QString localData = QStringLiteral("/nowhere/data");
    QString state = QStringLiteral("/nowhere/state");
    QString temporary = QStringLiteral("/nowhere/temp");
};

} // namespace quillford
