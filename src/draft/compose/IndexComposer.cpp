#include "draft/compose/IndexComposer.h"

#include "draft/compose/IndexItems.h"
#include "draft/compose/TemplateFile.h"
#include "draft/compose/Trapped.h"

namespace quillford {

IndexComposer::IndexComposer(const ProjectFields& fields, Folders& folders, UserPrompts& prompts)
    : fields_(fields), folders_(folders), prompts_(prompts) {}

bool IndexComposer::ExportToIndex(QString& html) {
    const QString pageBlock = QStringLiteral("INDEXHTMLTemplate");
    const QString out = QStringLiteral("out");
    return trapFailures(failure_, [&] {
        HTMLTemplate page;
        const QString file = writeTemplateFile(QStringLiteral("INDEXHTMLTEMPLATE"), folders_);
        if (!loadTemplateFile(page, pageBlock, file, prompts_))
            return false;
        fillIndexBlock(page, pageBlock, fields_);
        page.Parse(out, pageBlock, QStringLiteral("False"));
        html = page.p(out);
        return true;
    });
}

} // namespace quillford
