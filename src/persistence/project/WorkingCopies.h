#pragma once

#include "core/fields/ProjectFields.h"
#include "persistence/project/PictureReceiver.h"
#include "platform/Folders.h"
#include "platform/PictureReader.h"

namespace quillford {

/// The part of a path behind its last "\" or "/". Stored paths may come from another system, where
/// the one or the other parts the folders.
[[nodiscard]] QString GetFileName(const QString& path);

/// Writes a working copy of each stored picture into the temporary folder, and keeps its path and
/// the picture's size for the draft beside the figure.
class WorkingCopies final : public PictureReceiver {
public:
    /// Owns none of its arguments; all outlive it.
    WorkingCopies(ProjectFields& fields, Folders& folders, PictureReader& pictures);

    void takePicture(int figure, const QString& path, const QByteArray& bytes) override;

    /// Writes the bytes to a file of the temporary folder that bears the last component of `path`,
    /// and gives its path. The file is not emptied first: an older, longer one keeps its tail, and
    /// two pictures of the same name share one file.
    ///
    /// The copy never leaves the folder. Raises `Error` naming the picture for a name that no file
    /// of the folder can bear ("", ".", "..", one with a NUL, one that is too long), for one that
    /// stands for a link or anything else than a plain file, and when it cannot be written.
    [[nodiscard]] QString writeTempPicture(const QByteArray& bytes, const QString& path);

private:
    ProjectFields& fields_;
    Folders& folders_;
    PictureReader& pictures_;
};

} // namespace quillford
