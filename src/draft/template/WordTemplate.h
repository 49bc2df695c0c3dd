#pragma once

#include "base/Error.h"
#include "draft/template/TemplateItems.h"
#include "platform/WordProcessor.h"

#include <QString>

#include <memory>
#include <optional>

namespace quillford {

/// Fills a Word document in place. A mark is an item's name in square brackets; a block runs from
/// "<!--BEGIN name-->" to "<!--END name-->", both real text of the document. The document is the
/// only state: every operation works at the selection of a running word processor.
///
/// A search runs forward from the selection and wraps round, so that each `SetItem` takes the next
/// mark in cyclic order, and n calls fill n copies of a block in turn. A mark that is not found is
/// no failure. `Load`, `openWord`, `Save` and `SaveAs` answer false when they fail, and `failure`
/// tells why; the others raise the `Error` of the word processor, also when nothing is loaded.
class WordTemplate final : public TemplateItems {
public:
    using Place = WordApplication::PlacePointer;

    /// The word processor is not owned and outlives the template.
    explicit WordTemplate(WordProcessor& processor) : processor_(processor) {}

    /// Starts the word processor, makes the working document from the file, and deletes the file.
    bool Load(const QString& name, const QString& path);

    /// Starts the word processor and opens the file as it is; it stays.
    bool openWord(const QString& path);

    bool Save(const QString& path);
    bool SaveAs(const QString& path);

    /// Closes the document without saving it.
    void Unload();

    void Wordprint();

    /// Finds and selects a tag, `BEGIN name` for instance, from `start` or else the selection on.
    bool SelectTag(const QString& tag, const Place& start = {}, const Place& end = {});

    /// Finds and selects the mark of an item.
    bool SelectItem(const QString& name, const Place& start = {}, const Place& end = {});

    /// Puts the value in the place of the next mark of the item, or of each that stands in the
    /// document when `all` is set. Marks within the value are left to later calls.
    void SetItem(const QString& name, const QString& value, bool all = false) override;

    /// Puts the picture in the place of the next mark, or of each, at the picture's own size.
    void SetFigure(const QString& name, const QString& path, bool all = false);

    /// Writes the page header, in which the file number stands.
    void setHeader(const QString& fileNo);

    /// Finds a block and selects it, with or without its tags.
    bool SelectBlock(const QString& name, bool withTags);

    /// A line end in the place of the selection.
    void InsertLine();

    /// Both delete one character behind the selection; a paragraph's end is one.
    void DeleteLine();
    void DeleteSpace();

    /// Deletes one character before the selection.
    void deleteChar();

    void RemoveBlock(const QString& name, bool withTags);

    /// Adds `count` copies behind the body of a block, each with the separator before it, and
    /// stands before the body then. A count below 1 does nothing.
    void DuplicateBlock(const QString& name, int count, const QString& separator);

    /// Erases the two tags of a block and keeps its body.
    void RemoveBlockTag(const QString& name);

    /// Starts the numbers of the third list's second level with `number` and a point.
    void ResetListNum(int number);

    /// The version of the word processor.
    [[nodiscard]] QString checkWordVersion();

    /// The file that was loaded or opened last.
    [[nodiscard]] const QString& path() const noexcept { return path_; }

    /// What made the last of the operations that answer false do so, or nothing.
    [[nodiscard]] const std::optional<Error>& failure() const noexcept { return failure_; }

private:
    template <typename Step>
    bool trapped(Step step);
    template <typename Change>
    void changeMarks(const QString& name, bool all, Change change);

    [[nodiscard]] WordApplication& word();
    void start(const QString& path);
    bool findFrom(const QString& text, const Place& start, const Place& end);
    [[nodiscard]] int markCount(const QString& name);

    WordProcessor& processor_;
    QString path_;
    std::unique_ptr<WordApplication> word_;
    std::optional<Error> failure_;
};

} // namespace quillford
