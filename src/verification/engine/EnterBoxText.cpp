#include "verification/engine/EnterBoxText.h"

#include "base/Text.h"

#include <QStringList>

namespace quillford {

QString getAllEnterBoxWord(const ProjectFields& fields, int& enterBoxCount) {
    const auto box = [&](const auto& field) { return getEnterBoxString(field, enterBoxCount); };
    const QStringList boxes{box(fields.txtFileNo),
                            box(fields.txtInventionTitle),
                            box(fields.txtTechTitle),
                            box(fields.txtPurpose),
                            box(fields.txtObject),
                            box(fields.txtFigureDetail),
                            box(fields.txtMainElement),
                            box(fields.txtElementDes),
                            box(fields.txtMainElementNameDetail),
                            box(fields.txtMainElementVariations),
                            box(fields.txtDesConnections),
                            box(fields.txtDesAlterative),
                            box(fields.txtOperation)};
    return boxes.join(u' ');
}

QString getEnterBoxString(const Field& field, int& enterBoxCount) {
    if (!field.isFilled())
        return {};
    ++enterBoxCount;
    return trimBlanks(moveVbctrlf(field.text())).toString();
}

QString getEnterBoxString(const FieldArray& fields, int& enterBoxCount) {
    QString text;
    for (int i = 0; i < fields.count(); ++i) {
        if (!text.isEmpty())
            text += u' ';
        text += moveVbctrlf(fields(i).text());
        ++enterBoxCount;
    }
    return trimBlanks(text).toString();
}

QString moveVbctrlf(QStringView text) {
    const QStringView lineEnd = u"\r\n";
    text = trimBlanks(text);
    QString line;
    line.reserve(text.size());
    for (qsizetype end = text.indexOf(lineEnd); end >= 0; end = text.indexOf(lineEnd)) {
        line += text.first(end);
        line += u' ';
        text = text.sliced(end);
        while (text.startsWith(lineEnd))
            text = text.sliced(lineEnd.size());
    }
    return line += text;
}

} // namespace quillford
