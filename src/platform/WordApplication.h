#pragma once

#include <QString>

#include <memory>

namespace quillford {

/// A word processor that was started for this object: invisible, with at most one document and one
/// selection in it. Destroying the object quits it, and what was not saved is lost.
///
/// Everything but the destructor raises `Error` when the word processor refuses, has died or does
/// not answer in time; of one that has died every further call raises. Calls block.
///
/// The selection is a stretch of the document's text, or a place between two characters when
/// nothing is selected. It stands at the document's start at first.
class WordApplication {
public:
    /// A place between two characters. It belongs to the document that was active when it was
    /// asked for, and moves with the text around it.
    class Place {
    public:
        virtual ~Place() = default;

        /// Whether `other`, of the same document, is the same place.
        [[nodiscard]] virtual bool isSameAs(const Place& other) const = 0;
    };

    using PlacePointer = std::shared_ptr<const Place>;

    virtual ~WordApplication() = default;

    /// The version as the word processor tells it, such as "7.4.7.2".
    [[nodiscard]] virtual QString version() = 0;

    /// Makes a new document from a template file and makes it the active one. The file is not used
    /// any more after that.
    virtual void addDocument(const QString& templatePath) = 0;

    /// Opens the document in a file and makes it the active one.
    virtual void openDocument(const QString& path) = 0;

    /// Saves the active document as a Word document. An older file is replaced when the new one is
    /// whole, and stays when that fails. No folder is made.
    virtual void saveDocument(const QString& path) = 0;

    /// Prints the active document on the default printer; raises `Error` when there is none.
    virtual void printDocument() = 0;

    /// Closes the active document without saving it.
    virtual void closeDocument() = 0;

    /// Looks for a text in the body of the document, from the start of the selection forward and,
    /// at the document's end, on from its start. Letters are the same in either case. A find is
    /// selected; of what is selected already and is itself such a text, the next one is meant.
    /// Without a find the answer is false and the selection stays.
    virtual bool find(const QString& text) = 0;

    [[nodiscard]] virtual PlacePointer selectionStart() = 0;
    [[nodiscard]] virtual PlacePointer selectionEnd() = 0;

    /// Selects what stands between two places, in either order.
    virtual void select(const PlacePointer& start, const PlacePointer& end) = 0;

    /// The selected text; paragraphs are parted by a carriage return.
    [[nodiscard]] virtual QString selectedText() = 0;

    /// Replaces what is selected by a text in the format of the first character that was selected;
    /// with nothing selected, inserts it. A carriage return, a line feed or a pair of them starts
    /// a new paragraph in the format of the old one; other control characters, the tab excepted,
    /// are left out. Afterwards the place behind the text is selected.
    virtual void setSelectedText(const QString& text) = 0;

    /// Takes a copy of the selected text, its formats included, for `paste`. It is no business of
    /// the user's clipboard.
    virtual void copy() = 0;

    /// Puts the copy in the place of what is selected. Afterwards the place behind it is selected.
    virtual void paste() = 0;

    /// Selects the place at the selection's left or right end; with nothing selected, the place
    /// one character further. At the document's ends nothing happens.
    virtual void moveLeft() = 0;
    virtual void moveRight() = 0;

    /// Deletes what is selected; with nothing selected, the character behind or before the place.
    /// An empty paragraph goes as a whole, so that the one which takes its place keeps its own
    /// format.
    virtual void deleteForward() = 0;
    virtual void deleteBackward() = 0;

    /// Puts the picture in the file `path` in the place of what is selected, as a part of the
    /// document. It has the size that the file gives it, or the largest within the text area, its
    /// proportions kept, where that is smaller. Afterwards the place behind it is selected. Raises
    /// `Error` when there is no such file or it holds no picture; the selection stays then.
    virtual void addPicture(const QString& path) = 0;

    /// Sets the page header of the document's first section; its text is taken as that of
    /// `setSelectedText`.
    virtual void setHeader(const QString& text) = 0;

    /// Sets the number format of one level of a list. Lists and levels are counted from 1; in the
    /// format "%2" stands for the number of the second level, and so on. Raises `Error` when there
    /// is no such list or level.
    virtual void setListNumberFormat(int list, int level, const QString& format) = 0;
};

} // namespace quillford
