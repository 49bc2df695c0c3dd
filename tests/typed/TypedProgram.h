#pragma once

#include "app/ProgramFixture.h"
#include "typed/TypingUser.h"

namespace quillford {

/// The whole program under the hands of its user, who has begun a new project.
class TypedProgram : public ProgramFixture {
protected:
    TypedProgram();

    /// Starts the program, and takes its form in hand.
    void begin(const QStringList& arguments = {});

    /// Moves to a section by its picture.
    void clickTab(int tab);

    /// Chooses a count from its list and waits for the panels that follow.
    void chooseCount(const QString& list, int count);

    /// Saves the project under this name by the keys, and waits.
    void saveAs(const QString& path);

    std::unique_ptr<TypingUser> hands;
};

} // namespace quillford
