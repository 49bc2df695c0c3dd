#pragma once

#include "platform/WordProcessor.h"
#include "platform/linux/WriterStart.h"

#include <QString>

namespace quillford {

/// LibreOffice Writer as the word processor. What speaks to it is a module that is loaded at the
/// first start, so that the program itself starts without LibreOffice.
class LibreOffice final : public WordProcessor {
public:
    /// The start that serves a user: LibreOffice as it is installed, and a minute's patience.
    [[nodiscard]] static WriterStart usualStart(const QString& workFolder);

    /// The module's file name in the program's folder.
    [[nodiscard]] static QString moduleName() { return QStringLiteral("quillford_writer.so"); }

    /// @param module  the path of the module
    LibreOffice(QString module, WriterStart start);

    /// Whether the module, LibreOffice and its filter for Word documents are all there.
    [[nodiscard]] bool isInstalled() const override;

    /// Whether LibreOffice's own lock file stands beside the document.
    [[nodiscard]] bool isDocumentOpen(const QString& path) const override;

    [[nodiscard]] std::unique_ptr<WordApplication> start() override;

private:
    QString module_;
    WriterStart start_;
};

} // namespace quillford
