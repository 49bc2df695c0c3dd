#include "base/Error.h"
#include "app/Program.h"
#include "controls/ClickLabel.h"
#include "controls/Theme.h"
#include "shell/dialogs/msgWindow.h"
#include "shell/dialogs/frmSplash.h"

#include <QApplication>
#include <QDir>
#include <QTest>
#include <QTextStream>
#include <QTimer>

using namespace quillford;
using namespace Qt::Literals::StringLiterals;

namespace {

class Album {
public:
    Album(QString folder, qreal scale)
        : folder_(std::move(folder)), suffix_(scale > 1 ? u"@2x"_s : QString()) {}

    void take(QWidget& window, const QString& name) {
        QCoreApplication::processEvents();
        const QString path = u"%1/%2%3.png"_s.arg(folder_, name, suffix_);
        if (!window.grab().save(path))
            throw Error(0, u"the picture cannot be written"_s, path);
        QTextStream(stdout) << path << '\n';
    }

private:
    QString folder_;
    QString suffix_;
};

void click(QWidget& form, const QString& name) {
    auto* label = form.findChild<ClickLabel*>(name);
    if (!label)
        throw Error(0, u"there is no such control"_s, name);
    label->click();
}

/// Answers every dialog that comes up, after taking its picture.
class DialogPhotographer final : public QObject {
public:
    explicit DialogPhotographer(Album& album) : album_(album) { startTimer(20); }

protected:
    void timerEvent(QTimerEvent*) override {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        QString name = dialog->windowTitle().toLower().replace(u' ', u'-');
        name.remove(u'!');
        album_.take(*dialog, u"dialog-"_s + name);
        dialog->accept();
    }

private:
    Album& album_;
};

void takeAll(Album& album, const QStringList& arguments) {
    Program program;
    DialogPhotographer dialogs(album);
    if (!program.start({}))
        return;
    QWidget& form = program.window()->form();
    album.take(form, u"welcome"_s);
    click(form, u"lblRecentPatents(0)"_s);
    const QStringList names{u"introduction"_s, u"inventors"_s, u"purpose"_s, u"figures"_s,
                            u"elements"_s, u"sub-elements"_s, u"descriptions"_s, u"operation"_s,
                            u"final-draft"_s, u"filing"_s};
    for (int tab = 0; tab < 9; ++tab) {
        click(form, u"picTab(%1)"_s.arg(tab));
        album.take(form, u"section-%1-%2-empty"_s.arg(tab + 1).arg(names[tab]));
    }
    if (arguments.isEmpty())
        return;
    program.window()->OpenFile(arguments.first());
    for (int tab = 0; tab < 10; ++tab) {
        click(form, u"picTab(%1)"_s.arg(tab));
        album.take(form, u"section-%1-%2"_s.arg(tab + 1).arg(names[tab]));
    }
}

} // namespace

int main(int argc, char** argv) {
    // Paper and screen share one measure, whatever the desktop says of its dots.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication application(argc, argv);
    theme::apply(application);
    const QStringList arguments = QCoreApplication::arguments().sliced(1);
    Album album(arguments.first(), application.devicePixelRatio());
    try {
        takeAll(album, arguments.sliced(1));
    } catch (const Error& error) {
        QTextStream(stderr) << "screenshots: " << error.source() << ": " << error.description()
                            << '\n';
        return 2;
    }
    return 0;
}
