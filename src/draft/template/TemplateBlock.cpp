#include "draft/template/TemplateBlock.h"

#include <utility>

namespace quillford {

namespace {

qsizetype countOf(QStringView text, QStringView mark) {
    qsizetype count = 0;
    for (qsizetype at = text.indexOf(mark); at >= 0; at = text.indexOf(mark, at + mark.size()))
        ++count;
    return count;
}

/// `text` with every mark replaced; the length is known before anything is built.
std::optional<QString> replaced(const QString& text, QStringView mark, QStringView value,
                                qsizetype mostCharacters) {
    const qsizetype count = countOf(text, mark);
    if (count == 0)
        return text;
    const qsizetype room = mostCharacters - (text.size() - count * mark.size());
    if (room < 0 || value.size() > room / count)
        return std::nullopt;
    QString result;
    result.reserve(text.size() + count * (value.size() - mark.size()));
    const QStringView source(text);
    qsizetype from = 0;
    for (qsizetype at = source.indexOf(mark); at >= 0; at = source.indexOf(mark, from)) {
        result += source.sliced(from, at - from);
        result += value;
        from = at + mark.size();
    }
    return result += source.sliced(from);
}

std::optional<QString> joined(const std::vector<QStringView>& pieces, qsizetype mostCharacters) {
    qsizetype length = 0;
    for (const QStringView piece : pieces) {
        length += piece.size();
        if (length > mostCharacters)
            return std::nullopt;
    }
    QString result;
    result.reserve(length);
    for (const QStringView piece : pieces)
        result += piece;
    return result;
}

} // namespace

TemplateBlock::TemplateBlock(QString text) : text_(std::move(text)) {}

void TemplateBlock::setText(QString text) {
    text_ = std::move(text);
    divided_ = false;
}

std::optional<QString> TemplateBlock::rendered(const ItemTable& items,
                                               qsizetype mostCharacters) const {
    if (!divided_)
        divide();
    if (const auto pieces = filledPieces(items))
        return joined(*pieces, mostCharacters);
    return renderedItemByItem(items, mostCharacters);
}

/// Parts the text at what could be a mark: from a bracket that opens to the next one that closes.
void TemplateBlock::divide() const {
    const QStringView text(text_);
    pieces_.clear();
    marksAreFlat_ = true;
    divided_ = true;
    qsizetype from = 0;
    for (qsizetype open = text.indexOf(u'['); open >= 0; open = text.indexOf(u'[', from)) {
        const qsizetype close = text.indexOf(u']', open);
        if (close < 0)
            break;
        const QStringView name = text.sliced(open + 1, close - open - 1);
        marksAreFlat_ = marksAreFlat_ && !name.contains(u'[');
        pieces_.push_back({text.sliced(from, open - from)});
        pieces_.push_back({text.sliced(open, close + 1 - open), true, name.toString()});
        from = close + 1;
    }
    pieces_.push_back({text.sliced(from)});
}

/// The pieces of the text with the values in the place of their marks. Nothing when one of them
/// could open a mark itself: what only closes one finds none open, since no mark stands within
/// another.
std::optional<std::vector<QStringView>> TemplateBlock::filledPieces(const ItemTable& items) const {
    if (!marksAreFlat_ || items.hasNameWithBracket())
        return std::nullopt;
    std::vector<QStringView> filled;
    filled.reserve(pieces_.size());
    for (const Piece& piece : pieces_) {
        const ItemTable::Item* item = piece.isMark ? items.find(piece.name) : nullptr;
        if (item && item->value.contains(u'['))
            return std::nullopt;
        filled.push_back(item ? QStringView(item->value) : piece.text);
    }
    return filled;
}

std::optional<QString> TemplateBlock::renderedItemByItem(const ItemTable& items,
                                                         qsizetype mostCharacters) const {
    std::optional<QString> result = text_;
    for (const ItemTable::Item& item : items.items()) {
        result = replaced(*result, item.mark, item.value, mostCharacters);
        if (!result)
            break;
    }
    return result;
}

} // namespace quillford
