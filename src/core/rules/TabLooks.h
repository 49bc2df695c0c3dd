#pragma once

namespace quillford {

/// The four looks of a tab's picture.
enum class TabLook { Complete, CompleteSelected, Incomplete, IncompleteSelected };

/// The row of tab pictures and the buttons beside the Final Draft, as the section rules and the
/// navigation see them. Tabs are counted from 0.
class TabLooks {
public:
    virtual ~TabLooks() = default;

    virtual void setTabLook(int tab, TabLook look) = 0;

    /// Enables or disables the buttons that export and print the Final Draft.
    virtual void enableDraftCommands(bool on) = 0;

    /// Takes the hourglass away, if it is shown.
    virtual void setDefaultPointer() = 0;
};

} // namespace quillford
