#pragma once

#include "platform/Clock.h"
#include "platform/Folders.h"

#include <QString>
#include <QStringList>

namespace quillford {

/// Copies of project files as the user last saved them, for the day on which he wants one back.
/// Nothing on the screen shows them; Help tells where they are.
class Backups {
public:
    /// Owns none of its arguments; both outlive it.
    Backups(Folders& folders, const Clock& clock) : folders_(folders), clock_(clock) {}

    /// The folder in which they lie. It is made with the first one.
    [[nodiscard]] QString folder() const;

    /// Copies the project file `path`, if there is one, under its name and the time, and deletes
    /// all but the newest twenty of that name. Raises `Error` naming the copy when it cannot be
    /// made; the older ones stay then.
    void keep(const QString& path) const;

private:
    /// Their file names, the oldest first.
    [[nodiscard]] QStringList copiesOf(const QString& name) const;

    Folders& folders_;
    const Clock& clock_;
};

} // namespace quillford
