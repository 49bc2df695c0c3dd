#include "app/Program.h"
#include "base/Error.h"
#include "base/Files.h"
#include "controls/ClickLabel.h"
#include "controls/HtmlView.h"
#include "controls/Theme.h"
#include "support/Chromium.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

/// Takes one picture of the preview of a project and of its exported page in a browser, side by
/// side, at the same width:
///
///     beside_browser FOLDER NAME PROJECT EXPORTED
///
/// The picture is FOLDER/preview-NAME.png, with the preview at the left. Of a long page it holds
/// the beginning and the end.
using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LongestPicture = 12000;

HtmlView& previewOf(QWidget& form) {
    form.findChild<ClickLabel*>(u"picTab(8)"_s)->click();
    QCoreApplication::processEvents();
    auto* preview = form.findChild<HtmlView*>(u"webPreview"_s);
    if (preview == nullptr || preview->toPlainText().isEmpty())
        throw Error(0, u"there is no preview"_s);
    return *preview;
}

/// What the view shows when it is scrolled over this part.
QImage shown(const HtmlView& view, const QRect& part) {
    QImage image(part.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(-part.topLeft());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = part;
    context.palette = view.palette();
    view.document()->documentLayout()->draw(&painter, context);
    return image;
}

/// The exported page with the margins of the preview instead of those of paper.
QString pageWithMargins(const QString& exported, int margin, const QString& folder) {
    QByteArray page = contentOfFile(exported);
    const QString style = u"@media screen { body { max-width:none; padding:%1px; } }"_s.arg(margin);
    page.replace("</style>", style.toUtf8() + "</style>");
    const QString path = folder + u"/page.htm"_s;
    replaceFile(path, page);
    return path;
}

/// The parts of a page that stand in the picture: all of it, or its beginning and its end.
QList<QRect> partsOf(int width, int height) {
    if (height <= LongestPicture)
        return {QRect(0, 0, width, height)};
    const int half = LongestPicture / 2;
    return {QRect(0, 0, width, half), QRect(0, height - half, width, half)};
}

QImage sideBySide(const HtmlView& view, Chromium& chromium, int theirHeight) {
    constexpr int Gap = 8;
    const int width = view.viewport()->width();
    const QList<QRect> ours = partsOf(width, qCeil(view.document()->size().height()));
    const QList<QRect> theirs = partsOf(width, theirHeight);
    int height = 0;
    for (qsizetype i = 0; i < std::max(ours.size(), theirs.size()); ++i)
        height += std::max(ours.value(i).height(), theirs.value(i).height()) + Gap;
    QImage both(2 * width + Gap, height, QImage::Format_RGB32);
    both.fill(Qt::gray);
    QPainter painter(&both);
    int top = 0;
    for (qsizetype i = 0; i < std::max(ours.size(), theirs.size()); ++i) {
        if (i < ours.size())
            painter.drawImage(0, top, shown(view, ours[i]));
        if (i < theirs.size())
            painter.drawImage(width + Gap, top,
                              chromium.picture(theirs[i].top(), theirs[i].height()));
        top += std::max(ours.value(i).height(), theirs.value(i).height()) + Gap;
    }
    return both;
}

void take(const QStringList& arguments) {
    const QTemporaryDir folder;
    Program program;
    if (!program.start({arguments.at(2)}))
        throw Error(0, u"the program does not start"_s);
    const HtmlView& view = previewOf(program.window()->form());
    const int width = view.viewport()->width();
    Chromium chromium(folder.path(), width, view.height());
    const QString page =
        pageWithMargins(arguments.at(3), qRound(view.document()->documentMargin()), folder.path());
    const QImage both = sideBySide(view, chromium, chromium.load(page));
    const QString path = u"%1/preview-%2.png"_s.arg(arguments.at(0), arguments.at(1));
    if (!both.save(path))
        throw Error(0, u"the picture cannot be written"_s, path);
    QTextStream(stdout) << path << '\n';
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication application(argc, argv);
    theme::apply(application);
    if (!Chromium::isInstalled()) {
        QTextStream(stdout) << "the preview beside a browser is skipped: chromium is missing\n";
        return 0;
    }
    try {
        take(QCoreApplication::arguments().sliced(1));
    } catch (const Error& error) {
        QTextStream(stderr) << "beside_browser: " << error.source() << ": " << error.description()
                            << '\n';
        return 2;
    }
    return 0;
}
