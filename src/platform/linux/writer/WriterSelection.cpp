#include "platform/linux/writer/WriterSelection.h"

#include "platform/linux/writer/UnoCalls.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XEnumeration.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/datatransfer/XTransferableSupplier.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/text/XParagraphCursor.hpp>
#include <com/sun/star/text/XTextRangeCompare.hpp>
#include <com/sun/star/text/XTextViewCursorSupplier.hpp>

namespace quillford {

namespace {

using css::uno::Reference;
using css::uno::UNO_QUERY;
using css::uno::UNO_QUERY_THROW;

const rtl::OUString ParagraphStyle("ParaStyleName");

} // namespace

WriterSelection::WriterSelection(const Reference<css::text::XTextDocument>& document)
    : document_(document),
      body_(document->getText()),
      cursor_(body_->createTextCursorByRange(body_->getStart())),
      searchable_(document, UNO_QUERY_THROW),
      search_(searchable_->createSearchDescriptor()) {}

// ---- searching

/// A search begins behind what it is given, so that a find that is still selected is passed over.
/// Headers and footers are searched behind the body, but hold nothing that is looked for.
bool WriterSelection::find(const QString& text) {
    const bool isNextOfFind = text.compare(found_, Qt::CaseInsensitive) == 0;
    if (text != searched_)
        search_->setSearchString(toOUString(text));
    searched_ = text;
    const Range from = isNextOfFind ? Range(cursor_.get()) : start();
    const bool isFound =
        select(searchable_->findNext(from, search_)) || select(searchable_->findFirst(search_));
    if (isFound)
        found_ = text;
    return isFound;
}

/// Selects a find. False when there is none in the body.
bool WriterSelection::select(const Reference<css::uno::XInterface>& find) {
    const Range range(find, UNO_QUERY);
    if (!range.is())
        return false;
    try {
        cursor_->gotoRange(range, false);
    } catch (const css::lang::DisposedException&) {
        throw;
    } catch (const css::uno::RuntimeException&) {
        return false; // it stands in another text than the cursor
    }
    return true;
}

// ---- places

WriterSelection::Range WriterSelection::start() const {
    return cursor_->getStart();
}

WriterSelection::Range WriterSelection::end() const {
    return cursor_->getEnd();
}

void WriterSelection::select(const Range& start, const Range& end) {
    found_.clear();
    cursor_->gotoRange(start, false);
    cursor_->gotoRange(end, true);
}

bool WriterSelection::isSame(const Range& one, const Range& other) const {
    const Reference<css::text::XTextRangeCompare> compare(body_, UNO_QUERY_THROW);
    return compare->compareRegionStarts(one, other) == 0;
}

void WriterSelection::moveLeft() {
    found_.clear();
    if (cursor_->isCollapsed())
        cursor_->goLeft(1, false);
    else
        cursor_->collapseToStart();
}

void WriterSelection::moveRight() {
    found_.clear();
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
    if (!written.isEmpty() && !cursor_->isCollapsed())
        return replaceText(written);
    found_.clear();
    cursor_->setString(toOUString(written));
    cursor_->collapseToEnd();
}

/// A text takes the format of the character before it. So it is inserted behind what it replaces.
void WriterSelection::replaceText(const QString& text) {
    if (found_.isEmpty())
        deleteAllButFirst();
    const auto oldCharacters = static_cast<sal_Int16>(found_.isEmpty() ? 1 : found_.size());
    found_.clear();
    const Reference<css::text::XTextCursor> old = body_->createTextCursorByRange(start());
    cursor_->collapseToEnd();
    body_->insertString(cursor_.get(), toOUString(text), false);
    old->goRight(oldCharacters, true);
    old->setString({});
}

/// Leaves the first of the characters that are selected. What is no find is not counted: a picture
/// is a character that the text does not show.
void WriterSelection::deleteAllButFirst() {
    const Reference<css::text::XTextCursor> rest = body_->createTextCursorByRange(start());
    rest->goRight(1, false);
    rest->gotoRange(end(), true);
    rest->setString({});
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
    found_.clear();
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
    found_.clear();
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
