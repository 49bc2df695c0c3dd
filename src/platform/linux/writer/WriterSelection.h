#pragma once

#include "platform/linux/writer/UnoValues.h"

#include <com/sun/star/datatransfer/XTransferable.hpp>
#include <com/sun/star/text/XText.hpp>
#include <com/sun/star/text/XTextContent.hpp>
#include <com/sun/star/text/XTextCursor.hpp>
#include <com/sun/star/text/XTextDocument.hpp>
#include <com/sun/star/text/XTextRange.hpp>
#include <com/sun/star/text/XTextViewCursor.hpp>
#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/util/XSearchDescriptor.hpp>
#include <com/sun/star/util/XSearchable.hpp>

namespace quillford {

/// The selection in the body of a document: a cursor of the document's own. Positions are ranges
/// and never numbers, which pictures and fields would upset. Its calls raise what LibreOffice
/// raises.
class WriterSelection {
public:
    using Range = css::uno::Reference<css::text::XTextRange>;

    explicit WriterSelection(const css::uno::Reference<css::text::XTextDocument>& document);

    bool find(const QString& text);

    [[nodiscard]] Range start() const;
    [[nodiscard]] Range end() const;
    void select(const Range& start, const Range& end);
    [[nodiscard]] bool isSame(const Range& one, const Range& other) const;

    [[nodiscard]] QString text() const;
    void setText(const QString& text);

    void copy();
    void paste();

    void moveLeft();
    void moveRight();
    void deleteForward();
    void deleteBackward();

    /// Puts the content in the place of what is selected.
    void insert(const css::uno::Reference<css::text::XTextContent>& content);

private:
    bool select(const css::uno::Reference<css::uno::XInterface>& find);
    [[nodiscard]] bool isStartOfParagraph() const;
    [[nodiscard]] bool isEmptyParagraph() const;
    void removeParagraph();
    void replaceText(const QString& text);
    void deleteAllButFirst();
    void pasteAtCursor();
    [[nodiscard]] css::uno::Reference<css::text::XTextViewCursor> viewCursor() const;

    css::uno::Reference<css::text::XTextDocument> document_;
    css::uno::Reference<css::text::XText> body_;
    css::uno::Reference<css::text::XTextCursor> cursor_;
    css::uno::Reference<css::util::XSearchable> searchable_;
    css::uno::Reference<css::util::XSearchDescriptor> search_;
    QString searched_;
    QString found_; ///< what was found, while that is what is selected
    css::uno::Reference<css::datatransfer::XTransferable> copied_;
    css::uno::Any copiedStyle_;
    bool copyHasParagraphs_ = false;
};

} // namespace quillford
