#include "support/ProjectMaker.h"

#include "core/fields/FieldLists.h"

#include <QStringList>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype LongText = 1024 * 1024;

/// The table tells a count before what it counts, so that the panels can be made on the way.
int shown(ProjectFields& fields, const FieldRow& row) {
    if (row.group == FieldGroup::Single)
        return 1;
    const int count = fields.at(groupLimits(row.group).count).number();
    if (fields.panelCount(row.group) != count)
        fields.setPanelCount(row.group, count);
    return count;
}

const QStringList& pieces() {
    static const QStringList all{u"easel"_s,
                                 u" "_s,
                                 u"\r\n"_s,
                                 u"\n"_s,
                                 u"\t"_s,
                                 u"\""_s,
                                 u"\\"_s,
                                 u"\u00E9"_s,
                                 u"%1"_s,
                                 u"\U0001F58A"_s,
                                 u"\u0001"_s,
                                 QString(QChar(0xD834)),
                                 QString(QChar(0xDD1E)),
                                 QString(QChar(0)),
                                 u"\uFEFF"_s,
                                 u"\u2028"_s,
                                 u"\uFFFF"_s,
                                 u"</b>"_s,
                                 u"\u007F"_s,
                                 u"\u009B"_s};
    return all;
}

} // namespace

ProjectMaker::ProjectMaker(unsigned seed) : chance_(seed), hasLongText_(seed % 100 == 99) {}

void ProjectMaker::fill(Project& project) {
    ProjectFields& fields = project.fields;
    project.state.verifyPassed = below(2) == 1;
    for (const FieldRow& row : fieldTable())
        for (int i = 0; i < shown(fields, row); ++i)
            fields.at(row.id, i).loadText(text(row));
    if (hasLongText_)
        fields.txtElementDes(0).loadText(
            (anyText() + u"long"_s).repeated(LongText / 4).left(LongText));
    for (const FieldGroup group : RepeatingGroups)
        fields.setPanelCount(group, fields.at(groupLimits(group).count).number());
}

int ProjectMaker::below(int bound) {
    return std::uniform_int_distribution<int>(0, bound - 1)(chance_);
}

QString ProjectMaker::text(const FieldRow& row) {
    if (row.kind == FieldKind::Check)
        return QString::number(below(2));
    if (row.kind == FieldKind::List)
        return listRows(row.list).at(below(static_cast<int>(listRows(row.list).size())));
    QString typed = anyText();
    if (row.id == FieldId::txtAttachFig && !typed.isEmpty())
        return u"/figures/"_s + typed.remove(QChar(0)); // which no path holds
    return typed;
}

/// Of eight texts one is empty and one holds blanks only.
QString ProjectMaker::anyText() {
    const int kind = below(8);
    if (kind == 0)
        return {};
    if (kind == 1)
        return QString(1 + below(3), u' ');
    QString text;
    for (int i = 1 + below(12); i > 0; --i)
        text += pieces().at(below(static_cast<int>(pieces().size())));
    return text;
}

} // namespace quillford
