#pragma once

namespace quillford {

/// The four looks of a tab's picture.
enum class TabLook { Complete, CompleteSelected, Incomplete, IncompleteSelected };

/// The mouse pointer over a tab's picture.
enum class TabPointer { Default, Hand };

/// The buttons of the step bar; the numbers are their indexes.
enum class StepButton { Back = 0, Next = 1 };

/// What the one place below the section shows: the step bar with the star and "Required Fields",
/// the bar that exports and prints the Final Draft, or nothing.
enum class ButtonBar { Step, Export, None };

/// The row of tab pictures and the bars of buttons, as the section rules and the navigation see
/// them. Tabs are counted from 0. Nothing here fails.
class TabLooks {
public:
    virtual ~TabLooks() = default;

    virtual void setTabLook(int tab, TabLook look) = 0;

    virtual void setTabPointer(int tab, TabPointer pointer) = 0;

    /// Shows one bar in front and enables it, and hides and disables the other.
    virtual void showBar(ButtonBar bar) = 0;

    virtual void enableStepButton(StepButton button, bool on) = 0;

    /// Enables or disables the buttons that export and print the Final Draft.
    virtual void enableDraftCommands(bool on) = 0;

    /// Takes the hourglass away, if it is shown.
    virtual void setDefaultPointer() = 0;
};

} // namespace quillford
