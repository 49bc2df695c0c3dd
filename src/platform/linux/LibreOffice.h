#pragma once

#include "platform/Folders.h"
#include "platform/WordProcessor.h"

#include <QString>

#include <chrono>

namespace quillford {

/// LibreOffice Writer as the word processor. What speaks to it is a module that is loaded at the
/// first start, so that the program itself starts without LibreOffice.
class LibreOffice final : public WordProcessor {
public:
    /// LibreOffice as it is installed.
    [[nodiscard]] static QString usualPrograms();

    /// The module lies in the program's folder, and LibreOffice works in a private folder within
    /// the temporary one.
    ///
    /// @param folders   is not owned and outlives this
    /// @param programs  the folder in which LibreOffice's programs lie
    /// @param patience  how long LibreOffice may take for its start and for any single answer
    explicit LibreOffice(Folders& folders, QString programs = usualPrograms(),
                         std::chrono::milliseconds patience = std::chrono::minutes(1));

    /// Whether the module, LibreOffice and its filter for Word documents are all there.
    [[nodiscard]] bool isInstalled() const override;

    /// Whether LibreOffice's own lock file stands beside the document.
    [[nodiscard]] bool isDocumentOpen(const QString& path) const override;

    [[nodiscard]] std::unique_ptr<WordApplication> start() override;

private:
    [[nodiscard]] QString module() const;

    Folders& folders_;
    QString programs_;
    std::chrono::milliseconds patience_;
};

} // namespace quillford
