#pragma once

#include "core/settings/Settings.h"
#include "platform/FileTypes.h"
#include "platform/Folders.h"

namespace quillford {

/// Ties project files to the program, so that opening one in a file manager starts the program
/// with the file's path.
class FileAssociation {
public:
    /// All three must live longer than this object.
    FileAssociation(Settings& settings, Folders& folders, FileTypes& fileTypes)
        : settings_(settings), folders_(folders), fileTypes_(fileTypes) {}

    /// Writes the four keys of the association when one of the two that are asked for is missing,
    /// and has the desktop learn the kind of file where it does not know it. When both exist they
    /// are left alone, so that a moved program keeps its old command until the keys are removed.
    /// Fails silently: the program works without an association.
    void registerFileType();

private:
    void writeKeys();
    void tellDesktop();

    Settings& settings_;
    Folders& folders_;
    FileTypes& fileTypes_;
};

} // namespace quillford
