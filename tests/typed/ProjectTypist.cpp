#include "typed/ProjectTypist.h"

#include "controls/FormCombo.h"
#include "editors/binding/BoundFields.h"
#include "persistence/project/JsonReader.h"
#include "support/Files.h"

#include <QFileInfo>

namespace quillford {

ProjectTypist::ProjectTypist(const QString& toldFile) {
    readProjectJson(contentOf(toldFile), QFileInfo(toldFile).absolutePath(), told);
}

void ProjectTypist::typeSection(int section) {
    int panels = 1;
    for (const FieldRow& row : fieldTable())
        if (row.section == section)
            panels = std::max(panels, told.fields.count(row.id));
    for (int panel = 0; panel < panels; ++panel)
        for (const FieldRow& row : fieldTable())
            if (row.section == section && panel < told.fields.count(row.id))
                typeField(row, panel);
}

void ProjectTypist::typeField(const FieldRow& row, int panel) {
    if (row.id == FieldId::txtAttachFig)
        return;
    const QString name = controlName(FieldPlace{row.id, panel});
    const QString text = told.fields.at(row.id, panel).text();
    if (hands->shown(name) == text)
        return;
    auto* const list = dynamic_cast<FormCombo*>(&hands->control(name));
    if (list && list->findText(text) >= 0)
        hands->choose(name, text);
    else
        hands->fill(name, text);
    EXPECT_EQ(hands->shown(name), text) << qPrintable(name);
}

void ProjectTypist::attachPictures() {
    for (int figure = 0; figure < told.fields.txtAttachFig.count(); ++figure) {
        whenAskedForFile(told.fields.txtAttachFig(figure).text());
        hands->tabTo(controlName(u"imgBrowse", figure));
        hands->press(Qt::Key_Space);
        hands->comeBack();
    }
}

} // namespace quillford
