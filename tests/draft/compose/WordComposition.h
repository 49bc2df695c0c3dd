#pragma once

#include "draft/compose/WidgetHolder.h"
#include "draft/compose/WordComposer.h"
#include "draft/compose/WordTemplateText.h"
#include "support/FakeFolders.h"
#include "support/FakePrompts.h"
#include "support/FakeWordProcessor.h"
#include "support/PrintQt.h"

#include <QTemporaryDir>

namespace quillford {

using namespace Qt::Literals::StringLiterals;

/// The Word document of the widget holder, composed in folders of the test's own by a word
/// processor over plain text.
class WordComposition : public testing::Test {
protected:
    WordComposition() {
        folders.temporary = path(u"temporary"_s);
        QDir().mkpath(folders.temporary);
        word.templateText = wordTemplateText();
        fillWidgetHolder(fields);
        attachFigure(0);
    }

    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

    /// Gives a figure a picture that is there.
    void attachFigure(int figure) {
        const QString picture = path(u"fig%1.png"_s.arg(figure + 1));
        writeFile(picture);
        fields.txtAttachFig(figure).setText(picture);
    }

    /// The paragraphs of the finished document.
    QStringList composed() {
        EXPECT_TRUE(composer.ExportToWord(path(u"draft.doc"_s))) << failureText();
        return word.text.split(u'\r');
    }

    /// The paragraph that begins with `start`.
    QString paragraph(const QString& start) { return paragraphsAt(start, 1).value(0); }

    /// `count` paragraphs, of which the first begins with `start`.
    QStringList paragraphsAt(const QString& start, int count) {
        const QStringList all = composed();
        for (qsizetype i = 0; i < all.size(); ++i)
            if (all[i].startsWith(start))
                return all.sliced(i, std::min<qsizetype>(count, all.size() - i));
        ADD_FAILURE() << "no paragraph begins with " << qPrintable(start);
        return {};
    }

    std::string failureText() const {
        return composer.failure() ? composer.failure()->description().toStdString() : "";
    }

    ProjectFields fields;
    FakeFolders folders;
    FakePrompts prompts;
    FakeWordProcessor word;
    WordComposer composer{fields, folders, prompts, word};

private:
    QTemporaryDir folder_;
};

} // namespace quillford
