#pragma once

#include "platform/linux/writer/UnoCalls.h"

#include <QString>

#include <com/sun/star/awt/Size.hpp>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/frame/XDesktop2.hpp>
#include <com/sun/star/text/XTextDocument.hpp>
#include <optional>

namespace quillford {

/// An open document of LibreOffice Writer. Its calls raise what LibreOffice raises, and `Error` for
/// what it merely answers; whoever calls them does so through `UnoCalls`.
class WriterDocument {
public:
    /// Loads the file, as a template for a new document or as the document itself, and keeps it
    /// from laying out pages until it is printed.
    ///
    /// @param name  how failures name the file
    WriterDocument(const css::uno::Reference<css::frame::XDesktop2>& desktop, const QString& file,
                   bool asTemplate, const QString& name);

    [[nodiscard]] const css::uno::Reference<css::text::XTextDocument>& text() const {
        return document_;
    }

    /// Writes the document into the file.
    void save(const QString& file);

    void print();

    /// Closes it without saving.
    void close();

    void setHeader(const QString& text);
    void setListNumberFormat(int list, int level, const QString& format);

    /// Width and height of the text of a page, in hundredths of a millimetre. Asked for once.
    [[nodiscard]] const css::awt::Size& textArea();

private:
    [[nodiscard]] css::uno::Reference<css::beans::XPropertySet> pageStyle() const;

    css::uno::Reference<css::text::XTextDocument> document_;
    std::optional<css::awt::Size> textArea_;
};

} // namespace quillford
