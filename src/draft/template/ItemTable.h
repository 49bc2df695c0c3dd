#pragma once

#include <QHash>
#include <QString>

#include <vector>

namespace quillford {

/// The items of a template, name to text, in the order in which the names were first added.
class ItemTable {
public:
    struct Item {
        QString name;
        QString mark; ///< the name in square brackets
        QString value;
    };

    /// Adds the item, or gives an existing one a new value.
    void set(const QString& name, const QString& value);

    /// Adds the value behind the text of an item, or adds the item.
    void append(const QString& name, const QString& value);

    void remove(const QString& name);

    /// The item of exactly this name, or null. Valid until the table changes.
    [[nodiscard]] const Item* find(const QString& name) const;

    /// In the order of the table.
    [[nodiscard]] const std::vector<Item>& items() const noexcept { return items_; }

    /// True while some name holds a square bracket.
    [[nodiscard]] bool hasNameWithBracket() const noexcept { return namesWithBracket_ > 0; }

private:
    Item& itemNamed(const QString& name);

    std::vector<Item> items_;
    QHash<QString, std::size_t> places_;
    qsizetype namesWithBracket_ = 0;
};

} // namespace quillford
