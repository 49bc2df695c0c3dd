#pragma once

#include <QMenu>
#include <QObject>

class QLabel;

namespace quillford {

/// The menus of the form, each a pop-up directly under its word in the menu row. Entries are added
/// by whoever starts the commands; a word whose menu is empty is hidden.
class MainMenus final : public QObject {
    Q_OBJECT

public:
    /// The form owns the object, and has `lblMenuFile`, `lblMenuHelp` and `imgResources`.
    explicit MainMenus(QWidget& form);

    /// The menus `mnuFile`, `mnuHelp` and `mnuResources`.
    [[nodiscard]] QMenu& file() { return *file_; }

    [[nodiscard]] QMenu& help() { return *help_; }

    [[nodiscard]] QMenu& resources() { return *resources_; }

    /// Adds an entry with its name in the code.
    static QAction& addEntry(QMenu& menu, const QString& name, const QString& caption);

    /// Shows the words of the menus that have entries and hides the others. Call it once the menus
    /// are filled.
    void showWords();

    void openFileMenu();
    void openHelpMenu();

Q_SIGNALS:
    /// The File menu is about to open: the time to enable its entries.
    void fileMenuOpens();

private:
    void open(QMenu& menu);
    [[nodiscard]] QWidget& wordOf(const QMenu& menu) const;

    QWidget& form_;
    QMenu* file_; // the menus are owned by the form
    QMenu* help_;
    QMenu* resources_;
};

} // namespace quillford
