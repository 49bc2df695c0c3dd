#pragma once

#include "core/settings/Settings.h"
#include "platform/PrintJob.h"

#include <QString>

namespace quillford {

/// The header and the footer of printed pages. They stand in settings that are not the program's
/// own, from which every print takes them: what a print changes there is put back after it.
class PageSetup {
public:
    /// The footer of the program's pages: "Page 1 of 3", centred.
    static constexpr QStringView Footer = u"&bPage &p of &P&b";

    /// The settings must live longer than this object.
    explicit PageSetup(Settings& settings) : settings_(settings) {}

    /// Keeps the user's own header and footer, unless some are kept already: values that he changes
    /// after the first print are lost when a later one puts the old ones back. Two empty values
    /// count as none.
    void save();

    /// Writes an empty header and the footer of the program's pages.
    void setForDraft();

    /// Writes an empty header and an empty footer.
    void setEmpty();

    /// Gives a print the header and the footer as they stand.
    void applyTo(PrintJob& job) const;

    /// Writes what was kept, which may be two empty texts.
    void restore();

private:
    void write(const QString& header, const QString& footer);

    Settings& settings_;
    QString savedPrintHeader_;
    QString savedPrintFooter_;
};

} // namespace quillford
