#include "app/Program.h"
#include "base/Error.h"
#include "controls/ClickLabel.h"
#include "controls/FormCombo.h"
#include "controls/LineField.h"
#include "controls/Theme.h"
#include "platform/linux/QtClock.h"
#include "platform/linux/QtTextMeasure.h"
#include "shell/dialogs/frmSplash.h"
#include "shell/dialogs/msgWindow.h"
#include "verification/dialogs/frmVerify.h"
#include "verification/dialogs/frmVerifyResult.h"

#include <QApplication>
#include <QDir>
#include <QScrollBar>
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
        name.remove(u'!').remove(u'?');
        album_.take(*dialog, u"dialog-"_s + name);
        dialog->accept();
    }

private:
    Album& album_;
};

/// Chooses the last row of a list of counts, waits for the layout and scrolls to its end.
void showLargest(QWidget& form, const QString& count, int bar) {
    auto* list = form.findChild<FormCombo*>(count);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_End);
    QTest::qWait(50);
    auto* scroll = form.findChild<QScrollBar*>(u"vscroll(%1)"_s.arg(bar));
    scroll->setValue(scroll->maximum());
}

void typeInto(QWidget& form, const QString& field, const QString& text) {
    auto* line = form.findChild<LineField*>(field);
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, text);
}

/// Every section at its largest count, scrolled to the end, with the shortest and a long name.
void takeLargest(Album& album, QWidget& form) {
    click(form, u"picTab(1)"_s);
    showLargest(form, u"cboInventorsNum"_s, 0);
    album.take(form, u"largest-2-inventors"_s);
    click(form, u"picTab(2)"_s);
    showLargest(form, u"cboObjectNum"_s, 1);
    album.take(form, u"largest-3-purpose"_s);
    click(form, u"picTab(3)"_s);
    showLargest(form, u"cboFiguresNum"_s, 2);
    album.take(form, u"largest-4-figures"_s);
    click(form, u"picTab(4)"_s);
    showLargest(form, u"cboMainElementNum"_s, 3);
    typeInto(form, u"txtElementName(13)"_s, u"x"_s);
    typeInto(form, u"txtElementName(14)"_s, u"long name "_s.repeated(20));
    album.take(form, u"largest-5-elements"_s);
    for (const auto& [tab, name] :
         {std::pair{5, u"largest-6-sub-elements"_s}, std::pair{6, u"largest-7-descriptions"_s}}) {
        click(form, u"picTab(%1)"_s.arg(tab));
        auto* scroll = form.findChild<QScrollBar*>(u"vscroll(%1)"_s.arg(tab - 1));
        scroll->setValue(tab == 5 ? scroll->maximum() : scroll->maximum() - 700);
        album.take(form, name);
    }
}

/// The splash as it stands between its fades.
void takeSplash(Album& album, const mdlSystem& system) {
    const QByteArray pace = qgetenv("QUILLFORD_TIME_SCALE");
    qputenv("QUILLFORD_TIME_SCALE", "0.1");
    QtClock clock;
    qputenv("QUILLFORD_TIME_SCALE", pace);
    frmSplash splash(clock, system);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &splash, [&] {
        const QImage shown = splash.grab().toImage();
        if (shown.pixelColor(shown.rect().center()).alpha() < 255)
            return;
        look.stop();
        album.take(splash, u"splash"_s);
    });
    look.start(1);
    splash.showModally();
}

/// The dialogs that no page brings up by itself.
void takeDialogs(Album& album, QWidget& form) {
    QtClock clock;
    const mdlSystem system;
    takeSplash(album, system);
    static_cast<void>(msgWindow(&form).showExportToFileMsgWindow(true));
    const ProjectFields fields;
    VerificationState state;
    static_cast<void>(frmVerify(&form, fields, state, clock, system).ask());
    const QtTextMeasure measure;
    const QFont font = QtTextMeasure::font(TextWeight::Regular);
    static_cast<void>(frmVerifyResult(&form, measure, font).showVerificationSuccessful());
    MissingLists lists;
    lists.missingMainElements.add(u"hinged tray"_s, {1, 0});
    lists.missingSubElements.add(u"carrying strap of a name that goes on for a second line"_s,
                                 {0, 5});
    lists.missingNumerals.add(u"15"_s, {0, 5});
    lists.missingNumerals.add(u"20"_s, {1, 0});
    static_cast<void>(frmVerifyResult(&form, measure, font).showVerificationErrors(lists));
}

void takeAll(Album& album, const QStringList& arguments) {
    Program program;
    DialogPhotographer dialogs(album);
    if (!program.start({}))
        return;
    QWidget& form = program.window()->form();
    album.take(form, u"welcome"_s);
    click(form, u"lblRecentPatents(0)"_s);
    const QStringList names{u"introduction"_s, u"inventors"_s,    u"purpose"_s,      u"figures"_s,
                            u"elements"_s,     u"sub-elements"_s, u"descriptions"_s, u"operation"_s,
                            u"final-draft"_s,  u"filing"_s};
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
    takeDialogs(album, form);
    takeLargest(album, form);
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
