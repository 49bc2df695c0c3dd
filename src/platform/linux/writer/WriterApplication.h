#pragma once

#include "platform/WordApplication.h"
#include "platform/linux/writer/WriterConnection.h"
#include "platform/linux/writer/WriterDocument.h"
#include "platform/linux/writer/WriterSelection.h"

#include <memory>
#include <optional>

namespace quillford {

/// A LibreOffice of our own with one document. LibreOffice itself reads and writes in its private
/// folder alone: files are copied there and from there.
class WriterApplication final : public WordApplication {
public:
    explicit WriterApplication(const WriterStart& start);
    ~WriterApplication() override;

    [[nodiscard]] QString version() override;
    void addDocument(const QString& templatePath) override;
    void openDocument(const QString& path) override;
    void saveDocument(const QString& path) override;
    void printDocument() override;
    void closeDocument() override;
    bool find(const QString& text) override;
    [[nodiscard]] PlacePointer selectionStart() override;
    [[nodiscard]] PlacePointer selectionEnd() override;
    void select(const PlacePointer& start, const PlacePointer& end) override;
    [[nodiscard]] QString selectedText() override;
    void setSelectedText(const QString& text) override;
    void copy() override;
    void paste() override;
    void moveLeft() override;
    void moveRight() override;
    void deleteForward() override;
    void deleteBackward() override;
    void addPicture(const QString& path) override;
    void setHeader(const QString& text) override;
    void setListNumberFormat(int list, int level, const QString& format) override;

private:
    struct Open {
        explicit Open(WriterDocument opened)
            : document(std::move(opened)), selection(document.text()) {}

        WriterDocument document;
        WriterSelection selection;
    };

    class RangePlace;

    void load(const QString& path, bool asTemplate);
    [[nodiscard]] QString copyOf(const QString& path);
    [[nodiscard]] Open& open();
    void quit();

    UnoCalls call_;
    WriterProcess process_;
    std::optional<WriterConnection> connection_;
    std::optional<Open> open_;
    int copies_ = 0;
};

} // namespace quillford
