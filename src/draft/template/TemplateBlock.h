#pragma once

#include "draft/template/ItemTable.h"

#include <QString>

#include <optional>
#include <vector>

namespace quillford {

/// One block of a template and its rendering.
///
/// What rendering means is told item by item: in the order of the table, every mark of the item is
/// replaced by its value. While no value that is put in holds a bracket and no mark stands within
/// another, that is the same as one pass over the text, which is how nearly every block is
/// rendered.
class TemplateBlock {
public:
    TemplateBlock() = default;
    explicit TemplateBlock(QString text);

    [[nodiscard]] const QString& text() const noexcept { return text_; }

    void setText(QString text);

    /// The text with all marks replaced that have an item; nothing when it would be longer than
    /// `mostCharacters`.
    [[nodiscard]] std::optional<QString> rendered(const ItemTable& items,
                                                  qsizetype mostCharacters) const;

private:
    /// A piece of plain text, or of what could be a mark, brackets included, with the name in it.
    struct Piece {
        QStringView text;
        bool isMark = false;
        QString name = {};
    };

    void divide() const;
    [[nodiscard]] std::optional<std::vector<QStringView>>
    filledPieces(const ItemTable& items) const;
    [[nodiscard]] std::optional<QString> renderedItemByItem(const ItemTable& items,
                                                            qsizetype mostCharacters) const;

    QString text_;
    mutable bool divided_ = false;
    mutable bool marksAreFlat_ = false; ///< no bracket opens between the two of a mark
    mutable std::vector<Piece> pieces_; ///< views into text_
};

} // namespace quillford
