#pragma once

namespace quillford {

/// Which entries of the File menu are enabled. They are set when the menu opens and stay until it
/// opens again; the keys that stand for an entry follow it.
class FileMenu {
public:
    /// The menu is about to be shown.
    ///
    /// @param welcomePageShown  no project is shown that could be saved or closed
    /// @param draftComplete     all sections are complete: the tag of tab 8 is "OK"
    void open(bool welcomePageShown, bool draftComplete) {
        isProjectEnabled_ = !welcomePageShown;
        isDraftEnabled_ = draftComplete;
    }

    /// `mnuFileSave`, and with it Ctrl+S; `mnuFileSaveAs`, `mnuGotoWelcomePage`.
    [[nodiscard]] bool isProjectEnabled() const noexcept { return isProjectEnabled_; }

    /// `mnuFileExportToHTML`, `mnuFileExportToWord`, `mnuFilePrint`.
    [[nodiscard]] bool isDraftEnabled() const noexcept { return isDraftEnabled_; }

private:
    bool isProjectEnabled_ = true;
    bool isDraftEnabled_ = false;
};

} // namespace quillford
