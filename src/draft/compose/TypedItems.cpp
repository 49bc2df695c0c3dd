#include "draft/compose/TypedItems.h"

namespace quillford {

namespace {

const QString Bracket = QStringLiteral("opening bracket");
const QString LessThan = QStringLiteral("less-than sign");
const QString TagStart = QStringLiteral("<!--");

QString markOf(const QString& name) {
    return u'[' + name + u']';
}

} // namespace

void TypedItems::SetItem(const QString& name, const QString& value, bool all) {
    QString shielded = value;
    shielded.replace(u'[', markOf(Bracket));
    shielded.replace(TagStart, markOf(LessThan) + TagStart.sliced(1));
    document_.SetItem(name, shielded, all);
}

/// The brackets come last: one that was typed may open the name of the other mark.
void TypedItems::finish() {
    document_.SetItem(LessThan, QStringLiteral("<"), true);
    document_.SetItem(Bracket, QStringLiteral("["), true);
}

} // namespace quillford
