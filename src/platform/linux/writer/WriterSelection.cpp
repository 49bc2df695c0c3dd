#include "platform/linux/writer/WriterSelection.h"

#include "platform/linux/writer/UnoCalls.h"

#include <algorithm>
#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>
#include <com/sun/star/text/XTextViewCursorSupplier.hpp>
#include <com/sun/star/util/XSearchDescriptor.hpp>
#include <com/sun/star/util/XSearchable.hpp>

namespace quillford {

namespace {

using css::uno::Reference;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;

const rtl::OUString ParagraphStyle("ParaStyleName");

/// The text as Writer takes it, where a carriage return alone starts a paragraph. The other control
/// characters, and those that Writer itself uses to anchor things in a text, are no text.
QString asWriterText(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\r"));
    text.replace(u'\n', u'\r');
    const auto isNoText = [](QChar character) {
        const bool isControl =
            character.unicode() < u' ' && character != u'\t' && character != u'\r';
        const bool isAnchor = character.unicode() >= 0xFFF9 && character.unicode() <= 0xFFFB;
        return isControl || isAnchor;
    };
    return text.removeIf(isNoText);
}

} // namespace

WriterSelection::WriterSelection(const Reference<css::text::XTextDocument>& document)
    : document_(document),
      body_(document->getText()),
      cursor_(body_->createTextCursorByRange(body_->getStart())) {}

// ---- searching

/// Headers and footers are searched behind the body, but hold nothing that is looked for.
bool WriterSelection::find(const QString& text) {
    const Reference<css::util::XSearchable> searchable(document_, UNO_QUERY_THROW);
    const Reference<css::util::XSearchDescriptor> what = searchable->createSearchDescriptor();
    what->setSearchString(toOUString(text));
    Range found(searchable->findNext(isSelected(text) ? end() : start(), what), UNO_QUERY);
    if (!found.is() || !isInBody(found))
        found.set(searchable->findFirst(what), UNO_QUERY);
    if (!found.is() || !isInBody(found))
        return false;
    cursor_->gotoRange(found, false);
    return true;
}

bool WriterSelection::isInBody(const Range& range) const {
    return range->getText() == body_;
}

bool WriterSelection::isSelected(const QString& text) const {
    return cursor_->getString().equalsIgnoreAsciiCase(toOUString(text));
}

// ---- places

WriterSelection::Range WriterSelection::start() const {
    return cursor_->getStart();
}

WriterSelection::Range WriterSelection::end() const {
    return cursor_->getEnd();
}

void WriterSelection::select(const Range& start, const Range& end) {
    cursor_->gotoRange(start, false);
    cursor_->gotoRange(end, true);
}

bool WriterSelection::isSame(const Range& one, const Range& other) const {
    const Reference<css::text::XTextRangeCompare> compare(body_, UNO_QUERY_THROW);
    return compare->compareRegionStarts(one, other) == 0;
}

void WriterSelection::moveLeft() {
    if (cursor_->isCollapsed())
        cursor_->goLeft(1, false);
    else
        cursor_->collapseToStart();
}

void WriterSelection::moveRight() {
    if (cursor_->isCollapsed())
        cursor_->goRight(1, false);
    else
        cursor_->collapseToEnd();
}

// ---- text

QString WriterSelection::text() const {
    return asWriterText(toQString(cursor_->getString()));
}

void WriterSelection::setText(const QString& text) {
    const QString written = asWriterText(text);
    if (!cursor_->isCollapsed() && !written.isEmpty())
        return replaceText(written);
    cursor_->setString(toOUString(written));
    cursor_->collapseToEnd();
}

/// A text that is set takes the format of what stands before it. Behind the first character of what
/// it replaces, it takes the format of that.
void WriterSelection::replaceText(const QString& text) {
    const Reference<css::text::XTextCursor> first =
        body_->createTextCursorByRange(cursor_->getStart());
    first->goRight(1, true);
    const Reference<css::text::XTextCursor> rest =
        body_->createTextCursorByRange(cursor_->getEnd());
    rest->gotoRange(first->getEnd(), true);
    const Reference<css::text::XTextCursor> written =
        body_->createTextCursorByRange(first->getEnd());
    rest->setString({});
    written->gotoRange(rest->getStart(), false);
    body_->insertString(written.get(), toOUString(text), false);
    cursor_->gotoRange(written->getEnd(), false);
    first->collapseToStart();
    first->goRight(1, true);
    first->setString({});
}

Reference<css::text::XTextViewCursor> WriterSelection::viewCursor() const {
    const Reference<css::text::XTextViewCursorSupplier> view(document_->getCurrentController(),
                                                             UNO_QUERY_THROW);
    return view->getViewCursor();
}

void WriterSelection::copy() {
    viewCursor()->gotoRange(cursor_.get(), false);
    const Reference<css::datatransfer::XTransferableSupplier> view(
        document_->getCurrentController(), UNO_QUERY_THROW);
    copied_ = view->getTransferable();
    copyHasParagraphs_ = text().contains(u'\r');
    const Reference<css::beans::XPropertySet> first(
        body_->createTextCursorByRange(cursor_->getStart()), UNO_QUERY_THROW);
    copiedStyle_ = first->getPropertyValue(ParagraphStyle);
}

/// The first paragraph that is pasted takes the format of the one it is pasted into. Where it opens
/// that one, it shall have the style that it was copied with.
void WriterSelection::paste() {
    if (!cursor_->isCollapsed())
        setText({});
    const bool opensParagraph = copyHasParagraphs_ && isStartOfParagraph();
    const Reference<css::text::XTextCursor> first =
        body_->createTextCursorByRange(cursor_->getStart());
    const bool isFirstOfAll = !first->goLeft(1, false);
    pasteAtCursor();
    if (!opensParagraph)
        return;
    if (!isFirstOfAll)
        first->goRight(1, false); // from the paragraph before, where the paste did not move it
    else
        first->gotoStart(false);
    const Reference<css::beans::XPropertySet> properties(first, UNO_QUERY_THROW);
    properties->setPropertyValue(ParagraphStyle, copiedStyle_);
}

void WriterSelection::pasteAtCursor() {
    const Reference<css::text::XTextViewCursor> place = viewCursor();
    place->gotoRange(cursor_.get(), false);
    const Reference<css::datatransfer::XTransferableSupplier> view(
        document_->getCurrentController(), UNO_QUERY_THROW);
    view->insertTransferable(copied_);
    cursor_->gotoRange(place->getEnd(), false);
}

void WriterSelection::insert(const Reference<css::text::XTextContent>& content) {
    body_->insertTextContent(cursor_.get(), content, true);
    cursor_->gotoRange(content->getAnchor()->getStart(), false); // which is before the content
    cursor_->goRight(1, false);
}

// ---- deleting

bool WriterSelection::isStartOfParagraph() const {
    const Reference<css::text::XParagraphCursor> paragraph(cursor_, UNO_QUERY_THROW);
    return paragraph->isStartOfParagraph();
}

bool WriterSelection::isEmptyParagraph() const {
    const Reference<css::text::XParagraphCursor> paragraph(cursor_, UNO_QUERY_THROW);
    return paragraph->isStartOfParagraph() && paragraph->isEndOfParagraph();
}

/// Joining an empty paragraph with the next would give that one the empty one's format, and its
/// page break would be lost.
void WriterSelection::removeParagraph() {
    const Reference<css::container::XEnumerationAccess> paragraphs(cursor_, UNO_QUERY_THROW);
    const Reference<css::text::XTextContent> paragraph(
        paragraphs->createEnumeration()->nextElement(), UNO_QUERY_THROW);
    if (cursor_->goRight(1, false))
        body_->removeTextContent(paragraph);
}

void WriterSelection::deleteForward() {
    if (!cursor_->isCollapsed())
        return setText({});
    if (isEmptyParagraph())
        return removeParagraph();
    if (cursor_->goRight(1, true))
        setText({});
}

void WriterSelection::deleteBackward() {
    if (!cursor_->isCollapsed())
        return setText({});
    if (cursor_->goLeft(1, false))
        deleteForward();
}

} // namespace quillford
