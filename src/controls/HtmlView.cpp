#include "controls/HtmlView.h"

#include "draft/pages/PageText.h"
#include "draft/pages/RichText.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFileInfo>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QUrl>

namespace quillford {

namespace {

const QString BlankAddress = QStringLiteral("about:blank");

/// The bytes of a local file; nothing for a folder, a pipe or an address elsewhere.
QByteArray localFile(const QUrl& address) {
    QFile file(address.toLocalFile());
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

QString missingPage(const QString& path) {
    return QStringLiteral(
               "<p>This page cannot be shown, because its file is not there:</p><p>%1</p>")
        .arg(path.toHtmlEscaped());
}

} // namespace

HtmlView::HtmlView(QWidget* parent) : QTextBrowser(parent), address_(BlankAddress) {
    setUndoRedoEnabled(false);
    // A layout that knows its device asks for every picture, only to find the device's dots, which
    // are 96 to the inch; one that knows none takes the size that the page tells.
    document()->documentLayout()->setPaintDevice(nullptr);
    connect(this, &QTextBrowser::sourceChanged, this, &HtmlView::fileLoaded);
}

void HtmlView::lock() {
    setTextInteractionFlags(Qt::NoTextInteraction);
    setContextMenuPolicy(Qt::PreventContextMenu);
    viewport()->setCursor(Qt::ArrowCursor);
}

void HtmlView::setSource(const QString& path) {
    const qsizetype place = path.lastIndexOf(u'#');
    const bool isWholePath = place < 0 || QFileInfo(path).isFile();
    QUrl address = QUrl::fromLocalFile(isWholePath ? path : path.first(place));
    if (!isWholePath)
        address.setFragment(path.sliced(place + 1));
    showsFile_ = true;
    QTextBrowser::setSource(address, QTextDocument::HtmlResource);
}

void HtmlView::fileLoaded(const QUrl& file) {
    address_ = file.toLocalFile();
    if (file.hasFragment())
        address_ += u'#' + file.fragment();
    Q_EMIT pageLoaded(address_);
}

void HtmlView::back() {
    if (showsFile_ && historyUrl(-1).isLocalFile())
        backward();
}

void HtmlView::showHtml(const QString& html, PictureLoader& pictures) {
    constexpr int Margin = 12; // a figure of 660 pixels fits beside the scroll bar
    leaveFile();
    document()->setDocumentMargin(Margin);
    setPage(*document(), html, pictures, Medium::Screen);
    verticalScrollBar()->setValue(0);
}

void HtmlView::showBlank() {
    leaveFile();
    Q_EMIT pageLoaded(address_);
}

void HtmlView::leaveFile() {
    showsFile_ = false;
    address_ = BlankAddress;
    // The toolkit reads no file that it takes for the one on show: it has to show another address.
    const QSignalBlocker untold(this);
    QTextBrowser::doSetSource(QUrl(BlankAddress), QTextDocument::HtmlResource);
    clear();
    document()->setResourceProvider({}); // figures belong to one page
    clearHistory();
}

PrintJob HtmlView::printJob() const {
    if (!showsFile_)
        return {};
    const QByteArray page = localFile(source());
    return {
        QString::fromUtf8(page), QFileInfo(source().toLocalFile()).path(), documentTitle(), {}, {}};
}

QVariant HtmlView::loadResource(int type, const QUrl& name) {
    if (figureIndex(name.toString()) >= 0)
        return {}; // the document asks for it
    const QByteArray content = showsFile_ ? localFile(name) : QByteArray();
    if (!content.isEmpty())
        return content;
    if (type == QTextDocument::ImageResource)
        return missingPicture();
    if (type == QTextDocument::HtmlResource)
        return showsFile_ ? missingPage(name.toLocalFile()) : QString(u' ');
    return {};
}

void HtmlView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    if (name.isEmpty() || name.isLocalFile())
        QTextBrowser::doSetSource(name, type);
    else
        Q_EMIT linkLeaves(name.toString());
}

} // namespace quillford
