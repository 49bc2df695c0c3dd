#pragma once

#include "platform/linux/writer/WriterDocument.h"

#include <com/sun/star/text/XTextContent.hpp>
#include <com/sun/star/uno/XComponentContext.hpp>

namespace quillford {

/// A picture to be put into the document's text like a character, with the picture file's content.
/// It has the size that the file gives it, at 96 pixels an inch where that gives none; where that
/// is larger than the text of a page, the largest that is not. Raises `Error` when the file holds
/// no picture.
///
/// @param name  how the failure names the file
[[nodiscard]] css::uno::Reference<css::text::XTextContent>
makePicture(WriterDocument& document,
            const css::uno::Reference<css::uno::XComponentContext>& context, const QString& file,
            const QString& name);

} // namespace quillford
