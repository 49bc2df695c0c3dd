#pragma once

#include "draft/template/ItemTable.h"
#include "draft/template/TemplateBlock.h"
#include "draft/template/TemplateItems.h"

#include <QHash>
#include <QString>

namespace quillford {

/// Turns a page with marks into finished text. A mark is an item's name in square brackets; a block
/// runs from "&lt;!--BEGIN name--&gt;" to "&lt;!--END name--&gt;", written with these escapes. The
/// engine knows nothing of what it fills in.
///
/// One object serves one page: `Load` once, `SetBlock` for each block before its first `Parse`,
/// `SetItem` freely, for a repeating block `SetItem` and `Parse` once for each repetition, at the
/// end `Parse` of the whole page into an item and `p` of that item.
class HTMLTemplate final : public TemplateItems {
public:
    /// Number of the errors that the engine raises of itself.
    static constexpr int ErrorNumber = 10000;
    /// Number of the error for a text that would grow beyond `MostCharacters`.
    static constexpr int TextTooLong = 14;
    /// The longest text that is rendered: 256 MB of UTF-16. Values are open to later items, so that
    /// a few short ones could ask for gigabytes.
    static constexpr qsizetype MostCharacters = 128 * 1024 * 1024;

    /// Reads the file, UTF-8, as the block `name`; each of its lines ends in a carriage return and
    /// line feed then, the last one too. False for an empty path. Raises `Error` naming the file
    /// when it cannot be read, and for a name that is taken.
    bool Load(const QString& name, const QString& path);

    /// Replaces the file by the text and a line end, in UTF-8. The new file is written beside the
    /// old one and takes its place when it is whole; raises `Error` naming the file otherwise.
    void SaveAs(const QString& path, const QString& text) const;

    /// Sets the item `name`. A new item is added behind the others; one that exists takes the value
    /// in its place, or, when `append` is set, has it added behind its text.
    void SetItem(const QString& name, const QString& value, bool append = false) override;

    /// Removes an item if it exists.
    void UnSetItem(const QString& name);

    /// Cuts the block out of its parent: what stands between its marks becomes a block of its own,
    /// and the whole, marks included, the mark of `placeholder`, or of the block's name where that
    /// is empty. The marks are found whatever the case of their letters, from the first begin to
    /// the last end. `block` is part of a regular expression and is not escaped.
    ///
    /// A parent without the marks stays as it is. Raises `Error` when there is no such parent, when
    /// a block of this name exists already, and for a name that makes no regular expression.
    void SetBlock(const QString& parent, const QString& block, const QString& placeholder = {});

    /// Renders the block and puts the text into the item `target`: a new item takes the text, an
    /// existing one too when `separator` is empty; otherwise separator and text are added behind
    /// it.
    ///
    /// The items are put in one after the other, in the order in which they were first added, so
    /// that a value is itself open to the items behind it. Names are compared exactly; marks of
    /// unknown items stay. Raises `Error` when there is no such block and for a text that would
    /// grow too long.
    void Parse(const QString& target, const QString& block, const QString& separator);

    /// The text of an item. Raises `Error` for an unknown name.
    [[nodiscard]] QString p(const QString& name) const;

    /// The stored source text. Nothing ever stores one.
    [[nodiscard]] QString HTMLSource() const { return {}; }

private:
    [[nodiscard]] TemplateBlock& blockNamed(const QString& name);
    void addBlock(const QString& name, const QString& text);

    ItemTable items_;
    QHash<QString, TemplateBlock> blocks_;
};

} // namespace quillford
