#pragma once

#include <QString>

#include <functional>

namespace quillford {

/// Everything that the program asks or tells its user in a box. Tests answer from a script and keep
/// every title and text. A call returns when its box is closed, and window events are handled
/// meanwhile. Texts are plain text, never markup.
class UserPrompts {
public:
    enum class Icon { None, Information, Question, Exclamation, Critical };

    /// Is called each time the user changes the box "Do not show this again", at once and while
    /// the window still stands; true when the box is now ticked.
    using NotAgainChanged = std::function<void(bool ticked)>;

    enum class ExportChoice { Cancel, Word, Html };

    enum class Answer { Yes, No, Cancel };

    /// What a dialog for a file's name starts with.
    struct FileQuestion {
        QString folder;            ///< the folder that is shown first; empty for the last one used
        QString name;              ///< the name or path that stands in the dialog, or empty
        QString filterDescription; ///< what the user reads: "Quillford File"
        QString filterPattern;     ///< the files that are shown: "*.jpg;*.bmp"
    };

    virtual ~UserPrompts() = default;

    /// Shows a plain message box with one button.
    virtual void showMessage(Icon icon, const QString& title, const QString& text) = 0;

    /// Asks in a box with the buttons Yes and No, and answers true for Yes. A box that is closed
    /// otherwise says No.
    [[nodiscard]] virtual bool askYesNo(Icon icon, const QString& title, const QString& text) = 0;

    /// Asks in a box with the buttons Yes, No and Cancel. A box that is closed otherwise says
    /// Cancel.
    [[nodiscard]] virtual Answer askYesNoCancel(Icon icon, const QString& title,
                                                const QString& text) = 0;

    /// Lets the user choose a file to open, and answers its full path; empty when he cancels. A
    /// name that is typed is answered as it stands, whether or not there is such a file and
    /// whatever its ending.
    [[nodiscard]] virtual QString chooseFileToOpen(const FileQuestion& question) = 0;

    /// Lets the user choose a name to save under, and answers its full path; empty when he cancels.
    /// The dialog asks before it takes the name of a file that exists.
    [[nodiscard]] virtual QString chooseFileToSave(const FileQuestion& question) = 0;

    /// The message window as "Section Not Complete": true for Yes. A window that is closed
    /// otherwise says No.
    [[nodiscard]] virtual bool showMsgWindow(const NotAgainChanged& changed) = 0;

    /// The message window as "Drawings - Important Information!".
    virtual void showTab4MsgWindow(const NotAgainChanged& changed) = 0;

    /// The message window as "Export to File". Where there is no word processor, Word is shown but
    /// cannot be chosen.
    [[nodiscard]] virtual ExportChoice showExportToFileMsgWindow(bool wordInstalled) = 0;
};

} // namespace quillford
