#pragma once

#include <QString>

namespace quillford {

/// A kind of file and the program that opens it.
struct FileType {
    /// The kind's MIME type, such as "application/x-note".
    QString mimeType;
    /// What a file manager calls such a file.
    QString description;
    /// The ending of the file names, without its dot.
    QString ending;
    /// The program's name on screen; in lower case it names what is written for it.
    QString programName;
    /// The program's full path.
    QString programFile;
};

/// The kinds of files that the user's desktop knows.
class FileTypes {
public:
    virtual ~FileTypes() = default;

    /// Makes the kind of file and its program known to the desktop, for this user alone. What the
    /// desktop knows already, for the user or for all users, is left as it is, another path of the
    /// program included. Raises `Error` when something is missing and cannot be written. Takes
    /// seconds at the most, and that only when something was missing.
    virtual void makeKnown(const FileType& type) = 0;
};

} // namespace quillford
