#pragma once

#include "core/fields/ProjectState.h"
#include "platform/UserPrompts.h"

#include <QPointer>
#include <QWidget>

namespace quillford {

/// Boxes and dialogs on the screen, before the window that is named as their parent. While one is
/// up the project counts as worked at, so that nothing is saved on its own behind a question.
class QtUserPrompts final : public UserPrompts {
public:
    /// `state` outlives the prompts.
    explicit QtUserPrompts(ProjectState& state) : state_(state) {}

    /// The window before which boxes stand from now on; it may go at any time.
    void setParent(QWidget* parent) { parent_ = parent; }

    void showMessage(Icon icon, const QString& title, const QString& text) override;
    [[nodiscard]] bool askYesNo(Icon icon, const QString& title, const QString& text) override;
    [[nodiscard]] Answer askYesNoCancel(Icon icon, const QString& title,
                                        const QString& text) override;
    [[nodiscard]] QString chooseFileToOpen(const FileQuestion& question) override;
    [[nodiscard]] QString chooseFileToSave(const FileQuestion& question) override;
    [[nodiscard]] bool showMsgWindow(const NotAgainChanged& changed) override;
    void showTab4MsgWindow(const NotAgainChanged& changed) override;
    [[nodiscard]] ExportChoice showExportToFileMsgWindow(bool wordInstalled) override;

private:
    ProjectState& state_;
    QPointer<QWidget> parent_;
};

} // namespace quillford
