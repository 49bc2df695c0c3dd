#pragma once

#include "draft/compose/HtmlComposer.h"
#include "draft/compose/WidgetHolder.h"
#include "support/FakeFolders.h"
#include "support/FakePrompts.h"
#include "support/Files.h"
#include "support/PrintQt.h"

#include <QRegularExpression>
#include <QTemporaryDir>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

/// The page of the widget holder, composed in folders of the test's own.
class HtmlComposition : public testing::Test {
protected:
    HtmlComposition() {
        folders.temporary = folder_.filePath(u"temporary"_s);
        QDir().mkpath(folders.temporary);
        fillWidgetHolder(fields);
    }

    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

    QString preview() {
        QString html = u" "_s;
        EXPECT_TRUE(composer.ExportToHTML(u"temp.html"_s, html)) << failureText();
        return html;
    }

    QByteArray exported() {
        QString html;
        EXPECT_TRUE(composer.ExportToHTML(path(u"draft.htm"_s), html)) << failureText();
        EXPECT_EQ(html, u""_s);
        return contentOf(path(u"draft.htm"_s));
    }

    /// The inner HTML of the paragraph that begins with `start`.
    QString paragraph(const QString& start) {
        const QString page = preview();
        const qsizetype at = page.indexOf(u'>' + start);
        EXPECT_GE(at, 0) << "no paragraph begins with " << qPrintable(start);
        return page.sliced(at + 1, page.indexOf(u"</p>", at) - at - 1);
    }

    /// The inner HTML of every paragraph of a class.
    QStringList paragraphs(const QString& cssClass) {
        const QRegularExpression pattern(u"<p class=\"%1\">(.*?)</p>"_s.arg(cssClass),
                                         QRegularExpression::DotMatchesEverythingOption);
        QStringList texts;
        for (const QRegularExpressionMatch& match : pattern.globalMatch(preview()))
            texts.append(match.captured(1));
        return texts;
    }

    /// One field of each treatment: closed with a period, finished, in a block, both of these.
    void fillLongFields(const QString& text) {
        for (Field* field : {&fields.txtPurpose, &fields.txtOperation, &fields.txtObject(0),
                             &fields.txtElementDes(0)})
            field->setText(text);
    }

    std::string failureText() const {
        return composer.failure() ? composer.failure()->description().toStdString() : "";
    }

    ProjectFields fields;
    FakeFolders folders;
    FakePrompts prompts;
    HtmlComposer composer{fields, folders, prompts};

private:
    QTemporaryDir folder_;
};

inline const QString& lockedBody() {
    static const QString tag =
        u"<body lang=EN-US style='tab-interval:21.0pt;text-justify-trim:punctuation' "
        "onselectstart='return false' oncopy='document.selection.empty()' "
        "onbeforecopy='return false' ondragstart='return false' "
        "oncontextmenu='return false'>"_s;
    return tag;
}

} // namespace quillford
