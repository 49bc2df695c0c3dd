#pragma once

#include "platform/PictureLoader.h"
#include "platform/PrintJob.h"

#include <QTextBrowser>

namespace quillford {

/// Shows HTML pages: files of the program, whose links can be followed, and pages that the program
/// has composed. No script runs, nothing is fetched from anywhere but local files, and a composed
/// page shows the pictures of its figures alone.
class HtmlView final : public QTextBrowser {
    Q_OBJECT

public:
    explicit HtmlView(QWidget* parent = nullptr);

    /// From now on nothing in the page can be selected, copied, dragged or followed, and there is
    /// no context menu. The page can still be scrolled.
    void lock();

    /// Shows the file `path`, which may be followed by "#" and the name of a place in it. Where
    /// there is no such file, a plain page says so.
    void setSource(const QString& path);

    /// The path of the file that is shown, with "#" and the place where one was asked for;
    /// "about:blank" while there is none.
    [[nodiscard]] QString address() const { return address_; }

    /// Goes back to the page before this one, if there is one.
    void back();

    /// Shows a page that the program has composed, or any other text in HTML. The pictures of its
    /// figures are loaded when they come into sight: `pictures` outlives what is shown.
    void showHtml(const QString& html, PictureLoader& pictures);

    void showBlank();

    /// What is needed to print the file that is shown, but for header and footer. The page is empty
    /// where there is no file.
    [[nodiscard]] PrintJob printJob() const;

Q_SIGNALS:
    /// A file or the blank page stands in the view, whichever way it came there.
    void pageLoaded(const QString& address);

    /// The user clicked a link that leads out of the program's own files; the view stays.
    void linkLeaves(const QString& address);

protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

private:
    void fileLoaded(const QUrl& file);
    void leaveFile();

    bool showsFile_ = false;
    QString address_;
};

} // namespace quillford
