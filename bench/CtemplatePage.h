#pragma once

#include "TemplateCalls.h"

#include <QHash>
#include <QString>

#include <string>
#include <utility>
#include <vector>

namespace quillford {

/// The same page on ctemplate, the peer of the template engine.
///
/// The template is translated once: an item's mark becomes a variable, a block becomes a section
/// with its separator in it, and every line ends in a carriage return and line feed, as the engine
/// makes it at each loading. Names become letters and numbers, since a variable may not be called
/// "I/WE". Nothing is escaped and no white space is stripped.
class CtemplatePage {
public:
    /// Translates the template in the file `templateFile` into the file `translatedFile`, and the
    /// calls into what dictionaries are filled with. Raises `Error` when a file cannot be read or
    /// written, or when a block has no marks.
    CtemplatePage(const QList<TemplateCall>& calls, const QString& templateFile,
                  const QString& translatedFile);

    /// The whole page in UTF-8, from the file on. ctemplate keeps what it has parsed in a cache;
    /// each call works with a cache of its own, which is empty, so that the file is read and parsed
    /// every time. Values are handed over without a copy. Raises `Error` when ctemplate refuses.
    [[nodiscard]] std::string rendered() const;

private:
    using Values = std::vector<std::pair<std::string, std::string>>; ///< variable and value

    struct Section {
        QString block;
        QString body;
        std::string key; ///< the section's name for ctemplate
        std::vector<Values> repetitions;
    };

    void translateItems(const QList<TemplateCall>& calls);
    void translateBlocks(const QList<TemplateCall>& calls);
    void addSection(const QString& block, const QString& separator);
    void fill(const QList<TemplateCall>& calls);
    [[nodiscard]] Values valuesIn(const QString& text, const QHash<QString, QString>& items) const;

    std::string file_;
    QString text_;                    ///< the template in ctemplate's syntax
    QString outside_;                 ///< the same without its sections
    QHash<QString, QString> markers_; ///< item to variable
    std::vector<Section> sections_;
    Values values_;
};

} // namespace quillford
