#pragma once

#include "controls/FormDialog.h"
#include "platform/UserPrompts.h"

#include <memory>

namespace quillford {

namespace Ui {
class msgWindow;
}

/// The dialog for the three messages that need more than a plain box. Each operation arranges the
/// controls, shows the window and waits for its end; the keys Y and N answer where Yes and No
/// stand. A window that is closed otherwise says No, or Cancel.
class msgWindow final : public FormDialog {
    Q_OBJECT

public:
    explicit msgWindow(QWidget* parent);
    ~msgWindow() override;

    /// "Section Not Complete": true for Yes. `changed` is called at each change of the box "Do not
    /// show this again".
    [[nodiscard]] bool showMsgWindow(const UserPrompts::NotAgainChanged& changed);

    /// "Drawings - Important Information!".
    void showTab4MsgWindow(const UserPrompts::NotAgainChanged& changed);

    /// "Export to File". Without a word processor that format is disabled and HTML is chosen.
    [[nodiscard]] UserPrompts::ExportChoice showExportToFileMsgWindow(bool wordInstalled);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void arrange(std::initializer_list<QWidget*> shown);
    void tellChanges(const UserPrompts::NotAgainChanged& changed);
    void placeMark();
    void placeFormats();
    void moveButtonsTo(int top);

    std::unique_ptr<Ui::msgWindow> ui_;
};

} // namespace quillford
