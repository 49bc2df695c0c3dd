#pragma once

#include "core/wizard/FocusOrder.h"

#include <QWidget>

#include <memory>

namespace quillford {

class FormLooks;
class HelpPane;
class KeyCommands;
class MainMenus;
class StepBar;
class TabStrip;
class TitleRow;
class WelcomePage;
class WindowChrome;

/// The main form: one window of a fixed size that stands from the start of the program to its end.
/// The class builds the window and places its parts; what they do is theirs and their owners'.
class frmMain1 final : public QWidget {
    Q_OBJECT

public:
    /// @param appFolder   the program's folder with a closing separator
    /// @param focusOrder  the numbers that the Tab key follows; not owned, outlives the form
    frmMain1(const QString& appFolder, const FocusOrder& focusOrder);
    ~frmMain1() override;

    // The parts of the window. They live as long as the form.
    [[nodiscard]] TitleRow& title() { return *title_; }

    [[nodiscard]] MainMenus& menus() { return *menus_; }

    [[nodiscard]] KeyCommands& keys() { return *keys_; }

    [[nodiscard]] TabStrip& tabs() { return *tabs_; }

    [[nodiscard]] StepBar& bar() { return *bar_; }

    [[nodiscard]] FormLooks& looks() { return *looks_; }

    [[nodiscard]] HelpPane& help() { return *help_; }

    [[nodiscard]] WelcomePage& welcome() { return *welcome_; }

    [[nodiscard]] WindowChrome& chrome() { return *chrome_; }

    /// The panel `picContainer(tab)`.
    [[nodiscard]] QWidget& panel(int tab);

    /// The whole of the index beside the sections, and the place of its drawing.
    [[nodiscard]] QWidget& index();

Q_SIGNALS:
    /// The form is asked to close. `refuse` is false; whoever sets it keeps the form open.
    void closing(bool& refuse);

protected:
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void applyTheme();

    const FocusOrder& focusOrder_;
    TitleRow* title_ = nullptr; // the parts are owned as children
    WindowChrome* chrome_ = nullptr;
    MainMenus* menus_ = nullptr;
    KeyCommands* keys_ = nullptr;
    TabStrip* tabs_ = nullptr;
    StepBar* bar_ = nullptr;
    HelpPane* help_ = nullptr;
    WelcomePage* welcome_ = nullptr;
    std::unique_ptr<FormLooks> looks_;
};

} // namespace quillford
