#pragma once

#include "base/Error.h"
#include "core/fields/ProjectFields.h"
#include "platform/Folders.h"
#include "platform/UserPrompts.h"
#include "platform/WordProcessor.h"

#include <QString>

#include <optional>

namespace quillford {

class WordTemplate;

/// Composes the Final Draft as a Word document: a word processor fills the template "WORDTEMPLATE"
/// with the values of the fields.
class WordComposer {
public:
    /// Owns none of its arguments; all outlive it.
    WordComposer(const ProjectFields& fields, Folders& folders, UserPrompts& prompts,
                 WordProcessor& word);

    /// Composes the document and saves it under `path`; nothing is saved for an empty path and for
    /// "Printer". Starts a word processor for the time of the call, and blocks for a second or two.
    ///
    /// Any failure ends the composition at once, also a figure without its picture or a document
    /// that cannot be saved: the answer is false, `failure()` tells the reason, the word processor
    /// is gone and an older file stays as it was. A template that cannot be opened, so that there
    /// is no word processor to fill it, is told in a box.
    bool ExportToWord(const QString& path);

    /// True when the user has the document of this name open in a word processor, so that it must
    /// not be written.
    [[nodiscard]] bool checkDocFileOpenAndClose(const QString& path) const;

    /// The version of the word processor that filled the last document; empty before the first.
    [[nodiscard]] const QString& wordVersion() const noexcept { return wordVersion_; }

    /// What ended the last composition, or nothing.
    [[nodiscard]] const std::optional<Error>& failure() const noexcept { return failure_; }

private:
    void load(WordTemplate& document);
    void save(WordTemplate& document, const QString& path);
    static void close(WordTemplate& document);

    const ProjectFields& fields_;
    Folders& folders_;
    UserPrompts& prompts_;
    WordProcessor& word_;
    QString wordVersion_;
    std::optional<Error> failure_;
};

} // namespace quillford
