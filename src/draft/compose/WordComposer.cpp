#include "draft/compose/WordComposer.h"

#include "draft/compose/TemplateFile.h"
#include "draft/compose/Trapped.h"
#include "draft/compose/WordFilling.h"

#include <QFile>

namespace quillford {

WordComposer::WordComposer(const ProjectFields& fields, Folders& folders, UserPrompts& prompts,
                           WordProcessor& word)
    : fields_(fields), folders_(folders), prompts_(prompts), word_(word) {}

bool WordComposer::ExportToWord(const QString& path) {
    return trapFailures(failure_, [&] {
        WordTemplate document(word_);
        load(document);
        wordVersion_ = document.checkWordVersion();
        WordFilling(fields_, document).fill();
        save(document, path);
        close(document);
        return true;
    });
}

void WordComposer::load(WordTemplate& document) {
    const QString name = QStringLiteral("WORDTEMPLATE");
    const QString file = writeTemplateFile(name, folders_, QStringLiteral("doc"));
    if (document.Load(name, file))
        return;
    QFile::remove(file);
    prompts_.showMessage(UserPrompts::Icon::Critical, QStringLiteral("Error"),
                         QStringLiteral("Can not open the word template"));
    throw *document.failure();
}

void WordComposer::save(WordTemplate& document, const QString& path) {
    const bool isWanted = !path.isEmpty() && path != u"Printer";
    if (isWanted && !document.SaveAs(path))
        throw *document.failure();
}

/// What is wanted of the document is saved by now: a word processor that cannot close it any more
/// spoils nothing, and it ends with the template in any case.
void WordComposer::close(WordTemplate& document) {
    std::optional<Error> withoutConsequence;
    trapFailures(withoutConsequence, [&] {
        document.Unload();
        return true;
    });
}

bool WordComposer::checkDocFileOpenAndClose(const QString& path) const {
    return word_.isDocumentOpen(path);
}

} // namespace quillford
