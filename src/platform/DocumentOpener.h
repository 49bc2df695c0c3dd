#pragma once

#include <QString>

namespace quillford {

/// The desktop's way to open documents and addresses with the programs that the user has for them.
class DocumentOpener {
public:
    enum class Result {
        Opened,    ///< a program was asked to open it
        NoProgram, ///< no program is known for documents of this kind
        Failed,
    };

    virtual ~DocumentOpener() = default;

    /// Opens a document, by its full path, or an address such as "https://..." or "mailto:...".
    /// Returns at once; what the program makes of the document is not known.
    virtual Result open(const QString& document) = 0;

    /// Has the user choose a program for the document, where the desktop has a way to ask.
    virtual void askForProgram(const QString& document) = 0;
};

} // namespace quillford
