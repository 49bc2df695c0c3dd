#pragma once

#include "core/fields/ProjectFields.h"

#include <QHash>
#include <QString>

namespace quillford {

/// The places that the command line is about to write to. An output replaces a file or makes one:
/// it takes no folder's or device's place, nor that of another output or of what it is made from.
class OutputPlaces {
public:
    /// Keeps the place of the file `path` for `owner`, "the project" for instance.
    void keep(const QString& path, const QString& owner);

    /// Keeps the places of the pictures that a draft of the project shows.
    void keepPictures(const ProjectFields& fields);

    /// Takes the place of an output. Raises `Error` naming the file when it may not be written.
    ///
    /// @param output  what asks for the place, "--html" for instance
    void take(const QString& path, const QString& output);

    [[nodiscard]] bool isTaken() const noexcept { return outputs_ > 0; }

private:
    QHash<QString, QString> owners_;
    int outputs_ = 0;
};

} // namespace quillford
