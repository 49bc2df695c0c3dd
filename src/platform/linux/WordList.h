#pragma once

#include "platform/linux/SharedFile.h"

#include <QStringList>

namespace quillford {

/// The user's own words in a text file: one word a line, UTF-8. The file may be edited by hand, and
/// several programs may add to it at the same time.
class WordList {
public:
    explicit WordList(QString path);

    /// The words in the order of the file, without blanks around them and without empty lines.
    /// Raises `Error` when the file is there and cannot be read.
    [[nodiscard]] QStringList words() const;

    /// Adds the word at the end, unless it stands there already, and leaves every other byte as it
    /// is. Raises `Error` when the file cannot be read or written.
    void add(const QString& word);

private:
    SharedFile file_;
};

} // namespace quillford
