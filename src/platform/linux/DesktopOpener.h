#pragma once

#include "platform/DocumentOpener.h"

namespace quillford {

/// Opens documents with the desktop's own tools, xdg-open and xdg-mime. Needs no display itself.
class DesktopOpener final : public DocumentOpener {
public:
    /// Asks the desktop for the kind of document first, which takes a part of a second.
    Result open(const QString& document) override;

    /// Opens the folder that holds the document: a file manager offers every program there is for
    /// what it shows. There is nothing to ask about an address.
    void askForProgram(const QString& document) override;
};

} // namespace quillford
