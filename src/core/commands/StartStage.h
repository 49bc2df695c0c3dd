#pragma once

#include <QString>

namespace quillford {

/// What the start of the program has done, in the order in which it asks for it. The main form and
/// all that hangs on it do not exist before `loadForm`; the other calls come after it.
class StartStage {
public:
    virtual ~StartStage() = default;

    /// Makes the main form and loads it, without showing it.
    virtual void loadForm() = 0;

    virtual void NewFile() = 0;

    /// Opens a project by its full path. One that cannot be opened is told to the user.
    virtual void OpenFile(const QString& path) = 0;

    /// Lays the Welcome page over the sections: `WizardNavigator::showWelcomePage`.
    virtual void showWelcomePage() = 0;

    virtual void showForm() = 0;
};

} // namespace quillford
